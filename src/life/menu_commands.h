#pragma once

#include <QString>
#include <vector>

struct Program;

/// What the menus of the main form do, beside the check boxes. These work before the first activation too. The
/// commands that save settings stand in settings_store, those of Help in start_up.

// Dialogs
void mnu_CustomAudioFilter_Click(Program& program);
void mnu_CustomSubtitleFilter_Click(Program& program);
void mnu_CustomFileTitle_Click(Program& program);
void mnu_CustomVideoTitle_Click(Program& program);
void mnu_VideoFrameRate_Click(Program& program);
void mnu_VideoFormatOptions_Click(Program& program);
void mnu_Attachments_Click(Program& program);
/// Opens the attachments' form a moment later, so that the popup has closed first.
void mnu_PopupACA1_Click(Program& program);
void chk_AddAttachments_Right_Click(Program& program);
/// The editor of option files; also the items of the popups over chk_UseAudioOpts and chk_UseSubOpts.
void mnu_AudioOptionsFile_Click(Program& program);
void mnu_SubtitleOptionsFile_Click(Program& program);
void mnu_ViewLog_Click(Program& program);
void mnu_ExecutablePaths_Click(Program& program);
void btn_ViewVidInfo_Click(Program& program);

// Ticks
void mnu_KeepEnglishTitledAudio_Click(Program& program);
void mnu_KeepEnglishTitledSubs_Click(Program& program);
void mnu_DeleteAncillaryFiles_Click(Program& program);
void mnu_KeepTopmost_Click(Program& program);
void mnu_AppendLogs_Click(Program& program);

// Extensions
void mnu_CarefulBatch_Click(Program& program);
/// What a careful batch does where its output's name is taken: one of three items has the tick.
void mnu_OutputExistsReplace_Click(Program& program);
void mnu_OutputExistsSkip_Click(Program& program);
void mnu_OutputExistsNumber_Click(Program& program);
/// How many videos a careful batch works on side by side: one of four items has the tick, or none.
void mnu_AtOnce1_Click(Program& program);
void mnu_AtOnce2_Click(Program& program);
void mnu_AtOnce4_Click(Program& program);
void mnu_AtOnce8_Click(Program& program);
void mnu_IncludeSubfolders_Click(Program& program);
void mnu_SensibleNamesAndSizes_Click(Program& program);
void mnu_LanguageFromFileName_Click(Program& program);
void mnu_SkipWhatWouldNotChange_Click(Program& program);
void mnu_RunButtonFollowsFolders_Click(Program& program);
void mnu_DeleteSourceOnlyAfterSuccess_Click(Program& program);
void mnu_IdentifyWithAnyMkvmerge_Click(Program& program);
void mnu_TellAtTheEnd_Click(Program& program);

/// What a run that came to its end is followed by: one of two items has the tick. Never stored.
void mnu_WhenDoneNothing_Click(Program& program);
void mnu_WhenDoneQuit_Click(Program& program);

/// Moves the log out of its place, asks nothing.
void mnu_ClearLog_Click(Program& program);

/// A menu item that carries a tick.
struct Menu_Tick
{
    QString Name;
    QString Caption;
    bool (*Ticked)(const Program&);
    void (*Command)(Program&);
};

/// The menu items with a tick, for the forms.
const std::vector<Menu_Tick>& Menu_Ticks();
/// Those of which one of each menu has the tick; choosing it again changes nothing.
const std::vector<Menu_Tick>& Menu_Choices();
