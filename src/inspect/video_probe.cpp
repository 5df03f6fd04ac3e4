#include "inspect/video_probe.h"

#include "inspect/stream_parser.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/paths.h"
#include "support/system_identification.h"
#include "tools/ask_tool.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

Command_Line FFProbe_Command(const QString& what, const QString& path)
{
    Command_Line command;
    command.Add_Path(u" -v quiet -print_format compact "_s + what + u' ', path);
    return command;
}

/// What ffprobe says against a file: the first line. The commands of a run ask it to be quiet, so it is asked once
/// more; empty if it says nothing, or after a halt.
static QString Fault_By_FFProbe(Program& program, const QString& path)
{
    if (program.Run.Halt_Requested)
        return {};
    Command_Line command;
    command.Add_Path(u" -v error -print_format compact -show_format "_s, path);
    // The run that failed is the one that counts.
    const std::optional<int> exit_status = program.Run.Exit_Status;
    const Tool_Answer answer = Ask_Tool(program, program.Tools.FFProbe_Path, command);
    program.Run.Pipe_Result = 1;
    program.Run.Process_Result = -1;
    program.Run.Exit_Status = exit_status;
    // A demuxer's name has its address behind it, which is another one each time.
    static const QRegularExpression address(u"^\\[([^\\]@]*) @ [^\\]]*\\] "_s);
    return First_Line(answer.Messages).replace(address, u"\\1: "_s);
}

/// Why a video can't be inspected, for the reports `code`.
static QString Probe_Failure(Program& program, int code, const QString& path)
{
    if (code != 13)
        return u"ffprobe could not be started: "_s + Format_System_Error(program.Run.Process_Result);
    const QString said = Fault_By_FFProbe(program, path);
    return said.isEmpty() ? u"ffprobe says nothing about it"_s : u"ffprobe says: "_s + said;
}

/// The three checks behind each ffprobe run on a video; true if it went well. A halt is no fault of the file.
static bool Check_FFProbe_Run(Program& program, const QString& video_path)
{
    if (Tools_Are_To_End(program))
        return false;
    int code = 0;
    if (program.Run.Pipe_Result == 0)
        code = 11;
    else if (program.Run.Process_Result != -1)
        code = 12;
    else if (program.Media.FFProbe_Output.isEmpty())
        code = 13;
    if (code == 0)
        return true;
    program.Run.File_Failure = Probe_Failure(program, code, video_path);
    Report_Run_Failure(program, code, u"FFProbe"_s, Quote_Path(video_path));
    return false;
}

int Run_FFProbe_Video(Program& program, const QString& video_path)
{
    QString& output = program.Media.FFProbe_Output;
    output.clear();
    // mkvmerge can't open a name that isn't valid UTF-8: it gets the report that speaks of such names.
    if (Has_Stand_Ins(video_path)) {
        program.Run.File_Failure = u"its name is not valid UTF-8"_s;
        return Report_Run_Failure(program, 13, u"FFProbe"_s, Quote_Path(video_path));
    }
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_format"_s, video_path), output);
    if (!Check_FFProbe_Run(program, video_path))
        return 0;
    const bool read_well = program.Run.Exit_Status == 0;
    program.Media.Video_Duration = Format_Duration(
        output, video_path,
        read_well ? Reading_Duration : u"Reading the duration of a file that ffprobe could not read to its end"_s);
    // The streams' text lands behind the format's, so a second run that prints nothing is no failure.
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_streams"_s, video_path), output);
    if (!Check_FFProbe_Run(program, video_path))
        return 0;
    program.Person.Pump_Events();
    return 1;
}
