#include "headless/journal_command.h"

#include "headless/print.h"
#include "run/journal_results.h"
#include "support/shown_text.h"

#include <QMap>
#include <algorithm>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

static void Print_As_Json(std::FILE* out, const QString& source, const Journal_Entry& entry)
{
    const auto texts = [](const QStringList& list) {
        auto array = nlohmann::ordered_json::array();
        for (const QString& text : list)
            array.push_back(text.toStdString());
        return array;
    };
    Print_Json(out, {{"event", "journal"},
                     {"source", source.toStdString()},
                     {"status", entry.Status.toStdString()},
                     {"when", entry.When.toString(Qt::ISODateWithMs).toStdString()},
                     {"host", entry.Host.toStdString()},
                     {"outputs", texts(entry.Outputs)},
                     {"reason", entry.Reason.toStdString()},
                     {"warnings", texts(entry.Warnings)}});
}

static QString Line_Of(const QString& source, const Journal_Entry& entry, qsizetype host_width)
{
    QStringList reasons = entry.Warnings;
    if (!entry.Reason.isEmpty())
        reasons.prepend(entry.Reason);
    const QString status = entry.Status == "done"_L1 && !entry.Warnings.isEmpty() ? u"warning"_s : entry.Status;
    const QString line = status.leftJustified(9) + entry.When.toString(u"yyyy-MM-dd HH:mm:ss  "_s) +
                         entry.Host.leftJustified(host_width + 2) + source;
    return reasons.isEmpty() ? line : line + u": "_s + reasons.join(u"; "_s);
}

bool Print_Journal(const QString& app_folder, bool only_failed, bool json, std::FILE* out)
{
    const Journal_Results results = Read_Journal(app_folder);
    QStringList sources = results.keys();
    sources.sort();
    qsizetype host_width = 0;
    for (const Journal_Entry& entry : results)
        host_width = std::max(host_width, entry.Host.size());
    QMap<QString, int> counts;
    for (const QString& source : sources) {
        const Journal_Entry entry = results.value(source);
        ++counts[entry.Status];
        if (only_failed && entry.Status != "failed"_L1)
            continue;
        if (json)
            Print_As_Json(out, source, entry);
        else
            Print_Text(out, Printable(Line_Of(source, entry, host_width)) + u'\n');
    }
    if (!json && !results.isEmpty())
        Print_Text(out, u"%1 done, %2 failed, %3 skipped, %4 not run\n"_s.arg(counts[u"done"_s])
                            .arg(counts[u"failed"_s])
                            .arg(counts[u"skipped"_s])
                            .arg(counts[u"not run"_s]));
    return !results.isEmpty();
}
