#include "settings/settings_rows.h"

#include "common/test_program.h"
#include "settings/settings_store.h"

#include <QFile>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

static const QByteArray Main_Window = "[MainWindow]\nLeft=100\nTop=50\nWidth=800\nHeight=600\n";

/// A program as it is when it starts.
static void Prepare(Test_Program& test)
{
    test.Prog.Options.Path_Videos.clear();
    test.Prog.Options.Path_Target.clear();
    test.Prog.Form.Place = {.Left = 100, .Top = 50, .Width = 800, .Height = 600};
    test.Prog.Now = [] { return QDateTime(QDate(2026, 3, 7), QTime(13, 5, 9)); };
}

/// The settings file after `text` was read and all of it was written again.
static Ini_Document Read_And_Written(const QByteArray& text)
{
    Test_Program test;
    Prepare(test);
    Ini_Document document(text);
    Read_Settings_From(test.Prog, document);
    EXPECT_EQ(Write_Settings_To(test.Prog, false, document).Failed_Row, nullptr);
    return document;
}

/// A text in the file and the text that is written back. `Beside` are further lines of the same section. What is
/// claimed of a key of the audio tracks holds for that of the subtitles, and so on: see Twin_Of.
struct Text_Claim
{
    QString Section, Key;
    QByteArray In;
    QString Out;
    QByteArray Beside = {};
};

static const Text_Claim Texts[] = {
    {u"MainWindow"_s, u"Save Settings on Exit"_s, "TRUE", u"True"_s},
    {u"MainWindow"_s, u"Left"_s, "-7", u"0"_s},
    {u"MainWindow"_s, u"Left"_s, " 12.5 ", u"12"_s},
    {u"MainWindow"_s, u"Top"_s, "-3", u"0"_s},
    {u"MainWindow"_s, u"Width"_s, "1024.4", u"1024"_s},
    {u"MainWindow"_s, u"Height"_s, "-9", u"-9"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "-1:-2:3:4:2", u"-1:-2:3:4:2"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1:2:3:4", u"50:100:800:600:0"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1:2:3:4:5:6", u"50:100:800:600:0"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "", u"50:100:800:600:0"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1.5:2.5:3:4:0", u"2:2:3:4:0"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "3", u"4"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "99", u"41"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "emptyvalue", u"10"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "41", u"41"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "12.5", u"12"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, "-1e9", u"4"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, "true", u"True"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, "FALSE", u"False"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, "0", u"False"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, "-1", u"True"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, "emptyvalue", u"False"_s},
    {u"Menu"_s, u"Append Logs"_s, "no", u"True"_s},
    {u"Menu"_s, u"Append Logs"_s, "FALSE", u"False"_s},
    {u"Menu"_s, u"Append Logs"_s, "", u"True"_s},
    {u"Menu"_s, u"Log Verbosity"_s, "7", u"7"_s},
    {u"Menu"_s, u"Log Verbosity"_s, "8", u"0"_s},
    {u"Menu"_s, u"Log Verbosity"_s, "03", u"0"_s},
    {u"Menu"_s, u"Log Verbosity"_s, "x", u"0"_s},
    {u"Menu"_s, u"Log Verbosity"_s, "", u"0"_s},
    {u"Menu"_s, u"Delete Processed File"_s, "false", u"False"_s},
    {u"Menu"_s, u"Delete Source Video Sundry Files"_s, "x", u"True"_s},
    {u"Paths"_s, u"Last Videos Path"_s, "/somewhere/", u""_s},
    {u"Paths"_s, u"Last Target Path"_s, "/somewhere/", u""_s},
    {u"Paths"_s, u"Last Audios Path"_s, "/no such; folder/", u"/no such; folder/"_s},
    {u"Paths"_s, u"Attachments Path"_s, "/no such folder/", u""_s},
    {u"Paths"_s, u"Set or read"_s, "", u"Set by Operator"_s},
    {u"Paths"_s, u"Set or read"_s, "Read from Registry", u"Read from Registry"_s},
    {u"Audio Option Files"_s, u"Title"_s, "A Title", u""_s},
    {u"Audio Option Files"_s, u"Title"_s, "A Title", u"A Title"_s, "Sticky Titles=on\n"},
    {u"Audio Option Files"_s, u"Language"_s, "English (eng)", u"English (eng)"_s, "Sticky Languages=On\n"},
    {u"Audio Option Files"_s, u"Default"_s, "YES", u"yes"_s, "Sticky Default=On\n"},
    {u"Audio Option Files"_s, u"Default"_s, "maybe", u""_s, "Sticky Default=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "No", u"no"_s, "Sticky Forced=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "maybe", u""_s, "Sticky Forced=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "", u""_s, "Sticky Forced=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "yes", u""_s, "Sticky Forced=Maybe\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "", u"0"_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "0070", u"70"_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "12,34", u"12"_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "000", u"0"_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "-5", u""_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "1,,2", u""_s, "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Delay"_s, "123456789012345678901234567890", u"123456789012345678901234567890"_s,
     "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "-1:-2:3:4:1", u"1:2:3:4:1"_s},
    {u"Subtitle Option Files"_s, u"Forced"_s, "maybe", u"no"_s, "Sticky Forced=On\n"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "", u"no"_s, "Sticky Forced=On\n"},
    {u"Audio"_s, u"Custom Audio Filter Language(s)"_s, "nOnE", u"NONE"_s},
    {u"Audio"_s, u"Custom Audio Filter Language(s)"_s, "English (eng):French (fre)", u"English (eng):French (fre)"_s},
    {u"Audio"_s, u"Custom Audio Filter Language(s)"_s, "", u"NONE"_s},
    {u"Audio"_s, u"Cut or Keep Audio Languages"_s, "KEEP", u"Keep"_s},
    {u"Audio"_s, u"Cut or Keep Audio Languages"_s, "else", u"Cut"_s},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On", u"Off"_s},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "on", u"On"_s, "Custom Audio Filter Language(s)=English (eng)\n"},
    {u"Audio"_s, u"Apply custom Audio Filter.Enabled"_s, "Disabled", u"Enabled"_s,
     "Custom Audio Filter Language(s)=English (eng)\n"},
    {u"Audio"_s, u"Apply custom Audio Filter.Enabled"_s, "Enabled", u"Disabled"_s},
    {u"Audio"_s, u"Custom Audio Filter Window Size and Position (T,L,W,H,MM)"_s, "-5:-6:7:8:9", u"5:6:7:8:0"_s},
    {u"Audio"_s, u"Filter out NON-English Audio.Enabled"_s, "Disabled", u"Enabled"_s},
    {u"Audio"_s, u"Filter out NON-English Audio"_s, "On", u"Off"_s,
     "Custom Audio Filter Language(s)=English (eng)\nApply custom Audio Filter=On\n"},
    {u"Audio"_s, u"Filter out NON-English Audio"_s, "On", u"Off"_s, "Apply custom Audio Filter=On\n"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On", u"Off"_s,
     "Custom Audio Filter Language(s)=English (eng)\nKeep English Titled Audio=On\n"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On", u"On"_s,
     "Custom Audio Filter Language(s)=English (eng)\nFilter out NON-English Audio=On\n"},
    {u"Audio"_s, u"Keep English Titled Audio"_s, "x", u"True"_s},
    {u"Audio"_s, u"Audio Delay"_s, "123456", u"99999"_s},
    {u"Audio"_s, u"Audio Delay"_s, "-123456", u"-99999"_s},
    {u"Audio"_s, u"Audio Delay"_s, "word", u"0"_s},
    {u"Audio"_s, u"Audio Delay"_s, "-", u"0"_s},
    {u"Audio"_s, u"Audio Delay"_s, "", u"0"_s},
    {u"Audio"_s, u"Audio Delay"_s, "007", u"007"_s},
    {u"Audio"_s, u"Audio Delay"_s, "-250", u"-250"_s},
    {u"Audio"_s, u"Audio Delay"_s, "1.5", u"0"_s},
    {u"Most Recently Used Sources"_s, u"MRU Sources"_s, "none", u"NONE"_s},
    {u"Most Recently Used Destinations"_s, u"MRU Targets"_s, "", u"NONE"_s},
    {u"Video Format Options"_s, u"Aspect Ratio or Video Dimensions"_s, "ASPECT RATIO", u"Aspect Ratio"_s},
    {u"Video Format Options"_s, u"Aspect Ratio or Video Dimensions"_s, "video dimensions", u"Video Dimensions"_s},
    {u"Video Format Options"_s, u"Aspect Ratio or Video Dimensions"_s, "x", u"emptyvalue"_s},
    {u"Video Format Options"_s, u"Settings"_s, "720X480", u"720x480"_s},
    {u"Video Format Options"_s, u"Settings"_s, "EmptyValue", u"emptyvalue"_s},
    {u"Video Format Options"_s, u"Use Video Format Options"_s, "perhaps", u"Off"_s},
    {u"Subtitles"_s, u"Set All Subtitle defaults"_s, "perhaps", u"Off"_s},
    {u"Subtitles"_s, u"Set All Subtitle defaults to no/yes"_s, "YES", u"yes"_s},
    {u"Subtitles"_s, u"Set All Subtitle defaults to no/yes"_s, "x", u"no"_s},
    {u"Chapters"_s, u"Chapters Format"_s, "x", u"HH:MM:SS.hh(h)"_s},
    {u"Chapters"_s, u"Chapters Format"_s, "HH:mm:SS.ff", u"HH:MM:SS.ff"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Options"_s, "USE MediaInfo discovered Frame Rate",
     u"Use MediaInfo discovered Frame Rate"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Options"_s, "x", u"INVALID SELECTION"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Value"_s, "23.976FPS", u"23.976fps"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Value"_s, "EMPTYVALUE", u"EMPTYVALUE"_s},
    {u"Other Options"_s, u"Set Custom File Title Text"_s, "  -- \xC3\xA4 = %1  ", u"-- \u00E4 = %1"_s},
    {u"Other Options"_s, u"Set File Title Option"_s, "FORCE", u"Force"_s},
    {u"Other Options"_s, u"Set File Title Option"_s, "Always", u"If Empty"_s},
    {u"Other Options"_s, u"Add Attachments"_s, "On", u"Off"_s},
    {u"Other Options"_s, u"Attach Contents of Titled Subfolders Instead"_s, "On", u"Off"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "9", u"30"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "10", u"10"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "999", u"999"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "1000", u"30"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "12 minutes", u"12 minutes"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "word", u"30"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, "", u"30"_s},
    {u"Vantorra - by Zarnegar"_s, u"Version"_s, "1.0.0", u"2.5.5"_s},
    {u"Extensions"_s, u"Careful Batch"_s, "perhaps", u"Off"_s},
    {u"Extensions"_s, u"If The Output Exists"_s, "number", u"Number"_s},
    {u"Extensions"_s, u"If The Output Exists"_s, "perhaps", u"Replace"_s},
    {u"Extensions"_s, u"Run Button Follows Folders"_s, "perhaps", u"On"_s},
    {u"Extensions"_s, u"Delete Source Only After Success"_s, "perhaps", u"Off"_s},
    {u"Extensions"_s, u"Identify With Any mkvmerge"_s, "perhaps", u"On"_s},
};

/// The same claim of the key that is read by the same rule; the claim itself if there is none.
static Text_Claim Twin_Of(Text_Claim claim)
{
    const std::pair<QString, QString> words[] = {{u"ProcessLog"_s, u"View Video File Info"_s},
                                                 {u"Last Audios Path"_s, u"Last Chapters Path"_s},
                                                 {u"Titled Audio"_s, u"Titled Subtitles"_s},
                                                 {u"NON-English Audio"_s, u"NON-English Subtitles"_s},
                                                 {u"Custom File"_s, u"Custom Video"_s},
                                                 {u"Set File"_s, u"Set Video"_s},
                                                 {u"defaults"_s, u"forces"_s},
                                                 {u"Audio"_s, u"Subtitle"_s}};
    const bool is_alone =
        claim.Key == u"Audio Delay"_s || (claim.Key == u"Forced"_s && claim.In != "yes" && claim.In != "No");
    for (const auto& [one, other] : words) {
        if (is_alone)
            break;
        claim.Section.replace(one, other);
        claim.Key.replace(one, other);
        claim.Beside.replace(one.toUtf8(), other.toUtf8());
    }
    if (claim.Section == u"Subtitle"_s)
        claim.Section = u"Subtitles"_s;
    if (claim.Section == u"Subtitles"_s && claim.Out == u"NONE"_s)
        claim.Out = u"None"_s;
    return claim;
}

TEST(SettingsRows, EveryOtherTextIsReadByItsRule)
{
    std::vector<Text_Claim> claims(std::begin(Texts), std::end(Texts));
    std::ranges::transform(Texts, std::back_inserter(claims), Twin_Of);
    for (const Text_Claim& claim : claims) {
        QByteArray text = Main_Window;
        if (claim.Section == u"MainWindow"_s)
            text = "[MainWindow]\n" + claim.Key.toUtf8() + "=" + claim.In + text.mid(12).prepend('\n');
        else
            text += "[" + claim.Section.toUtf8() + "]\n" + claim.Beside + claim.Key.toUtf8() + "=" + claim.In + "\n";
        EXPECT_EQ(Read_And_Written(text).Value(claim.Section, claim.Key), claim.Out)
            << claim.Section.toStdString() << "/" << claim.Key.toStdString() << "=" << claim.In.toStdString();
    }
}

TEST(SettingsRows, EveryKeyIsKnownByItsNameInAnyCaseAndByItsNumber)
{
    int number = 0;
    for (const Settings_Row& row : Settings_Rows()) {
        EXPECT_EQ(Find_Row(row.Section.toUpper(), row.Key.trimmed().toLower()), &row) << row.Key.toStdString();
        if (row.Number != 0) {
            EXPECT_EQ(&Row_Of(++number), &row) << row.Key.toStdString();
        }
    }
    EXPECT_GT(number, 100);
    EXPECT_EQ(Find_Row(u"Audio"_s, u"Title"_s), nullptr);
}
