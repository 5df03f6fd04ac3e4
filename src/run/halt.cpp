#include "run/halt.h"

#include "run/run_summary.h"
#include "state/program.h"

#include <utility>

using namespace Qt::StringLiterals;

bool Ends_Double_Click(const Program& program, const Mouse_Release& release)
{
    const std::int64_t since = release.Time - program.Run.Press_Time;
    return release.Time != 0 && program.Run.Press_Time != 0 && since >= 0 && since < program.Form.Double_Click_Ms;
}

/// Puts the question, if it is to be put: the halt then waits for the answer.
static bool Ask_Before_Halt(Program& program)
{
    Run_State& run = program.Run;
    const bool in_careful_run = run.Run_In_Progress && run.Careful && !run.Checking;
    if (!in_careful_run || run.Halt_Asked || !Is_Long_Run(program))
        return false;
    run.Halt_Asked = true;
    program.Form.Halt_Question =
        u"The run goes on until you choose. What is done stays, and \"Continue\" takes up the "
        u"rest later. Stopped now, "_s +
        (run.At_Once > 1 ? u"the videos in work have to begin anew."_s : u"the video in work has to begin anew."_s);
    return true;
}

static void Halt(Program& program)
{
    program.Run.Halt_Requested = true;
    program.Form.Halt_Question.clear();
    program.Form.btn_Halt.Caption = u"HALTING"_s;
}

void btn_Halt_MouseUp(Program& program)
{
    Halt(program);
    program.Form.btn_Halt.Enabled = false;
}

void btn_Halt_MouseUp(Program& program, const Mouse_Release& release)
{
    // The button stands where the run button stood: a double click there starts, and halts nothing.
    if (!Ends_Double_Click(program, release) && !Ask_Before_Halt(program))
        btn_Halt_MouseUp(program);
}

void Halt_Key(Program& program)
{
    const Run_State& run = program.Run;
    if ((run.Run_In_Progress || run.Press_In_Work) && !run.Halt_Requested && !Ask_Before_Halt(program))
        Halt(program);
}

void Answer_Halt_Question(Program& program, Halt_Answer answer)
{
    const bool asked = !std::exchange(program.Form.Halt_Question, {}).isEmpty();
    if (!asked || answer == Halt_Answer::Go_On)
        return;
    if (answer == Halt_Answer::Stop_Now) {
        btn_Halt_MouseUp(program);
    } else {
        program.Run.Halt_After_Video = true;
        Show_Running_Summary(program);
    }
}
