#include "inspect/identification.h"

#include "inspect/identification_json.h"
#include "state/program.h"
#include "support/command_line.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/tool_discovery.h"
#include "tools/tool_runner.h"

using namespace Qt::StringLiterals;

/// Sets "XX" for the value of the first item `key` in a line. Deliberate: the blank behind the value is taken and two
/// stand ahead of the mark; a value that ends its line isn't hidden, the whole line follows the mark instead.
static void Mask_Item(QString& line, const QString& key)
{
    const qsizetype position = line.indexOf(key, 0, Qt::CaseInsensitive);
    if (position < 0)
        return;
    const qsizetype blank = line.indexOf(u' ', position);
    line = line.left(position) + u' ' + key + u"XX "_s + line.mid(blank + 1);
}

QStringList Identification_Lines(const QString& verbose_text, bool keep_codec_private)
{
    QStringList lines = Split_Text(verbose_text, Line_Break);
    if (!keep_codec_private) {
        for (QString& line : lines)
            Mask_Item(line, u"codec_private_data:"_s);
        for (QString& line : lines)
            Mask_Item(line, u"codec_private_length:"_s);
        // Behind the masks: an escaped blank must not end a value early.
        for (QString& line : lines)
            line.replace(u"\\s"_s, u" "_s).replace(u"\\c"_s, u":"_s);
    }
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

bool Identifying_Tool_Runs(Program& program)
{
    switch (Which_Tool_Identifies(program)) {
    case Identifying_Tool::Local_Verbose_Text:
        return Get_Local_MKVMerge_Version(program);
    case Identifying_Tool::System_Json:
        return Get_System_MKVMerge_Version(program);
    case Identifying_Tool::None:
        break;
    }
    return false;
}

bool Identify_File(Program& program, const QString& path)
{
    const bool as_json = Which_Tool_Identifies(program) == Identifying_Tool::System_Json;
    QString& output = program.Media.MKVMerge_Ident_Output;
    Command_Line command;
    command.Add_Options(as_json ? u" --identification-format json"_s : u" --identification-format verbose-text"_s);
    command.Add_Path(u" --identify "_s, path);
    Run_Tool_Capture_Fresh(program, as_json ? program.Tools.System_MKVMerge_Path : program.Tools.Local_MKVMerge_Path,
                           command, output);
    if (Tools_Are_To_End(program))
        return false;
    int code = 0;
    if (program.Run.Pipe_Result == 0)
        code = 1;
    else if (program.Run.Process_Result != -1)
        code = 2;
    else if (output.isEmpty())
        code = 3;
    if (code != 0) {
        Report_Run_Failure(program, code);
        return false;
    }
    if (as_json)
        output = Verbose_Text_Of_Json(output, path);
    program.Media.Video_Info_Lines = Identification_Lines(output, program.Media.Show_Codec_Private != 0);
    program.Person.Pump_Events();
    return true;
}
