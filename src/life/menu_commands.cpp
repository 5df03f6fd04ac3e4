#include "life/menu_commands.h"

#include "logs/process_log.h"
#include "rules/attachments_dialog.h"
#include "rules/custom_title.h"
#include "rules/folders.h"
#include "rules/frame_rate_dialog.h"
#include "rules/language_filter.h"
#include "rules/option_rules.h"
#include "rules/video_format_dialog.h"
#include "settings/filter_modes.h"
#include "settings/settings_store.h"
#include "state/program.h"
#include "tools/tool_discovery.h"
#include "workbenches/option_editor.h"

using namespace Qt::StringLiterals;

/// What the custom filter command of a kind of track works on.
struct Filter_Command
{
    std::int16_t Kind;
    FilterSettings& Filter;
    Check_Box& Custom;
    Check_Box& English;
    QString Caption;
    void (*Set_Mode)(JobOptions&);
};

static void Choose_Languages(Program& program, const Filter_Command& command)
{
    FilterSettings& working = program.Settings.WorkingFilter;
    command.Filter.Kind = command.Kind;
    working = command.Filter;
    Open_Language_Filter(program);
    Show_Dialog(program, u"frm_CustomFilter"_s);
    program.Language_Filter.Visible = false;
    command.Filter = working;

    command.Custom.Caption = command.Caption + (command.Filter.KeepOrCut == 1 ? u" (keep)"_s : u" (cut)"_s);
    command.Custom.Enabled = !command.Filter.Languages.isEmpty();
    if (!command.Custom.Enabled) {
        command.Custom.Value = 0;
        command.English.Enabled = true;
    }
    // The mode follows the box that an empty list has just unticked: mode 4 without a list would drop every track.
    command.Set_Mode(program.Options);
    Default_Run(program);
}

void mnu_CustomAudioFilter_Click(Program& program)
{
    JobOptions& options = program.Options;
    Choose_Languages(program, {1, options.AudioFilter, options.chk_CustomAudioFilter, options.chk_EngAudioOnly,
                               u"Apply custom Audio Filter"_s, Set_Audio_Filter_Mode});
}

void mnu_CustomSubtitleFilter_Click(Program& program)
{
    JobOptions& options = program.Options;
    Choose_Languages(program, {2, options.SubsFilter, options.chk_CustomSubsFilter, options.chk_EngSubsOnly,
                               u"Apply custom Subtitle Filter"_s, Set_Subs_Filter_Mode});
}

void mnu_CustomFileTitle_Click(Program& program)
{
    QString& title = program.Options.Custom_File_Title;
    title = Ask_Custom_Title(program, u"Set Custom File Title"_s, title);
    Custom_File_Title_Caption(program.Options);
    Default_Run(program);
}

void mnu_CustomVideoTitle_Click(Program& program)
{
    QString& title = program.Options.Custom_Video_Title;
    title = Ask_Custom_Title(program, u"Set Custom Video Title"_s, title);
    Custom_Video_Title_Caption(program.Options);
    Default_Run(program);
}

void mnu_VideoFrameRate_Click(Program& program)
{
    Show_Frame_Rate_Dialog(program);
    Default_Run(program);
}

void mnu_VideoFormatOptions_Click(Program& program)
{
    Show_Video_Format_Dialog(program);
    Default_Run(program);
}

void mnu_Attachments_Click(Program& program)
{
    Show_Attachments_Dialog(program);
    Default_Run(program);
}

void mnu_PopupACA1_Click(Program& program)
{
    program.Person.Wait_With_Events(10);
    mnu_Attachments_Click(program);
}

void chk_AddAttachments_Right_Click(Program& program)
{
    if (program.Form.Options_Ready)
        mnu_Attachments_Click(program);
}

/// The editor shows its form by itself.
static void Edit_Option_Files(Program& program, bool (*open)(Program&, const QString&))
{
    if (program.Form.Topmost_On)
        Keep_On_Top(program, false);
    open(program, u"NOP"_s);
    if (program.Form.Topmost_On)
        Keep_On_Top(program, true);
    Default_Run(program);
}

void mnu_AudioOptionsFile_Click(Program& program)
{
    Edit_Option_Files(program, Open_Audio_Option_Editor);
}

void mnu_SubtitleOptionsFile_Click(Program& program)
{
    Edit_Option_Files(program, Open_Subtitle_Option_Editor);
}

void mnu_ViewLog_Click(Program& program)
{
    Show_Dialog(program, u"frm_ProcessLog"_s);
    Default_Run(program);
}

void mnu_ExecutablePaths_Click(Program& program)
{
    Show_Dialog(program, u"frm_Locations"_s);
    Default_Run(program);
}

void btn_ViewVidInfo_Click(Program& program)
{
    Show_Dialog(program, u"frm_ViewVFI"_s);
    Default_Run(program);
}

static void Flip(Program& program, bool& tick)
{
    tick = !tick;
    Default_Run(program);
}

static void Choose_Output_Exists(Program& program, Output_Exists choice)
{
    program.Settings.Extensions.If_The_Output_Exists = choice;
    Default_Run(program);
}

static void Choose_At_Once(Program& program, int videos)
{
    program.Settings.Extensions.Videos_At_Once = videos;
    Default_Run(program);
}

void mnu_KeepEnglishTitledAudio_Click(Program& program)
{
    Flip(program, program.Options.Keep_English_Audio);
}

void mnu_KeepEnglishTitledSubs_Click(Program& program)
{
    Flip(program, program.Options.Keep_English_Subs);
}

void mnu_DeleteAncillaryFiles_Click(Program& program)
{
    Flip(program, program.Options.Delete_Sundry_Files);
}

void mnu_KeepTopmost_Click(Program& program)
{
    Flip(program, program.Form.Topmost_On);
    Keep_On_Top(program, program.Form.Topmost_On);
}

void mnu_AppendLogs_Click(Program& program)
{
    Flip(program, program.Options.mnu_AppendLogs);
}

void mnu_CarefulBatch_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Careful_Batch);
}

void mnu_OutputExistsReplace_Click(Program& program)
{
    Choose_Output_Exists(program, Output_Exists::Replace);
}

void mnu_OutputExistsSkip_Click(Program& program)
{
    Choose_Output_Exists(program, Output_Exists::Skip);
}

void mnu_OutputExistsNumber_Click(Program& program)
{
    Choose_Output_Exists(program, Output_Exists::Number);
}

void mnu_AtOnce1_Click(Program& program)
{
    Choose_At_Once(program, 1);
}

void mnu_AtOnce2_Click(Program& program)
{
    Choose_At_Once(program, 2);
}

void mnu_AtOnce4_Click(Program& program)
{
    Choose_At_Once(program, 4);
}

void mnu_AtOnce8_Click(Program& program)
{
    Choose_At_Once(program, 8);
}

void mnu_IncludeSubfolders_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Include_Subfolders);
}

void mnu_SensibleNamesAndSizes_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Sensible_Names_And_Sizes);
}

void mnu_LanguageFromFileName_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Language_From_File_Name);
}

void mnu_SkipWhatWouldNotChange_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Skip_What_Would_Not_Change);
}

void mnu_RunButtonFollowsFolders_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Run_Button_Follows_Folders);
    Follow_Folders(program);
}

void mnu_DeleteSourceOnlyAfterSuccess_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Delete_Source_Only_After_Success);
}

void mnu_IdentifyWithAnyMkvmerge_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Identify_With_Any_Mkvmerge);
    Enable_Video_Info_Button(program);
}

void mnu_TellAtTheEnd_Click(Program& program)
{
    Flip(program, program.Settings.Extensions.Tell_At_The_End);
}

static void Choose_When_Done(Program& program, bool quit)
{
    program.Form.Quit_When_Done = quit;
    Default_Run(program);
}

void mnu_WhenDoneNothing_Click(Program& program)
{
    Choose_When_Done(program, false);
}

void mnu_WhenDoneQuit_Click(Program& program)
{
    Choose_When_Done(program, true);
}

void mnu_ClearLog_Click(Program& program)
{
    Rotate_Process_Logs(program);
    Default_Run(program);
}

const std::vector<Menu_Tick>& Menu_Ticks()
{
    static const std::vector<Menu_Tick> ticks = {
        {u"mnu_KeepEnglishTitledAudio"_s, u"Keep English Titled Audio"_s,
         [](const Program& program) { return program.Options.Keep_English_Audio; }, mnu_KeepEnglishTitledAudio_Click},
        {u"mnu_KeepEnglishTitledSubs"_s, u"Keep English Titled Subtitles"_s,
         [](const Program& program) { return program.Options.Keep_English_Subs; }, mnu_KeepEnglishTitledSubs_Click},
        {u"mnu_DeleteAncillaryFiles"_s, u"Delete Source Video Ancillary Files"_s,
         [](const Program& program) { return program.Options.Delete_Sundry_Files; }, mnu_DeleteAncillaryFiles_Click},
        {u"mnu_SaveOnQuit"_s, u"Save Settings on Exit"_s,
         [](const Program& program) { return program.Settings.Save_On_Exit; }, mnu_SaveOnQuit_Click},
        {u"mnu_KeepTopmost"_s, u"Keep this program topmost"_s,
         [](const Program& program) { return program.Form.Topmost_On; }, mnu_KeepTopmost_Click},
        {u"mnu_AppendLogs"_s, u" Append Vantorra Log(s)"_s,
         [](const Program& program) { return program.Options.mnu_AppendLogs; }, mnu_AppendLogs_Click},
        {u"mnu_CarefulBatch"_s, u"Careful Batch"_s,
         [](const Program& program) { return program.Settings.Extensions.Careful_Batch; }, mnu_CarefulBatch_Click},
        {u"mnu_IncludeSubfolders"_s, u"Include Subfolders"_s,
         [](const Program& program) { return program.Settings.Extensions.Include_Subfolders; },
         mnu_IncludeSubfolders_Click},
        {u"mnu_SensibleNamesAndSizes"_s, u"Sensible Names And Sizes"_s,
         [](const Program& program) { return program.Settings.Extensions.Sensible_Names_And_Sizes; },
         mnu_SensibleNamesAndSizes_Click},
        {u"mnu_LanguageFromFileName"_s, u"Language From File Name"_s,
         [](const Program& program) { return program.Settings.Extensions.Language_From_File_Name; },
         mnu_LanguageFromFileName_Click},
        {u"mnu_SkipWhatWouldNotChange"_s, u"Skip What Would Not Change"_s,
         [](const Program& program) { return program.Settings.Extensions.Skip_What_Would_Not_Change; },
         mnu_SkipWhatWouldNotChange_Click},
        {u"mnu_RunButtonFollowsFolders"_s, u"Run Button Follows Folders"_s,
         [](const Program& program) { return program.Settings.Extensions.Run_Button_Follows_Folders; },
         mnu_RunButtonFollowsFolders_Click},
        {u"mnu_DeleteSourceOnlyAfterSuccess"_s, u"Delete Source Only After Success"_s,
         [](const Program& program) { return program.Settings.Extensions.Delete_Source_Only_After_Success; },
         mnu_DeleteSourceOnlyAfterSuccess_Click},
        {u"mnu_IdentifyWithAnyMkvmerge"_s, u"Identify With Any mkvmerge"_s,
         [](const Program& program) { return program.Settings.Extensions.Identify_With_Any_Mkvmerge; },
         mnu_IdentifyWithAnyMkvmerge_Click},
        {u"mnu_TellAtTheEnd"_s, u"Tell At The End"_s,
         [](const Program& program) { return program.Settings.Extensions.Tell_At_The_End; }, mnu_TellAtTheEnd_Click},
    };
    return ticks;
}

const std::vector<Menu_Tick>& Menu_Choices()
{
    static const std::vector<Menu_Tick> choices = {
        {u"mnu_OutputExistsReplace"_s, u"Replace It"_s,
         [](const Program& program) {
             return program.Settings.Extensions.If_The_Output_Exists == Output_Exists::Replace;
         },
         mnu_OutputExistsReplace_Click},
        {u"mnu_OutputExistsSkip"_s, u"Skip The Video"_s,
         [](const Program& program) { return program.Settings.Extensions.If_The_Output_Exists == Output_Exists::Skip; },
         mnu_OutputExistsSkip_Click},
        {u"mnu_OutputExistsNumber"_s, u"Number The New One"_s,
         [](const Program& program) {
             return program.Settings.Extensions.If_The_Output_Exists == Output_Exists::Number;
         },
         mnu_OutputExistsNumber_Click},
        {u"mnu_AtOnce1"_s, u"1"_s,
         [](const Program& program) { return program.Settings.Extensions.Videos_At_Once == 1; }, mnu_AtOnce1_Click},
        {u"mnu_AtOnce2"_s, u"2"_s,
         [](const Program& program) { return program.Settings.Extensions.Videos_At_Once == 2; }, mnu_AtOnce2_Click},
        {u"mnu_AtOnce4"_s, u"4"_s,
         [](const Program& program) { return program.Settings.Extensions.Videos_At_Once == 4; }, mnu_AtOnce4_Click},
        {u"mnu_AtOnce8"_s, u"8"_s,
         [](const Program& program) { return program.Settings.Extensions.Videos_At_Once == 8; }, mnu_AtOnce8_Click},
        {u"mnu_WhenDoneNothing"_s, u"Do Nothing"_s, [](const Program& program) { return !program.Form.Quit_When_Done; },
         mnu_WhenDoneNothing_Click},
        {u"mnu_WhenDoneQuit"_s, u"Quit"_s, [](const Program& program) { return program.Form.Quit_When_Done; },
         mnu_WhenDoneQuit_Click},
    };
    return choices;
}
