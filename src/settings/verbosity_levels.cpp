#include "settings/verbosity_levels.h"

#include "state/job_options.h"
#include "state/main_form.h"

using namespace Qt::StringLiterals;

const std::array<Verbosity_Level, 8>& Verbosity_Levels()
{
    // Deliberate: levels 0, 3, 4 and 7 read differently when chosen and when loaded, and level 6 is "Results" in the
    // menu and "Reports" above it.
    static const std::array<Verbosity_Level, 8> levels = {{
        {u"0 - Log Process Overview Only"_s, u"Log Verbosity 0 - Log Process Overview only"_s,
         u"Log Verbosity 0 - Log Process Overview Only"_s, u"&Process_Log v0"_s},
        {u"1 - Include Faults and Fails"_s, u"Log Verbosity 1 - Include Faults and Fails"_s,
         u"Log Verbosity 1 - Include Faults and Fails"_s, u"&Process_Log v1"_s},
        {u"2 - Include Added Files"_s, u"Log Verbosity 2 - Include Added Files"_s,
         u"Log Verbosity 2 - Include Added Files"_s, u"&Process_Log v2"_s},
        {u"3 - Include Active Checkboxes"_s, u"Log Verbosity 3 - Include Active Checkboxes"_s,
         u"Log Verbosity 3 - Include All Active Checkboxes"_s, u"&Process_Log v3"_s},
        {u"4 - Include Menu Settings"_s, u"Log Verbosity 4 - Include Menu Settings"_s,
         u"Log Verbosity 4 - Include All Menu Settings"_s, u"&Process_Log v4"_s},
        {u"5 - Include MKVMerge Reports"_s, u"Log Verbosity 5 - Include MKVMerge Reports"_s,
         u"Log Verbosity 5 - Include MKVMerge Reports"_s, u"&Process_Log v5"_s},
        {u"6 - Include ALL MKVMerge Results"_s, u"Log Verbosity 6 - Include ALL MKVMerge Reports"_s,
         u"Log Verbosity 6 - Include ALL MKVMerge Reports"_s, u"&Process_Log v6"_s},
        {u"7 - Include MKVMerge Command Line"_s, u"Log Verbosity 7 - Include MKVMerge Command Line."_s,
         u"Log Verbosity 7 - Include MKVMerge Command Line"_s, u"&Process_Log v7"_s},
    }};
    return levels;
}

std::size_t Level_Index(int level)
{
    return level >= 0 && level < static_cast<int>(Verbosity_Levels().size()) ? static_cast<std::size_t>(level) : 0;
}

void Load_Verbosity(JobOptions& options, Main_Form& form, int level)
{
    const std::size_t index = Level_Index(level);
    options.Log_Verbosity = static_cast<std::int16_t>(index);
    form.mnu_VerbosityStatus.Caption = Verbosity_Levels()[index].Status_At_Load;
    form.mnu_Process_Log.Caption = Verbosity_Levels()[index].Process_Log_Caption;
}
