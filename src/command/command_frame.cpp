#include "command/command_frame.h"

#include "command/attachments.h"
#include "command/chapters.h"
#include "command/external_audio.h"
#include "command/external_subtitles.h"
#include "command/source_names.h"
#include "command/source_tracks.h"
#include "command/track_names.h"
#include "command/track_order.h"
#include "command/video_block.h"
#include "inspect/stream_parser.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/platform_names.h"
#include "support/run_time_error.h"

#include <functional>

using namespace Qt::StringLiterals;

/// What one assembly carries from phase to phase.
struct Assembly
{
    Source_Names Names;
    QString Video_Base_Name;
    QString Output_Path;
    Tracks_Argument Audio_Tracks;
    Tracks_Argument Subtitle_Tracks;
    Track_Order Order;
    bool Audio_Default_Claimed = false; ///< an external audio file says that it is the default
};

/// Forgets what was found beside the preceding video.
static void Reset_Companions(Companions& companions)
{
    companions.External_Audio.assign(1, {});
    companions.External_Subtitles.assign(1, {});
    companions.External_Subtitles_Unpaired.assign(1, {});
    companions.Chapter_File.clear();
}

/// What can't be read beside the video ends its assembly. A careful dry run takes a note instead, and goes on to find
/// whatever else there is.
static void Look_Beside(Program& program, const std::function<void()>& look)
{
    try {
        look();
    } catch (const Run_Time_Error& error) {
        if (!program.Run.Careful || !program.Run.Dry_Run)
            throw;
        program.Run.Video.Problems += error.In_One_Line();
    }
}

/// Looks for what goes with the video beside it, and tells Log_Faults.
static void Find_Files_Beside(Program& program, const QString& videos_path, Assembly& work)
{
    const JobOptions& options = program.Options;
    const bool say_origin = program.Settings.Extensions.Language_From_File_Name;
    Companions& found = program.Companions;
    Reset_Companions(found);
    if (options.chk_AddAudio.Value == 1) {
        Look_Beside(program, [&] {
            Find_External_Audio(program, External_Audio_Folder(options, videos_path), work.Video_Base_Name,
                                found.External_Audio, work.Audio_Default_Claimed);
        });
        Log_External_Audio(found.External_Audio, options, program.Language_Table, program.Logs.Log_Faults, say_origin);
    }
    if (options.chk_AddSubs.Value == 1) {
        Look_Beside(program, [&] {
            Find_External_Subtitles(program, External_Subtitle_Folder(options, videos_path), work.Video_Base_Name,
                                    found.External_Subtitles, found.External_Subtitles_Unpaired);
        });
        Log_External_Subtitles(found.External_Subtitles, found.External_Subtitles_Unpaired, options,
                               program.Language_Table, program.Logs.Log_Faults, say_origin);
    }
    Look_Beside(program, [&] { found.Chapter_File = Find_Chapter_File(program, videos_path, work.Video_Base_Name); });
}

/// The head: interface language, output, the source's tracks to take, and the switches.
static void Append_Head(Command_Line& command, const Program& program, const Assembly& work)
{
    command.Add_Option(u" --ui-language "_s, Tool_Language());
    command.Add_Path(u" --output "_s, work.Output_Path);
    work.Audio_Tracks.Append_To(command);
    work.Subtitle_Tracks.Append_To(command);
    Append_Switches(command, program.Options, !program.Companions.Chapter_File.isEmpty());
}

/// The source's options, track by track, and the source.
static void Append_Source(Command_Line& command, Program& program, const Assembly& work)
{
    FileInfoList& streams = program.Media.FileInfoList;
    const JobOptions& options = program.Options;
    Append_Source_Video(command, streams, options, work.Names.Base,
                        program.Settings.Extensions.Sensible_Names_And_Sizes);
    Append_Source_Audio(command, streams, options, program.Run.Strip_Audio_Titles, work.Audio_Default_Claimed);
    Append_Source_Subtitles(command, streams, options, program.Run.Strip_Subtitle_Titles);
    command.Add_Input(work.Names.Path);
}

/// The external files, each with its options ahead of it, and the attachments.
static void Append_Files_Beside(Command_Line& command, Program& program, Assembly& work)
{
    const JobOptions& options = program.Options;
    const Companions& found = program.Companions;
    Track_Order& order = work.Order;
    Append_External_Audio_Arguments(command, found.External_Audio, options, !work.Audio_Default_Claimed,
                                    order.Default_Audio, order.Extra_Audio, order.Next_File_Index);
    Append_External_Subtitle_Arguments(command, found.External_Subtitles, options, order.Next_File_Index,
                                       order.Extra_Subtitles, program.Settings.Extensions.Sensible_Names_And_Sizes);
    if (program.Run.Add_Attachments_On)
        Append_Attachment_Arguments(command, found.Attachment_List, program.Logs.Log_Faults);
}

static void Append_Track_Order(Command_Line& command, const Track_Order& order)
{
    const QString text = order.Text();
    // A text of one short entry tells nothing.
    if (text.size() > 5)
        command.Add_Option(u" --track-order "_s, text);
}

void Assemble_Command(Program& program, const QString& output_path, const QString& videos_path,
                      const QString& video_path)
{
    FileInfoList& streams = program.Media.FileInfoList;
    const JobOptions& options = program.Options;

    Assembly work;
    work.Audio_Tracks = Select_Source_Audio(streams, options, program.Language_Table);
    work.Subtitle_Tracks = Select_Source_Subtitles(streams, options, program.Language_Table);
    work.Names = Name_Source(video_path, streams);
    work.Order.Video = Source_Entries(streams, u"video"_s);
    work.Order.Source_Audio = Source_Entries(streams, u"audio"_s);
    work.Order.Source_Subtitles = Source_Entries(streams, u"subtitle"_s);
    work.Video_Base_Name = Output_Base_Of(program, video_path);
    work.Output_Path = output_path;
    Find_Files_Beside(program, videos_path, work);

    Command_Line command;
    Append_Head(command, program, work);
    Append_Source(command, program, work);
    Append_Files_Beside(command, program, work);
    Append_File_Title(command, options, work.Video_Base_Name, work.Names.Title, streams.front().Title,
                      streams.front().Literal);
    Append_Chapter_Arguments(command, program.Companions.Chapter_File, options);
    Append_Track_Order(command, work.Order);
    for (const QString& line : command.Refusals())
        program.Logs.Log_Faults.AppendLine(line);

    program.Run.Mkvmerge_Arguments = std::move(command);
    program.Run.Output_Path = work.Output_Path;
}

QString Output_Base_Of(const Program& program, const QString& video_path)
{
    return program.Settings.Extensions.Sensible_Names_And_Sizes ? Get_Base_Name(video_path)
                                                                : Video_Base_Name_Of(video_path);
}

int Parse_VideoData_A(Program& program, const QString& target_path, const QString& videos_path,
                      const QString& video_path)
{
    if (!Parse_FFProbe_Output(program.Media, video_path))
        return 0;
    Assemble_Command(program, Output_Path_Of(target_path, Output_Base_Of(program, video_path)), videos_path,
                     video_path);
    return 1;
}
