#include "run/careful_batch.h"

#include "inspect/video_names.h"
#include "logs/results_digest.h"
#include "run/batch_captions.h"
#include "run/batch_steps.h"
#include "run/careful_deletions.h"
#include "run/careful_video.h"
#include "run/careful_walk.h"
#include "state/program.h"
#include "support/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// So many videos in a row for which a tool couldn't be started end the batch: the next would fare no better.
static constexpr int Most_Unstarted = 3;

/// Every entry of the videos' folder that has a video's extension. `error` as for List_Entries.
static std::vector<Folder_Entry> Video_Entries(const Program& program, int& error)
{
    std::vector<Folder_Entry> entries = List_Entries(program.Options.Path_Videos, error);
    std::erase_if(entries, [](const Folder_Entry& entry) {
        return Is_Working_Name(entry.Name) || !Match_File_Masks(entry.Name, Video_Extensions);
    });
    return entries;
}

static void Tell(const Program& program, const QString& title, const QString& text)
{
    if (program.Listener)
        program.Listener->Warned(title, text);
}

/// What a run that was killed left behind, in whatever target, is tidied up at the next start.
static void Clean_Up(Program& program)
{
    if (program.Run.Dry_Run)
        return;
    for (const QString& line : Clean_Up_Working_Folders(program.Settings.App_Folder)) {
        Tell(program, u"A working folder was left behind"_s, line);
        program.Logs.Log_Faults.AppendLine(u"-- "_s + line);
    }
}

QString Find_Careful_Videos(Program& program)
{
    int error = 0;
    QStringList names;
    for (const Folder_Entry& entry : Video_Entries(program, error))
        names += entry.Name;
    program.Run.Video_File_List = names.isEmpty() ? QStringList{QString()} : names;
    if (!names.isEmpty())
        return {};
    Clean_Up(program);
    if (error != 0)
        return u"The Video path can't be read: "_s + System_Words(error);
    program.Form.lbl_VideoPathFault.Caption = u"NO VIDEO FILES FOUND!"_s;
    return u"NO VIDEO FILES FOUND!"_s;
}

Careful_Walk::Careful_Walk(Program& program) : Prog(program), Before(program.Options.Path_Target) {}

static bool Fits_One(const QString& name, const QStringList& patterns)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&name](const QString& pattern) { return Match_File_Masks(name, pattern); });
}

/// The videos that the person asked for, of those there are. Those that were done before count as done: also with
/// warnings, as the output is whole, but then the source and its companions stay.
static std::vector<Folder_Entry> Chosen_Videos(Careful_Walk& walk)
{
    const Program& program = walk.Prog;
    const Run_Choice& choice = program.Run.Choice;
    const bool asks = choice.Resume || choice.Only_Failed;
    const Journal_Results results = asks ? Read_Journal(program.Settings.App_Folder) : Journal_Results();
    int done_before = 0;
    QStringList with_warnings;
    std::vector<Folder_Entry> chosen;
    for (const Folder_Entry& video : walk.Videos) {
        if ((!choice.Only.isEmpty() && !Fits_One(video.Name, choice.Only)) || Fits_One(video.Name, choice.Leave_Out))
            continue;
        const QString source = program.Options.Path_Videos + video.Name;
        if (choice.Only_Failed && results.value(source).Status != "failed"_L1)
            continue;
        if (choice.Resume && Is_Done_Before(results, source, Hash_Of_Video(program, source))) {
            ++done_before;
            if (results.value(source).Warned)
                with_warnings += video.Name;
            else
                walk.Done.insert(video.Name);
            continue;
        }
        chosen.push_back(video);
    }
    if (done_before > 0 && program.Listener)
        program.Listener->Done_Before(done_before, with_warnings);
    return chosen;
}

/// Looks at the folder once, and tells what the start of a run has to tell.
static std::vector<Folder_Entry> Begin(Careful_Walk& walk)
{
    Program& program = walk.Prog;
    Clean_Up(program);
    int error = 0;
    walk.Videos = Video_Entries(program, error);
    if (error != 0)
        Tell(program, u"The videos' folder couldn't be read to its end"_s,
             u"What was listed of it is processed: "_s + System_Words(error));
    QStringList names;
    for (const Folder_Entry& video : walk.Videos) {
        names += video.Name;
        walk.Bases += Get_Base_Name(video.Name).toLower();
    }
    if (const QString unnoted = Note_Start(program, names); !unnoted.isEmpty())
        Tell(program, u"The journal"_s, unnoted);
    return Chosen_Videos(walk);
}

static void Clear_Marks(Run_State& run)
{
    run.Digest_Separator_Written = 0;
    run.Source_Deleted = false;
    run.Ancillary_Deleted = false;
    run.Attachment_Files_Deleted = false;
    run.Attachment_Folder_Deleted = false;
}

/// A video that gets its result without its turn.
static void Tell_Not_Run(Careful_Walk& walk, const Folder_Entry& video, const QString& reason)
{
    const Program& program = walk.Prog;
    const File_Outcome outcome{.Source = program.Options.Path_Videos + video.Name,
                               .Output = {},
                               .Status = File_Outcome::Kind::Not_Run,
                               .Exit = -1,
                               .Reason = reason};
    Note_Result(program, outcome, {}, {}, false);
    if (program.Listener)
        program.Listener->File_Finished(outcome);
}

static void Take_Turn(Careful_Walk& walk, const Folder_Entry& video)
{
    Program& program = walk.Prog;
    Run_State& run = program.Run;
    Clear_Marks(run);
    program.Form.ulbl_Title1.Caption = video.Name;
    run.Current_Video_Path = program.Options.Path_Videos + video.Name;
    if (program.Listener)
        program.Listener->File_Started(run.Videos_Done + 1, run.Current_Video_Path);
    const File_Outcome outcome = Run_Careful_Video(walk, video);
    if (outcome.Status == File_Outcome::Kind::Done)
        Trash_Companions(walk);
    Note_Failure(run, outcome);
    if (program.Listener)
        program.Listener->File_Finished(outcome);
    Digest_Results(program);
    ++run.Videos_Done;
    Show_Files_Done(program.Form, u' ' + Target_Box_Headline, run.Videos_Done);
    program.Person.Pump_Events();
}

bool Run_Carefully(Program& program)
{
    Run_State& run = program.Run;
    Forget_Outputs(run);
    program.Person.Pump_Events();
    Careful_Walk walk(program);
    const std::vector<Folder_Entry> chosen = Begin(walk);
    run.Videos_Chosen = static_cast<int>(chosen.size());
    run.Videos_Done = 0;
    Show_Files_Found(program.Form, u' ' + Videos_Box_Headline, run.Videos_Chosen);
    Show_Nothing_Done_Yet(program.Form, u' ' + Target_Box_Headline);
    if (program.Listener)
        program.Listener->Run_Started(run.Videos_Chosen);

    for (const Folder_Entry& video : chosen) {
        const bool unstarted = walk.Unstarted_In_A_Row >= Most_Unstarted;
        if (run.Halt_Requested)
            Tell_Not_Run(walk, video, u"the run was halted"_s);
        else if (unstarted)
            Tell_Not_Run(walk, video, u"the run stopped: a tool couldn't be started three times in a row"_s);
        else
            Take_Turn(walk, video);
    }
    if (run.Halt_Requested)
        program.Logs.Log_Faults.AppendLine(u"*** Process halted before finishing."_s);
    Digest_Results(program);
    return !run.Halt_Requested && walk.Unstarted_In_A_Row < Most_Unstarted;
}
