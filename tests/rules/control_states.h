#pragma once

#include "state/program.h"

#include <QString>
#include <map>

/// The main form's state as short words, so that a claim can say what an action does and that it does nothing else.
///
/// A state is written "StripOrigAudio=1 EngAudioOnly- DelayPanel+": check boxes by their names without "chk_", their
/// values behind "=", enabled "+" or disabled "-"; other flags likewise.
using Control_States = std::map<QString, int>;

Control_States States_Of(const Program& program);
/// Puts the words into the program. A word that names nothing fails the test.
void Put_States(Program& program, const QString& words);
/// `states` with the words put over them.
Control_States With_States(Control_States states, const QString& words);
/// The words of what is not the same in both, with both values, for messages.
QString Difference(const Control_States& expected, const Control_States& actual);
