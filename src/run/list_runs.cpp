#include "run/list_runs.h"

#include "rules/run_queue.h"
#include "rules/video_list.h"
#include "run/earlier_results.h"
#include "run/journal.h"
#include "state/program.h"
#include "support/shown_text.h"

#include <QScopeGuard>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

/// What is ticked; nothing, which means all, where there is no list to tick in.
static std::optional<QSet<QString>> Ticked(const Program& program)
{
    if (program.Videos.Rows.empty())
        return {};
    return Ticked_Paths(program.Videos);
}

/// Ahead of a run: the list is brought in step with the disk, and what was told about the run before goes.
static void Clear_List_For_Run(Program& program)
{
    Recount_Videos_Folder(program);
    program.Videos.Notes.clear();
}

static Press_Result Run_Choice_Of(Program& program, const Run_Choice& choice, const Mouse_Release& release)
{
    program.Run.Choice = program.Settings.Extensions.Careful_Batch ? choice : Run_Choice();
    const auto done = qScopeGuard([&program] { program.Run.Choice = {}; });
    return btn_RunVantorra_MouseUp(program, release);
}

/// A run or a check is over, whichever: the list says what it has left.
static void Look_After_Run(Program& program)
{
    if (!program.Run.Press_In_Work)
        Look_Into_Journal(program);
    Set_List_Buttons(program);
}

/// The next folder of the queue is run, and what became of the last one stays told above its list.
static Press_Result Run_Next(Program& program)
{
    const QString last = As_One_Line(program.Videos.Folder) + u": "_s + program.Form.lbl_RunSummary.Caption;
    const QStringList notes = std::exchange(program.Videos.Notes, {});
    const bool taken = Take_Next_Queued(program);
    program.Videos.Notes = notes + (taken ? QStringList{last} : QStringList()) + program.Videos.Notes;
    return taken ? Run_Choice_Of(program, {.Names = Ticked(program)}, {}) : Press_Result::Finished;
}

/// Behind a run come the boxes of a classic one, and what was queued; and one that came to its end may take the program
/// with it.
static void Close_Run(Program& program, Press_Result result)
{
    Look_After_Run(program);
    Show_Run_Warnings(program);
    while (result == Press_Result::Finished && !program.Queue.Runs.empty()) {
        result = Run_Next(program);
        Look_After_Run(program);
        Show_Run_Warnings(program);
    }
    Give_Up_Queue(program);
    if (result == Press_Result::Finished && program.Form.Quit_When_Done)
        program.Person.Unload_Main_Form();
}

Press_Result Run_Ticked(Program& program, const Mouse_Release& release)
{
    Run_State& run = program.Run;
    if (run.Checking) {
        run.Run_Wanted = true;
        run.Halt_Requested = true;
        return Press_Result::Ignored;
    }
    if (run.Press_In_Work)
        return Press_Result::Ignored;
    Clear_List_For_Run(program);
    const Press_Result result = Run_Choice_Of(program, {.Names = Ticked(program)}, release);
    if (result != Press_Result::Ignored)
        Close_Run(program, result);
    return result;
}

void mnu_RunVantorra_Click(Program& program)
{
    if (program.Form.btn_RunVantorra.Enabled)
        Run_Ticked(program, {});
}

static void Run_Chosen(Program& program, const Run_Choice& choice)
{
    if (program.Run.Press_In_Work)
        return;
    Clear_List_For_Run(program);
    Close_Run(program, Run_Choice_Of(program, choice, {}));
}

void btn_RunFailed_Click(Program& program)
{
    Run_Chosen(program, {.Only_Failed = true, .Names = Ticked(program)});
}

void btn_Continue_Click(Program& program)
{
    Run_Chosen(program, {.Resume = true, .Names = Ticked(program)});
}

void Run_Only_These(Program& program)
{
    QSet<QString> marked;
    for (const int number : program.Videos.Selected)
        marked.insert(program.Videos.Rows[static_cast<std::size_t>(number)].Path());
    if (!marked.isEmpty() && program.Videos.Takes_Ticks)
        Run_Chosen(program, {.Names = marked});
}

void btn_Check_Click(Program& program)
{
    Run_State& run = program.Run;
    if (run.Checking) {
        run.Halt_Requested = true;
        return;
    }
    if (run.Press_In_Work)
        return;
    Clear_List_For_Run(program);
    {
        run.Checking = true;
        run.Dry_Run = true;
        const auto done = qScopeGuard([&run] {
            run.Checking = false;
            run.Dry_Run = false;
        });
        Run_Choice_Of(program, {.Names = Ticked(program)}, {});
    }
    Look_After_Run(program);
    if (std::exchange(run.Run_Wanted, false))
        Run_Ticked(program, {});
}

void Keep_List_In_Step(Program& program)
{
    // The window comes first, and the tools: which mkvmerge is used is one of the options.
    if (program.Run.Press_In_Work || !program.Form.Options_Ready)
        return;
    Video_List& list = program.Videos;
    if (Follow_Videos_Folder(program))
        Look_Into_Journal(program);
    else if (list.Takes_Ticks && list.Options_Seen != Options_Text(program))
        list.Recount_Journal = true;
    Set_List_Buttons(program);
}

void Look_Again(Program& program)
{
    if (program.Videos.Recount_Journal && !program.Run.Press_In_Work)
        Look_Into_Journal(program);
    Set_List_Buttons(program);
}
