#include "run/careful_video.h"

#include "command/attachments.h"
#include "command/command_frame.h"
#include "command/source_names.h"
#include "command/split_command.h"
#include "inspect/json_probe.h"
#include "inspect/output_check.h"
#include "logs/results_digest.h"
#include "run/careful_deletions.h"
#include "run/careful_walk.h"
#include "run/habits.h"
#include "run/room.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "support/whole_file.h"
#include "tools/tool_runner.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <new>

using namespace Qt::StringLiterals;

namespace {

/// Names in the working folder: no letter of them means anything to a tool.
const QString Working_Stem = QStringLiteral("output");
const QString Working_Chapters = QStringLiteral("chapters.xml");
/// What is kept of mkvmerge's words; a tool that never stops talking must not fill the memory.
constexpr qsizetype Most_Words = 8'000'000;

/// One video on its way.
struct Video_Work
{
    explicit Video_Work(Careful_Walk& walk) : Walk(walk) { Clock.start(); }

    double Seconds() const { return static_cast<double>(Clock.elapsed()) / 1000; }

    Careful_Walk& Walk;
    File_Outcome Outcome;
    Held_File Source;
    Name_Choice Names;
    Asked_Output Asked;
    QString Words;     ///< all that mkvmerge printed but its progress
    QStringList Made;  ///< paths in the working folder
    QStringList Final; ///< their names in the target folder, place by place
    QString Hash;
    bool Split = false;
    bool Tool_Was_Asked = false;
    bool Tool_Not_Started = false;
    QElapsedTimer Clock;
};

/// A step's end: the video goes no further.
bool Give_Up(Video_Work& work, File_Outcome::Kind status, const QString& reason)
{
    work.Outcome.Status = status;
    work.Outcome.Reason = reason.simplified();
    return false;
}

bool Fail(Video_Work& work, const QString& reason)
{
    return Give_Up(work, File_Outcome::Kind::Failed, reason);
}

bool Halted(Video_Work& work)
{
    return Give_Up(work, File_Outcome::Kind::Not_Run, u"the run was halted"_s);
}

void Warn(Video_Work& work, const QString& warning)
{
    work.Outcome.Warnings += warning.simplified();
}

bool Goes_To_Trash(const Video_Work& work)
{
    return work.Walk.Prog.Options.Delete_Video_After && !work.Split;
}

/// Takes note of how the start of a tool went. One that couldn't be started says nothing about the video.
void Note_Start_Of_Tool(Video_Work& work)
{
    const Run_State& run = work.Walk.Prog.Run;
    work.Tool_Was_Asked = true;
    work.Tool_Not_Started = work.Tool_Not_Started || run.Pipe_Result == 0 || run.Process_Result != -1;
}

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
    if (Has_Stand_Ins(entry.Name))
        return Fail(work, u"its name isn't valid UTF-8: rename it"_s);
    const int error = work.Source.Open(work.Outcome.Source);
    if (error == 0)
        return true;
    return Fail(work, error == ENOENT ? u"it is gone"_s : u"it can't be read: "_s + System_Words(error));
}

bool Inspect(Video_Work& work)
{
    Program& program = work.Walk.Prog;
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

/// Chooses the output's name. Two videos of one run never share one.
bool Choose_Output(Video_Work& work)
{
    Careful_Walk& walk = work.Walk;
    const Program& program = walk.Prog;
    const QString name = Output_Base_Of(program, work.Outcome.Source) + u".mkv"_s;
    work.Names =
        Choose_Name(walk.Before, name, work.Split, program.Settings.Extensions.If_The_Output_Exists, walk.Claims);
    if (!work.Names.Skip_Reason.isEmpty())
        return Give_Up(work, File_Outcome::Kind::Skipped, work.Names.Skip_Reason);
    const QString& chosen = work.Names.Name;
    if (const auto first = walk.Claims.constFind(chosen); first != walk.Claims.constEnd())
        return Fail(work, u"its output would be \"%1\", as that of \"%2\""_s.arg(chosen, first.value()));
    walk.Claims.insert(chosen, File_Name_Of(work.Outcome.Source));
    work.Outcome.Output = walk.Before.Folder() + chosen;
    const auto old = Identity_Of_Name(work.Outcome.Output);
    if (old && old->Is_Same_File(work.Source.Identity()))
        return Fail(work, u"the output \"%1\" is the source itself"_s.arg(chosen));
    return true;
}

bool Assemble(Video_Work& work)
{
    Program& program = work.Walk.Prog;
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
    if (program.Run.Halt_Requested)
        return Halted(work);
    if (!program.Media.Unread_Files.isEmpty())
        return Fail(work, program.Media.Unread_Files.constFirst());
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
        program.Listener->Command_Ready(source, work.Outcome.Output, program.Run.Mkvmerge_Arguments);
    return true;
}

/// What would fail after hours is tried now.
bool Look_Ahead(Video_Work& work)
{
    Program& program = work.Walk.Prog;
    const Room_Check room = Check_Room(program);
    if (!room.Failure.isEmpty())
        return Fail(work, room.Failure);
    if (!room.Warning.isEmpty() && program.Run.Dry_Run)
        Warn(work, room.Warning);
    else if (!room.Warning.isEmpty() && program.Listener)
        program.Listener->Warned(u"Little room"_s, File_Name_Of(work.Outcome.Source) + u": "_s + room.Warning);
    if (program.Run.Dry_Run)
        return Give_Up(work, File_Outcome::Kind::Not_Run, u"dry run"_s);

    Working_Folder& working = work.Walk.Working;
    if (const QString why = working.Make(program.Options.Path_Target, program.Settings.App_Folder); !why.isEmpty())
        return Fail(work, why);
    working.Empty();
    for (const QString& name : {work.Names.Name, work.Split ? Piece_Name(work.Names.Name, 1) : work.Names.Name})
        if (const QString why = working.Try_Name(name); !why.isEmpty())
            return Fail(work, u"the target's file system refuses the name \"%1\": %2"_s.arg(name, why));
    return true;
}

/// The command's arguments with the names that stand in the working folder in the place of the final ones.
QStringList Working_Arguments(const Video_Work& work)
{
    const Program& program = work.Walk.Prog;
    const QString& folder = work.Walk.Working.Path();
    QStringList arguments = program.Run.Mkvmerge_Arguments.Arguments();
    arguments[arguments.indexOf(u"--output"_s) + 1] = folder + Working_Stem + u".mkv"_s;
    if (!program.Run.Video.Chapter_Xml.isEmpty()) {
        Write_Whole_File(folder + Working_Chapters, program.Run.Video.Chapter_Xml);
        arguments[arguments.lastIndexOf(u"--chapters"_s) + 1] = folder + Working_Chapters;
    }
    return arguments;
}

/// A line of mkvmerge as everybody is to read it.
QString With_Final_Names(const Video_Work& work, QString line)
{
    const Program& program = work.Walk.Prog;
    const QString& folder = work.Walk.Working.Path();
    if (line.contains(folder)) {
        line.replace(folder + Working_Stem, As_One_Line(work.Outcome.Output.chopped(4)));
        line.replace(folder + Working_Chapters, As_One_Line(program.Companions.Chapter_File));
    }
    return line;
}

void Take_Line(Video_Work& work, const QString& line)
{
    const QString mark = u"Progress: "_s;
    Program& program = work.Walk.Prog;
    if (line.startsWith(mark)) {
        const int percent = std::clamp(static_cast<int>(Number_Prefix(line.mid(mark.size()))), 0, 100);
        const double share = program.Run.Videos_Done + percent / 100.0;
        Show_Fraction(program, percent, std::min(share / std::max(program.Run.Videos_Chosen, 1), 1.0));
    } else if (work.Words.size() < Most_Words) {
        work.Words += With_Final_Names(work, line) + u'\n';
    }
}

/// What mkvmerge printed, a line each; a name stays on its line, whatever it holds.
void Log_Words(const Video_Work& work)
{
    Program& program = work.Walk.Prog;
    QString words = work.Words;
    for (const QString& name : Names_Of_Several_Lines(program.Run.Mkvmerge_Arguments.Arguments())) {
        // As Run_Mkvmerge_Lines has cut it.
        QString printed = name;
        printed.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        words.replace(printed, As_One_Line(name));
    }
    for (const QString& line : words.split(u'\n', Qt::SkipEmptyParts))
        program.Logs.Log_Console.AppendLine(line);
}

/// How mkvmerge ended, where that wasn't well: its own first words, if it had some.
QString Why_It_Failed(const Video_Work& work)
{
    const int exit = work.Outcome.Exit;
    const QString end =
        exit < 0 ? u"mkvmerge was ended by signal %1"_s.arg(-exit) : u"mkvmerge ended with status %1"_s.arg(exit);
    for (const QString& line : work.Words.split(u'\n'))
        if (line.startsWith("Error:"_L1))
            return end + u": "_s + line.mid(6).trimmed();
    return end;
}

bool Mux(Video_Work& work)
{
    Program& program = work.Walk.Prog;
    Run_State& run = program.Run;
    program.Logs.Log_Console.Clear();
    Run_Mkvmerge_Lines(program, program.Tools.System_MKVMerge_Path, Working_Arguments(work),
                       [&work](const QString& line) { Take_Line(work, line); });
    Log_Words(work);
    work.Outcome.Exit = run.Exit_Status.value_or(-1);
    if (run.Halt_Requested)
        return Halted(work);
    Note_Start_Of_Tool(work);
    if (run.Pipe_Result == 0 || run.Process_Result != -1)
        return Fail(work, u"mkvmerge couldn't be started: "_s + System_Words(run.Process_Result));
    if (!run.Exit_Status)
        return Fail(work, u"it isn't known how mkvmerge ended"_s);
    return work.Outcome.Exit == 0 || work.Outcome.Exit == 1 ? true : Fail(work, Why_It_Failed(work));
}

/// What mkvmerge left in the working folder, and the names that it is to get.
void Collect_Outputs(Video_Work& work)
{
    const QString& folder = work.Walk.Working.Path();
    if (!work.Split) {
        work.Made = {folder + Working_Stem + u".mkv"_s};
        work.Final = {work.Names.Name};
        return;
    }
    for (int number = 1; Identity_Of_Name(folder + Piece_Name(Working_Stem + u".mkv"_s, number)); ++number) {
        work.Made += folder + Piece_Name(Working_Stem + u".mkv"_s, number);
        work.Final += Piece_Name(work.Names.Name, number);
    }
}

/// The pieces of a split are together as long as the source.
void Check_Pieces(const Video_Work& work, std::optional<double> seconds, Check_Result& result)
{
    double sum = 0;
    for (const QString& piece : work.Made) {
        const std::optional<double> length = Check_File(piece, result);
        if (!length)
            return;
        sum += *length;
    }
    constexpr double tolerance = 2;
    if (seconds && std::abs(sum - *seconds) > tolerance + static_cast<double>(work.Made.size()))
        result.Warnings += u"the pieces are %1 s long, the source %2 s"_s.arg(sum, 0, 'f', 1).arg(*seconds, 0, 'f', 1);
}

bool Check(Video_Work& work)
{
    Program& program = work.Walk.Prog;
    Collect_Outputs(work);
    if (work.Made.isEmpty())
        return Fail(work, u"mkvmerge wrote no piece"_s);
    const std::optional<double> seconds = Seconds_Of(program.Media.FileInfoList.front());
    Check_Result result = Check_Output(work.Asked, work.Words, work.Outcome.Exit, work.Made.constFirst(), seconds);
    if (work.Split)
        Check_Pieces(work, seconds, result);
    if (result.Failure.isEmpty() && Goes_To_Trash(work))
        Check_Identified(program, work.Asked, work.Made.constFirst(), result);
    if (program.Run.Halt_Requested)
        return Halted(work);
    if (!result.Failure.isEmpty())
        return Fail(work, With_Final_Names(work, result.Failure));
    for (const QString& warning : result.Warnings)
        Warn(work, With_Final_Names(work, warning));
    // Kept all the same: if the source is gone this may be all there is of it.
    if (!work.Source.Is_Still_There())
        Warn(work,
             u"the source was changed or taken away while it was read: what is in the output may not be all of it"_s);
    return true;
}

QStringList Final_Paths(const Video_Work& work)
{
    QStringList paths;
    for (const QString& name : work.Final)
        paths += work.Walk.Before.Folder() + name;
    return paths;
}

/// From here to the end no halt is heard: these steps belong together.
bool Name_Outputs(Video_Work& work, QStringList& old)
{
    const bool trashes = Goes_To_Trash(work) || !work.Names.Old.isEmpty();
    for (const QString& made : work.Made)
        if (const int error = trashes ? Sync_File(made) : 0; error != 0)
            return Fail(work, u"the output couldn't be brought to the disk: "_s + System_Words(error));
    const Name_Result named = Give_Names(work.Walk.Before, work.Names, work.Made, work.Final);
    if (!named.Failure.isEmpty())
        return Fail(work, named.Failure);
    for (const QString& warning : named.Warnings)
        Warn(work, warning);
    old = named.Old;
    if (const int error = trashes ? Sync_Folder(work.Walk.Before.Folder()) : 0; error != 0)
        Warn(work, u"the target folder couldn't be brought to the disk: "_s + System_Words(error));
    work.Outcome.Status = File_Outcome::Kind::Done;
    if (work.Split)
        work.Outcome.Pieces = Final_Paths(work);
    return true;
}

/// An old output that made way goes to the trash, or stays under the name that it has now.
void Trash_Old(Video_Work& work, const QStringList& old)
{
    clsStringBuilder unused;
    for (const QString& path : old)
        if (!Delete_To_Recycle(path, unused))
            Warn(work, u"the trash refused the old output, which stays as \"%1\""_s.arg(File_Name_Of(path)));
}

/// Journal first, then the trash: a power cut in between leaves a file too many, never one too few.
void Note_And_Trash(Video_Work& work, const QStringList& old)
{
    const Program& program = work.Walk.Prog;
    const bool trashes = Goes_To_Trash(work) || !old.isEmpty();
    work.Outcome.Seconds = work.Seconds();
    const QString unnoted = Note_Result(program, work.Outcome, Final_Paths(work), work.Hash, trashes);
    if (!unnoted.isEmpty()) {
        Warn(work, unnoted);
        for (const QString& path : old)
            Warn(work, u"the old output stays as \"%1\""_s.arg(File_Name_Of(path)));
    } else {
        Trash_Old(work, old);
    }
    const bool plainly_done = work.Outcome.Warnings.isEmpty();
    if (Goes_To_Trash(work)) {
        if (plainly_done)
            Trash_Source(work.Walk, work.Source, work.Outcome);
        work.Outcome.Source_Kept = !program.Run.Source_Deleted;
    }
    // A source that stays keeps its companions.
    if (plainly_done && !work.Outcome.Source_Kept)
        work.Walk.Done.insert(File_Name_Of(work.Outcome.Source));
}

void Take_All_Steps(Video_Work& work, const Folder_Entry& entry)
{
    if (!Open_Source(work, entry))
        return;
    work.Hash = Hash_Of_Video(work.Walk.Prog, work.Outcome.Source);
    QStringList old;
    if (!Choose_Output(work) || !Inspect(work) || !Assemble(work) || !Look_Ahead(work))
        return;
    Remember_Companions(work.Walk);
    if (Mux(work) && Check(work) && Name_Outputs(work, old))
        Note_And_Trash(work, old);
}

/// The lines that the log has from level 1 on.
void Log_Outcome(Program& program, const File_Outcome& outcome)
{
    const auto line = [&](const QString& word, const QString& text) {
        program.Logs.Log_Faults.AppendLine(u"-- %1 - \"%2\" - "_s.arg(word, As_One_Line(outcome.Source)) + text);
    };
    if (outcome.Status == File_Outcome::Kind::Failed)
        line(u"FAILED"_s, outcome.Reason);
    else if (!outcome.Reason.isEmpty() && !program.Run.Dry_Run)
        line(u"SKIPPED"_s, outcome.Reason);
    for (const QString& warning : outcome.Warnings)
        line(u"WARNING"_s, warning);
}

} // namespace

File_Outcome Run_Careful_Video(Careful_Walk& walk, const Folder_Entry& entry)
{
    Program& program = walk.Prog;
    Video_Work work(walk);
    work.Split = program.Options.chk_SplitVideos.Value == 1;
    work.Outcome = {.Source = program.Options.Path_Videos + entry.Name,
                    .Output = {},
                    .Status = File_Outcome::Kind::Failed,
                    .Exit = -1};
    try {
        Take_All_Steps(work, entry);
    } catch (const Run_Time_Error& error) {
        Fail(work, error.Message());
    } catch (const std::bad_alloc&) {
        Fail(work, u"the memory did not suffice"_s);
    } catch (const std::exception& error) {
        Fail(work, QString::fromUtf8(error.what()));
    }
    walk.Working.Empty();
    if (work.Tool_Was_Asked)
        walk.Unstarted_In_A_Row = work.Tool_Not_Started ? walk.Unstarted_In_A_Row + 1 : 0;
    work.Outcome.Seconds = work.Seconds();
    work.Outcome.Source_Kept =
        work.Outcome.Source_Kept || (Goes_To_Trash(work) && work.Outcome.Status == File_Outcome::Kind::Failed);
    if (work.Outcome.Status != File_Outcome::Kind::Done)
        Note_Result(program, work.Outcome, {}, work.Hash, false);
    Log_Outcome(program, work.Outcome);
    return work.Outcome;
}
