#pragma once

struct Program;

/// The operator chose a level of the process log, 0 to 7, in the menu.
void Choose_Verbosity(Program& program, int level);
