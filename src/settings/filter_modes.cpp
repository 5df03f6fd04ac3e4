#include "settings/filter_modes.h"

#include "state/job_options.h"

static std::int16_t Filter_Mode(const Check_Box& strip, const Check_Box& english, const Check_Box& custom,
                                const FilterSettings& filter)
{
    if (strip.Value == 1)
        return 1;
    if (english.Value == 1)
        return 2;
    if (custom.Value == 1)
        return filter.KeepOrCut == 1 ? 4 : 3;
    return 0;
}

void Set_Audio_Filter_Mode(JobOptions& options)
{
    options.AudioFilterMode = Filter_Mode(options.chk_StripOrigAudio, options.chk_EngAudioOnly,
                                          options.chk_CustomAudioFilter, options.AudioFilter);
}

void Set_Subs_Filter_Mode(JobOptions& options)
{
    options.SubsFilterMode = Filter_Mode(options.chk_StripOrigSubs, options.chk_EngSubsOnly,
                                         options.chk_CustomSubsFilter, options.SubsFilter);
    if (options.SubsFilterMode >= 3)
        options.SubsFilterKeep = options.SubsFilterMode == 4 ? 1 : 0;
}
