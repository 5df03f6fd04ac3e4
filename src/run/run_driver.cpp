#include "run/run_driver.h"

#include "inspect/video_names.h"
#include "logs/process_log.h"
#include "rules/folders.h"
#include "rules/option_rules.h"
#include "rules/video_list.h"
#include "run/batch_steps.h"
#include "run/careful_batch.h"
#include "run/careful_choice.h"
#include "run/careful_hint.h"
#include "run/earlier_results.h"
#include "run/halt.h"
#include "run/journal.h"
#include "run/output_guard.h"
#include "run/run_summary.h"
#include "run/split_run.h"
#include "run/video_batch.h"
#include "state/program.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/trash.h"
#include "tools/tool_discovery.h"
#include "workbenches/form_lock.h"

#include <QScopeGuard>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// An mkvmerge to work with: the one in use, the one that the system knows, or the local copy. True with no path at
/// all: the run then fails at its first child.
static bool Ensure_MKVMerge(Program& program)
{
    Tool_Paths& tools = program.Tools;
    if (tools.System_MKVMerge_Path.isEmpty() || File_Exists(tools.System_MKVMerge_Path))
        return true;
    if (Find_MKVMerge_In_Registry(program, tools.System_MKVMerge_Path))
        return true;
    if (tools.Local_MKVMerge_Path.isEmpty())
        return false;
    tools.System_MKVMerge_Path = tools.Local_MKVMerge_Path;
    return true;
}

static void Refuse(Program& program, const QString& line)
{
    if (program.Listener)
        program.Listener->Refused(line.trimmed());
    program.Logs.Log_Results.AppendLine(line);
    Write_Process_Log(program);
}

/// Both folders are there and the first holds a video; else the refusal is in the log.
static bool Find_Work(Program& program)
{
    Check_Paths(program, u"All"_s);
    Follow_Folders(program); // the check may have emptied one
    const QString& videos = program.Options.Path_Videos;
    const QString& target = program.Options.Path_Target;
    if (videos.isEmpty() || target.isEmpty()) {
        Refuse(program, videos.isEmpty() && target.isEmpty()
                            ? u"        -- The Video path and the Target path do not exist!"_s
                        : videos.isEmpty() ? u"        -- The Video path does not exist!"_s
                                           : u"        -- The Target path does not exist!"_s);
        return false;
    }

    if (const QString why = Why_Unreadable(videos); !why.isEmpty()) {
        program.Form.lbl_VideoPathFault.Caption = u"VIDEO PATH CAN'T BE READ!"_s;
        Refuse(program, u"        -- The Video path can't be read: "_s + why);
        return false;
    }
    if (program.Run.Careful) {
        if (program.Run.Choice.Names && program.Run.Choice.Names->isEmpty()) {
            program.Form.lbl_VideoPathFault.Caption = u"NO VIDEO IS TICKED!"_s;
            Refuse(program, u"        -- No video is ticked in the list."_s);
            return false;
        }
        const QString why_not = Find_Careful_Videos(program);
        if (!why_not.isEmpty())
            Refuse(program, u"        -- "_s + why_not);
        return why_not.isEmpty();
    }
    program.Run.Video_File_List = {QString()};
    Find_Video_Files(program, videos, Video_Extensions, program.Run.Video_File_List);
    if (program.Run.Video_File_List.constFirst().isEmpty()) {
        program.Form.lbl_VideoPathFault.Caption = u"NO VIDEO FILES FOUND!"_s;
        Refuse(program, u"        -- NO VIDEO FILES FOUND!"_s);
        return false;
    }
    return true;
}

/// HALT stands in Run's place from the press on: the tools that are tried ahead of the run may hang. A check leaves Run
/// where it is.
static void Offer_Halt(Program& program)
{
    Main_Form& form = program.Form;
    program.Run.Halt_Requested = false;
    form.btn_RunVantorra.Visible = program.Run.Checking;
    form.btn_Halt.Caption = u"HALT"_s;
    form.btn_Halt.Visible = !program.Run.Checking;
    form.btn_Halt.Enabled = true;
    Set_List_Buttons(program);
    // A driver whose halt has come already says so again.
    program.Person.Pump_Events();
}

static void Withdraw_Halt(Program& program)
{
    Main_Form& form = program.Form;
    form.btn_RunVantorra.Visible = true;
    form.btn_Halt.Visible = false;
    form.btn_Halt.Caption = u"HALT"_s;
    program.Run.Halt_Requested = false;
    form.btn_Halt.Enabled = true;
}

static void Show_Running(Program& program)
{
    Main_Form& form = program.Form;
    form.pic_QuitButton.Visible = false;
    form.pic_ProcessFailed.Visible = false;
    Reset_Progress(program);
    Lock_Main_Form(form);
    form.btn_ViewVidInfo.Enabled = false;
}

static void Show_Idle(Program& program)
{
    Main_Form& form = program.Form;
    form.pic_QuitButton.Visible = true;
    Withdraw_Halt(program);
    form.btn_ViewVidInfo.Enabled = true;
    // The tool that identifies may have changed with the run: mkvmerge was looked for, or taken from elsewhere.
    if (program.Settings.Extensions.Identify_With_Any_Mkvmerge)
        Enable_Video_Info_Button(program);
}

static void Tell_Of_Subfolders(const Program& program)
{
    if (program.Settings.Extensions.Include_Subfolders && !program.Run.Careful && program.Listener)
        program.Listener->Warned(u"Subfolders"_s,
                                 u"A classic run takes the videos' folder only: \"Include Subfolders\" "
                                 u"belongs to a careful batch."_s);
}

static void Tell_Of_One_By_One(const Program& program)
{
    if (program.Settings.Extensions.Videos_At_Once > 1 && !program.Run.Careful && program.Listener)
        program.Listener->Warned(u"Videos at once"_s,
                                 u"A classic run takes one video after the other: \"Videos At Once\" belongs to a "
                                 u"careful batch."_s);
}

static void Run_Mode(Program& program)
{
    Tell_Of_Careful_Batch(program);
    Tell_Of_Subfolders(program);
    Tell_Of_One_By_One(program);
    program.Person.Pump_Events();
    program.Run.Run_In_Progress = true;
    program.Run.Started = program.Now();
    program.Run.Tally = {};
    program.Run.At_Once = 1;
    program.Run.Halt_Asked = false;
    program.Run.Halt_After_Video = false;
    program.Run.Options_In_Force = Options_Text(program);
    // Deliberate: what was noted between the last log entry and here is dropped.
    program.Logs.Log_Results.Clear();
    program.Logs.Log_Faults.Clear();
    program.Logs.Log_Console.Clear();
    // Nothing writes this file; one that an earlier version left behind goes.
    const QString interim_log = program.Settings.App_Folder + u"Vantorra_Interim.log"_s;
    if (!program.Run.Dry_Run)
        Recycle_If_Exists(interim_log, program.Logs.Log_Faults);

    if (!program.Run.Careful)
        Note_Start(program, program.Run.Video_File_List);
    // Deliberate: a run that ended through a failure report still counts as finished.
    if (program.Run.Careful)
        Run_Carefully(program);
    else if (program.Options.chk_SplitVideos.Value == 1)
        Split_Video_Files(program);
    else
        Process_Video_Files(program);
}

/// How the run went.
static void Show_End(Program& program, bool halted)
{
    program.Run.Run_In_Progress = false;
    program.Form.Halt_Question.clear();
    if (program.Run.Checking) {
        Forget_Last_Run(program.Form);
        return;
    }
    if (halted) {
        // Who halts wants to go on or away, and a signal mustn't wait for a click.
        program.Run.Failed_Videos.clear();
        Show_Interrupted(program);
    } else {
        Show_Finished(program);
    }
    Show_Last_Summary(program);
}

Press_Result btn_RunVantorra_MouseUp(Program& program, const Mouse_Release& release)
{
    if (release.X < 0 || release.Y < 0 || release.X > release.Width || release.Y > release.Height) {
        Default_Run(program);
        return Press_Result::Ignored;
    }
    if (release.Button != Mouse_Button::Left || !release.Modifiers.None())
        return Press_Result::Ignored;
    // The second release of a double click arrives while the tools are tried, or behind a run that was over at once: it
    // must not run everything twice.
    if (program.Run.Press_In_Work || Ends_Double_Click(program, release))
        return Press_Result::Ignored;
    program.Run.Press_In_Work = true;
    program.Run.Press_Time = release.Time;
    program.Run.Careful = program.Run.Careful_Asked.value_or(program.Settings.Extensions.Careful_Batch);
    const auto done = qScopeGuard([&program] {
        program.Run.Press_In_Work = false;
        program.Run.Options_In_Force.clear();
        program.Run.Careful = false;
    });
    Forget_Last_Run(program.Form);

    Offer_Halt(program);
    if (!Find_FFProbe(program) || !Ensure_MKVMerge(program) || !Find_Work(program)) {
        Withdraw_Halt(program);
        program.Form.Focus = u"btn_RunVantorra"_s;
        return Press_Result::Refused;
    }

    Sample_Options(program, program.Run.Video_File_List);
    Show_Running(program);
    Run_Mode(program);

    const bool halted = program.Run.Halt_Requested;
    Show_End(program, halted);
    Write_Process_Log(program);
    if (program.Run.Careful && !program.Videos.Folder.isEmpty())
        Forget_Outputs(program.Run); // the list has told it
    Unlock_Main_Form(program.Form);
    Show_Idle(program);
    if (!program.Run.Checking)
        Tell_At_The_End(program);
    return halted ? Press_Result::Interrupted : Press_Result::Finished;
}

static void Show_Failed_Videos(Program& program)
{
    constexpr qsizetype most_lines = 12;
    const QStringList failed = std::exchange(program.Run.Failed_Videos, {});
    if (failed.isEmpty())
        return;
    QStringList lines = failed.first(std::min(failed.size(), most_lines));
    if (failed.size() > most_lines)
        lines += u"... and %1 more"_s.arg(failed.size() - most_lines);
    program.Person.Show_Message({.Title = u"Videos that failed"_s, .Text = lines.join(u"\r\n"_s)});
}

void Show_Run_Warnings(Program& program)
{
    const QStringList warnings = std::exchange(program.Run.Shared_Outputs, {});
    if (!warnings.isEmpty())
        program.Person.Show_Message({.Title = Shared_Output_Title, .Text = warnings.join(u"\r\n"_s)});
    Show_Failed_Videos(program);
}

void Reset_Progress(Program& program)
{
    program.Form.lbl_ProgressFinished.Visible = false;
    program.Form.Progress_Fraction = 0;
    program.Form.Progress = Progress_Look::Idle;
}

void Show_Finished(Program& program)
{
    // Deliberate: a label that the run never showed stays hidden.
    program.Form.lbl_ProgressFinished.Caption = u"FINISHED"_s;
    program.Form.Progress_Fraction = 0;
    program.Form.Progress = Progress_Look::Finished;
}

void Show_Interrupted(Program& program)
{
    program.Form.lbl_ProgressFinished.Caption = u"INTERRUPTED"_s;
    program.Form.Progress_Fraction = 0;
    program.Form.Progress = Progress_Look::Interrupted;
}
