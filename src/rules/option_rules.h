#pragma once

#include <QString>

struct JobOptions;
struct Program;

/// What each click on the main form does to the options: which box enables, disables or clears which. A click is: the
/// caller flips the box's Value, then calls the rule (click_rules does both). Until the first activation has set
/// Form.Options_Ready no rule does anything, so that settings can be read without triggering one. A value that a rule
/// sets triggers no other rule. A box that a rule disables keeps its value unless the rule unticks it.

/// Parks the focus on the invisible btn_NOP, so that no control keeps a focus mark. Every rule ends with it.
void Default_Run(Program& program);
/// The rule of a box whose click changes nothing beyond its tick; the table of clicks names it for all of them.
void Only_The_Tick(Program& program);
/// Puts the main form above all other windows, or takes it from there.
void Keep_On_Top(Program& program, bool on);
/// Shows a form until it is closed; a main form above all others comes down for that time.
void Show_Dialog(Program& program, const QString& form);

// Audio
void chk_StripOrigAudio_Click(Program& program);
void chk_StripOrigAudioTitle_Click(Program& program);
void chk_CustomAudioFilter_Click(Program& program);
void chk_EngAudioOnly_Click(Program& program);
void chk_AudioDelayAdjust_Click(Program& program);
void chk_AddAudio_Click(Program& program);
void chk_UseAudioOpts_Click(Program& program);
void chk_ApplyDefaultAudioOpts_Click(Program& program);
void chk_AudioPath_Click(Program& program);

// Subtitles
void chk_StripOrigSubs_Click(Program& program);
void chk_StripOrigSubsTitle_Click(Program& program);
void chk_CustomSubsFilter_Click(Program& program);
void chk_EngSubsOnly_Click(Program& program);
void chk_SubDefaults_Click(Program& program);
void chk_SubForces_Click(Program& program);
/// The right button was released over the box: its word flips between "no" and "yes".
void chk_SubDefaults_Right_Click(Program& program);
void chk_SubForces_Right_Click(Program& program);
void chk_AddSubs_Click(Program& program);
void chk_UseSubOpts_Click(Program& program);
void chk_ApplyDefaultSubOpts_Click(Program& program);
void chk_SubsPath_Click(Program& program);

// Chapters
void chk_ReplaceChapters_Click(Program& program);
void chk_ConvertTXT_Click(Program& program);
void lbl_ChapsFormat_Click(Program& program);
void chk_ChaptersPath_Click(Program& program);

// Titles
void chk_SetFileTitle_Click(Program& program);
void chk_RemoveFileTitle_Click(Program& program);
void chk_CustomFileTitle_Click(Program& program);
/// `item` is the option button chosen: 1 "If Empty  ", 2 "Always  ".
void opt_SetFileTitle_Click(Program& program, int item);
void chk_SetVideoTitle_Click(Program& program);
void chk_RemoveVideoTitle_Click(Program& program);
void chk_CustomVideoTitle_Click(Program& program);
void opt_SetVideoTitle_Click(Program& program, int item);
/// Brings the box of the custom title in step with the title that was set.
void Custom_File_Title_Caption(JobOptions& options);
void Custom_Video_Title_Caption(JobOptions& options);

// Other options
void chk_AddAttachments_Click(Program& program);
void chk_SplitVideos_Click(Program& program);
void chk_DeleteVideoAP_Click(Program& program);
