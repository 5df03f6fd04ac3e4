#pragma once

struct Program;

/// An installation of years isn't changed, but hears once that there is something safer: one line that waits for
/// nobody. Told is an installation that has a journal, or whose settings file has the key by now.

/// Says it to the listener of a run, unless the person chose a kind of run for this one.
void Tell_Of_Careful_Batch(Program& program);

/// Shows it where the name of the file in work will stand, in a window that has just opened. A run isn't told then.
void Show_Careful_Batch(Program& program);
