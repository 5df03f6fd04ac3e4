#pragma once

#include "settings/ini_file.h"
#include "settings/settings_rows.h"

#include <QString>
#include <QStringList>

class Operator;
struct Program;

/// A preset: the rows of the settings file that make a way to work, in a file of their own. What a preset doesn't hold
/// it doesn't change.

/// False for folders, recent lists, the windows' sections and places, tool paths, "Careful Batch" and the two rows that
/// send sources to the trash: a preset never has them, and where a file has them all the same they are passed over.
bool Is_Of_Preset(const Settings_Row& row);

/// The values in force of a preset's rows, in the order of the table, to tell later whether one of them differs.
QStringList Preset_Values(const Program& program);

/// Reads a preset. Run_Time_Error for a file that isn't there or can't be read, that holds no row of a preset, or that
/// has a text which its row doesn't understand; section and key are named.
Ini_Document Read_Preset(const QString& path, Operator& person);

/// Takes a preset into the running program by the rules of the start, all that follows from its rows included. What
/// the preset lacks keeps its value, and "Audio Delay Adjust" begins unticked, as it does at the start. For a document
/// of Read_Preset, which can't fail any more.
void Take_Preset(Program& program, const Ini_Document& preset);

/// Takes a preset into Settings.Overrides, ahead of the start: its rows are read as if the settings file had them.
void Override_By_Preset(Program& program, const Ini_Document& preset);

/// The keys that a preset turns on and that are off all the same, as something else is missing for them.
QStringList What_Stays_Off(const Program& program, const Ini_Document& preset);

/// Puts the values in force of a preset's rows into the document; what else stands in it stays. The row that has no
/// text for its value, and then nothing was put there; null if all went well.
const Settings_Row* Write_Preset_To(const Program& program, Ini_Document& preset);

/// "Anime", or "Anime *" once one of its rows differs; empty without a preset.
QString Preset_Title(const Program& program);
