#include "run/careful_batch.h"

#include "logs/results_digest.h"
#include "run/batch_captions.h"
#include "run/batch_steps.h"
#include "run/careful_choice.h"
#include "run/careful_deletions.h"
#include "run/careful_video.h"
#include "run/careful_walk.h"
#include "run/video_work.h"
#include "state/program.h"

#include <QScopeGuard>
#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

/// So many videos in a row for which a tool couldn't be started end the batch: the next would fare no better.
static constexpr int Most_Unstarted = 3;
static const QString Stopped_Reason =
    QStringLiteral("the run stopped: a tool couldn't be started three times in a row");
/// While nothing comes from the threads, events have their turn that often.
static constexpr std::chrono::milliseconds Between_Events{20};

/// True if a halt keeps videos from their turns, or is to end those in work. One behind the last video halts nothing.
static bool Is_Halted(const Careful_Run& run)
{
    const Run_State& state = run.Prog.Run;
    return state.Halt_Requested || (state.Halt_After_Video && run.Handed_Out < state.Videos_Chosen);
}

/// The videos of a walk that weren't handed out get their results without their turns.
static void Tell_Not_Run(const Careful_Walk& walk, const QString& reason)
{
    std::vector<File_Outcome> outcomes;
    for (std::size_t place = walk.Begun; place < walk.Chosen.size(); ++place)
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

/// The folder for working files goes to the next video of the walk, or away behind the last one.
static void Return_Working_Folder(Video_Work& work)
{
    Careful_Walk& walk = work.Walk;
    walk.Spare.push_back(std::move(work.Working));
    ++walk.Ended;
    if (walk.Ended == walk.Chosen.size())
        walk.Spare.clear();
}

/// The end of a video's turn, whatever became of it.
static void Finish(Video_Work& work)
{
    Careful_Run& run = work.Walk.Run;
    Program& program = run.Prog;
    if (work.Thread.joinable())
        work.Thread.join();
    End_Video(work);
    run.Stopped = run.Stopped || run.Unstarted_In_A_Row >= Most_Unstarted;
    const File_Outcome& outcome = work.Outcome;
    if (outcome.Status == File_Outcome::Kind::Done)
        Trash_Companions(work);
    Note_Failure(program.Run, outcome);
    if (program.Listener)
        program.Listener->File_Finished(outcome);
    Log_In_Order(run, work);
    ++program.Run.Videos_Done;
    if (!program.Run.Checking)
        Show_Files_Done(program.Form, u' ' + Target_Box_Headline, program.Run.Videos_Done);
    run.Bytes_Past += work.Source.Identity().Size;
    Return_Working_Folder(work);
    std::erase_if(run.In_Work, [&work](const auto& video) { return video.get() == &work; });
}

/// Gives a video its thread. False if none could be had.
static bool Start_Thread(Video_Work& work)
{
    try {
        work.Thread = std::jthread([&work] {
            Work_On_Video(work);
            work.Walk.Run.Calls.Post([&work] { Finish(work); });
        });
        return true;
    } catch (const std::system_error& error) {
        work.Goes_On = Fail(work, u"no thread could be started: "_s + QString::fromLocal8Bit(error.what()));
        return false;
    }
}

static void Hand_Out(Careful_Walk& walk, const Folder_Entry& entry)
{
    Program& program = walk.Prog;
    Video_Work& work = *walk.Run.In_Work.emplace_back(std::make_unique<Video_Work>(walk, entry));
    program.Form.ulbl_Title1.Caption = work.Outcome.Name();
    program.Run.Current_Video_Path = work.Outcome.Source;
    if (program.Listener)
        program.Listener->File_Started(work.Number, work.Outcome.Source);
    Begin_Video(work, entry);
    if (!work.Goes_On || !Start_Thread(work))
        Finish(work);
}

/// Returns when at most that many videos are in work.
static void Await(Careful_Run& run, std::size_t most)
{
    for (;;) {
        run.Prog.Person.Pump_Events();
        run.Calls.Halted = run.Prog.Run.Halt_Requested;
        if (run.In_Work.size() <= most)
            return;
        run.Calls.Take(Between_Events);
    }
}

/// The videos of all walks, in their order, each as soon as a place is free.
static void Hand_Out_All(Careful_Run& run)
{
    const auto others = static_cast<std::size_t>(run.Prog.Run.At_Once - 1);
    for (const auto& walk : run.Walks)
        while (walk->Begun < walk->Chosen.size()) {
            Await(run, others);
            if (Is_Halted(run) || run.Stopped)
                return;
            if (walk->Begun == 0)
                Enter(*walk);
            Hand_Out(*walk, walk->Chosen[walk->Begun++]);
        }
}

/// What a dry run prints stays in the walk's order; a check of the window shows it row by row.
static int Places_Of(const Program& program)
{
    const bool one_by_one = program.Run.Dry_Run && !program.Run.Checking;
    return one_by_one ? 1 : program.Settings.Extensions.Videos_At_Once;
}

static void Add_Up_Sizes(Careful_Run& run)
{
    if (run.Prog.Run.At_Once == 1)
        return;
    for (const auto& walk : run.Walks)
        for (const Folder_Entry& video : walk->Chosen)
            if (const auto file = Identity_Of(walk->Folders.Videos + video.Name))
                run.Bytes_In_All += file->Size;
}

bool Run_Carefully(Program& program)
{
    Run_State& run = program.Run;
    Forget_Outputs(run);
    program.Person.Pump_Events();
    Careful_Run careful(program);
    const auto restored =
        qScopeGuard([&program, root = Folders_Of(program.Options)] { Use_Folders(root, program.Options); });
    Choose_Work(careful);
    run.Videos_Done = 0;
    run.At_Once = Places_Of(program);
    Add_Up_Sizes(careful);
    Show_Files_Found(program.Form, u' ' + Videos_Box_Headline, run.Videos_Chosen);
    Show_Nothing_Done_Yet(program.Form, u' ' + Target_Box_Headline);
    if (program.Listener)
        program.Listener->Run_Started(run.Videos_Chosen);

    Hand_Out_All(careful);
    Await(careful, 0);
    run.Halt_Requested = Is_Halted(careful);
    for (const auto& walk : careful.Walks)
        Tell_Not_Run(*walk, run.Halt_Requested ? Halted_Reason : Stopped_Reason);
    if (run.Halt_Requested)
        program.Logs.Log_Faults.AppendLine(u"*** Process halted before finishing."_s);
    else if (careful.Stopped)
        program.Logs.Log_Faults.AppendLine(u"*** "_s + Stopped_Reason);
    Digest_Results(program);
    return !run.Halt_Requested && !careful.Stopped;
}
