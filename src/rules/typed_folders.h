#pragma once

#include "rules/folder_changes.h"

#include <QString>
#include <QStringList>

/// What is typed or pasted into a folder's box. What counts as a folder that was chosen goes through the same rule as
/// one of the picker's; a text that names none is told beside the box, never in a message box.

/// What the label beside the box says then.
inline const QString No_Such_Folder = QStringLiteral("There is no such folder");

/// The absolute path that a text means, as people write and paste them: to the letter where that is there, else without
/// blanks and quotes around it, as a "file:" URL, with "~" for the home folder, with a shell's backslashes. One that
/// doesn't begin at the root begins at `base`, or, without one, at the home folder. Empty for an empty text.
QString Path_Of_Typing(const QString& text, const QString& base);

/// The folder of Path_Of_Typing, or, where that is a file, the one that it lies in, with a separator; empty: there is
/// none.
QString Folder_Of_Typing(const QString& text, const QString& base);

/// The folders that a half typed text can become, by name: absolute paths with a separator, 100 at most. Hidden ones
/// only where the dot is typed.
QStringList Offers_For_Typing(const QString& text, const QString& base);

/// What is wrong with a text that is still being typed: No_Such_Folder as soon as no folder and no file can begin so.
QString Fault_Of_Typing(const QString& text, const QString& base);

/// While it is typed: tells that fault, or that it is the videos' folder. Changes no path.
void Look_At_Typing(Program& program, Folder_Box box, const QString& text);

/// Enter: a folder is chosen, and an empty text sets none. Any other text is told and changes nothing: False.
bool Enter_Typing(Program& program, Folder_Box box, const QString& text);

/// The box is left: as Enter, but a text that is no folder's sets none and stays on show, so that what a run would take
/// is what is shown. The folder before is in the recent list, where the box has one.
void Leave_Typing(Program& program, Folder_Box box, const QString& text);

/// Escape: the box is as its path says.
void Give_Up_Typing(Program& program, Folder_Box box);

/// The folder that a box has now.
const QString& Path_In_Box(const Program& program, Folder_Box box);
