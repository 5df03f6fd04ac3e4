#pragma once

#include "support/input.h"

struct Program;

/// The ways in which a run is asked to stop. Only a flag is set and the button's look changes; the loops see the flag
/// and do the rest. In a careful run of more than a minute the person is asked once what is to stop, while the run goes
/// on: the words stand in Form.Halt_Question, a view shows them and brings the answer.

/// Asks the run to stop at once, for whatever stands for btn_Halt without a person: a signal.
void btn_Halt_MouseUp(Program& program);
/// A mouse button was let go over btn_Halt; one that ends a double click on the run button has no effect.
void btn_Halt_MouseUp(Program& program, const Mouse_Release& release);

/// Esc without a modifier on the main form: asks the run to stop if one goes on that wasn't asked yet.
void Halt_Key(Program& program);

enum class Halt_Answer
{
    Stop_Now,
    After_This_Video, ///< the rest is told as not run
    Go_On
};

/// The person's answer; none once the run has ended or was halted.
void Answer_Halt_Question(Program& program, Halt_Answer answer);

/// The second release of a double click on the run button: it ends over whatever stands there by then.
bool Ends_Double_Click(const Program& program, const Mouse_Release& release);
