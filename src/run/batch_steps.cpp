#include "run/batch_steps.h"

#include "inspect/video_names.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/paths.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

using namespace Qt::StringLiterals;

/// True for an entry that vanished since the walk began. One whose name isn't valid UTF-8 can't be looked at by its
/// text: it isn't passed over but goes on to its report.
static bool Is_Gone(const QString& path)
{
    return !File_Exists(path) && !Has_Stand_Ins(path);
}

bool Is_Looked_At(const QString& path)
{
    return Video_Extensions.contains(Get_Extension(path).toLower()) && !Is_Gone(path);
}

void Count_Video(Program& program, int files_done)
{
    Run_State& run = program.Run;
    run.Files_Left = Checked_Int16(run.Video_File_List.size() - files_done, u"Counting the files left"_s);
    run.File_Index = Checked_Int16(files_done, u"Counting the files done"_s);
}

After_Entry Run_Assembled_Command(Program& program, const QString& video_path, File_Outcome& outcome)
{
    Run_State& run = program.Run;
    if (program.Listener)
        program.Listener->Command_Ready(video_path, run.Output_Path, run.Mkvmerge_Arguments);
    if (run.Dry_Run) {
        outcome.Status = File_Outcome::Kind::Not_Run;
        outcome.Reason = u"dry run"_s;
        return After_Entry::Next;
    }
    program.Logs.Log_Console.Clear();
    Run_Mkvmerge(program, program.Tools.System_MKVMerge_Path, run.Mkvmerge_Arguments);
    outcome.Exit = run.Exit_Status.value_or(-1);
    if (run.Halt_Requested)
        return After_Entry::Halted;
    // A mkvmerge that never ran must not count as a run: nothing is deleted for it.
    if (run.Pipe_Result == 0) {
        Report_Run_Failure(program, 8, program.Tools.Local_MKVMerge_Path);
        return After_Entry::Stopped;
    }
    if (run.Process_Result != -1) {
        Report_Run_Failure(program, 9, program.Tools.System_MKVMerge_Path);
        return After_Entry::Stopped;
    }
    // 1 means that it wrote the file and warned.
    const bool successful = outcome.Exit == 0 || outcome.Exit == 1;
    outcome.Status = successful ? File_Outcome::Kind::Done : File_Outcome::Kind::Failed;
    if (!successful)
        outcome.Reason = u"mkvmerge ended with status %1"_s.arg(outcome.Exit);
    return After_Entry::Next;
}
