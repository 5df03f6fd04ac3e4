#include "settings/filter_modes.h"
#include "settings/preset_file.h"
#include "settings/row_rules.h"
#include "settings/settings_store.h"
#include "settings/verbosity_levels.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

/// Reads rows one after the other out of one document into one program. The order in which the groups below are taken
/// matters where a later key looks at what an earlier one set.
struct Settings_Reader
{
    Program& Prog;
    const Ini_Document& Document;
    bool Is_Preset = false; ///< only a preset's rows are taken, and one that is missing leaves its field as it is

    bool Leaves(const Settings_Row& row) const
    {
        return Is_Preset && !(Is_Of_Preset(row) && Document.Value(row.Section, row.Key));
    }

    /// Takes one row into its field; returns the text that was read, or that stands for what the field holds already.
    QString Take(int number) const
    {
        const Settings_Row& row = number == 0 ? Settings_Rows().back() : Row_Of(number);
        if (Leaves(row))
            return row.Written(Prog).value_or(QString());
        QString text = Read_Ini_Key(Prog.Settings, Document, row.Section, row.Key, Default_Of(row, Prog));
        row.Take(Prog, text, Source_Of(Prog.Settings, row));
        return text;
    }
};

/// Everything that one kind of track has twice: for audio and for subtitles.
struct Track_Group
{
    Check_Box JobOptions::*Filter_Box;
    Check_Box JobOptions::*English_Box;
    FilterSettings JobOptions::*Filter;
    QStringView Filter_Caption;
    int Strip_Title;
    int Languages;
    int Keep;
    int Apply;
    int Apply_Enabled;
    int English;
    int English_Enabled;
    int Keep_Titled;
};

static constexpr Track_Group Audio_Group{&JobOptions::chk_CustomAudioFilter,
                                         &JobOptions::chk_EngAudioOnly,
                                         &JobOptions::AudioFilter,
                                         u"Apply custom Audio Filter ",
                                         Row::Strip_Audio_Title,
                                         Row::Audio_Languages,
                                         Row::Audio_Keep,
                                         Row::Audio_Filter,
                                         Row::Audio_Filter_Enabled,
                                         Row::English_Audio,
                                         Row::English_Audio_Enabled,
                                         Row::Keep_English_Audio};
static constexpr Track_Group Subtitle_Group{&JobOptions::chk_CustomSubsFilter,
                                            &JobOptions::chk_EngSubsOnly,
                                            &JobOptions::SubsFilter,
                                            u"Apply custom Subtitle Filter ",
                                            Row::Strip_Subs_Title,
                                            Row::Subs_Languages,
                                            Row::Subs_Keep,
                                            Row::Subs_Filter,
                                            Row::Subs_Filter_Enabled,
                                            Row::English_Subs,
                                            Row::English_Subs_Enabled,
                                            Row::Keep_English_Subs};

static void Untick_And_Disable(Check_Box& box)
{
    box.Value = 0;
    box.Enabled = false;
}

/// Forms: the main form's place, then the two viewers.
static void Take_Places(const Settings_Reader& reader)
{
    for (const int row :
         {Row::Main_Top, Row::Main_Left, Row::Main_Height, Row::Main_Width, 0, Row::Log_Font, Row::Log_Box,
          Row::Log_Not_First_Run, Row::Info_Font, Row::Info_Box, Row::Info_Not_First_Run, Row::Save_On_Exit,
          Row::Audio_Files_Box, Row::Subtitle_Files_Box, Row::Audio_Filter_Box, Row::Subs_Filter_Box})
        reader.Take(row);
}

static void Take_Paths(const Settings_Reader& reader)
{
    for (const int row : {Row::Mkvmerge_Path, Row::Mkvmerge_Choice, Row::Audios_Path, Row::Subtitles_Path,
                          Row::Chapters_Path, Row::Attachments_Path})
        reader.Take(row);
    const JobOptions& options = reader.Prog.Options;
    Main_Form& form = reader.Prog.Form;
    // Deliberate: the second and the third have two blanks here, and one everywhere else.
    if (options.Path_Audios.isEmpty())
        form.lbl_AudioPathFault.Caption = u"Audio Path Not Set"_s;
    if (options.Path_Subtitles.isEmpty())
        form.lbl_SubsPathFault.Caption = u"Subtitle  Path Not Set"_s;
    if (options.Path_Chapters.isEmpty())
        form.lbl_ChapsPathFault.Caption = u"Chapters  Path Not Set"_s;
}

static void Take_Video_Format(const Settings_Reader& reader)
{
    reader.Take(Row::Format_Kind);
    reader.Take(Row::Format_Value);
    JobOptions& options = reader.Prog.Options;
    options.chk_VideoFormatOptions.Enabled = options.Video_Format_Kind != 0;
    reader.Prog.Settings.Video_Format_Usable = options.chk_VideoFormatOptions.Enabled;
    reader.Take(Row::Format);
}

static void Take_Menu(const Settings_Reader& reader)
{
    for (const int row : {Row::Delete_Video, Row::Append_Logs, Row::Verbosity, Row::Delete_Sundry})
        reader.Take(row);
    JobOptions& options = reader.Prog.Options;
    options.chk_DeleteVideoAP.Value = options.Delete_Video_After ? 1 : 0;
    Load_Verbosity(options, reader.Prog.Form, options.Log_Verbosity);
}

/// Five flags, each with its text. Deliberate: a text is looked at only if its flag is on, so that the next save
/// empties the text of a flag that is off.
static void Take_Sticky_Values(const Settings_Reader& reader, int first_row)
{
    constexpr int flag_count = 5;
    for (int flag = first_row; flag < first_row + 2 * flag_count; flag += 2)
        if (reader.Take(flag).toLower() == u"on"_s)
            reader.Take(flag + 1);
}

/// Titles, language filter and English only.
static void Take_Filter(const Settings_Reader& reader, const Track_Group& group)
{
    JobOptions& options = reader.Prog.Options;
    Check_Box& filter_box = options.*group.Filter_Box;
    Check_Box& english_box = options.*group.English_Box;
    FilterSettings& filter = options.*group.Filter;

    reader.Take(group.Strip_Title);
    reader.Take(group.Languages);
    filter.Count = Checked_Int16(Split_Text(filter.Languages, u":"_s).size(), u"Counting the languages of a filter"_s);
    reader.Take(group.Keep);
    filter_box.Caption = group.Filter_Caption.toString() + (filter.KeepOrCut == 1 ? u"(keep)"_s : u"(cut)"_s);
    const QString apply = reader.Take(group.Apply);
    reader.Take(group.Apply_Enabled);
    if (filter.Languages.isEmpty())
        Untick_And_Disable(filter_box);
    reader.Take(group.English_Enabled);
    reader.Take(group.English);
    const QString keep_titled = reader.Take(group.Keep_Titled);
    if (apply.toLower() == u"on"_s)
        Untick_And_Disable(english_box);
    // Deliberate: the reverse looks at the word of "Keep English Titled ...", not at that of English only, so a file
    // edited by hand can have both boxes ticked.
    if (keep_titled.toLower() == u"on"_s)
        Untick_And_Disable(filter_box);
}

static void Take_Audio(const Settings_Reader& reader)
{
    JobOptions& options = reader.Prog.Options;
    Main_Form& form = reader.Prog.Form;
    options.AudioFilter.Kind = 1;
    Take_Filter(reader, Audio_Group);

    reader.Take(Row::Delay_Adjust);
    if (!reader.Leaves(Row_Of(Row::Delay_Adjust)))
        options.chk_AudioDelayAdjust.Value = 0; // Deliberate: the box starts unticked whatever the file says.
    reader.Take(Row::Strip_Audio);
    if (options.chk_StripOrigAudio.Value == 1)
        for (Check_Box* const box : {&options.chk_StripOrigAudioTitle, &options.chk_CustomAudioFilter,
                                     &options.chk_EngAudioOnly, &options.chk_AudioDelayAdjust})
            box->Enabled = false;

    // Deliberate: a text that is no number leaves the text box as it stands.
    const QString delay = reader.Take(Row::Delay);
    form.Audio_Delay_Last_Good = u""_s;
    if (Is_Signed_Number(delay))
        form.Audio_Delay_Last_Good = form.txt_AudioDelayValue.Text = options.Audio_Delay;

    for (const int row : {Row::Add_Audio, Row::Use_Audio_Opts, Row::Apply_Audio_Opts, Row::Alternate_Audio})
        reader.Take(row);
    options.chk_UseAudioOpts.Enabled = options.chk_AddAudio.Value != 0;
    options.chk_ApplyDefaultAudioOpts.Enabled = options.chk_UseAudioOpts.Enabled && options.chk_UseAudioOpts.Value != 0;
    form.Audio_Diagram_On = options.chk_ApplyDefaultAudioOpts.Enabled;
}

static void Take_Subtitles(const Settings_Reader& reader)
{
    JobOptions& options = reader.Prog.Options;
    options.SubsFilter.Kind = 2;
    Take_Filter(reader, Subtitle_Group);

    for (const int row :
         {Row::Strip_Subs, Row::Sub_Defaults, Row::Sub_Defaults_Word, Row::Sub_Forces, Row::Sub_Forces_Word})
        reader.Take(row);
    options.chk_SubDefaults.Caption = u"Set All Subtitles defaults to \"%1\""_s.arg(options.chk_SubDefaults.Tag);
    options.chk_SubForces.Caption = u"Set All Subtitles forces to \"%1\""_s.arg(options.chk_SubForces.Tag);
    if (options.chk_StripOrigSubs.Value == 1)
        for (Check_Box* const box : {&options.chk_StripOrigSubsTitle, &options.chk_EngSubsOnly,
                                     &options.chk_CustomSubsFilter, &options.chk_SubDefaults, &options.chk_SubForces})
            box->Enabled = false;

    for (const int row : {Row::Add_Subs, Row::Use_Sub_Opts, Row::Apply_Sub_Opts, Row::Alternate_Subs})
        reader.Take(row);
    options.chk_UseSubOpts.Enabled = options.chk_AddSubs.Value != 0;
    options.chk_ApplyDefaultSubOpts.Enabled = options.chk_UseSubOpts.Enabled && options.chk_UseSubOpts.Value != 0;
    reader.Prog.Form.Subs_Diagram_On = options.chk_ApplyDefaultSubOpts.Enabled;
}

static void Take_Chapters(const Settings_Reader& reader)
{
    for (const int row :
         {Row::Strip_Chapters, Row::Chapters_Format, Row::Convert_Text, Row::Replace_Chapters, Row::Alternate_Chapters})
        reader.Take(row);
    JobOptions& options = reader.Prog.Options;
    options.lbl_ChapsFormat.Caption = Chapter_Formats().at(options.Chapter_Format_Index);
    options.chk_ConvertTXT.Enabled = options.chk_ReplaceChapters.Value != 0;
    options.lbl_ChapsFormat.Enabled = options.chk_ConvertTXT.Enabled && options.chk_ConvertTXT.Value != 0;
}

static void Take_Frame_Rate(const Settings_Reader& reader)
{
    for (const int row : {Row::Frame_Rate_Kind, Row::Frame_Rate_Value, Row::Frame_Rate})
        reader.Take(row);
    JobOptions& options = reader.Prog.Options;
    options.chk_VideoFrameRate.Enabled =
        options.Frame_Rate_Kind == 1 || (options.Frame_Rate_Kind == 2 && !options.Frame_Rate_Value.isEmpty());
    reader.Prog.Settings.Frame_Rate_Usable = options.chk_VideoFrameRate.Enabled;
}

/// The boxes of one title, file or video.
struct Title_Boxes
{
    Check_Box& Set;
    Option_Pair& When;
    Check_Box& Remove;
    Check_Box& Custom;
    const QString& Text;
    QString Caption;
};

static void Enable_Title_Boxes(Title_Boxes boxes)
{
    boxes.When.Enabled = boxes.Set.Value != 0;
    if (boxes.Remove.Value == 1)
        boxes.Custom.Enabled = false;
    if (boxes.Remove.Value == 1 || boxes.Custom.Value == 1)
        boxes.Set.Enabled = boxes.When.Enabled = false;
    boxes.Custom.Caption = boxes.Caption + (boxes.Text.isEmpty() ? u"(empty)"_s : u"(NOT empty)"_s);
}

static void Take_Titles(const Settings_Reader& reader)
{
    for (const int row : {Row::Set_File_Title, Row::File_Title_Option, Row::Remove_File_Title, Row::Custom_File_Title,
                          Row::Custom_File_Text, Row::Set_Video_Title, Row::Video_Title_Option, Row::Remove_Video_Title,
                          Row::Custom_Video_Title, Row::Custom_Video_Text})
        reader.Take(row);
    JobOptions& options = reader.Prog.Options;
    Enable_Title_Boxes({options.chk_SetFileTitle, options.opt_SetFileTitle, options.chk_RemoveFileTitle,
                        options.chk_CustomFileTitle, options.Custom_File_Title, u"Set Custom File Title "_s});
    Enable_Title_Boxes({options.chk_SetVideoTitle, options.opt_SetVideoTitle, options.chk_RemoveVideoTitle,
                        options.chk_CustomVideoTitle, options.Custom_Video_Title, u"Set Custom Video Title "_s});
}

static void Take_Attachments(const Settings_Reader& reader)
{
    for (const int row : {Row::Remove_Tags, Row::Remove_Attachments, Row::Add_Attachments})
        reader.Take(row);
    JobOptions& options = reader.Prog.Options;
    Attachments_Form& form = reader.Prog.Attachments_Dialog;
    if (options.Path_Attachments.isEmpty()) {
        Untick_And_Disable(options.chk_AddAttachments);
    } else if (!reader.Is_Preset && !Folder_Exists(options.Path_Attachments)) {
        reader.Prog.Settings.Lost_Attachments =
            options.chk_AddAttachments.Value == 1 ? options.Path_Attachments : QString();
        options.Path_Attachments.clear();
        Untick_And_Disable(options.chk_AddAttachments);
        Untick_And_Disable(options.chk_UseSubfolders);
        form.lbl_UseSubfolders.Enabled = false;
    } else {
        reader.Take(Row::Subfolders);
        options.chk_UseSubfolders.Enabled = true;
        form.lbl_AttachmentsPath.Caption = options.Path_Attachments;
        options.chk_AddAttachments.Caption = u"Add Attachments (path set)"_s;
    }
    options.Add_Attachments_On = options.chk_AddAttachments.Value > 0;
    options.Use_Attachment_Subfolders = options.chk_UseSubfolders.Value > 0;
}

/// The two number boxes begin inactive, because the boxes that switch them begin unticked.
static void Rest_Number_Boxes(JobOptions& options, Main_Form& form)
{
    options.chk_AudioDelayAdjust.Enabled = true;
    form.Delay_Toggle = false;
    for (Text_Box* const box : {&form.txt_AudioDelayValue, &form.txt_SplitVideosValue})
        box->Enabled = box->Active = false;
    form.pic_AudioDelayValue.Enabled = false;
    form.pic_SplitVideosValue.Enabled = false;
}

/// What makes a way to work: all but folders and places.
static void Take_Options(const Settings_Reader& reader)
{
    Take_Video_Format(reader);
    Take_Menu(reader);
    Take_Sticky_Values(reader, Row::Audio_Sticky);
    Take_Audio(reader);
    Take_Sticky_Values(reader, Row::Subtitle_Sticky);
    Take_Subtitles(reader);
    Take_Chapters(reader);
    Take_Frame_Rate(reader);
    Take_Titles(reader);
    Take_Attachments(reader);
    reader.Take(Row::Split_Minutes);
    reader.Prog.Form.txt_SplitVideosValue.Text = reader.Prog.Options.Split_Minutes;
    for (const Settings_Row& row : Settings_Rows())
        if (row.Section == u"Extensions"_s)
            reader.Take(row.Number);
    Set_Audio_Filter_Mode(reader.Prog.Options);
    Set_Subs_Filter_Mode(reader.Prog.Options);
}

void Read_Settings_From(Program& program, const Ini_Document& document)
{
    const Settings_Reader reader{program, document};
    const JobOptions& options = program.Options;
    Take_Places(reader);
    Take_Paths(reader);
    Rest_Number_Boxes(program.Options, program.Form);
    Take_Options(reader);
    reader.Take(Row::Sources);
    reader.Take(Row::Targets);
    program.Form.btn_RunVantorra.Enabled = !options.Path_Videos.isEmpty() && !options.Path_Target.isEmpty();
    program.Settings.Careful_Key_Missing =
        Read_Ini_Key(program.Settings, document, u"Extensions"_s, u"Careful Batch"_s, {}).isEmpty();
    program.Settings.Settings_Loaded = true;
}

/// As the options are before the first settings are read: what disables a box is another's value.
static void Enable_All(JobOptions& options)
{
    options.SubsFilterKeep = 0;
    for (Check_Box* const box :
         {&options.chk_StripOrigAudioTitle, &options.chk_CustomAudioFilter, &options.chk_EngAudioOnly,
          &options.chk_AudioDelayAdjust, &options.chk_StripOrigSubsTitle, &options.chk_CustomSubsFilter,
          &options.chk_EngSubsOnly, &options.chk_SubDefaults, &options.chk_SubForces, &options.chk_SetFileTitle,
          &options.chk_CustomFileTitle, &options.chk_SetVideoTitle, &options.chk_CustomVideoTitle,
          &options.chk_AddAttachments})
        box->Enabled = true;
}

/// The delay's box follows its tick, which a preset may have taken back.
static void Follow_Delay_Tick(const Check_Box& tick, Main_Form& form)
{
    form.Delay_Toggle = tick.Value == 1;
    form.txt_AudioDelayValue.Enabled = form.Delay_Toggle;
    form.txt_AudioDelayValue.Active = form.pic_AudioDelayValue.Enabled = form.Delay_Toggle && tick.Enabled;
}

void Take_Preset(Program& program, const Ini_Document& preset)
{
    Enable_All(program.Options);
    Take_Options({program, preset, true});
    Follow_Delay_Tick(program.Options.chk_AudioDelayAdjust, program.Form);
    // What was loaded is what a bad key returns to.
    program.Form.Split_Minutes_Last_Good = QString();
}
