#include "run/video_batch.h"

#include "command/attachments.h"
#include "command/command_frame.h"
#include "inspect/video_names.h"
#include "inspect/video_probe.h"
#include "logs/results_digest.h"
#include "run/batch_captions.h"
#include "run/batch_steps.h"
#include "run/journal.h"
#include "run/output_guard.h"
#include "state/program.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "support/trash.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

/// What one walk over the folder carries from file to file.
struct Batch
{
    int Files_Done = 0;
    QString Name; ///< of the last video that was taken in work, with its extension
    /// Base name of the last video whose attachments were searched, or the last pattern of deleted companions.
    /// Deliberate: never cleared during a walk, and it decides between the reports 70 and 71.
    QString Stale_Base;
    Written_Outputs Written;
};

static QString Quoted(const QString& path)
{
    return u'"' + As_One_Line(path) + u'"';
}

/// Moves the video's companions to the trash, and its attachments.
static void Delete_Companions(Program& program, Batch& batch)
{
    Run_State& run = program.Run;
    clsStringBuilder& faults = program.Logs.Log_Faults;
    const QString& folder = program.Options.Path_Videos;
    const QString base = Get_Base_Name(run.Current_Video_Path);

    batch.Stale_Base = folder + base + u"_Track*.*"_s;
    run.Ancillary_Deleted = Recycle_By_Prefix(folder, base + u"_Track"_s, faults);
    if (!run.Add_Attachments_On)
        return;
    if (program.Options.Use_Attachment_Subfolders) {
        // Deliberate: the folder beside the video, though the attachments were looked for in the attachments' folder.
        run.Attachment_Folder_Deleted = Delete_To_Recycle(As_On_Disk(folder + base + u"_Attachments"_s), faults);
        return;
    }
    // Deliberate: all that was attached goes after the first video, so that the next has none; an empty list sets the
    // flag all the same.
    run.Attachment_Files_Deleted = true;
    for (const Attachment& attachment : program.Companions.Attachment_List)
        if (!Delete_To_Recycle(attachment.FullPath, faults))
            run.Attachment_Files_Deleted = false;
}

/// The deletions behind a run of mkvmerge. Deliberate: whatever its result was; only the extension asks for it.
static void Delete_After_Run(Program& program, Batch& batch, File_Outcome& outcome)
{
    const JobOptions& options = program.Options;
    Run_State& run = program.Run;
    if (!options.Delete_Video_After)
        return;
    if (program.Settings.Extensions.Delete_Source_Only_After_Success && outcome.Status != File_Outcome::Kind::Done) {
        program.Logs.Log_Faults.AppendLine(u"-- Source video file KEPT, as mkvmerge did not succeed - "_s +
                                           Quoted(run.Current_Video_Path));
        return;
    }
    run.Source_Deleted = Delete_To_Recycle(run.Current_Video_Path, program.Logs.Log_Faults);
    if (!run.Source_Deleted)
        outcome.Warnings += u"the source could not be moved to the trash"_s;
    if (!options.Delete_Sundry_Files)
        return;
    Delete_Companions(program, batch);
    const bool attachments_gone =
        !run.Add_Attachments_On ||
        (options.Use_Attachment_Subfolders ? run.Attachment_Folder_Deleted : run.Attachment_Files_Deleted);
    if (!run.Ancillary_Deleted || !attachments_gone)
        outcome.Warnings += u"a file that goes with the video could not be moved to the trash"_s;
}

/// Inspects the video in work and, if ffprobe had something to say, assembles its command and runs it.
static After_Entry Process_Video(Program& program, Batch& batch, File_Outcome& outcome)
{
    Run_State& run = program.Run;
    const JobOptions& options = program.Options;
    const bool inspected = !run.Halt_Requested && Run_FFProbe_Video(program, run.Current_Video_Path) == 1;
    if (run.Halt_Requested) {
        outcome.Status = File_Outcome::Kind::Not_Run;
        outcome.Reason = Halted_Reason;
        return After_Entry::Halted;
    }
    if (!inspected)
        return After_Entry::Next;

    if (run.Add_Attachments_On) {
        batch.Stale_Base = Get_Base_Name(batch.Name);
        Find_Attachments_Of_Video(options, batch.Stale_Base, program.Companions.Attachment_List,
                                  program.Logs.Log_Faults, program.Person);
    }
    program.Logs.Log_Faults.AppendLine(u"-- Processing video file - "_s + Quoted(run.Current_Video_Path));
    if (Parse_VideoData_A(program, options.Path_Target, options.Path_Videos, run.Current_Video_Path) != 1)
        return After_Entry::Next;

    outcome.Output = run.Output_Path;
    if (!May_Write(program, {run.Output_Path}, batch.Written, outcome))
        return After_Entry::Next;
    const After_Entry after = Run_Assembled_Command(program, outcome);
    batch.Written.Note(run.Current_Video_Path, {run.Output_Path});
    if (after == After_Entry::Next && !run.Dry_Run) {
        Delete_After_Run(program, batch, outcome);
        program.Person.Pump_Events();
    }
    return after;
}

static void Clear_File_Marks(Run_State& run)
{
    run.Digest_Separator_Written = 0;
    run.Source_Deleted = false;
    run.Ancillary_Deleted = false;
    run.Attachment_Files_Deleted = false;
    run.Attachment_Folder_Deleted = false;
}

/// One entry of the folder, whatever it is.
static After_Entry Process_Entry(Program& program, Batch& batch, const QString& name)
{
    Run_State& run = program.Run;
    Clear_File_Marks(run);
    program.Form.ulbl_Title1.Caption = name;
    const QString path = program.Options.Path_Videos + name;
    if (!Is_Looked_At(path))
        return After_Entry::Next;

    File_Outcome outcome{.Source = path, .Output = {}, .Status = File_Outcome::Kind::Failed, .Exit = -1};
    const QString hash = Hash_Of_Video(program, path);
    QElapsedTimer clock;
    clock.start();
    run.Source_In_Work = path;
    if (program.Listener)
        program.Listener->File_Started(batch.Files_Done + 1, path);

    After_Entry after = After_Entry::Next;
    QString base_or_extension;
    if (Is_Video_File(name.toLower(), base_or_extension)) {
        Count_Video(program, batch.Files_Done);
        batch.Name = name;
        run.Current_Video_Path = path;
        after = Process_Video(program, batch, outcome);
        if (after == After_Entry::Next)
            ++batch.Files_Done;
    } else {
        // Only a name without an extension gets here.
        Report_Run_Failure(program, batch.Stale_Base.isEmpty() ? 70 : 71, base_or_extension, name);
        outcome.Status = File_Outcome::Kind::Skipped;
        outcome.Reason = u"its name has no extension"_s;
    }
    outcome.Seconds = static_cast<double>(clock.elapsed()) / 1000;
    Close_Outcome(program, outcome);
    Note_Result(program, outcome, hash);
    return after;
}

/// The end of a walk that reached its end or was halted. False if it was halted.
static bool Close_Walk(Program& program, const Batch& batch)
{
    program.Person.Pump_Events();
    if (!program.Run.Halt_Requested)
        return true;
    program.Logs.Log_Faults.AppendLine(u"*** Process halted before finishing.");
    // Deliberate: only where the source's name is the output's too, so a half-written output stays unless the source
    // was .mkv. A link stays: what was written isn't the link.
    const QString output = program.Options.Path_Target + batch.Name;
    if (output == program.Run.Half_Written_Output && !QFileInfo(output).isSymLink())
        Recycle_If_Exists(output, program.Logs.Log_Faults);
    return false;
}

bool Process_Video_Files(Program& program)
{
    Run_State& run = program.Run;
    Forget_Outputs(run);
    program.Person.Pump_Events();
    run.Files_Total = Checked_Int16(run.Video_File_List.size(), u"Counting the videos"_s);
    const QString videos_headline = u' ' + Videos_Box_Headline;
    const QString target_headline = u' ' + Target_Box_Headline;
    Show_Files_Found(program.Form, videos_headline, run.Files_Total);
    Show_Nothing_Done_Yet(program.Form, target_headline);
    if (program.Listener)
        program.Listener->Run_Started(run.Files_Total);

    Batch batch;
    for (const QString& name : List_Files(program.Options.Path_Videos)) {
        const After_Entry after = Process_Entry(program, batch, name);
        if (after == After_Entry::Stopped)
            return false;
        if (after == After_Entry::Halted)
            break;
        Show_Files_Done(program.Form, target_headline, batch.Files_Done);
        Digest_Results(program);
    }
    return Close_Walk(program, batch);
}
