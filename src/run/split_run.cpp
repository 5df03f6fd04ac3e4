#include "run/split_run.h"

#include "command/split_command.h"
#include "inspect/video_names.h"
#include "inspect/video_probe.h"
#include "logs/results_digest.h"
#include "run/batch_captions.h"
#include "run/batch_steps.h"
#include "run/journal.h"
#include "run/split_pieces.h"
#include "state/program.h"
#include "support/files.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/tool_runner.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

/// Inspects a video and, if ffprobe had something to say, cuts it.
static After_Entry Split_Video(Program& program, Written_Outputs& written, File_Outcome& outcome)
{
    const Run_State& run = program.Run;
    const QString& path = outcome.Source;
    if (outcome.Reason = Why_Not_Split_Into(program.Options.Path_Target); !outcome.Reason.isEmpty())
        return After_Entry::Next;
    const bool inspected = !run.Halt_Requested && Run_FFProbe_Video(program, path) == 1;
    if (run.Halt_Requested) {
        outcome.Status = File_Outcome::Kind::Not_Run;
        outcome.Reason = Halted_Reason;
        return After_Entry::Halted;
    }
    if (!inspected || Split_Video_Mod(program, program.Options.Path_Target, program.Options.Path_Videos, path) != 1)
        return After_Entry::Next;
    outcome.Output = run.Output_Path;
    const Piece_Watch pieces(run.Output_Path);
    // Which of the old pieces will be written again isn't known ahead.
    if (!May_Write(program, QStringList(run.Output_Path) + pieces.Before(), written, outcome))
        return After_Entry::Next;
    const After_Entry after = Run_Assembled_Command(program, outcome);
    if (!run.Dry_Run) {
        outcome.Pieces = pieces.Written();
        outcome.Output = outcome.Pieces.value(0);
    }
    written.Note(path, QStringList(run.Output_Path) + outcome.Pieces);
    return after;
}

/// One entry of the folder, whatever it is. Deliberate: what a normal run left of its last file (the deletion flags,
/// the separator mark, the path) is neither cleared nor set, and shows in the digest of these.
static After_Entry Split_Entry(Program& program, const QString& name, Written_Outputs& written, int& files_done)
{
    const QString path = program.Options.Path_Videos + name;
    if (!Is_Looked_At(path))
        return After_Entry::Next;

    File_Outcome outcome{.Source = path, .Output = {}, .Status = File_Outcome::Kind::Failed, .Exit = -1};
    const QString hash = Hash_Of_Video(program, path);
    QElapsedTimer clock;
    clock.start();
    program.Run.Source_In_Work = path;
    if (program.Listener)
        program.Listener->File_Started(files_done + 1, path);

    After_Entry after = After_Entry::Next;
    QString base_or_extension;
    if (Is_Video_File(name.toLower(), base_or_extension)) {
        program.Form.ulbl_Title1.Caption = name;
        Count_Video(program, files_done);
        after = Split_Video(program, written, outcome);
        if (after == After_Entry::Next)
            ++files_done;
    } else {
        Report_Run_Failure(program, 70, base_or_extension);
        outcome.Status = File_Outcome::Kind::Skipped;
        outcome.Reason = u"its name has no extension"_s;
    }
    outcome.Seconds = static_cast<double>(clock.elapsed()) / 1000;
    Close_Outcome(program, outcome);
    Note_Result(program, outcome, hash);
    return after;
}

/// The end of a walk that reached its end or was halted. False if it was halted: the pieces written so far stay.
static bool Close_Walk(Program& program)
{
    const bool halted = program.Run.Halt_Requested;
    if (halted)
        Digest_Results(program);
    program.Person.Pump_Events();
    if (!program.Run.Halt_Requested)
        return true;
    program.Logs.Log_Faults.AppendLine(u"*** Process halted before finishing."_s);
    return false;
}

bool Split_Video_Files(Program& program)
{
    Run_State& run = program.Run;
    Forget_Outputs(run);
    program.Person.Pump_Events();
    run.Files_Total = Checked_Int16(run.Video_File_List.size(), u"Counting the videos"_s);
    Show_Files_Found(program.Form, Videos_Box_Headline, run.Files_Total);
    if (program.Listener)
        program.Listener->Run_Started(run.Files_Total);

    Written_Outputs written;
    int files_done = 0;
    for (const QString& name : List_Files(program.Options.Path_Videos)) {
        const After_Entry after = Split_Entry(program, name, written, files_done);
        if (after == After_Entry::Stopped)
            return false;
        if (after == After_Entry::Halted)
            break;
        Show_Files_Done(program.Form, Target_Box_Headline, files_done);
        Digest_Results(program);
    }
    return Close_Walk(program);
}
