#include "rules/folders.h"
#include "rules/number_boxes.h"
#include "rules/option_rules.h"
#include "settings/filter_modes.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

/// The boxes of a group of tracks that have a twin in the other group.
struct Track_Group
{
    Check_Box& Custom;
    Check_Box& English;
    const FilterSettings& Filter;
    Check_Box& Add;
    Check_Box& Use_Opts;
    Check_Box& Apply_Default;
    bool& Diagram_On;
};

static Track_Group Audio_Group(Program& program)
{
    JobOptions& options = program.Options;
    return {options.chk_CustomAudioFilter, options.chk_EngAudioOnly, options.AudioFilter,
            options.chk_AddAudio,          options.chk_UseAudioOpts, options.chk_ApplyDefaultAudioOpts,
            program.Form.Audio_Diagram_On};
}

static Track_Group Subs_Group(Program& program)
{
    JobOptions& options = program.Options;
    return {options.chk_CustomSubsFilter, options.chk_EngSubsOnly, options.SubsFilter,
            options.chk_AddSubs,          options.chk_UseSubOpts,  options.chk_ApplyDefaultSubOpts,
            program.Form.Subs_Diagram_On};
}

/// The custom filter and English only shut each other out.
static void Exclude_Each_Other(const Track_Group& group)
{
    if (group.Custom.Value == 1)
        group.English.Enabled = false;
    if (group.English.Value == 1)
        group.Custom.Enabled = false;
}

/// A filter without a language can be neither ticked nor reached.
static void Enable_Custom_By_Languages(const Track_Group& group)
{
    group.Custom.Enabled = !group.Filter.Languages.isEmpty();
    if (!group.Custom.Enabled)
        group.Custom.Value = 0;
}

static void Custom_Filter_Clicked(const Track_Group& group)
{
    group.English.Enabled = group.Custom.Value != 1;
    Enable_Custom_By_Languages(group);
}

static void English_Only_Clicked(const Track_Group& group)
{
    if (group.English.Value == 1)
        group.Custom.Enabled = false;
    else
        Enable_Custom_By_Languages(group);
}

static void Add_Files_Clicked(const Track_Group& group)
{
    const bool adds = group.Add.Value == 1;
    group.Use_Opts.Enabled = adds;
    if (!adds)
        group.Apply_Default.Enabled = false;
    else if (group.Use_Opts.Value == 1)
        group.Apply_Default.Enabled = true;
    group.Diagram_On = group.Apply_Default.Enabled;
}

static void Use_Opts_Clicked(const Track_Group& group)
{
    group.Apply_Default.Enabled = group.Use_Opts.Value != 0;
    group.Diagram_On = group.Apply_Default.Enabled;
}

void chk_StripOrigAudio_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    JobOptions& options = program.Options;
    const bool stays = options.chk_StripOrigAudio.Value != 1;
    options.chk_StripOrigAudioTitle.Enabled = stays;
    options.chk_CustomAudioFilter.Enabled = stays && options.AudioFilter.Count > 0;
    options.chk_EngAudioOnly.Enabled = stays;
    options.chk_AudioDelayAdjust.Enabled = stays;
    if (!stays || options.chk_AudioDelayAdjust.Value == 1) {
        program.Form.pic_AudioDelayValue.Enabled = stays;
        program.Form.txt_AudioDelayValue.Active = stays;
    }
    Exclude_Each_Other(Audio_Group(program));
    Set_Audio_Filter_Mode(options);
    Default_Run(program);
}

void chk_CustomAudioFilter_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Custom_Filter_Clicked(Audio_Group(program));
    Set_Audio_Filter_Mode(program.Options);
    Default_Run(program);
}

void chk_EngAudioOnly_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    English_Only_Clicked(Audio_Group(program));
    Set_Audio_Filter_Mode(program.Options);
    Default_Run(program);
}

void chk_AudioDelayAdjust_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Check_Box& box = program.Options.chk_AudioDelayAdjust;
    if (box.Enabled) {
        // The toggle decides, not the tick that the click made: the two part when an empty delay unticks the box.
        program.Form.Delay_Toggle = !program.Form.Delay_Toggle;
        box.Value = program.Form.Delay_Toggle ? 1 : 0;
    }
    Enable_Number_Box(program.Form.pic_AudioDelayValue, program.Form.txt_AudioDelayValue,
                      box.Enabled && program.Form.Delay_Toggle);
    Default_Run(program);
}

void chk_AddAudio_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Default_Run(program);
    Add_Files_Clicked(Audio_Group(program));
}

void chk_UseAudioOpts_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Use_Opts_Clicked(Audio_Group(program));
    Default_Run(program);
}

void chk_AudioPath_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Show_Folder_Panels(program.Options, program.Form);
    Check_Paths(program, u"AudioPath"_s);
    Default_Run(program);
}

void chk_StripOrigSubs_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    JobOptions& options = program.Options;
    const bool stays = options.chk_StripOrigSubs.Value != 1;
    options.chk_StripOrigSubsTitle.Enabled = stays;
    options.chk_CustomSubsFilter.Enabled = stays && options.SubsFilter.Count > 0;
    options.chk_EngSubsOnly.Enabled = stays;
    options.chk_SubDefaults.Enabled = stays;
    options.chk_SubForces.Enabled = stays;
    Exclude_Each_Other(Subs_Group(program));
    Set_Subs_Filter_Mode(options);
    Default_Run(program);
}

void chk_CustomSubsFilter_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Custom_Filter_Clicked(Subs_Group(program));
    Set_Subs_Filter_Mode(program.Options);
    Default_Run(program);
}

void chk_EngSubsOnly_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    English_Only_Clicked(Subs_Group(program));
    Set_Subs_Filter_Mode(program.Options);
    Default_Run(program);
}

void chk_AddSubs_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    const Track_Group group = Subs_Group(program);
    group.Apply_Default.Enabled = group.Use_Opts.Value != 0;
    Add_Files_Clicked(group);
    Default_Run(program);
}

void chk_UseSubOpts_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Use_Opts_Clicked(Subs_Group(program));
    Default_Run(program);
}

void chk_SubsPath_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Show_Folder_Panels(program.Options, program.Form);
    Check_Paths(program, u"SubsPath"_s);
    Default_Run(program);
}

void chk_ChaptersPath_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Show_Folder_Panels(program.Options, program.Form);
    Check_Paths(program, u"ChaptersPath"_s);
    Default_Run(program);
}

/// Flips the word that the box carries in its tag and at the end of its caption.
static void Flip_Word(Program& program, Check_Box& box, const QString& caption)
{
    if (!program.Form.Options_Ready)
        return;
    box.Tag = box.Tag == u"no"_s ? u"yes"_s : u"no"_s;
    box.Caption = caption + u"\""_s + box.Tag + u"\""_s;
    Default_Run(program);
}

void chk_SubDefaults_Right_Click(Program& program)
{
    Flip_Word(program, program.Options.chk_SubDefaults, u"Set All Subtitles defaults to "_s);
}

void chk_SubForces_Right_Click(Program& program)
{
    Flip_Word(program, program.Options.chk_SubForces, u"Set All Subtitles forces to "_s);
}

void chk_StripOrigAudioTitle_Click(Program& program)
{
    Only_The_Tick(program);
}

void chk_ApplyDefaultAudioOpts_Click(Program& program)
{
    Only_The_Tick(program);
}

void chk_StripOrigSubsTitle_Click(Program& program)
{
    Only_The_Tick(program);
}

void chk_ApplyDefaultSubOpts_Click(Program& program)
{
    Only_The_Tick(program);
}

void chk_SubDefaults_Click(Program& program)
{
    Only_The_Tick(program);
}

void chk_SubForces_Click(Program& program)
{
    Only_The_Tick(program);
}
