#include "inspect/video_probe.h"

#include "inspect/stream_parser.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/paths.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

using namespace Qt::StringLiterals;

Command_Line FFProbe_Command(const QString& what, const QString& path)
{
    Command_Line command;
    command.Add_Path(u" -v quiet -print_format compact "_s + what + u' ', path);
    return command;
}

/// The three checks behind each ffprobe run on a video; true if it went well.
static bool Check_FFProbe_Run(Program& program, const QString& video_path)
{
    int code = 0;
    if (program.Run.Pipe_Result == 0)
        code = 11;
    else if (program.Run.Process_Result != -1)
        code = 12;
    else if (program.Media.FFProbe_Output.isEmpty())
        code = 13;
    if (code != 0)
        Report_Run_Failure(program, code, u"FFProbe"_s, Quote_Path(video_path));
    return code == 0;
}

int Run_FFProbe_Video(Program& program, const QString& video_path)
{
    QString& output = program.Media.FFProbe_Output;
    output.clear();
    // mkvmerge can't open a name that isn't valid UTF-8: it gets the report that speaks of such names.
    if (Has_Stand_Ins(video_path))
        return Report_Run_Failure(program, 13, u"FFProbe"_s, Quote_Path(video_path));
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_format"_s, video_path), output);
    if (!Check_FFProbe_Run(program, video_path))
        return 0;
    program.Media.Video_Duration = Format_Duration(output, video_path);
    // The streams' text lands behind the format's, so a second run that prints nothing is no failure.
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_streams"_s, video_path), output);
    if (!Check_FFProbe_Run(program, video_path))
        return 0;
    program.Person.Pump_Events();
    return 1;
}
