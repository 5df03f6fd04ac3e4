#include "forms/form_registry.h"

#include "forms/about_view.h"
#include "forms/attachments_view.h"
#include "forms/custom_title_view.h"
#include "forms/frame_rate_view.h"
#include "forms/help_view.h"
#include "forms/language_filter_view.h"
#include "forms/locations_view.h"
#include "forms/option_editor_view.h"
#include "forms/preset_name_view.h"
#include "forms/presets_view.h"
#include "forms/process_log_view.h"
#include "forms/recent_list_view.h"
#include "forms/video_format_view.h"
#include "forms/video_info_view.h"

using namespace Qt::StringLiterals;

template <typename Form>
static Program_Dialog* Make(Program& program, Slot_Guard& guard, QWidget* owner)
{
    return new Form(program, guard, owner);
}

const std::map<QString, Form_Maker>& Form_Makers()
{
    static const std::map<QString, Form_Maker> makers{
        {u"frm_Attachments"_s, Make<Attachments_View>},   {u"frm_CustomFilter"_s, Make<Language_Filter_View>},
        {u"frm_CustomTitle"_s, Make<Custom_Title_View>},  {u"frm_Help"_s, Make<Help_View>},
        {u"frm_Locations"_s, Make<Locations_View>},       {u"frm_OptionsFiles"_s, Make<Option_Editor_View>},
        {u"frm_PresetName"_s, Make<Preset_Name_View>},    {u"frm_Presets"_s, Make<Presets_View>},
        {u"frm_ProcessLog"_s, Make<Process_Log_View>},    {u"frm_ViewVFI"_s, Make<Video_Info_View>},
        {u"frm_SourceMRU"_s, Make<Source_MRU_View>},      {u"frm_Splash"_s, Make<About_View>},
        {u"frm_TargetMRU"_s, Make<Target_MRU_View>},      {u"frm_VideoFormatOptions"_s, Make<Video_Format_View>},
        {u"frm_VideoFrameRate"_s, Make<Frame_Rate_View>},
    };
    return makers;
}
