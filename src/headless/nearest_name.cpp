#include "headless/nearest_name.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

/// A longer word is no slip of the finger.
static constexpr qsizetype Longest_Typed = 200;

/// How many letters must be put in, left out, replaced or swapped with their neighbour to make one text of the other.
static qsizetype Slips_Between(const QString& one, const QString& other)
{
    std::vector<qsizetype> before_last;
    std::vector<qsizetype> last(static_cast<std::size_t>(other.size()) + 1);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 1; i <= one.size(); ++i) {
        std::vector<qsizetype> row(last.size(), i);
        for (qsizetype j = 1; j <= other.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const bool same = one[i - 1] == other[j - 1];
            row[at] = std::min({last[at] + 1, row[at - 1] + 1, last[at - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
                row[at] = std::min(row[at], before_last[at - 2] + 1);
        }
        before_last = std::exchange(last, std::move(row));
    }
    return last.back();
}

QString Nearest_Name(const QString& typed, const QStringList& names)
{
    if (typed.isEmpty() || typed.size() > Longest_Typed)
        return {};
    const QString wanted = typed.toLower();
    QString nearest;
    // A third of the letters may be wrong, but one always.
    qsizetype fewest = std::max<qsizetype>(1, wanted.size() / 3) + 1;
    for (const QString& name : names) {
        const QString lowered = name.toLower();
        // The beginning of a name is a good guess, too.
        const qsizetype slips = wanted.size() > 2 && lowered.startsWith(wanted) ? 1 : Slips_Between(wanted, lowered);
        if (slips < fewest) {
            fewest = slips;
            nearest = name;
        }
    }
    return nearest;
}

QString Did_You_Mean(const QString& typed, const QStringList& names, const QString& prefix)
{
    const QString nearest = Nearest_Name(typed, names);
    return nearest.isEmpty() ? QString() : u" Did you mean %1%2?"_s.arg(prefix, nearest);
}
