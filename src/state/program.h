#pragma once

#include "options/language_table.h"
#include "state/companions.h"
#include "state/dialogs.h"
#include "state/job_options.h"
#include "state/log_buffers.h"
#include "state/main_form.h"
#include "state/media_state.h"
#include "state/option_editor_state.h"
#include "state/run_listener.h"
#include "state/run_queue.h"
#include "state/run_state.h"
#include "state/settings_state.h"
#include "state/tool_paths.h"
#include "state/video_list.h"
#include "support/operator.h"

#include <QDateTime>
#include <functional>

/// The whole state of the program, one record for each room. There is no other: no globals, no singletons. A driver or
/// a test makes its own.
struct Program
{
    explicit Program(Operator& person) : Person(person) {}

    Operator& Person;
    JobOptions Options;
    Main_Form Form;
    Settings_State Settings;
    Recent_List_Form Source_MRU_Form;
    Recent_List_Form Target_MRU_Form;
    Attachments_Form Attachments_Dialog;
    Language_Filter_Form Language_Filter;
    Custom_Title_Form Custom_Title;
    Frame_Rate_Form Frame_Rate_Dialog;
    Video_Format_Form Video_Format_Dialog;
    Presets_Form Presets_Dialog;
    Preset_Name_Form Preset_Name_Dialog;
    Help_Form Help;
    About_Form About_Box;
    Tool_Paths Tools;
    Media_State Media;
    ::Companions Companions;
    Run_State Run;
    Video_List Videos;
    Run_Queue Queue;
    Log_Buffers Logs;
    LanguageTable Language_Table;
    Option_Editor Option_Files;       ///< frm_OptionsFiles
    Run_Listener* Listener = nullptr; ///< may be null
    std::function<QDateTime()> Now = [] { return QDateTime::currentDateTime(); };
};
