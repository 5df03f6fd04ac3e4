#include "headless/settings_command.h"

#include "headless/bad_usage.h"
#include "headless/batch_report.h"
#include "headless/nearest_name.h"
#include "headless/print.h"
#include "settings/settings_store.h"
#include "state/program.h"
#include "support/shown_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

/// "Section/Key" of every row.
static QStringList Key_Names()
{
    QStringList names;
    for (const Settings_Row& row : Settings_Rows())
        names += row.Section + u'/' + row.Key.trimmed();
    return names;
}

void Take_Assignments(Program& program, const QStringList& assignments, Batch_Report& report)
{
    for (const QString& assignment : assignments) {
        switch (Add_Override(program, assignment)) {
        case Override_Result::Taken:
            break;
        case Override_Result::Without_Effect:
            report.Warn(u"Setting without effect"_s,
                        u"--set \"%1\" changes nothing: the program never goes by that key."_s.arg(assignment));
            break;
        case Override_Result::Unknown_Key:
            throw Bad_Usage{
                u"--set \"%1\": there is no such section and key (vantorra-batch settings lists all)."_s.arg(
                    assignment) +
                Did_You_Mean(assignment.section(u'=', 0, 0), Key_Names())};
        case Override_Result::Not_Understood:
            throw Bad_Usage{u"--set \"%1\": that key takes no such value (vantorra-batch settings lists the values in "
                            u"force and the defaults)."_s.arg(assignment)};
        case Override_Result::No_Assignment:
            throw Bad_Usage{u"--set wants \"Section/Key=Value\", not \"%1\"."_s.arg(assignment)};
        }
    }
}

static void Print_Rows_As_Json(const Program& program, std::FILE* out)
{
    for (const Settings_Row& row : Settings_Rows())
        Print_Json(out, {{"event", "setting"},
                         {"section", row.Section.toStdString()},
                         {"key", row.Key.trimmed().toStdString()},
                         {"value", Value_In_Force(row, program).toStdString()},
                         {"default", Default_Of(row, program).toStdString()}});
}

/// One row of cells, the first ones filled up with blanks to their column's width.
static QString Table_Line(const QStringList& cells, const QList<qsizetype>& widths)
{
    QString line;
    for (qsizetype i = 0; i < cells.size(); ++i)
        line += i + 1 < cells.size() ? cells[i].leftJustified(widths[i] + 2) : cells[i];
    while (line.endsWith(u' '))
        line.chop(1);
    return line + u'\n';
}

void Print_Settings(const Program& program, bool json, std::FILE* out)
{
    if (json) {
        Print_Rows_As_Json(program, out);
        return;
    }
    QList<QStringList> lines{{u"SECTION/KEY"_s, u"VALUE"_s, u"DEFAULT"_s}};
    for (const Settings_Row& row : Settings_Rows())
        lines.append({Printable(row.Section + u'/' + row.Key.trimmed()), Printable(Value_In_Force(row, program)),
                      Printable(Default_Of(row, program))});
    QList<qsizetype> widths{0, 0, 0};
    for (const QStringList& line : lines)
        for (qsizetype i = 0; i < line.size(); ++i)
            // One long value doesn't push the whole column to the right.
            widths[i] = std::max(widths[i], std::min<qsizetype>(line[i].size(), i == 0 ? 72 : 32));
    for (const QStringList& line : lines)
        Print_Text(out, Table_Line(line, widths));
}
