#pragma once

#include "state/dialogs.h"

#include <QString>

struct Program;

/// The two forms of the presets: frm_PresetName, which asks for a name, and frm_Presets, which keeps order.

enum class Why_Named
{
    Save,
    Rename
};

/// Shows frm_PresetName, `name` in it, until it is closed. The name that was given, without blanks at its ends; empty
/// after Cancel or any other way to close. One that no preset can have is never given; for a rename neither the present
/// one nor another preset's.
QString Ask_Preset_Name(Program& program, const QString& name, Why_Named why);

/// The text of txt_PresetName was changed.
void txt_PresetName_Change(Program& program);
void btn_PresetName_Done_Click(Preset_Name_Form& form);
void btn_PresetName_Cancel_Click(Preset_Name_Form& form);

/// Fills frm_Presets from the disk; the preset that was loaded last is marked.
void Open_Presets_Dialog(Program& program);
/// The line at `row` of lst_Presets is the marked one; -1: none.
void lst_Presets_Change(Program& program, int row);
/// Loads the marked preset, and closes the form if that went well.
void btn_Presets_Load_Click(Program& program);
/// Asks for another name. Never takes the place of another preset.
void btn_Presets_Rename_Click(Program& program);
/// Moves the marked preset to the trash, once asked.
void btn_Presets_Trash_Click(Program& program);
void btn_Presets_Done_Click(Presets_Form& form);
