#include "inspect/external_probe.h"

#include "inspect/json_probe.h"
#include "inspect/stream_parser.h"
#include "inspect/video_probe.h"
#include "state/program.h"
#include "support/paths.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

using namespace Qt::StringLiterals;

/// Runs ffprobe on an external file into `output`, which is emptied first. False after a report.
static bool Probe(Program& program, const QString& path, QString& output)
{
    const QString tool = u"FFProbe"_s;
    output.clear();
    Run_Tool_Capture(program, program.Tools.FFProbe_Path, FFProbe_Command(u"-show_streams"_s, path), output);
    if (Tools_Are_To_End(program))
        return false;
    int code = 0;
    if (program.Run.Pipe_Result == 0)
        code = 11;
    else if (program.Run.Process_Result != -1)
        code = 12;
    else if (output.isEmpty())
        code = 13;
    if (code != 0)
        Report_Run_Failure(program, code, tool, Quote_Path(path), path);
    return code == 0;
}

/// A careful run's probe of an added file. What can't be read is noted: it fails the video.
static bool Probe_Carefully(Program& program, const QString& path, ExtStreamInfo& info)
{
    const QString why_not = Probe_Added_File(program, path, info);
    if (!why_not.isEmpty())
        program.Media.Unread_Files += u"\"%1\" can't be added: %2"_s.arg(File_Name_Of(path), why_not);
    return why_not.isEmpty();
}

int Run_FFProbe_ExtAudio(Program& program, const QString& path)
{
    if (program.Run.Careful) {
        const bool read = Probe_Carefully(program, path, program.Media.ExtAudioInfo);
        if (program.Media.ExtAudioInfo.Language.isEmpty())
            program.Media.ExtAudioInfo.Language = u"und"_s;
        return read ? 1 : 0;
    }
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
    if (program.Run.Careful) {
        Probe_Carefully(program, path, program.Media.ExtSubtitleInfo);
        return 0;
    }
    QString& output = program.Media.FFProbe_ExtSubtitle_Output;
    if (Probe(program, path, output))
        program.Media.ExtSubtitleInfo = Parse_External_Streams(output, path);
    return 0;
}
