#include "run/careful_batch.h"

#include "logs/results_digest.h"
#include "run/batch_captions.h"
#include "run/batch_steps.h"
#include "run/careful_choice.h"
#include "run/careful_deletions.h"
#include "run/careful_video.h"
#include "run/careful_walk.h"
#include "state/program.h"

#include <QScopeGuard>
#include <vector>

using namespace Qt::StringLiterals;

/// So many videos in a row for which a tool couldn't be started end the batch: the next would fare no better.
static constexpr int Most_Unstarted = 3;
static const QString Stopped_Reason =
    QStringLiteral("the run stopped: a tool couldn't be started three times in a row");

static bool Has_Stopped(const Careful_Run& run)
{
    return run.Unstarted_In_A_Row >= Most_Unstarted;
}

static void Clear_Marks(Run_State& run)
{
    run.Digest_Separator_Written = 0;
    run.Source_Deleted = false;
    run.Ancillary_Deleted = false;
    run.Attachment_Files_Deleted = false;
    run.Attachment_Folder_Deleted = false;
}

/// The walk's chosen videos from that place on get their results without their turns.
static void Tell_Not_Run(const Careful_Walk& walk, std::size_t place, const QString& reason)
{
    std::vector<File_Outcome> outcomes;
    for (; place < walk.Chosen.size(); ++place)
        outcomes.push_back({.Source = walk.Folders.Videos + walk.Chosen[place].Name,
                            .Sub_Path = walk.Folders.Sub,
                            .Output = {},
                            .Status = File_Outcome::Kind::Not_Run,
                            .Exit = -1,
                            .Reason = reason});
    Note_Not_Run(walk.Prog, outcomes);
    if (walk.Prog.Listener)
        for (const File_Outcome& outcome : outcomes)
            walk.Prog.Listener->File_Finished(outcome);
}

static void Take_Turn(Careful_Walk& walk, const Folder_Entry& video)
{
    Program& program = walk.Prog;
    Run_State& run = program.Run;
    Clear_Marks(run);
    program.Form.ulbl_Title1.Caption = walk.Folders.Sub + video.Name;
    run.Current_Video_Path = walk.Folders.Videos + video.Name;
    if (program.Listener)
        program.Listener->File_Started(run.Videos_Done + 1, run.Current_Video_Path);
    const File_Outcome outcome = Run_Careful_Video(walk, video);
    if (outcome.Status == File_Outcome::Kind::Done)
        Trash_Companions(walk.Run);
    Note_Failure(run, outcome);
    if (program.Listener)
        program.Listener->File_Finished(outcome);
    Digest_Results(program);
    ++run.Videos_Done;
    if (!run.Checking)
        Show_Files_Done(program.Form, u' ' + Target_Box_Headline, run.Videos_Done);
    program.Person.Pump_Events();
}

/// The chosen videos of one folder.
static void Walk_Folder(Careful_Walk& walk)
{
    Run_State& run = walk.Prog.Run;
    Enter(walk);
    std::size_t place = 0;
    for (; place < walk.Chosen.size() && !run.Halt_Requested && !Has_Stopped(walk.Run); ++place) {
        Take_Turn(walk, walk.Chosen[place]);
        run.Halt_Requested = run.Halt_Requested || run.Halt_After_Video;
    }
    Tell_Not_Run(walk, place, run.Halt_Requested ? Halted_Reason : Stopped_Reason);
    walk.Working.Remove();
}

bool Run_Carefully(Program& program)
{
    Run_State& run = program.Run;
    Forget_Outputs(run);
    program.Person.Pump_Events();
    Careful_Run careful{program};
    const auto restored =
        qScopeGuard([&program, root = Folders_Of(program.Options)] { Use_Folders(root, program.Options); });
    Choose_Work(careful);
    run.Videos_Done = 0;
    Show_Files_Found(program.Form, u' ' + Videos_Box_Headline, run.Videos_Chosen);
    Show_Nothing_Done_Yet(program.Form, u' ' + Target_Box_Headline);
    if (program.Listener)
        program.Listener->Run_Started(run.Videos_Chosen);

    for (const auto& walk : careful.Walks)
        Walk_Folder(*walk);
    if (run.Halt_Requested)
        program.Logs.Log_Faults.AppendLine(u"*** Process halted before finishing."_s);
    else if (Has_Stopped(careful))
        program.Logs.Log_Faults.AppendLine(u"*** "_s + Stopped_Reason);
    Digest_Results(program);
    return !run.Halt_Requested && !Has_Stopped(careful);
}
