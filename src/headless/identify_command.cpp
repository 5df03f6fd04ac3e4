#include "headless/identify_command.h"

#include "headless/exit_status.h"
#include "headless/print.h"
#include "inspect/identification.h"
#include "state/program.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "tools/tool_discovery.h"
#include "tools/tool_runner.h"
#include "workbenches/video_info_viewer.h"

#include <algorithm>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;
using Json = nlohmann::ordered_json;

/// Plain lines go to a terminal, maybe, and a title may hold anything.
static void Print_Lines(const QString& file, const QStringList& lines, bool json, std::FILE* out)
{
    if (!json) {
        for (const QString& line : Video_Info_Text(lines).split(Line_Break))
            Print_Text(out, Printable(line) + u'\n');
        return;
    }
    Json object{{"event", "identification"}, {"source", file.toStdString()}, {"lines", Json::array()}};
    for (const QString& line : lines)
        object["lines"].push_back(line.toStdString());
    Print_Json(out, object);
}

int Print_Identification(Program& program, const QStringList& files, bool json, std::FILE* out)
{
    if (!Identifying_Tool_Runs(program)) {
        if (Tools_Are_To_End(program))
            return Exit_Halted;
        if (Which_Tool_Identifies(program) == Identifying_Tool::None)
            pic_ViewVidInfo_Click(program);
        return Exit_Refused;
    }
    bool all_identified = true;
    for (qsizetype file = 0; file < files.size(); ++file) {
        const bool answered = Identify_File(program, files[file]);
        if (Tools_Are_To_End(program))
            return Exit_Halted;
        if (file > 0 && !json)
            Print_Text(out, u"\n"_s);
        const QStringList& lines = program.Media.Video_Info_Lines;
        if (answered)
            Print_Lines(files[file], lines, json, out);
        const auto is_error = [](const QString& line) { return line.startsWith(u"Error:"_s); };
        all_identified = all_identified && answered && std::none_of(lines.begin(), lines.end(), is_error);
    }
    return all_identified ? Exit_Finished : Exit_Some_Failed;
}
