#pragma once

#include "state/option_editor_state.h"

#include <QString>
#include <cstddef>

struct Program;

/// What was typed into cells of the editor's list and isn't applied yet.

/// "1 file", "24 files".
QString File_Count(std::size_t count);

/// How many rows are marked.
std::size_t Count_Marked(const Option_Editor& editor);

/// lbl_Marks tells what a command has just done, if it was one, how many rows are marked, and how many of them the
/// filter hides.
void Tell_Marks(Option_Editor& editor, const QString& done = {});

/// Writes every marked row's option file, hidden ones too: the values that were typed, and its own beside them. One
/// whose values are all empty then goes to the trash. What can't be written or trashed stays as it was and keeps its
/// marks; that is told once for all of them. True if no mark is left.
bool Apply_Marks(Program& program);

/// Takes the marks of the selected rows away, or those of all.
void Discard_Marks(Option_Editor& editor, bool all);

/// Asks what becomes of the marks before they would be lost: apply, discard or stay. True if nothing holds the person
/// any more. Nobody is asked once the program was asked to go.
bool May_Leave_Marks(Program& program);
