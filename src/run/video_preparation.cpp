#include "run/video_preparation.h"

#include "command/attachments.h"
#include "command/command_frame.h"
#include "command/nothing_to_change.h"
#include "command/source_names.h"
#include "command/split_command.h"
#include "inspect/chapter_check.h"
#include "inspect/json_probe.h"
#include "logs/results_digest.h"
#include "run/careful_walk.h"
#include "run/habits.h"
#include "run/journal_results.h"
#include "run/room.h"
#include "run/split_pieces.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

bool Open_Source(Video_Work& work, const Folder_Entry& entry)
{
    switch (entry.Kind) {
    case Entry_Kind::Folder:
        return Give_Up(work, File_Outcome::Kind::Skipped, u"it is a folder"_s);
    case Entry_Kind::Other:
        return Give_Up(work, File_Outcome::Kind::Skipped, u"it is no file but a pipe, a socket or a device"_s);
    case Entry_Kind::Lost:
        return Fail(work, u"it is a link that leads nowhere"_s);
    case Entry_Kind::File:
    case Entry_Kind::Unknown:
        break;
    }
    if (Has_Stand_Ins(work.Outcome.Source))
        return Fail(work, u"its name isn't valid UTF-8: rename it"_s);
    const int error = work.Source.Open(work.Outcome.Source);
    if (error == 0)
        return true;
    return Fail(work, error == ENOENT ? u"it is gone"_s : u"it can't be read: "_s + System_Words(error));
}

/// Why an old output can't make way: the journal has it as another video's. It isn't looked into while none is there.
static QString Why_Not_Replaced(Video_Work& work)
{
    Careful_Run& run = work.Walk.Run;
    if (!work.Names.Old.isEmpty() && !run.Makers)
        run.Makers = Makers_Of_Outputs(Read_Journal(run.Prog.Settings.App_Folder));
    for (const QString& old : work.Names.Old) {
        const QString maker = run.Makers->value(Key_Of_Name(work.Walk.Before.Folder() + old));
        if (!maker.isEmpty() && maker != File_Name_Of(work.Outcome.Source))
            return u"its output would replace \"%1\", which was made of \"%2\": rename the video, or move that away"_s
                .arg(old, maker);
    }
    return {};
}

bool Choose_Output(Video_Work& work)
{
    Careful_Walk& walk = work.Walk;
    const Program& program = work.Prog;
    if (!walk.Folders.Sub.isEmpty() && Same_Folder(walk.Folders.Target, walk.Folders.Videos))
        return Fail(work, u"the target's folder \"%1\" is the videos' own"_s.arg(walk.Folders.Sub));
    if (const QString why = work.Split ? Why_Not_Split_Into(walk.Before.Folder()) : QString(); !why.isEmpty())
        return Fail(work, why);
    const QString name = Output_Base_Of(program, work.Outcome.Source) + u".mkv"_s;
    work.Names =
        Choose_Name(walk.Before, name, work.Split, program.Settings.Extensions.If_The_Output_Exists, walk.Claims);
    if (!work.Names.Skip_Reason.isEmpty())
        return Give_Up(work, File_Outcome::Kind::Skipped, work.Names.Skip_Reason);
    work.Outcome.Replaces = work.Names.Old;
    const QString& chosen = work.Names.Name;
    if (const QString why = Why_Not_A_Name(work.Split ? Piece_Name(chosen, 1) : chosen); !why.isEmpty())
        return Fail(work, u"its output's name \"%1\" %2: rename the video"_s.arg(chosen, why));
    if (const auto first = walk.Claims.constFind(Key_Of_Name(chosen)); first != walk.Claims.constEnd())
        return Fail(work, u"its output would be \"%1\", as that of \"%2\""_s.arg(chosen, first.value()));
    if (const QString why = Why_Not_Replaced(work); !why.isEmpty())
        return Fail(work, why);
    walk.Claims.insert(Key_Of_Name(chosen), File_Name_Of(work.Outcome.Source));
    work.Outcome.Output = walk.Before.Folder() + chosen;
    const auto old = Identity_Of_Name(work.Outcome.Output);
    if (old && old->Is_Same_File(work.Source.Identity()))
        return Fail(work, u"the output \"%1\" is the source itself"_s.arg(chosen));
    return true;
}

/// Why the files of one kind can't be looked for in the folder that was chosen for them; empty if they can.
static QString Why_Not_Reached(const QString& kind, const QString& folder)
{
    if (folder.isEmpty())
        return u"the folder of the %1 isn't there, or none was chosen"_s.arg(kind);
    const QString why = Why_Unreadable(folder);
    return why.isEmpty() ? why : u"the folder of the %1, \"%2\", can't be read: %3"_s.arg(kind, folder, why);
}

bool Reach_Companions(Video_Work& work)
{
    if (work.Split)
        return true;
    const Program& program = work.Prog;
    const JobOptions& options = program.Options;
    const auto on = [](const Check_Box& wanted, const Check_Box& elsewhere) {
        return wanted.Value == 1 && elsewhere.Value == 1;
    };
    QString why;
    if (on(options.chk_AddAudio, options.chk_AudioPath))
        why = Why_Not_Reached(u"audio files"_s, options.Path_Audios);
    if (why.isEmpty() && on(options.chk_AddSubs, options.chk_SubsPath))
        why = Why_Not_Reached(u"subtitle files"_s, options.Path_Subtitles);
    if (why.isEmpty() && on(options.chk_ReplaceChapters, options.chk_ChaptersPath) && options.chk_ConvertTXT.Value == 1)
        why = Why_Not_Reached(u"chapter files"_s, options.Path_Chapters);
    if (why.isEmpty() && program.Run.Add_Attachments_On)
        why = Why_Not_Reached(u"attachments"_s, options.Path_Attachments);
    return why.isEmpty() ? true : Fail(work, why);
}

bool Inspect(Video_Work& work)
{
    Program& program = work.Prog;
    const QString why_not = Probe_Video(program, work.Outcome.Source);
    Note_Start_Of_Tool(work);
    if (program.Run.Halt_Requested)
        return Halted(work);
    if (!why_not.isEmpty())
        return Fail(work, why_not);
    for (const QString& warning : program.Media.Probe_Warnings)
        Warn(work, warning);
    return true;
}

/// What is amiss with what lies beside the video. Only a dry run gets here with more than unread files.
static QStringList Problems_Beside(Program& program)
{
    QStringList problems = program.Media.Unread_Files + program.Run.Video.Problems;
    if (program.Run.Dry_Run)
        if (const QString refused = Why_Chapters_Are_Refused(program); !refused.isEmpty())
            problems += refused;
    return problems;
}

bool Assemble(Video_Work& work)
{
    Program& program = work.Prog;
    const QString& source = work.Outcome.Source;
    program.Media.Unread_Files.clear();
    program.Run.Video = {};
    if (work.Split) {
        program.Companions = {};
        Assemble_Split_Command(program, work.Outcome.Output, source);
    } else {
        if (program.Run.Add_Attachments_On)
            Find_Attachments_Of_Video(program.Options, Get_Base_Name(source), program.Companions.Attachment_List,
                                      program.Logs.Log_Faults, program.Person);
        program.Logs.Log_Faults.AppendLine(u"-- Processing video file - \""_s + As_One_Line(source) + u'"');
        Assemble_Command(program, work.Outcome.Output, program.Options.Path_Videos, source);
    }
    // A fault beside the video is shown where a person looks.
    if (program.Form.pic_ProcessFailed.Visible)
        work.Walk.Run.Calls.Post([&run = work.Walk.Prog] { Flash_Process_Failed(run); });
    if (program.Run.Halt_Requested)
        return Halted(work);
    if (const QStringList problems = Problems_Beside(program); !problems.isEmpty()) {
        work.Outcome.Warnings += problems.mid(1);
        return Fail(work, problems.constFirst());
    }
    work.Asked = Asked_Of(program.Run.Mkvmerge_Arguments, program.Media.FileInfoList);
    if (work.Asked.Inputs.size() == 1 && work.Asked.Inputs.front().Tracks.isEmpty())
        return Fail(work, u"no track is left for the output"_s);
    if (const QString silent = Warning_Of_No_Audio(work.Asked, program.Companions); !silent.isEmpty())
        Warn(work, silent);
    for (const QStringList& warnings : {program.Run.Mkvmerge_Arguments.Refusals(),
                                        Habit_Warnings(program, work.Walk.Bases), Companions_Left_Out(program)})
        for (const QString& warning : warnings)
            Warn(work, warning);
    if (program.Listener)
        program.Listener->Command_Ready(program, source, work.Outcome.Output);
    return true;
}

bool Is_To_Change(Video_Work& work)
{
    Program& program = work.Prog;
    const bool may_be_right = work.Outcome.Source.endsWith(".mkv"_L1, Qt::CaseInsensitive) && !work.Split;
    // A warning may be of something that was to be done and can't.
    if (!program.Settings.Extensions.Skip_What_Would_Not_Change || !may_be_right || !work.Outcome.Warnings.isEmpty())
        return true;
    QString why_not;
    const std::optional<Identified_File> source = Identify_Tracks(program, work.Outcome.Source, why_not);
    if (program.Run.Halt_Requested)
        return Halted(work);
    if (!source || !Would_Change_Nothing(program.Run.Mkvmerge_Arguments.Arguments(), *source))
        return true;
    return Give_Up(work, File_Outcome::Kind::Skipped, u"nothing to change"_s);
}

/// What the other videos in work still need of the room below the target folder, in bytes.
static double Room_Taken(const Video_Work& work)
{
    double taken = 0;
    for (const auto& other : work.Walk.Run.In_Work)
        if (other.get() != &work)
            taken += std::max(other->Room_Needed - static_cast<double>(other->Working->Bytes()), 0.0);
    return taken;
}

bool Look_Ahead(Video_Work& work)
{
    Program& program = work.Prog;
    const Room_Check room = Check_Room(program, Room_Taken(work));
    if (!room.Failure.isEmpty())
        return Fail(work, room.Failure);
    if (!room.Warning.isEmpty() && program.Run.Dry_Run)
        Warn(work, room.Warning);
    else if (!room.Warning.isEmpty() && program.Listener)
        program.Listener->Warned(u"Little room"_s, work.Outcome.Name() + u": "_s + room.Warning);
    if (program.Run.Dry_Run)
        return Give_Up(work, File_Outcome::Kind::Not_Run, u"dry run"_s);

    work.Room_Needed = room.Needed;
    if (const int error = Make_Folders(program.Options.Path_Target); error != 0)
        return Fail(work, u"the folder \"%1\" couldn't be made in the target folder: %2"_s.arg(work.Walk.Folders.Sub,
                                                                                               System_Words(error)));
    Working_Folder& working = *work.Working;
    if (const QString why = working.Make(program.Options.Path_Target, program.Settings.App_Folder); !why.isEmpty())
        return Fail(work, why);
    working.Empty();
    for (const QString& name : {work.Names.Name, work.Split ? Piece_Name(work.Names.Name, 1) : work.Names.Name})
        if (const QString why = working.Try_Name(name); !why.isEmpty())
            return Fail(work, u"the target's file system refuses the name \"%1\": %2"_s.arg(name, why));
    return true;
}
