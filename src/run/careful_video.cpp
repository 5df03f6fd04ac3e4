#include "run/careful_video.h"

#include "run/careful_deletions.h"
#include "run/careful_walk.h"
#include "run/video_finish.h"
#include "run/video_muxing.h"
#include "run/video_preparation.h"
#include "state/program.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"

#include <new>

using namespace Qt::StringLiterals;

static bool Prepare(Video_Work& work)
{
    return Inspect(work) && Assemble(work) && Look_Ahead(work);
}

/// A dry run tells all that is amiss with a video, and not just what came first.
static void Look_Further(Video_Work& work)
{
    const File_Outcome first = work.Outcome;
    if (work.Outcome.Output.isEmpty())
        work.Outcome.Output = work.Walk.Before.Folder() + work.Names.Name;
    Prepare(work);
    if (work.Walk.Prog.Run.Halt_Requested)
        return;
    if (work.Outcome.Status == File_Outcome::Kind::Failed)
        Warn(work, work.Outcome.Reason);
    work.Outcome.Output = first.Output;
    Fail(work, first.Reason);
}

static void Take_All_Steps(Video_Work& work, const Folder_Entry& entry)
{
    if (!Open_Source(work, entry))
        return;
    const Program& program = work.Walk.Prog;
    work.Hash = Hash_Of_Video(program, work.Outcome.Source);
    if (!Choose_Output(work) || !Reach_Companions(work)) {
        if (program.Run.Dry_Run && work.Outcome.Status == File_Outcome::Kind::Failed)
            Look_Further(work);
        return;
    }
    if (!Prepare(work))
        return;
    Remember_Companions(work.Walk);
    QStringList old;
    if (Mux(work) && Check(work) && Name_Outputs(work, old))
        Note_And_Trash(work, old);
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

File_Outcome Run_Careful_Video(Careful_Walk& walk, const Folder_Entry& entry)
{
    Program& program = walk.Prog;
    Video_Work work(walk);
    work.Split = program.Options.chk_SplitVideos.Value == 1;
    work.Outcome = {.Source = program.Options.Path_Videos + entry.Name,
                    .Sub_Path = walk.Folders.Sub,
                    .Output = {},
                    .Status = File_Outcome::Kind::Failed,
                    .Exit = -1};
    try {
        Take_All_Steps(work, entry);
    } catch (const Run_Time_Error& error) {
        Fail(work, error.In_One_Line());
    } catch (const std::bad_alloc&) {
        Fail(work, u"the memory did not suffice"_s);
    } catch (const std::exception& error) {
        Fail(work, QString::fromUtf8(error.what()));
    }
    walk.Working.Empty();
    if (work.Tool_Was_Asked)
        walk.Run.Unstarted_In_A_Row = work.Tool_Not_Started ? walk.Run.Unstarted_In_A_Row + 1 : 0;
    work.Outcome.Seconds = work.Seconds();
    work.Outcome.Source_Kept =
        work.Outcome.Source_Kept || (Goes_To_Trash(work) && work.Outcome.Status == File_Outcome::Kind::Failed);
    if (work.Outcome.Status != File_Outcome::Kind::Done)
        Note_Result(program, work.Outcome, {}, work.Hash, false);
    Log_Outcome(program, work.Outcome);
    if (!work.Outcome.Pieces.isEmpty())
        work.Outcome.Output = work.Outcome.Pieces.constFirst();
    return work.Outcome;
}
