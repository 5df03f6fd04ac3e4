#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

struct Program;

/// One key of the settings file: where it stands, what is written, what a missing key reads as, and what a text that
/// was read does. The table is the one place that knows the keys; reading, writing, `vantorra-batch settings` and the
/// documentation go by it.
struct Settings_Row
{
    enum class Use
    {
        Read,     ///< the program reads it
        Ignored,  ///< read, and without effect whatever it says
        Not_Read, ///< written for other readers only
    };

    int Number = 0; ///< place in writing order, from 1; 0 for the key that is read and never written
    QString Section = {};
    QString Key = {};       ///< as written, with the blank at its end where it has one
    QString Default = {};   ///< what a missing key reads as; Default_Of knows the cases that depend on the form
    QStringList Words = {}; ///< the words that it knows, where they are few and other ones than "On" and "Off"
    Use Used = Use::Read;
    bool Default_Is_Form_Place = false; ///< a missing key reads as the main form's own place
    bool Section_Starts_Anew = false;   ///< the section is deleted before the key is written

    /// The text for the state that the program is in; nothing for a value that has no text, which is error 9.
    std::function<std::optional<QString>(const Program&)> Written = {};

    /// Takes a text that was read into the program's state: the value alone, not what follows from it for other
    /// controls. `where` names the file, section and key for an error. Empty for rows that aren't read.
    std::function<void(Program&, const QString& text, const QString& where)> Take = {};
};

/// All rows in writing order, then the row that is never written.
const std::vector<Settings_Row>& Settings_Rows();

/// The row of that number.
const Settings_Row& Row_Of(int number);

/// The row of a section and key, told apart without regard to case or blanks at their ends; null if there is none.
const Settings_Row* Find_Row(const QString& section, const QString& key);

/// What a missing key of that row reads as.
QString Default_Of(const Settings_Row& row, const Program& program);

/// The row's value in force as text, for showing; a value without a text is shown as "(neither)".
QString Value_In_Force(const Settings_Row& row, const Program& program);

/// The rows that reading and writing name. The section "Extensions", which ends the file, has none here: it is read as
/// the table has it.
namespace Row {
inline constexpr int Save_On_Exit = 1;
inline constexpr int Main_Left = 2;
inline constexpr int Main_Top = 3;
inline constexpr int Main_Width = 4;
inline constexpr int Main_Height = 5;
inline constexpr int Log_Box = 6;
inline constexpr int Log_Font = 7;
inline constexpr int Log_Not_First_Run = 8;
inline constexpr int Info_Box = 9;
inline constexpr int Info_Font = 10;
inline constexpr int Info_Not_First_Run = 11;
inline constexpr int Append_Logs = 12;
inline constexpr int Verbosity = 13;
inline constexpr int Delete_Video = 14;
inline constexpr int Delete_Sundry = 15;
inline constexpr int Audios_Path = 17;
inline constexpr int Subtitles_Path = 18;
inline constexpr int Chapters_Path = 19;
inline constexpr int Mkvmerge_Path = 21;
inline constexpr int Mkvmerge_Choice = 22;
inline constexpr int Attachments_Path = 23;
inline constexpr int Audio_Sticky = 24; ///< ten rows: five times a flag and its text
inline constexpr int Audio_Files_Box = 34;
inline constexpr int Strip_Audio = 35;
inline constexpr int Strip_Audio_Title = 36;
inline constexpr int Audio_Languages = 37;
inline constexpr int Audio_Keep = 38;
inline constexpr int Audio_Filter = 39;
inline constexpr int Audio_Filter_Enabled = 40;
inline constexpr int Audio_Filter_Box = 41;
inline constexpr int English_Audio = 42;
inline constexpr int English_Audio_Enabled = 43;
inline constexpr int Keep_English_Audio = 44;
inline constexpr int Delay_Adjust = 45;
inline constexpr int Delay = 46;
inline constexpr int Add_Audio = 47;
inline constexpr int Use_Audio_Opts = 48;
inline constexpr int Apply_Audio_Opts = 49;
inline constexpr int Alternate_Audio = 50;
inline constexpr int Sources = 51;
inline constexpr int Targets = 52;
inline constexpr int Format_Kind = 53;
inline constexpr int Format_Value = 54;
inline constexpr int Format = 55;
inline constexpr int Subtitle_Sticky = 56;
inline constexpr int Subtitle_Files_Box = 66;
inline constexpr int Strip_Subs = 67;
inline constexpr int Strip_Subs_Title = 68;
inline constexpr int Subs_Languages = 69;
inline constexpr int Subs_Keep = 70;
inline constexpr int Subs_Filter_Box = 71;
inline constexpr int Subs_Filter = 72;
inline constexpr int Subs_Filter_Enabled = 73;
inline constexpr int English_Subs = 74;
inline constexpr int English_Subs_Enabled = 75;
inline constexpr int Keep_English_Subs = 76;
inline constexpr int Add_Subs = 77;
inline constexpr int Sub_Defaults = 78;
inline constexpr int Sub_Defaults_Word = 79;
inline constexpr int Sub_Forces = 80;
inline constexpr int Sub_Forces_Word = 81;
inline constexpr int Use_Sub_Opts = 82;
inline constexpr int Apply_Sub_Opts = 83;
inline constexpr int Alternate_Subs = 84;
inline constexpr int Strip_Chapters = 85;
inline constexpr int Replace_Chapters = 86;
inline constexpr int Convert_Text = 87;
inline constexpr int Chapters_Format = 88;
inline constexpr int Alternate_Chapters = 89;
inline constexpr int Frame_Rate = 90;
inline constexpr int Frame_Rate_Kind = 91;
inline constexpr int Frame_Rate_Value = 92;
inline constexpr int Remove_File_Title = 93;
inline constexpr int Custom_File_Title = 94;
inline constexpr int Custom_File_Text = 95;
inline constexpr int Set_File_Title = 96;
inline constexpr int File_Title_Option = 97;
inline constexpr int Remove_Video_Title = 98;
inline constexpr int Custom_Video_Title = 99;
inline constexpr int Custom_Video_Text = 100;
inline constexpr int Set_Video_Title = 101;
inline constexpr int Video_Title_Option = 102;
inline constexpr int Remove_Tags = 103;
inline constexpr int Remove_Attachments = 104;
inline constexpr int Add_Attachments = 105;
inline constexpr int Subfolders = 106;
inline constexpr int Split_Minutes = 107;
} // namespace Row
