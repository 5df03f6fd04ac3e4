#pragma once

#include <QString>
#include <array>
#include <cstddef>

struct JobOptions;
struct Main_Form;

/// The words of one level of the process log, from 0 to 7.
struct Verbosity_Level
{
    QString Item_Caption;        ///< of mnu_Verbosity0 to mnu_Verbosity7
    QString Status_When_Chosen;  ///< of mnu_VerbosityStatus, once the operator chose the level
    QString Status_At_Load;      ///< of mnu_VerbosityStatus, once the settings were read
    QString Process_Log_Caption; ///< of mnu_Process_Log
};

const std::array<Verbosity_Level, 8>& Verbosity_Levels();

/// A level as an index into the table; anything else is level 0.
std::size_t Level_Index(int level);

/// Sets a level that was read from the settings file; the captions have other words then. A level outside 0 to 7
/// counts as 0.
void Load_Verbosity(JobOptions& options, Main_Form& form, int level);
