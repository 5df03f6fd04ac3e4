#pragma once

#include "settings/ini_file.h"
#include "settings/settings_rows.h"

#include <QString>
#include <map>
#include <optional>

class Operator;
struct Program;
struct Settings_State;

/// Vantorra.ini as a whole: all of it into the program's state, and all of it back.

/// Reads all settings from Settings.Ini_File, as Settings.Overrides change them, into the options and controls. Called
/// once, from start-up, while the controls have their design state: a file that holds nothing but "Save Settings on
/// Exit" reads as the first file with that value. Run_Time_Error for a number that is none (file, section and key
/// named) and for a file that can't be read.
void Read_Settings(Program& program);
/// Read_Settings from a text in memory.
void Read_Settings_From(Program& program, const Ini_Document& document);

/// Writes all settings, row by row, and replaces the file once. With Save_On_Exit off only that setting is written.
/// `reset_fonts` sets the log viewer's font to 10. A check box that is neither ticked nor unticked is error 9 at its
/// row: the rows ahead of it are saved, the rest of the file stays as it was. A file that can't be written is told to
/// the operator in a message box and stays as it was.
void Write_Settings(Program& program, bool reset_fonts);

/// What became of writing into a document.
struct Write_Outcome
{
    const Settings_Row* Failed_Row = nullptr; ///< the row that has no text for its value; null if all went well
};

/// Write_Settings into a text in memory.
Write_Outcome Write_Settings_To(Program& program, bool reset_fonts, Ini_Document& document);
/// Saves the document to Settings.Ini_File; if that fails, the operator is told why. True if it was saved.
bool Save_Settings_File(Program& program, const Ini_Document& document);

/// mnu_SaveNow: Write_Settings with Save_On_Exit as the argument.
void mnu_SaveNow_Click(Program& program);
/// mnu_SaveOnQuit: flips Save_On_Exit; nothing is written.
void mnu_SaveOnQuit_Click(Program& program);

/// One key of the settings: the override if there is one, else the document's value, else `missing`.
QString Read_Ini_Key(const Settings_State& settings, const Ini_Document& document, const QString& section,
                     const QString& key, const QString& missing);
/// Has the row read as if the settings file said so.
void Set_Override(Settings_State& settings, const Settings_Row& row, const QString& value);
/// Where a row's text comes from, for an error: the override, or the file, section and key.
QString Source_Of(const Settings_State& settings, const Settings_Row& row);
/// One key into the document; an empty value writes the key with nothing behind its "=".
void Write_Ini_Key(Ini_Document& document, const QString& section, const QString& key, const QString& value);
/// A section out of the document.
void Delete_Ini_Section(Ini_Document& document, const QString& section);

/// What an assignment "Section/Key=Value" came to.
enum class Override_Result
{
    Taken,
    Without_Effect, ///< a key that the program never looks at, or whose text changes nothing
    Unknown_Key,    ///< no such section and key
    Not_Understood, ///< the key takes certain words or numbers, and the value is none of them
    No_Assignment,  ///< not of the form Section/Key=Value
};

/// False for a text that the row takes for nothing that it knows: a word that is no On or Off, a number that is none or
/// that the row would put another in place of.
bool Is_Understood(const Settings_Row& row, const QString& text, Operator& person);

/// Takes "Section/Key=Value" into Settings.Overrides, to be read as if the settings file said so, and never written.
Override_Result Add_Override(Program& program, const QString& assignment);
