#include "workbenches/log_search.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static std::vector<int> Rows_Where(const QStringList& lines, const auto& holds)
{
    std::vector<int> rows;
    for (qsizetype row = 0; row < lines.size(); ++row)
        if (holds(lines[row]))
            rows.push_back(static_cast<int>(row));
    return rows;
}

std::vector<int> Rows_Holding(const QStringList& lines, const QString& text)
{
    if (text.isEmpty())
        return {};
    return Rows_Where(lines, [&text](const QString& line) { return line.contains(text, Qt::CaseInsensitive); });
}

std::vector<int> Rows_Of_Kind(const QStringList& lines, Log_Line kind)
{
    return Rows_Where(lines, [kind](const QString& line) { return Kind_Of_Line(line) == kind; });
}

int Next_Place(const std::vector<int>& rows, int row, bool back)
{
    const auto count = static_cast<int>(rows.size());
    if (count == 0)
        return -1;
    const auto at = back ? std::ranges::lower_bound(rows, row) : std::ranges::upper_bound(rows, row);
    const int place = static_cast<int>(at - rows.begin()) - (back ? 1 : 0);
    return (place + count) % count;
}

QString Place_Text(int place, std::size_t count)
{
    return u"%1 of %2"_s.arg(place + 1).arg(count);
}
