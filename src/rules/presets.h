#pragma once

#include <QString>

struct Drop_Data;
struct Program;

/// File > Presets: the options as they are become a preset, and a preset becomes the options. Nothing of it happens
/// while a run goes on. A file that can't be read or written is told in a message box and changes nothing.

/// Brings Presets_Dialog.Names in step with the disk: for the menu, and for the form.
void List_Presets(Program& program);

/// mnu_SavePreset: asks for a name, asks before it replaces a preset, and saves the options. What a preset of that name
/// holds that this version doesn't know stays in it.
void mnu_SavePreset_Click(Program& program);

/// Loads the preset of that name. False: it was refused, and nothing has changed.
bool Choose_Preset(Program& program, const QString& name);

/// Loads a preset's file, wherever it lies. False: it was refused, and nothing has changed.
bool Load_Preset_File(Program& program, const QString& path);

/// True if one file is dropped that is a preset by its name.
bool Is_Preset_Drop(const Drop_Data& data);

/// mnu_ManagePresets: shows frm_Presets.
void mnu_ManagePresets_Click(Program& program);
