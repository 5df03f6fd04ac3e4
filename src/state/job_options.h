#pragma once

#include "support/controls.h"

#include <QString>
#include <cstdint>

/// One custom language filter. Kind 1 audio, 2 subtitles.
struct FilterSettings
{
    std::int16_t Kind = 0;
    QString Languages;          ///< "Name (code)" lines joined by ":"; empty: no list
    std::int16_t Count = 0;     ///< number of lines in Languages
    std::int16_t KeepOrCut = 0; ///< 0 cut, 1 keep
    std::int32_t Top = 0;       ///< the filter form's last place, with the three below
    std::int32_t Left = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    bool HasBox = false; ///< Height is at least 2
};

/// The complete set of option values that a run reads. A check box's value is the option; its enabled state is set by
/// the option rules. Where each is kept in the settings file stands in settings_rows.
struct JobOptions
{
    // Audio
    Check_Box chk_StripOrigAudio{.Caption = QStringLiteral("Strip Existing Audio"), .Tag = {}};
    Check_Box chk_StripOrigAudioTitle{.Caption = QStringLiteral("Strip Existing Audio Title"), .Tag = {}};
    Check_Box chk_CustomAudioFilter{.Caption = QStringLiteral("Apply custom Audio Filter (cut)"), .Tag = {}};
    Check_Box chk_EngAudioOnly{.Caption = QStringLiteral("Filter out NON-English Audio"), .Tag = {}};
    bool Keep_English_Audio = false; ///< mnu_KeepEnglishTitledAudio
    Check_Box chk_AudioDelayAdjust{.Caption = QStringLiteral("Audio Delay Adjust"), .Tag = {}};
    QString Audio_Delay; ///< milliseconds, -99999 to 99999, as text
    Check_Box chk_AddAudio{.Caption = QStringLiteral("Add Audio Files"), .Tag = {}};
    Check_Box chk_UseAudioOpts{.Caption = QStringLiteral("Use Audio \".opt\" files"), .Tag = {}};
    Check_Box chk_ApplyDefaultAudioOpts{.Caption = QStringLiteral("Apply Default Audio Options"), .Tag = {}};
    Check_Box chk_AudioPath{.Caption = QStringLiteral("Alternate Audio File Path"), .Tag = {}};
    FilterSettings AudioFilter{.Kind = 1, .Languages = {}};
    std::int16_t AudioFilterMode = 0; ///< 0 all stay, 1 strip, 2 English only, 3 custom cut, 4 custom keep

    // Subtitles
    Check_Box chk_StripOrigSubs{.Caption = QStringLiteral("Strip Existing Subtitles"), .Tag = {}};
    Check_Box chk_StripOrigSubsTitle{.Caption = QStringLiteral("Strip Existing Subtitles Title"), .Tag = {}};
    Check_Box chk_CustomSubsFilter{.Caption = QStringLiteral("Apply custom Subtitle Filter (cut)"), .Tag = {}};
    Check_Box chk_EngSubsOnly{.Caption = QStringLiteral("Filter out NON-English Subtitles"), .Tag = {}};
    bool Keep_English_Subs = false; ///< mnu_KeepEnglishTitledSubs
    Check_Box chk_SubDefaults{.Caption = QStringLiteral("Set All Subtitles defaults to \"no\""),
                              .Tag = QStringLiteral("no")};
    Check_Box chk_SubForces{.Caption = QStringLiteral("Set All Subtitles forces to \"no\""),
                            .Tag = QStringLiteral("no")};
    Check_Box chk_AddSubs{.Caption = QStringLiteral("Add Subtitles"), .Tag = {}};
    Check_Box chk_UseSubOpts{.Caption = QStringLiteral("Use Subtitle \".opt\" files"), .Tag = {}};
    Check_Box chk_ApplyDefaultSubOpts{.Caption = QStringLiteral("Apply Default Sub Options"), .Tag = {}};
    Check_Box chk_SubsPath{.Caption = QStringLiteral("Alternate Subtitle File Path"), .Tag = {}};
    FilterSettings SubsFilter{.Kind = 2, .Languages = {}};
    std::int16_t SubsFilterMode = 0; ///< as AudioFilterMode
    std::int16_t SubsFilterKeep = 0; ///< 1 for mode 4, 0 for mode 3, else left as it was

    // Chapters
    Check_Box chk_StripChaps{.Caption = QStringLiteral("Strip Existing Chapters"), .Tag = {}};
    Check_Box chk_ReplaceChapters{.Caption = QStringLiteral("Replace With New Chapter File"), .Tag = {}};
    Check_Box chk_ConvertTXT{.Caption = QStringLiteral("Convert TXT to XML Chapters"), .Tag = {}};
    std::int16_t Chapter_Format_Index = 0; ///< 0 frames, 1 hundredths: stored and shown only
    Label lbl_ChapsFormat{.Caption = QStringLiteral("HH:MM:SS.ff")};
    Check_Box chk_ChaptersPath{.Caption = QStringLiteral("Alternate Chapters File Path"), .Tag = {}};

    // Other
    Check_Box chk_VideoFrameRate{.Caption = QStringLiteral("Set Video Frame Rate"), .Tag = {}};
    std::int16_t Frame_Rate_Kind = 0; ///< 0 invalid, 1 the rate found in the source, 2 Frame_Rate_Value
    QString Frame_Rate_Value;
    Check_Box chk_VideoFormatOptions{.Caption = QStringLiteral("Use Video Format Options"), .Tag = {}};
    std::int16_t Video_Format_Kind = 0; ///< 0 none, 1 aspect ratio, 2 display dimensions
    QString Video_Format_Value;
    Check_Box chk_SetFileTitle{.Caption = QStringLiteral("Set File Title   "), .Tag = {}};
    Option_Pair opt_SetFileTitle; ///< 1 "If Empty  ", 2 "Always  "
    Check_Box chk_RemoveFileTitle{.Caption = QStringLiteral("Remove File Title"), .Tag = {}};
    Check_Box chk_CustomFileTitle{.Caption = QStringLiteral("Set Custom File Title (empty)"), .Tag = {}};
    QString Custom_File_Title;
    Check_Box chk_SetVideoTitle{.Caption = QStringLiteral("Set Video Title   "), .Tag = {}};
    Option_Pair opt_SetVideoTitle; ///< 1 "If Empty  ", 2 "Always  "
    Check_Box chk_RemoveVideoTitle{.Caption = QStringLiteral("Remove Video Title"), .Tag = {}};
    Check_Box chk_CustomVideoTitle{.Caption = QStringLiteral("Set Custom Video Title (empty)"), .Tag = {}};
    QString Custom_Video_Title;
    Check_Box chk_RemoveAllTags{.Caption = QStringLiteral("Remove All Original Tags"), .Tag = {}};
    Check_Box chk_RemoveAllAttachments{.Caption = QStringLiteral("Remove All Original Attachments"), .Tag = {}};
    Check_Box chk_AddAttachments{.Caption = QStringLiteral("Add Attachments (path not set)"), .Tag = {}};
    bool Add_Attachments_On = false; ///< follows chk_AddAttachments; a run samples its own copy at the press
    Check_Box chk_UseSubfolders{.Caption = QStringLiteral("Attach Contents of Titled Subfolders Instead"), .Tag = {}};
    bool Use_Attachment_Subfolders = false; ///< mirror of chk_UseSubfolders
    Check_Box chk_SplitVideos{.Caption = QStringLiteral("Split multiple video files (minutes)"), .Tag = {}};
    QString Split_Minutes; ///< 10 to 999, as text
    Check_Box chk_RemoveUnicode{.Caption = QStringLiteral("Remove Unicode from Video File Names"), .Tag = {}};
    Check_Box chk_DeleteVideoAP{.Caption = QStringLiteral("Delete Source Video After Processing"), .Tag = {}};
    bool Delete_Video_After = false;  ///< follows chk_DeleteVideoAP
    bool Delete_Sundry_Files = false; ///< mnu_DeleteAncillaryFiles
    bool mnu_AppendLogs = false;
    std::int16_t Log_Verbosity = 0; ///< 0 to 7

    // Folders, each ending in a separator once set; empty: not set or gone
    QString Path_Videos;
    QString Path_Audios;
    QString Path_Subtitles;
    QString Path_Chapters;
    QString Path_Target;
    QString Path_Attachments;
};
