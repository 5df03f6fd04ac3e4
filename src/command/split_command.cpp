#include "command/split_command.h"

#include "command/command_frame.h"
#include "command/source_names.h"
#include "command/track_order.h"
#include "inspect/stream_parser.h"
#include "state/program.h"
#include "support/platform_names.h"
#include "support/shown_text.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

QString Split_Duration(const QString& minutes)
{
    const double seconds =
        Require_Number(minutes, u"Reading the split time"_s, u"Split multiple video files (minutes)"_s) * 60;
    return u"duration:"_s + QString::number(seconds, 'G', 15) + u's';
}

/// The languages of the picture tracks, then those of the sound tracks.
static void Append_Languages(Command_Line& command, FileInfoList& streams)
{
    for (FileInfo& stream : streams)
        if (stream.StreamType == "video"_L1) {
            stream.Title = Unescape_Title(stream.Title);
            command.Add_Option(u" --language "_s, stream.Index + u':' + stream.Language);
        }
    for (FileInfo& stream : streams)
        if (stream.StreamType == "audio"_L1) {
            if (stream.Language == "???"_L1)
                stream.Language = u"und"_s;
            command.Add_Option(u" --language "_s, stream.Index + u':' + stream.Language);
        }
}

void Assemble_Split_Command(Program& program, const QString& output_path, const QString& video_path)
{
    FileInfoList& streams = program.Media.FileInfoList;
    clsStringBuilder& faults = program.Logs.Log_Faults;
    const Source_Names names = Name_Source(video_path, streams);
    faults.AppendLine(u"-- Processing video file - \""_s + As_One_Line(video_path) + u'"');

    // The filters don't run here, so every track counts; subtitles have no entries.
    const QString order =
        Join_Order({Source_Entries(streams, u"video"_s), Source_Entries(streams, u"audio"_s), QString()});

    Command_Line command;
    command.Add_Option(u" --ui-language "_s, Tool_Language());
    command.Add_Path(u" --output "_s, output_path);
    Append_Languages(command, streams);
    command.Add_Input(names.Path);
    command.Add_Option(u" --split "_s, Split_Duration(program.Options.Split_Minutes));
    // Deliberate: one entry is enough here, where a normal run wants two.
    if (order.size() > 2)
        command.Add_Option(u" --track-order "_s, order);
    for (const QString& line : command.Refusals())
        faults.AppendLine(line);

    program.Run.Mkvmerge_Arguments = std::move(command);
    program.Run.Output_Path = output_path;
}

int Split_Video_Mod(Program& program, const QString& target_path, const QString& /*videos_path*/,
                    const QString& video_path)
{
    if (!Parse_FFProbe_Output(program.Media, video_path))
        return 0;
    Assemble_Split_Command(program, Output_Path_Of(target_path, Output_Base_Of(program, video_path)), video_path);
    return 1;
}
