#include "run/video_finish.h"

#include "inspect/identified_check.h"
#include "run/careful_deletions.h"
#include "run/careful_walk.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/trash.h"

using namespace Qt::StringLiterals;

/// What mkvmerge left in the working folder, and the names that it is to get.
static void Collect_Outputs(Video_Work& work)
{
    const QString output = Working_Output(work);
    if (!work.Split) {
        work.Made = {output};
        work.Final = {work.Names.Name};
        return;
    }
    for (int number = 1; Identity_Of_Name(Piece_Name(output, number)); ++number) {
        work.Made += Piece_Name(output, number);
        work.Final += Piece_Name(work.Names.Name, number);
    }
}

/// The pieces of a split are together as long as the source.
static void Check_Pieces(const Video_Work& work, std::optional<double> seconds, Check_Result& result)
{
    double sum = 0;
    for (const QString& piece : work.Made) {
        const std::optional<double> length = Check_File(piece, result);
        if (!length)
            return;
        sum += *length;
    }
    // Sound may reach over the end of its piece, but nothing of the source lies in none.
    const double more = seconds ? sum - *seconds : 0;
    if (more < -Tolerated_Seconds || more > Tolerated_Seconds + static_cast<double>(work.Made.size()))
        result.Warnings += u"the pieces are %1 s long, the source %2 s"_s.arg(sum, 0, 'f', 1).arg(*seconds, 0, 'f', 1);
}

bool Check(Video_Work& work)
{
    Program& program = work.Prog;
    Collect_Outputs(work);
    if (work.Made.isEmpty())
        return Fail(work, u"mkvmerge wrote no piece"_s);
    const std::optional<double> seconds = Seconds_Of(program.Media.FileInfoList.front());
    Check_Result result = Check_Output(work.Asked, work.Words, work.Outcome.Exit, work.Made.constFirst(), seconds);
    if (work.Split)
        Check_Pieces(work, seconds, result);
    if (result.Failure.isEmpty())
        Check_Picture(program, work.Asked, work.Made.constFirst(), seconds, result);
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

static QStringList Final_Paths(const Video_Work& work)
{
    QStringList paths;
    for (const QString& name : work.Final)
        paths += work.Walk.Before.Folder() + name;
    return paths;
}

/// True where something goes to the trash for the output: then that has to be on the disk first.
static bool Something_Goes(const Video_Work& work)
{
    return Goes_To_Trash(work) || !work.Names.Old.isEmpty();
}

bool Bring_To_Disk(Video_Work& work)
{
    for (const QString& made : work.Made)
        if (const int error = Something_Goes(work) ? Sync_File(made) : 0; error != 0)
            return Fail(work, u"the output couldn't be brought to the disk: "_s + System_Words(error));
    return true;
}

bool Name_Outputs(Video_Work& work, QStringList& old)
{
    const Name_Result named = Give_Names(work.Walk.Before, work.Names, work.Made, work.Final);
    if (!named.Failure.isEmpty())
        return Fail(work, named.Failure);
    for (const QString& warning : named.Warnings)
        Warn(work, warning);
    old = named.Old;
    if (const int error = Something_Goes(work) ? Sync_Folder(work.Walk.Before.Folder()) : 0; error != 0)
        Warn(work, u"the target folder couldn't be brought to the disk: "_s + System_Words(error));
    work.Outcome.Status = File_Outcome::Kind::Done;
    if (work.Split)
        work.Outcome.Pieces = Final_Paths(work);
    return true;
}

/// An old output that made way goes to the trash, or stays under the name that it has now.
static void Trash_Old(Video_Work& work, const QStringList& old)
{
    clsStringBuilder unused;
    for (const QString& path : old)
        if (!Delete_To_Recycle(path, unused))
            Warn(work, u"the trash refused the old output, which stays as \"%1\""_s.arg(File_Name_Of(path)));
}

void Note_And_Trash(Video_Work& work, const QStringList& old)
{
    const Program& program = work.Prog;
    const bool trashes = Goes_To_Trash(work) || !old.isEmpty();
    work.Outcome.Seconds = work.Seconds();
    const QString unnoted = Note_Result(program, work.Outcome, Final_Paths(work), work.Hash, trashes);
    const qsizetype noted = work.Outcome.Warnings.size();
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
            Trash_Source(work);
        work.Outcome.Source_Kept = !program.Run.Source_Deleted;
    }
    // What the trash refused: the newest line counts.
    if (unnoted.isEmpty() && work.Outcome.Warnings.size() > noted)
        Note_Result(program, work.Outcome, Final_Paths(work), work.Hash, false);
    // A source that stays keeps its companions.
    if (plainly_done && !work.Outcome.Source_Kept)
        work.Walk.Done.insert(File_Name_Of(work.Outcome.Source));
}
