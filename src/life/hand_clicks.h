#pragma once

struct Click_Rule;
struct Program;

/// A person's click on a check box of the window: the box's own rule, and for a custom title that has no text yet the
/// dialog that asks for one. A title that stays empty unticks its box. Who ticks by name (`--tick`) is asked nothing.
void Click_By_Hand(Program& program, const Click_Rule& rule);
