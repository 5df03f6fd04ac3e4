#include "inspect/external_probe.h"

#include "inspect/stream_parser.h"
#include "inspect/video_probe.h"
#include "state/program.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

using namespace Qt::StringLiterals;

/// Runs ffprobe on an external file into `output`, which is emptied first. False after a report.
static bool Probe(Program& program, const QString& path, QString& output)
{
    const QString tool = u"FFProbe"_s;
    output.clear();
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_streams"_s, path), output);
    if (program.Run.Pipe_Result == 0)
        return Report_Run_Failure(program, 11, tool) != 0;
    if (program.Run.Process_Result != -1)
        return Report_Run_Failure(program, 12, tool) != 0;
    if (output.isEmpty())
        return Report_Run_Failure(program, 13, tool) != 0;
    return true;
}

int Run_FFProbe_ExtAudio(Program& program, const QString& path)
{
    QString& output = program.Media.FFProbe_ExtAudio_Output;
    if (!Probe(program, path, output))
        return 0;
    ExtStreamInfo& info = program.Media.ExtAudioInfo;
    info = Parse_External_Streams(output, path);
    if (info.Language.isEmpty())
        info.Language = u"und"_s;
    return 1;
}

int Run_FFProbe_ExtSubtitle(Program& program, const QString& path)
{
    QString& output = program.Media.FFProbe_ExtSubtitle_Output;
    if (Probe(program, path, output))
        program.Media.ExtSubtitleInfo = Parse_External_Streams(output, path);
    return 0;
}
