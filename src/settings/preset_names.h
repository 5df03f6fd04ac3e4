#pragma once

#include <QString>
#include <QStringList>

/// A preset is a file "NAME.ini" in the folder "presets" of the program's folder. Names come from people and from the
/// disk; those that a person gives have to pass Why_No_Preset_Name, those on the disk are shown and taken as they are.

/// The presets' folder, which need not be there; ends in a separator.
QString Presets_Folder(const QString& app_folder);

/// The names of all presets there are, by name without regard to case. Hidden files are none.
QStringList Preset_Names(const QString& app_folder);

/// The file of the preset of that name: the one that is there, whatever the case of its letters, else where it would
/// be. Nothing for a text that could lead out of the presets' folder, or that no preset can be called.
QString Preset_Path(const QString& app_folder, const QString& name);

/// The name of the preset that a file holds; empty if the file is none by its name.
QString Preset_Name_Of(const QString& path);

/// Why a person can't call a preset so, in words; empty if they can. Blanks at both ends don't count.
QString Why_No_Preset_Name(const QString& name);
