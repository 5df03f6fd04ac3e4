#include "run/careful_video.h"

#include "run/careful_deletions.h"
#include "run/careful_walk.h"
#include "run/video_finish.h"
#include "run/video_muxing.h"
#include "run/video_preparation.h"
#include "run/video_work.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"

#include <functional>
#include <new>

using namespace Qt::StringLiterals;

/// Takes some steps. What is thrown on the way is the video's failure.
static void Take_Steps(Video_Work& work, const std::function<bool()>& steps)
{
    try {
        work.Goes_On = steps();
    } catch (const Run_Time_Error& error) {
        work.Goes_On = Fail(work, error.In_One_Line());
    } catch (const std::bad_alloc&) {
        work.Goes_On = Fail(work, u"the memory did not suffice"_s);
    } catch (const std::exception& error) {
        work.Goes_On = Fail(work, QString::fromUtf8(error.what()));
    }
}

/// A dry run tells all that is amiss with a video, and not just what came first.
static bool Is_To_Look_Further(const Video_Work& work)
{
    return work.Prog.Run.Dry_Run && work.Outcome.Status == File_Outcome::Kind::Failed;
}

void Begin_Video(Video_Work& work, const Folder_Entry& entry)
{
    Take_Steps(work, [&] {
        if (!Open_Source(work, entry))
            return false;
        work.Hash = Hash_Of_Video(work.Prog, work.Outcome.Source);
        work.Has_Name = Choose_Output(work);
        return work.Has_Name || Is_To_Look_Further(work);
    });
}

/// Looks ahead on the conductor's thread: what the other videos need counts.
static bool Ask_To_Go_On(Video_Work& work)
{
    bool goes_on = false;
    work.Walk.Run.Calls.Do([&] {
        goes_on = Look_Ahead(work);
        if (goes_on)
            Remember_Companions(work);
    });
    return goes_on;
}

static bool Prepare(Video_Work& work)
{
    return Inspect(work) && Assemble(work) && Is_To_Change(work) && Ask_To_Go_On(work);
}

/// Looks for more that is amiss; what came first stays the reason.
static void Look_Further(Video_Work& work)
{
    const File_Outcome first = work.Outcome;
    if (work.Outcome.Output.isEmpty())
        work.Outcome.Output = work.Walk.Before.Folder() + work.Names.Name;
    Prepare(work);
    if (work.Prog.Run.Halt_Requested)
        return;
    if (work.Outcome.Status == File_Outcome::Kind::Failed)
        Warn(work, work.Outcome.Reason);
    work.Outcome.Output = first.Output;
    Fail(work, first.Reason);
}

/// What mkvmerge was to write is written: nothing more is kept free for it.
static bool Need_No_More_Room(Video_Work& work)
{
    work.Walk.Run.Calls.Post([&work] { work.Room_Needed = 0; });
    return true;
}

void Work_On_Video(Video_Work& work)
{
    Take_Steps(work, [&] {
        if (work.Has_Name && Reach_Companions(work))
            return Prepare(work) && Mux(work) && Need_No_More_Room(work) && Check(work) && Bring_To_Disk(work);
        if (Is_To_Look_Further(work))
            Look_Further(work);
        return false;
    });
}

/// The lines that the log has from level 1 on.
static void Log_Outcome(Program& program, const File_Outcome& outcome)
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

void End_Video(Video_Work& work)
{
    File_Outcome& outcome = work.Outcome;
    if (work.Goes_On)
        Take_Steps(work, [&] {
            QStringList old;
            if (!Name_Outputs(work, old))
                return false;
            Note_And_Trash(work, old);
            return true;
        });
    work.Working->Empty();
    int& unstarted = work.Walk.Run.Unstarted_In_A_Row;
    if (work.Tool_Was_Asked)
        unstarted = work.Tool_Not_Started ? unstarted + 1 : 0;
    outcome.Seconds = work.Seconds();
    outcome.Source_Kept = outcome.Source_Kept || (Goes_To_Trash(work) && outcome.Status == File_Outcome::Kind::Failed);
    if (outcome.Status != File_Outcome::Kind::Done)
        Note_Result(work.Prog, outcome, {}, work.Hash, false);
    Log_Outcome(work.Prog, outcome);
    if (!outcome.Pieces.isEmpty())
        outcome.Output = outcome.Pieces.constFirst();
}
