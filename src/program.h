#pragma once

#include "command/companions.h"
#include "inspect/media_state.h"
#include "inspect/tool_paths.h"
#include "logs/log_buffers.h"
#include "options/attachments_dialog.h"
#include "options/language_filter.h"
#include "options/language_table.h"
#include "options/option_editor.h"
#include "run/run_listener.h"
#include "run/run_state.h"
#include "settings/custom_title.h"
#include "settings/frame_rate_dialog.h"
#include "settings/help_and_about.h"
#include "settings/job_options.h"
#include "settings/main_form.h"
#include "settings/recent_folders.h"
#include "settings/settings_state.h"
#include "settings/video_format_dialog.h"
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
    About_Form About_Box;
    Tool_Paths Tools;
    Media_State Media;
    ::Companions Companions;
    Run_State Run;
    Log_Buffers Logs;
    LanguageTable Language_Table;
    Option_Editor Option_Files;       ///< frm_OptionsFiles
    Run_Listener* Listener = nullptr; ///< may be null
    std::function<QDateTime()> Now = [] { return QDateTime::currentDateTime(); };
};
