#include "settings/settings_rows.h"

#include "settings/recent_lists.h"
#include "settings/row_rules.h"
#include "settings/setting_texts.h"
#include "state/program.h"
#include "support/text.h"

#include <QDir>
#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;

static const QString Box_Key = QStringLiteral("Window Size and Position (T,L,W,H,MM)");

static std::vector<Settings_Row> Form_Rows()
{
    return {
        {.Section = u"MainWindow"_s,
         .Key = u"Save Settings on Exit"_s,
         .Default = u"True"_s,
         .Written = [](const Program& program) { return Truth_Text(program.Settings.Save_On_Exit); },
         .Take = [](Program& program, const QString& text,
                    const QString&) { program.Settings.Save_On_Exit = text.toLower() == u"true"_s; }},
        Place_Row(u"Left"_s, &Form_Place::Left, true),
        Place_Row(u"Top"_s, &Form_Place::Top, true),
        Place_Row(u"Width"_s, &Form_Place::Width, false),
        Place_Row(u"Height"_s, &Form_Place::Height, false),
        Box_Row(u"ProcessLog"_s, Box_Key, &Settings_State::ProcessLog_Box, false),
        Font_Row(u"ProcessLog"_s, &Settings_State::ProcessLog_Font_Size),
        Not_First_Run_Row(u"ProcessLog"_s, &Settings_State::ProcessLog_Not_First_Run),
        Box_Row(u"View Video File Info"_s, Box_Key, &Settings_State::ViewVFI_Box, false),
        Font_Row(u"View Video File Info"_s, &Settings_State::ViewVFI_Font_Size),
        Not_First_Run_Row(u"View Video File Info"_s, &Settings_State::ViewVFI_Not_First_Run),
    };
}

static std::vector<Settings_Row> Menu_And_Path_Rows()
{
    const QString paths = u"Paths"_s;
    return {
        // Deliberate: a missing key means on here and for "Delete Processed File", while the first file says off.
        Truth_Row(u"Menu"_s, u"Append Logs"_s, u"True"_s, &JobOptions::mnu_AppendLogs),
        {.Section = u"Menu"_s,
         .Key = u"Log Verbosity "_s, // Deliberate: written with a blank at its end, which no reader minds.
         .Written = [](const Program& program) { return QString::number(program.Options.Log_Verbosity); },
         .Take =
             [](Program& program, const QString& text, const QString&) {
                 const bool is_level = text.size() == 1 && text >= u"0"_s && text <= u"7"_s;
                 program.Options.Log_Verbosity = static_cast<std::int16_t>(is_level ? text.toInt() : 0);
             }},
        Truth_Row(u"Menu"_s, u"Delete Processed File"_s, u"True"_s, &JobOptions::Delete_Video_After),
        Truth_Row(u"Menu"_s, u"Delete Source Video Sundry Files"_s, u"False"_s, &JobOptions::Delete_Sundry_Files),
        Unread(Folder_Row(u"Last Videos Path"_s, &JobOptions::Path_Videos)),
        Folder_Row(u"Last Audios Path"_s, &JobOptions::Path_Audios),
        Folder_Row(u"Last Subtitles Path"_s, &JobOptions::Path_Subtitles),
        Folder_Row(u"Last Chapters Path"_s, &JobOptions::Path_Chapters),
        Unread(Folder_Row(u"Last Target Path"_s, &JobOptions::Path_Target)),
        {.Section = paths,
         .Key = u"System mkvmerge.exe Path"_s,
         .Written = [](const Program& program) { return Storable_Path(program.Tools.System_MKVMerge_Path); },
         .Take = [](Program& program, const QString& text,
                    const QString&) { program.Settings.Mkvmerge_Path_Ini = QDir::toNativeSeparators(text); }},
        {.Section = paths,
         .Key = u"Set or read"_s,
         .Written = [](const Program& program) { return program.Settings.lbl_MKVMerge_Choose; },
         .Take =
             [](Program& program, const QString& text, const QString&) {
                 program.Settings.lbl_MKVMerge_Choose = text.isEmpty() ? u"Set by Operator"_s : text;
             }},
        Folder_Row(u"Attachments Path"_s, &JobOptions::Path_Attachments),
    };
}

static std::vector<Settings_Row> Audio_Rows()
{
    const QString audio = u"Audio"_s;
    return {
        Check_Row(audio, u"Strip Existing Audio"_s, &JobOptions::chk_StripOrigAudio),
        Check_Row(audio, u"Strip Existing Audio Title"_s, &JobOptions::chk_StripOrigAudioTitle),
        Languages_Row(audio, u"Custom Audio Filter Language(s)"_s, u"NONE"_s, &JobOptions::AudioFilter),
        Keep_Row(audio, u"Cut or Keep Audio Languages"_s, &JobOptions::AudioFilter),
        Check_Row(audio, u"Apply custom Audio Filter"_s, &JobOptions::chk_CustomAudioFilter),
        Enabled_Row(audio, u"Apply custom Audio Filter.Enabled"_s, &JobOptions::chk_CustomAudioFilter),
        Filter_Box_Row(audio, u"Custom Audio Filter "_s + Box_Key, &JobOptions::AudioFilter),
        Check_Row(audio, u"Filter out NON-English Audio"_s, &JobOptions::chk_EngAudioOnly),
        Enabled_Row(audio, u"Filter out NON-English Audio.Enabled"_s, &JobOptions::chk_EngAudioOnly),
        Truth_Row(audio, u"Keep English Titled Audio"_s, u"False"_s, &JobOptions::Keep_English_Audio),
        Ignored(Check_Row(audio, u"Audio Delay Adjust"_s, &JobOptions::chk_AudioDelayAdjust)),
        {.Section = audio,
         .Key = u"Audio Delay"_s,
         .Written = [](const Program& program) { return program.Options.Audio_Delay; },
         .Take =
             [](Program& program, const QString& text, const QString&) {
                 const QString delay = Delay_From_Text(text);
                 program.Options.Audio_Delay = delay.isEmpty() ? u"0"_s : delay;
             }},
        Check_Row(audio, u"Add Audio Files"_s, &JobOptions::chk_AddAudio),
        Check_Row(audio, u"Use Audio .opt files"_s, &JobOptions::chk_UseAudioOpts),
        Check_Row(audio, u"Auto Create Audio Options"_s, &JobOptions::chk_ApplyDefaultAudioOpts),
        Check_Row(audio, u"Alternate Audio File Path"_s, &JobOptions::chk_AudioPath),
    };
}

static std::vector<Settings_Row> Recent_And_Format_Rows()
{
    const QString format = u"Video Format Options"_s;
    return {
        {.Section = u"Most Recently Used Sources"_s,
         .Key = u"MRU Sources"_s,
         .Default = u"NONE"_s,
         .Section_Starts_Anew = true,
         .Written = [](const Program& program) { return Recent_Sources_Value(program); },
         .Take = [](Program& program, const QString& text, const QString&) { Read_Recent_Sources(program, text); }},
        {.Section = u"Most Recently Used Destinations"_s,
         .Key = u"MRU Targets"_s,
         .Default = u"NONE"_s,
         .Section_Starts_Anew = true,
         .Written = [](const Program& program) { return Recent_Targets_Value(program); },
         .Take = [](Program& program, const QString& text, const QString&) { Read_Recent_Targets(program, text); }},
        Kind_Row(format, u"Aspect Ratio or Video Dimensions"_s, u"emptyvalue"_s, &JobOptions::Video_Format_Kind,
                 {u"emptyvalue"_s, u"Aspect Ratio"_s, u"Video Dimensions"_s}),
        Value_Row(format, u"Settings"_s, u"emptyvalue"_s, &JobOptions::Video_Format_Value),
        {.Section = format,
         .Key = u"Use Video Format Options"_s,
         .Default = u"off"_s,
         .Written = [](const Program& program) { return On_Off_Text(program.Options.chk_VideoFormatOptions.Value); },
         .Take =
             [](Program& program, const QString& text, const QString&) {
                 program.Options.chk_VideoFormatOptions.Value = On_Off_Value(text) == 1 ? 1 : 0;
             }},
    };
}

static std::vector<Settings_Row> Subtitle_Rows()
{
    const QString subtitles = u"Subtitles"_s;
    return {
        Check_Row(subtitles, u"Strip Existing Subtitles"_s, &JobOptions::chk_StripOrigSubs),
        Check_Row(subtitles, u"Strip Existing Subtitles Title"_s, &JobOptions::chk_StripOrigSubsTitle),
        Languages_Row(subtitles, u"Custom Subtitle Filter Language(s)"_s, u"None"_s, &JobOptions::SubsFilter),
        Keep_Row(subtitles, u"Cut or Keep Subtitle Languages"_s, &JobOptions::SubsFilter),
        Filter_Box_Row(subtitles, u"Custom Subtitle Filter "_s + Box_Key, &JobOptions::SubsFilter),
        Check_Row(subtitles, u"Apply custom Subtitle Filter"_s, &JobOptions::chk_CustomSubsFilter),
        Enabled_Row(subtitles, u"Apply custom Subtitle Filter.Enabled"_s, &JobOptions::chk_CustomSubsFilter),
        Check_Row(subtitles, u"Filter out NON-English Subtitles"_s, &JobOptions::chk_EngSubsOnly),
        Enabled_Row(subtitles, u"Filter out NON-English Subtitles.Enabled"_s, &JobOptions::chk_EngSubsOnly),
        Truth_Row(subtitles, u"Keep English Titled Subtitles"_s, u"False"_s, &JobOptions::Keep_English_Subs),
        Check_Row(subtitles, u"Add Subtitles"_s, &JobOptions::chk_AddSubs),
        Plain_On_Row(subtitles, u"Set All Subtitle defaults"_s, &JobOptions::chk_SubDefaults),
        Word_Row(subtitles, u"Set All Subtitle defaults to no/yes"_s, &JobOptions::chk_SubDefaults),
        Plain_On_Row(subtitles, u"Set All Subtitle forces"_s, &JobOptions::chk_SubForces),
        Word_Row(subtitles, u"Set All Subtitle forces to no/yes"_s, &JobOptions::chk_SubForces),
        Check_Row(subtitles, u"Use Subtitle .opt files"_s, &JobOptions::chk_UseSubOpts),
        Check_Row(subtitles, u"Auto Create Sub Options"_s, &JobOptions::chk_ApplyDefaultSubOpts),
        Check_Row(subtitles, u"Alternate Subtitle File Path"_s, &JobOptions::chk_SubsPath),
    };
}

static std::vector<Settings_Row> Chapter_And_Rate_Rows()
{
    const QString chapters = u"Chapters"_s;
    const QString other = u"Other Options"_s;
    return {
        Check_Row(chapters, u"Strip Existing Chapters"_s, &JobOptions::chk_StripChaps),
        Check_Row(chapters, u"Replace With New Chapter File"_s, &JobOptions::chk_ReplaceChapters),
        Check_Row(chapters, u"Convert TXT to XML Chapters"_s, &JobOptions::chk_ConvertTXT),
        {.Section = chapters,
         .Key = u"Chapters Format"_s,
         .Default = u"hh:mm:ss.ff"_s,
         .Written =
             [](const Program& program) { return Word_Of(Chapter_Formats(), program.Options.Chapter_Format_Index); },
         .Take =
             [](Program& program, const QString& text, const QString&) {
                 program.Options.Chapter_Format_Index = text.toLower() == u"hh:mm:ss.ff"_s ? 0 : 1;
             }},
        Check_Row(chapters, u"Alternate Chapters File Path"_s, &JobOptions::chk_ChaptersPath),
        Check_Row(other, u"Set Video Frame Rate"_s, &JobOptions::chk_VideoFrameRate),
        Kind_Row(other, u"Set Video Frame Rate Options"_s, u"set a frame rate"_s, &JobOptions::Frame_Rate_Kind,
                 {u"INVALID SELECTION"_s, u"Use MediaInfo discovered Frame Rate"_s, u"Set a Frame Rate"_s}),
        Value_Row(other, u"Set Video Frame Rate Value"_s, u"EMPTYVALUE"_s, &JobOptions::Frame_Rate_Value),
    };
}

static std::vector<Settings_Row> Other_Rows()
{
    const QString other = u"Other Options"_s;
    return {
        Check_Row(other, u"Remove File Title"_s, &JobOptions::chk_RemoveFileTitle),
        Check_Row(other, u"Set Custom File Title"_s, &JobOptions::chk_CustomFileTitle),
        Text_Row(other, u"Set Custom File Title Text"_s, &JobOptions::Custom_File_Title),
        Check_Row(other, u"Set File Title"_s, &JobOptions::chk_SetFileTitle),
        Choice_Row(other, u"Set File Title Option"_s, &JobOptions::opt_SetFileTitle),
        Check_Row(other, u"Remove Video Title"_s, &JobOptions::chk_RemoveVideoTitle),
        Check_Row(other, u"Set Custom Video Title"_s, &JobOptions::chk_CustomVideoTitle),
        Text_Row(other, u"Set Custom Video Title Text"_s, &JobOptions::Custom_Video_Title),
        Check_Row(other, u"Set Video Title"_s, &JobOptions::chk_SetVideoTitle),
        Choice_Row(other, u"Set Video Title Option"_s, &JobOptions::opt_SetVideoTitle),
        // Deliberate: a missing key means on here, while the first file says off.
        Check_Row(other, u"Remove All Original Tags"_s, &JobOptions::chk_RemoveAllTags, u"on"_s),
        Check_Row(other, u"Remove All Original Attachments"_s, &JobOptions::chk_RemoveAllAttachments, u"on"_s),
        Check_Row(other, u"Add Attachments"_s, &JobOptions::chk_AddAttachments),
        Check_Row(other, u"Attach Contents of Titled Subfolders Instead"_s, &JobOptions::chk_UseSubfolders),
        {.Section = other,
         .Key = u"Split multiple video files (minutes)"_s,
         .Written = [](const Program& program) { return program.Options.Split_Minutes; },
         .Take = [](Program& program, const QString& text,
                    const QString&) { program.Options.Split_Minutes = Split_Minutes_From_Text(text); }},
    };
}

static std::vector<Settings_Row> Closing_Rows()
{
    const auto not_read = [](const QString& key, std::function<std::optional<QString>(const Program&)> written) {
        return Settings_Row{.Section = u"Vantorra - by Zarnegar"_s,
                            .Key = key,
                            .Used = Settings_Row::Use::Not_Read,
                            .Written = std::move(written)};
    };
    return {
        not_read(u"File Description"_s, [](const Program&) { return u"A batching system for mkvmerge"_s; }),
        not_read(u"Copyright"_s, [](const Program&) { return u"Copyright (c) 2026 The Vantorra developers"_s; }),
        not_read(u"Version"_s, [](const Program&) { return QStringLiteral(VANTORRA_VERSION); }),
        not_read(u"Last Modified Date"_s,
                 [](const Program& program) {
                     return QLocale::c().toString(program.Now(), u"MMM/dd/yyyy hh:mm:ssAP"_s) + u" local time."_s;
                 }),
        Extension_Row(u"Careful Batch"_s, &Extension_Switches::Careful_Batch),
        Output_Exists_Row(u"If The Output Exists"_s),
        Extension_Number_Row(u"Videos At Once"_s, &Extension_Switches::Videos_At_Once, 1, Most_At_Once),
        Extension_Row(u"Include Subfolders"_s, &Extension_Switches::Include_Subfolders),
        Extension_Row(u"Sensible Names And Sizes"_s, &Extension_Switches::Sensible_Names_And_Sizes),
        Extension_Row(u"Language From File Name"_s, &Extension_Switches::Language_From_File_Name),
        Extension_Row(u"Skip What Would Not Change"_s, &Extension_Switches::Skip_What_Would_Not_Change),
        Extension_Row(u"Run Button Follows Folders"_s, &Extension_Switches::Run_Button_Follows_Folders),
        Extension_Row(u"Delete Source Only After Success"_s, &Extension_Switches::Delete_Source_Only_After_Success),
        Extension_Row(u"Identify With Any mkvmerge"_s, &Extension_Switches::Identify_With_Any_Mkvmerge),
        Extension_Row(u"Video List Open"_s, &Extension_Switches::Video_List_Open),
        Extension_Number_Row(u"Video List Height"_s, &Extension_Switches::Video_List_Height, 0, 100'000),
        Extension_Row(u"Tell At The End"_s, &Extension_Switches::Tell_At_The_End),
        Extension_Row(u"Wrap Log Lines"_s, &Extension_Switches::Wrap_Log_Lines),
    };
}

static Settings_Row Experimental_Row()
{
    return {.Section = u"Experimental"_s,
            .Key = u"Vantorra Run is Default"_s,
            .Default = u"False"_s,
            .Written = [](const Program& program) { return Truth_Text(program.Settings.Run_Is_Default_Flag); },
            .Take = [](Program& program, const QString& text,
                       const QString&) { program.Settings.Run_Is_Default_Flag = text.toLower() == u"true"_s; }};
}

static std::vector<Settings_Row> All_Rows()
{
    std::vector<Settings_Row> rows;
    for (const std::vector<Settings_Row>& group :
         {Form_Rows(), Menu_And_Path_Rows(),
          Sticky_Rows(u"Audio Option Files"_s, QString(), &Settings_State::Audio_Sticky,
                      &Settings_State::AudioOptionFiles_Box),
          Audio_Rows(), Recent_And_Format_Rows(),
          Sticky_Rows(u"Subtitle Option Files"_s, u"no"_s, &Settings_State::Subtitle_Sticky,
                      &Settings_State::SubtitleOptionFiles_Box),
          Subtitle_Rows(), Chapter_And_Rate_Rows(), Other_Rows(), Closing_Rows()})
        for (const Settings_Row& row : group) {
            rows.push_back(row);
            rows.back().Number = static_cast<int>(rows.size());
        }
    rows.push_back(Experimental_Row());
    return rows;
}

const std::vector<Settings_Row>& Settings_Rows()
{
    static const std::vector<Settings_Row> rows = All_Rows();
    return rows;
}

const Settings_Row& Row_Of(int number)
{
    return Settings_Rows().at(static_cast<std::size_t>(number - 1));
}

const Settings_Row* Find_Row(const QString& section, const QString& key)
{
    const QString wanted_section = section.trimmed().toLower();
    const QString wanted_key = key.trimmed().toLower();
    const auto& rows = Settings_Rows();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Settings_Row& row) {
        return row.Key.trimmed().toLower() == wanted_key && row.Section.toLower() == wanted_section;
    });
    return found == rows.end() ? nullptr : &*found;
}

QString Default_Of(const Settings_Row& row, const Program& program)
{
    if (!row.Default_Is_Form_Place)
        return row.Default;
    const Form_Place& place = program.Form.Place;
    return Box_Text({place.Top, place.Left, place.Width, place.Height, 0, false});
}

QString Value_In_Force(const Settings_Row& row, const Program& program)
{
    return row.Written(program).value_or(u"(neither)"_s);
}
