#include "run/journal_results.h"

#include "support/file_identity.h"
#include "support/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <tuple>
#include <vector>

using namespace Qt::StringLiterals;

/// The journal files' names, each machine's in the order in which they were begun.
static QStringList Journal_Files(const QString& app_folder)
{
    QStringList names = QDir(app_folder).entryList({u"Vantorra_Journal-*.jsonl"_s}, QDir::Files | QDir::Hidden);
    // "HOST.jsonl", "HOST-2.jsonl", ..., "HOST-10.jsonl"
    std::sort(names.begin(), names.end(), [](const QString& one, const QString& other) {
        return std::tuple(one.size(), one) < std::tuple(other.size(), other);
    });
    return names;
}

static Journal_Entry Entry_Of(const QJsonObject& line)
{
    Journal_Entry entry = {.Status = line[u"status"_s].toString(),
                           .Hash = line[u"hash"_s].toString(),
                           .Outputs = {},
                           .Output_Bytes = line[u"output_bytes"_s].toInteger(),
                           .Warnings = line[u"warnings"_s].toVariant().toStringList(),
                           .Reason = line[u"reason"_s].toString(),
                           .Host = line[u"host"_s].toString(),
                           .When = QDateTime::fromString(line[u"when"_s].toString(), Qt::ISODateWithMs)};
    entry.Outputs = line[u"outputs"_s].toVariant().toStringList();
    return entry;
}

/// One machine's lines stand in their order, whatever its clock did meanwhile; between machines the clocks decide.
static bool Counts_More(const Journal_Entry& entry, const Journal_Entry& than)
{
    const bool ran = entry.Status != "not run"_L1;
    if (than.Status.isEmpty() || ran != (than.Status != "not run"_L1))
        return than.Status.isEmpty() || ran;
    return entry.Host == than.Host || entry.When >= than.When;
}

Journal_Results Read_Journal(const QString& app_folder)
{
    Journal_Results results;
    for (const QString& name : Journal_Files(app_folder)) {
        QFile file(With_Separator(app_folder) + name);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        // A line that a kill or a full disk has cut is none.
        while (!file.atEnd()) {
            const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
            if (line[u"event"_s] != "result"_L1)
                continue;
            const Journal_Entry entry = Entry_Of(line);
            Journal_Entry& known = results[line[u"source"_s].toString()];
            if (Counts_More(entry, known))
                known = entry;
        }
    }
    return results;
}

std::int64_t Bytes_Of_All(const QStringList& files)
{
    std::int64_t bytes = 0;
    for (const QString& file : files)
        if (const auto identity = Identity_Of(file))
            bytes += static_cast<std::int64_t>(identity->Size);
    return bytes;
}

static bool Has_Its_Outputs(const Journal_Entry& entry)
{
    return entry.Status == "done"_L1 && !entry.Outputs.isEmpty() &&
           std::all_of(entry.Outputs.begin(), entry.Outputs.end(),
                       [](const QString& output) { return Identity_Of(output).has_value(); }) &&
           Bytes_Of_All(entry.Outputs) == entry.Output_Bytes;
}

QHash<QString, QString> Makers_Of_Outputs(const Journal_Results& results)
{
    QHash<QString, QString> makers;
    QHash<QString, QDateTime> made;
    for (const auto& [source, entry] : results.asKeyValueRange())
        for (const QString& output : Has_Its_Outputs(entry) ? entry.Outputs : QStringList())
            if (const QString key = Key_Of_Name(output); !made.contains(key) || made[key] <= entry.When) {
                made[key] = entry.When;
                makers[key] = File_Name_Of(source);
            }
    return makers;
}

bool Is_Done_Before(const Journal_Results& results, const QString& source, const QString& hash)
{
    const auto found = results.constFind(source);
    return found != results.constEnd() && found->Hash == hash && Has_Its_Outputs(*found);
}
