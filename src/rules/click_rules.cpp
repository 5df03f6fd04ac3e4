#include "rules/click_rules.h"

#include "rules/attachments_dialog.h"
#include "rules/option_rules.h"
#include "state/program.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const std::vector<Click_Rule>& Click_Rules()
{
    static const std::vector<Click_Rule> rules = {
        {u"chk_StripOrigAudio"_s, &JobOptions::chk_StripOrigAudio, chk_StripOrigAudio_Click},
        {u"chk_StripOrigAudioTitle"_s, &JobOptions::chk_StripOrigAudioTitle, chk_StripOrigAudioTitle_Click},
        {u"chk_CustomAudioFilter"_s, &JobOptions::chk_CustomAudioFilter, chk_CustomAudioFilter_Click},
        {u"chk_EngAudioOnly"_s, &JobOptions::chk_EngAudioOnly, chk_EngAudioOnly_Click},
        {u"chk_AudioDelayAdjust"_s, &JobOptions::chk_AudioDelayAdjust, chk_AudioDelayAdjust_Click},
        {u"chk_AddAudio"_s, &JobOptions::chk_AddAudio, chk_AddAudio_Click},
        {u"chk_UseAudioOpts"_s, &JobOptions::chk_UseAudioOpts, chk_UseAudioOpts_Click},
        {u"chk_ApplyDefaultAudioOpts"_s, &JobOptions::chk_ApplyDefaultAudioOpts, chk_ApplyDefaultAudioOpts_Click},
        {u"chk_AudioPath"_s, &JobOptions::chk_AudioPath, chk_AudioPath_Click},
        {u"chk_StripOrigSubs"_s, &JobOptions::chk_StripOrigSubs, chk_StripOrigSubs_Click},
        {u"chk_StripOrigSubsTitle"_s, &JobOptions::chk_StripOrigSubsTitle, chk_StripOrigSubsTitle_Click},
        {u"chk_CustomSubsFilter"_s, &JobOptions::chk_CustomSubsFilter, chk_CustomSubsFilter_Click},
        {u"chk_EngSubsOnly"_s, &JobOptions::chk_EngSubsOnly, chk_EngSubsOnly_Click},
        {u"chk_SubDefaults"_s, &JobOptions::chk_SubDefaults, chk_SubDefaults_Click},
        {u"chk_SubForces"_s, &JobOptions::chk_SubForces, chk_SubForces_Click},
        {u"chk_AddSubs"_s, &JobOptions::chk_AddSubs, chk_AddSubs_Click},
        {u"chk_UseSubOpts"_s, &JobOptions::chk_UseSubOpts, chk_UseSubOpts_Click},
        {u"chk_ApplyDefaultSubOpts"_s, &JobOptions::chk_ApplyDefaultSubOpts, chk_ApplyDefaultSubOpts_Click},
        {u"chk_SubsPath"_s, &JobOptions::chk_SubsPath, chk_SubsPath_Click},
        {u"chk_StripChaps"_s, &JobOptions::chk_StripChaps, Only_The_Tick},
        {u"chk_ReplaceChapters"_s, &JobOptions::chk_ReplaceChapters, chk_ReplaceChapters_Click},
        {u"chk_ConvertTXT"_s, &JobOptions::chk_ConvertTXT, chk_ConvertTXT_Click},
        {u"chk_ChaptersPath"_s, &JobOptions::chk_ChaptersPath, chk_ChaptersPath_Click},
        {u"chk_VideoFrameRate"_s, &JobOptions::chk_VideoFrameRate, Only_The_Tick},
        {u"chk_VideoFormatOptions"_s, &JobOptions::chk_VideoFormatOptions, Only_The_Tick},
        {u"chk_SetFileTitle"_s, &JobOptions::chk_SetFileTitle, chk_SetFileTitle_Click},
        {u"chk_RemoveFileTitle"_s, &JobOptions::chk_RemoveFileTitle, chk_RemoveFileTitle_Click},
        {u"chk_CustomFileTitle"_s, &JobOptions::chk_CustomFileTitle, chk_CustomFileTitle_Click},
        {u"chk_SetVideoTitle"_s, &JobOptions::chk_SetVideoTitle, chk_SetVideoTitle_Click},
        {u"chk_RemoveVideoTitle"_s, &JobOptions::chk_RemoveVideoTitle, chk_RemoveVideoTitle_Click},
        {u"chk_CustomVideoTitle"_s, &JobOptions::chk_CustomVideoTitle, chk_CustomVideoTitle_Click},
        {u"chk_RemoveAllTags"_s, &JobOptions::chk_RemoveAllTags, Only_The_Tick},
        {u"chk_RemoveAllAttachments"_s, &JobOptions::chk_RemoveAllAttachments, Only_The_Tick},
        {u"chk_AddAttachments"_s, &JobOptions::chk_AddAttachments, chk_AddAttachments_Click},
        {u"chk_UseSubfolders"_s, &JobOptions::chk_UseSubfolders, chk_UseSubfolders_Click},
        {u"chk_SplitVideos"_s, &JobOptions::chk_SplitVideos, chk_SplitVideos_Click},
        {u"chk_RemoveUnicode"_s, &JobOptions::chk_RemoveUnicode, Only_The_Tick},
        {u"chk_DeleteVideoAP"_s, &JobOptions::chk_DeleteVideoAP, chk_DeleteVideoAP_Click},
    };
    return rules;
}

const Click_Rule* Find_Click_Rule(const QString& name)
{
    const auto rule = std::ranges::find(Click_Rules(), name, &Click_Rule::Name);
    return rule == Click_Rules().end() ? nullptr : &*rule;
}

bool Click(Program& program, const Click_Rule& rule)
{
    Check_Box& box = program.Options.*rule.Box;
    if (!box.Enabled)
        return false;
    box.Value = box.Value == 0 ? 1 : 0;
    rule.Rule(program);
    return true;
}
