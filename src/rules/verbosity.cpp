#include "rules/verbosity.h"

#include "rules/option_rules.h"
#include "settings/verbosity_levels.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

void Choose_Verbosity(Program& program, int level)
{
    const std::size_t index = Level_Index(level);
    program.Options.Log_Verbosity = static_cast<std::int16_t>(index);
    program.Form.mnu_VerbosityStatus.Caption = Verbosity_Levels()[index].Status_When_Chosen;
    program.Form.mnu_Process_Log.Caption = Verbosity_Levels()[index].Process_Log_Caption;
    Default_Run(program);
}
