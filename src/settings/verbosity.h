#pragma once

#include <QString>
#include <array>

struct JobOptions;
struct Main_Form;
struct Program;

/// The words of one level of the process log, from 0 to 7.
struct Verbosity_Level
{
    QString Item_Caption;        ///< of mnu_Verbosity0 to mnu_Verbosity7
    QString Status_When_Chosen;  ///< of mnu_VerbosityStatus, once the operator chose the level
    QString Status_At_Load;      ///< of mnu_VerbosityStatus, once the settings were read
    QString Process_Log_Caption; ///< of mnu_Process_Log
};

const std::array<Verbosity_Level, 8>& Verbosity_Levels();

/// The operator chose a level, 0 to 7, in the menu.
void Choose_Verbosity(Program& program, int level);

/// Sets a level that was read from the settings file; the captions have other words then. A level outside 0 to 7
/// counts as 0.
void Load_Verbosity(JobOptions& options, Main_Form& form, int level);
