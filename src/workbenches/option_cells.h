#pragma once

#include "state/option_editor_state.h"

#include <QString>

/// The cells of the editor's list: what the option files say, and what was typed in its place. Option files are read
/// when a cell of theirs is first asked for, so a folder of thousands opens as fast as ever.

/// The cells of an item, its option file read if it hasn't been. One that can't be read leaves its Fault.
Option_Cells& Cells_Of(Option_Editor& editor, int item);

/// What the cell stands for: what was typed, else what the file says.
QString Cell_Value(Option_Editor& editor, int item, Option_Slot slot);

/// What the cell shows: marked ahead where it isn't applied yet, and on one line. A file that can't be read says so in
/// place of its title.
QString Cell_Caption(Option_Editor& editor, int item, Option_Slot slot);

/// What there is to know beyond the caption: what the file says in place of what was typed, or why it can't be read.
QString Cell_Note(Option_Editor& editor, int item, Option_Slot slot);

/// Something was typed into the cell and isn't applied yet.
bool Is_Marked(const Option_Editor& editor, int item, Option_Slot slot);
bool Is_Marked(const Option_Cells& cells);

/// The operator typed into a cell. The rules are those of its box: one line, and only "yes" and "no" for a flag. What
/// the file says already takes the mark away.
void Type_Into_Cell(Option_Editor& editor, int item, Option_Slot slot, const QString& text);

/// Types the value of an item's cell into those of the selected rows that are shown below it; if it is the last of
/// them, the value of the topmost. Returns how many rows that were.
int Fill_Down(Option_Editor& editor, int item, Option_Slot slot);
