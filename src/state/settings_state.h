#pragma once

#include "state/job_options.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <map>

/// The saved place of a secondary form, T:L:W:H:MM in the settings file.
struct WindowBox
{
    std::int32_t Top = 0;
    std::int32_t Left = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t MM = 0; ///< 0 normal, 1 minimised, 2 maximised
    bool HasBox = false; ///< Height is at least 2, for the forms that keep this
};

/// The option file editor's sticky flags (1 on, 0 off) and texts of one kind of file.
struct StickyValues
{
    std::int16_t Sticky_Titles = 0;
    std::int16_t Sticky_Languages = 0;
    std::int16_t Sticky_Default = 0;
    std::int16_t Sticky_Forced = 0;
    std::int16_t Sticky_Delay = 0;
    QString Title;
    QString Language;
    QString Default;
    QString Forced;
    QString Delay;
};

/// What a careful batch does where its output's name is taken. The words of the settings file are the same.
enum class Output_Exists : std::uint8_t
{
    Replace, ///< the old file goes to the trash once the new one is in its place
    Skip,    ///< the video is left alone
    Number   ///< the new file becomes "NAME (1).mkv"
};

/// More videos than that at once only get into each other's way.
inline constexpr int Most_At_Once = 16;

/// What this program adds; each is a key of the section "Extensions".
struct Extension_Switches
{
    bool Careful_Batch = false; ///< a new installation begins with it on
    Output_Exists If_The_Output_Exists = Output_Exists::Replace;
    int Videos_At_Once = 1;          ///< careful: so many are worked on side by side; 1 to Most_At_Once
    bool Include_Subfolders = false; ///< careful: the folders below the videos' folder are walked, too
    bool Sensible_Names_And_Sizes = false;
    bool Language_From_File_Name = false; ///< an added file's name tells what neither option file nor sticky value does
    bool Skip_What_Would_Not_Change = false; ///< careful: an .mkv that would come out as it is isn't made anew
    bool Run_Button_Follows_Folders = true;
    bool Delete_Source_Only_After_Success = false;
    bool Identify_With_Any_Mkvmerge = true;
    bool Video_List_Open = true;
    bool Tell_At_The_End = false; ///< a new installation begins with it on
    int Video_List_Height = 0;    ///< in pixels; 0: as much as it takes at first
    bool Wrap_Log_Lines = false;  ///< of the log viewer
};

/// The preset that the options were loaded from, or saved as, last.
struct Loaded_Preset
{
    QString Name;       ///< as its file has it; empty: there was none
    QStringList Values; ///< of its rows, as they were then
};

/// All settings that are no options of a run, and where the settings are.
struct Settings_State
{
    QString App_Folder; ///< the program's folder, ending in a separator
    QString Ini_File;   ///< App_Folder and "Vantorra.ini"
    bool Save_On_Exit = true;
    bool Settings_Loaded = false;
    bool Careful_Key_Missing = false; ///< the settings file is of before there were careful batches
    bool First_Run = false;           ///< no settings file was found; until the first activation ends
    QString Lost_Attachments;         ///< a folder that attachments were to be added from, and that was gone when read
    bool Run_Is_Default_Flag = false;
    QString Version_Banner; ///< "Vantorra ver 2.5.5"
    QString OS_Version_Text;

    QString Mkvmerge_Path_Ini;                                       ///< the key as read
    QString lbl_MKVMerge_Choose = QStringLiteral("Set by Operator"); ///< how the path in use came to be

    WindowBox ProcessLog_Box;
    WindowBox ViewVFI_Box;
    WindowBox AudioOptionFiles_Box;
    WindowBox SubtitleOptionFiles_Box;
    std::int16_t ProcessLog_Font_Size = 10; ///< of lst_ProcessLog
    std::int16_t ViewVFI_Font_Size = 10;    ///< of txt_VideoInfo
    bool ProcessLog_Not_First_Run = false;
    bool ViewVFI_Not_First_Run = false;
    StickyValues Audio_Sticky;
    StickyValues Subtitle_Sticky;

    QStringList Source_MRU; ///< cmbo_MRU of frm_SourceMRU, index 0 first
    QStringList Target_MRU; ///< cmbo_MRU of frm_TargetMRU

    FilterSettings WorkingFilter;
    bool Frame_Rate_Usable = false;
    bool Video_Format_Usable = false;
    Extension_Switches Extensions;
    Loaded_Preset Preset;

    /// "Section/Key" (lower case) to value: read as if the settings file said so, never written.
    std::map<QString, QString> Overrides;
};
