#pragma once

#include "settings/ini_file.h"

#include <QString>
#include <cstdio>

class Batch_Report;
struct Program;

/// `vantorra-batch presets`: the names of the presets in `app_folder`, a line each or, with `json`, an object each with
/// name and path. False if there is none.
bool Print_Presets(const QString& app_folder, bool json, std::FILE* out);

/// --preset: has the settings read as the preset says, where it says anything, and returns it. Throws Bad_Usage for a
/// name that there is none of, the run-time error of the file for one that can't be read. What --set says is to be
/// taken behind it, and wins.
Ini_Document Take_Preset_Rows(Program& program, const QString& name);

/// Warns of what the preset turns on and what stays off all the same, once the settings are read.
void Warn_Of_What_Stays_Off(const Program& program, const Ini_Document& preset, Batch_Report& report);
