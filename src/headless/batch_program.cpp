#include "headless/batch_program.h"

#include "headless/bad_usage.h"
#include "headless/batch_options.h"
#include "headless/batch_report.h"
#include "headless/box_clicks.h"
#include "headless/exit_status.h"
#include "headless/headless_operator.h"
#include "headless/identify_command.h"
#include "headless/journal_command.h"
#include "headless/log_command.h"
#include "headless/presets_command.h"
#include "headless/print.h"
#include "headless/refusal.h"
#include "headless/settings_command.h"
#include "life/app_folder.h"
#include "life/start_up.h"
#include "run/run_driver.h"
#include "settings/preset_names.h"
#include "state/program.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "workbenches/last_entry.h"

#include <new>

using namespace Qt::StringLiterals;

/// Which videos a careful run takes. Throws Bad_Usage for a choice in a run that is a classic one.
static void Choose_Videos(Program& program, const Batch_Options& options)
{
    program.Run.Careful_Asked = options.Careful;
    program.Run.Choice = {.Resume = options.Resume,
                          .Only_Failed = options.Only_Failed,
                          .Only = options.Only,
                          .Leave_Out = options.Leave_Out,
                          .Part = options.Part};
    if (options.Recursive)
        program.Settings.Extensions.Include_Subfolders = true;
    program.Settings.Extensions.Videos_At_Once = options.At_Once.value_or(program.Settings.Extensions.Videos_At_Once);
    const bool chosen = options.Recursive || options.Resume || options.Only_Failed || !options.Only.isEmpty() ||
                        !options.Leave_Out.isEmpty() || options.Part.Of > 1 || options.At_Once.has_value();
    if (chosen && !options.Careful.value_or(program.Settings.Extensions.Careful_Batch))
        throw Bad_Usage{
            u"--recursive, --jobs, --resume, --failed, --only, --leave-out and --shard belong to a careful batch, "
            u"which the settings turn off: add --careful."_s};
}

/// Where the window shows an unticked box nobody sees one here: what the settings ask for stays asked for, and each
/// video fails for it.
static void Miss_Attachments(Program& program)
{
    const QString& lost = program.Settings.Lost_Attachments;
    if (lost.isEmpty())
        return;
    program.Options.Path_Attachments = lost;
    program.Options.chk_AddAttachments.Enabled = true;
    program.Options.chk_AddAttachments.Value = 1;
}

/// The program as the window would have it once it is ready, and then what the command line changes.
static void Set_Up(Program& program, const Batch_Options& options, Batch_Report& report)
{
    Check_Box_Names(options.Clicks);
    const Ini_Document preset = options.Preset ? Take_Preset_Rows(program, *options.Preset) : Ini_Document();
    Take_Assignments(program, options.Settings, report);
    // No lock: several batches may share a folder, each holding it only while it writes the log.
    Start_Up(program, nullptr);
    First_Activation(program);
    if (!options.Videos.isEmpty())
        program.Options.Path_Videos = options.Videos;
    if (!options.Target.isEmpty())
        program.Options.Path_Target = options.Target;
    if (options.Careful.value_or(program.Settings.Extensions.Careful_Batch))
        Miss_Attachments(program);
    Warn_Of_What_Stays_Off(program, preset, report);
    Click_Boxes(program, options.Clicks);
    Choose_Videos(program, options);
}

static int Exit_Of(const Outcome_Counts& counts, bool check)
{
    const bool amiss = counts.Failed > 0 || counts.Kept > 0 || (check && counts.Problems > 0);
    return amiss ? Exit_Some_Failed : Exit_Finished;
}

static int Run_The_Batch(Program& program, const Batch_Options& options, Batch_Report& report)
{
    switch (btn_RunVantorra_MouseUp(program, {})) {
    case Press_Result::Interrupted:
        report.Ended(Batch_End::Interrupted, Exit_Halted);
        return Exit_Halted;
    case Press_Result::Finished: {
        const int exit = Exit_Of(report.Counts(), options.Check);
        report.Ended(Batch_End::Finished, exit);
        return exit;
    }
    default:
        report.Explain(Explain_Refusal(program, options));
        report.Ended(Batch_End::Refused, Exit_Refused);
        return Exit_Refused;
    }
}

/// A signal came, however long ago.
static bool Was_Halted(Program& program)
{
    program.Person.Pump_Events();
    return program.Run.Halt_Requested;
}

/// The exit status once all is said: whoever asked for an answer that didn't get through must not take it for whole.
static int Status_Of_Output(int exit, std::FILE* out, std::FILE* err)
{
    if (std::fflush(out) == 0 && std::ferror(out) == 0)
        return exit;
    Print_Text(err, u"vantorra-batch: standard output could not be written to its end.\n"_s);
    return exit == Exit_Finished ? Exit_Run_Time_Error : exit;
}

static int Run_Command(Program& program, const Batch_Options& options, Batch_Report& report, std::FILE* out,
                       std::FILE* err)
{
    program.Settings.App_Folder = Choose_App_Folder(App_Folder_Places_Of_This_Process(options.App_Folder));
    // Only the folder of log, journal and presets is needed to print them.
    const bool prints_files = options.Command == Batch_Command::Log || options.Command == Batch_Command::Journal ||
                              options.Command == Batch_Command::Presets;
    if (!prints_files)
        Set_Up(program, options, report);
    // What a halted tool left unsaid would pass for the whole.
    if (options.Command != Batch_Command::Run && Was_Halted(program))
        return Exit_Halted;
    switch (options.Command) {
    case Batch_Command::Run:
        return Run_The_Batch(program, options, report);
    case Batch_Command::Settings:
        Print_Settings(program, options.Json, out);
        return Was_Halted(program) ? Exit_Halted : Exit_Finished;
    case Batch_Command::Identify:
        program.Media.Show_Codec_Private = options.Codec_Private ? 1 : 0;
        return Print_Identification(program, options.Files, options.Json, out);
    case Batch_Command::Log:
        if (!Print_Log(program.Settings.App_Folder, options.Full, out))
            Print_Text(err,
                       u"vantorra-batch: there is no log in %1 yet.\n"_s.arg(Printable(program.Settings.App_Folder)));
        return Exit_Finished;
    case Batch_Command::Journal:
        if (!Print_Journal(program.Settings.App_Folder, options.Only_Failed, options.Json, out))
            Print_Text(
                err, u"vantorra-batch: there is no journal in %1 yet.\n"_s.arg(Printable(program.Settings.App_Folder)));
        return Exit_Finished;
    case Batch_Command::Presets:
        if (!Print_Presets(program.Settings.App_Folder, options.Json, out))
            Print_Text(err, u"vantorra-batch: there are no presets in %1 yet.\n"_s.arg(
                                Printable(Presets_Folder(program.Settings.App_Folder))));
        return Exit_Finished;
    }
    return Exit_Finished;
}

int Run_Batch_Program(const QStringList& arguments, std::FILE* out, std::FILE* err,
                      const std::function<bool()>& stop_requested)
{
    const Batch_Line line = Parse_Batch_Line(arguments);
    if (!line.Options) {
        const bool wrong = line.Text.isEmpty();
        Print_Text(wrong ? err : out,
                   wrong ? u"vantorra-batch: %1 (--help lists all)\n"_s.arg(Printable(line.Mistake)) : line.Text);
        return wrong ? Exit_Bad_Usage : Status_Of_Output(Exit_Finished, out, err);
    }

    const std::unique_ptr<Batch_Report> report = Batch_Report::Make(*line.Options, out, err);
    Headless_Operator person(*report, stop_requested);
    Program program(person);
    person.Watch_Over(program);
    report->Watch_Over(program);
    program.Listener = report.get();
    program.Run.Kill_By_Name = false;
    program.Run.Dry_Run = line.Options->Dry_Run;

    const auto end_in_error = [&](const Run_Time_Error& error) {
        report->Show_Error(error);
        Write_Last_Entry(program);
        report->Ended(Batch_End::Error, Exit_Run_Time_Error);
        return Exit_Run_Time_Error;
    };
    // The one place where run-time errors end.
    try {
        const int exit = Run_Command(program, *line.Options, *report, out, err);
        // A reader that went away halts the run, and has its own status.
        return stop_requested() ? exit : Status_Of_Output(exit, out, err);
    } catch (const Bad_Usage& mistake) {
        Print_Text(err, u"vantorra-batch: "_s + Printable(mistake.Text) + u'\n');
        return Exit_Bad_Usage;
    } catch (const Run_Time_Error& error) {
        return end_in_error(error);
    } catch (const std::bad_alloc&) {
        return end_in_error(Out_Of_Memory_Error());
    }
}
