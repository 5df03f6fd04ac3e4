#include "run/batch_steps.h"

#include "inspect/video_names.h"
#include "state/program.h"
#include "support/death_words.h"
#include "support/disk_names.h"
#include "support/file_identity.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/system_identification.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

#include <optional>

using namespace Qt::StringLiterals;

/// True for an entry that vanished since the walk began. One whose name isn't valid UTF-8 can't be looked at by its
/// text: it isn't passed over but goes on to its report.
static bool Is_Gone(const QString& path)
{
    return !File_Exists(path) && !Has_Stand_Ins(path);
}

bool Is_Looked_At(const QString& path)
{
    return Video_Extensions.contains(Get_Extension(path).toLower()) && !Is_Working_Name(File_Name_Of(path)) &&
           !Is_Gone(path);
}

void Count_Video(Program& program, int files_done)
{
    Run_State& run = program.Run;
    run.Files_Left = Checked_Int16(run.Video_File_List.size() - files_done, u"Counting the files left"_s);
    run.File_Index = Checked_Int16(files_done, u"Counting the files done"_s);
}

/// Why mkvmerge failed, in its own words where it has any.
static QString Mkvmerge_Failure(const Run_State& run, int exit)
{
    QString how =
        exit < 0 ? u"mkvmerge was ended by "_s + What_Ended(exit) : u"mkvmerge ended with status %1"_s.arg(exit);
    if (!run.Tool_Error.isEmpty())
        return exit < 0 ? how + u": "_s + run.Tool_Error : u"mkvmerge says: "_s + run.Tool_Error;
    if (exit < 0)
        return how;
    return how + (run.Tool_Last_Line.isEmpty() ? u" and said nothing"_s : u"; its last words: "_s + run.Tool_Last_Line);
}

void Note_Failure(Run_State& run, const File_Outcome& outcome)
{
    if (outcome.Status == File_Outcome::Kind::Failed)
        run.Failed_Videos +=
            As_One_Line(outcome.Name() + u": "_s + (outcome.Reason.isEmpty() ? u"it failed"_s : outcome.Reason));
}

void Close_Outcome(Program& program, File_Outcome& outcome)
{
    if (outcome.Status == File_Outcome::Kind::Failed && outcome.Reason.isEmpty())
        outcome.Reason = program.Run.File_Failure;
    program.Run.File_Failure.clear();
    Note_Failure(program.Run, outcome);
    if (program.Listener)
        program.Listener->File_Finished(outcome);
}

void Forget_Outputs(Run_State& run)
{
    run.Half_Written_Output.clear();
    run.Shared_Outputs.clear();
    run.Failed_Videos.clear();
}

/// Two sources of a run write one file: told in the log and to the listener, and kept for the end of the run.
static void Warn_Of_Shared_Output(Program& program, const QString& first, File_Outcome& outcome)
{
    const QString warning = u"%1 and %2 write the same file, %3: only the second stays."_s.arg(
        File_Name_Of(first), File_Name_Of(outcome.Source), outcome.Output);
    program.Logs.Log_Faults.AppendLine(u"-- WARNING: "_s + As_One_Line(warning));
    program.Run.Shared_Outputs += warning;
    outcome.Warnings += warning;
    if (program.Listener)
        program.Listener->Warned(Shared_Output_Title, warning);
}

bool May_Write(Program& program, const QStringList& outputs, const Written_Outputs& written, File_Outcome& outcome)
{
    const Guarded_Folders folders{program.Options.Path_Videos, program.Options.Path_Target};
    const QString reason = Why_Not_Written(program.Run.Mkvmerge_Arguments, outputs, folders);
    if (!reason.isEmpty()) {
        program.Logs.Log_Faults.AppendLine(u"*** Not processed: "_s + reason);
        outcome.Reason = reason;
        return false;
    }
    if (const QString first = written.Writer_Of(outputs); !first.isEmpty())
        Warn_Of_Shared_Output(program, first, outcome);
    return true;
}

/// What a mkvmerge that the halt killed has left unfinished; empty if it had ended by itself, or hadn't begun to write.
static QString Left_Half_Written(const Run_State& run, const std::optional<File_Identity>& before)
{
    const bool killed = run.Exit_Status.value_or(0) < 0;
    const auto now = Identity_Of(run.Output_Path);
    const bool written = now && !(before && before->Is_Unchanged(*now));
    return killed && written ? run.Output_Path : QString();
}

After_Entry Run_Assembled_Command(Program& program, File_Outcome& outcome)
{
    Run_State& run = program.Run;
    if (run.Halt_Requested) {
        outcome.Status = File_Outcome::Kind::Not_Run;
        outcome.Reason = Halted_Reason;
        return After_Entry::Halted;
    }
    if (program.Listener)
        program.Listener->Command_Ready(program, outcome.Source, run.Output_Path);
    if (run.Dry_Run) {
        outcome.Status = File_Outcome::Kind::Not_Run;
        outcome.Reason = u"dry run"_s;
        return After_Entry::Next;
    }
    const auto before = Identity_Of(run.Output_Path);
    program.Logs.Log_Console.Clear();
    Run_Mkvmerge(program, program.Tools.System_MKVMerge_Path, run.Mkvmerge_Arguments);
    outcome.Exit = run.Exit_Status.value_or(-1);
    // 1 means that it wrote the file and warned.
    const bool successful = outcome.Exit == 0 || outcome.Exit == 1;
    outcome.Status = successful ? File_Outcome::Kind::Done : File_Outcome::Kind::Failed;
    if (run.Halt_Requested) {
        if (!successful) {
            outcome.Status = File_Outcome::Kind::Not_Run;
            outcome.Reason = Halted_Reason;
        }
        run.Half_Written_Output = Left_Half_Written(run, before);
        return After_Entry::Halted;
    }
    // A mkvmerge that never ran must not count as a run: nothing is deleted for it.
    if (run.Pipe_Result == 0) {
        outcome.Reason = u"no pipe to mkvmerge could be made: "_s + Format_System_Error(run.Process_Result);
        Report_Run_Failure(program, 8, program.Tools.Local_MKVMerge_Path);
        return After_Entry::Stopped;
    }
    if (run.Process_Result != -1) {
        outcome.Reason = u"mkvmerge could not be started: "_s + Format_System_Error(run.Process_Result);
        Report_Run_Failure(program, 9, program.Tools.System_MKVMerge_Path);
        return After_Entry::Stopped;
    }
    if (!successful)
        outcome.Reason = Mkvmerge_Failure(run, outcome.Exit);
    else if (outcome.Exit == 1)
        outcome.Warnings +=
            run.Tool_Warnings.isEmpty() ? QStringList{u"mkvmerge warned, and said nothing"_s} : run.Tool_Warnings;
    return After_Entry::Next;
}
