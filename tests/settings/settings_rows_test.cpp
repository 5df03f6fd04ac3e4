#include "settings/settings_rows.h"

#include "common/test_program.h"
#include "settings/settings_store.h"

#include <QFile>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// One key of the settings file, in writing order (a key that is added stands behind these): what the first file says,
/// and what is written back after a file was read that doesn't have the key.
struct Key_Claim
{
    QString Section, Key, First, Missing;
};

static const Key_Claim Keys[] = {
    {u"MainWindow"_s, u"Save Settings on Exit"_s, u"True"_s, u"True"_s},
    {u"MainWindow"_s, u"Left"_s, u"100"_s, u"100"_s},
    {u"MainWindow"_s, u"Top"_s, u"50"_s, u"50"_s},
    {u"MainWindow"_s, u"Width"_s, u"800"_s, u"800"_s},
    {u"MainWindow"_s, u"Height"_s, u"600"_s, u"600"_s},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s, u"50:100:800:600:0"_s},
    {u"ProcessLog"_s, u"Set Font Size"_s, u"10"_s, u"10"_s},
    {u"ProcessLog"_s, u"Not First Run"_s, u"False"_s, u"False"_s},
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s, u"50:100:800:600:0"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, u"10"_s, u"10"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, u"False"_s, u"False"_s},
    {u"Menu"_s, u"Append Logs"_s, u"False"_s, u"True"_s},
    {u"Menu"_s, u"Log Verbosity "_s, u"0"_s, u"0"_s},
    {u"Menu"_s, u"Delete Processed File"_s, u"False"_s, u"True"_s},
    {u"Menu"_s, u"Delete Source Video Sundry Files"_s, u"False"_s, u"False"_s},
    {u"Paths"_s, u"Last Videos Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"Last Audios Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"Last Subtitles Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"Last Chapters Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"Last Target Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"System mkvmerge.exe Path"_s, u""_s, u""_s},
    {u"Paths"_s, u"Set or read"_s, u"Set by Operator"_s, u"Set by Operator"_s},
    {u"Paths"_s, u"Attachments Path"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Sticky Titles"_s, u"Off"_s, u"Off"_s},
    {u"Audio Option Files"_s, u"Title"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Sticky Languages"_s, u"Off"_s, u"Off"_s},
    {u"Audio Option Files"_s, u"Language"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Sticky Default"_s, u"Off"_s, u"Off"_s},
    {u"Audio Option Files"_s, u"Default"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Sticky Forced"_s, u"Off"_s, u"Off"_s},
    {u"Audio Option Files"_s, u"Forced"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Sticky Delay"_s, u"Off"_s, u"Off"_s},
    {u"Audio Option Files"_s, u"Delay"_s, u""_s, u""_s},
    {u"Audio Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s, u"50:100:800:600:0"_s},
    {u"Audio"_s, u"Strip Existing Audio"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Strip Existing Audio Title"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Custom Audio Filter Language(s)"_s, u"NONE"_s, u"NONE"_s},
    {u"Audio"_s, u"Cut or Keep Audio Languages"_s, u"Cut"_s, u"Cut"_s},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Apply custom Audio Filter.Enabled"_s, u"Enabled"_s, u"Disabled"_s},
    {u"Audio"_s, u"Custom Audio Filter Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s, u"50:100:800:600:0"_s},
    {u"Audio"_s, u"Filter out NON-English Audio"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Filter out NON-English Audio.Enabled"_s, u"Enabled"_s, u"Enabled"_s},
    {u"Audio"_s, u"Keep English Titled Audio"_s, u"False"_s, u"False"_s},
    {u"Audio"_s, u"Audio Delay Adjust"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Audio Delay"_s, u""_s, u"0"_s},
    {u"Audio"_s, u"Add Audio Files"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Use Audio .opt files"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Auto Create Audio Options"_s, u"Off"_s, u"Off"_s},
    {u"Audio"_s, u"Alternate Audio File Path"_s, u"Off"_s, u"Off"_s},
    {u"Most Recently Used Sources"_s, u"MRU Sources"_s, u"NONE"_s, u"NONE"_s},
    {u"Most Recently Used Destinations"_s, u"MRU Targets"_s, u"NONE"_s, u"NONE"_s},
    {u"Video Format Options"_s, u"Aspect Ratio or Video Dimensions"_s, u"emptyvalue"_s, u"emptyvalue"_s},
    {u"Video Format Options"_s, u"Settings"_s, u"emptyvalue"_s, u"emptyvalue"_s},
    {u"Video Format Options"_s, u"Use Video Format Options"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Sticky Titles"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Title"_s, u""_s, u""_s},
    {u"Subtitle Option Files"_s, u"Sticky Languages"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Language"_s, u""_s, u""_s},
    {u"Subtitle Option Files"_s, u"Sticky Default"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Default"_s, u""_s, u""_s},
    {u"Subtitle Option Files"_s, u"Sticky Forced"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Forced"_s, u""_s, u""_s},
    {u"Subtitle Option Files"_s, u"Sticky Delay"_s, u"Off"_s, u"Off"_s},
    {u"Subtitle Option Files"_s, u"Delay"_s, u""_s, u""_s},
    {u"Subtitle Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s, u"50:100:800:600:0"_s},
    {u"Subtitles"_s, u"Strip Existing Subtitles"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Strip Existing Subtitles Title"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Custom Subtitle Filter Language(s)"_s, u"None"_s, u"None"_s},
    {u"Subtitles"_s, u"Cut or Keep Subtitle Languages"_s, u"Cut"_s, u"Cut"_s},
    {u"Subtitles"_s, u"Custom Subtitle Filter Window Size and Position (T,L,W,H,MM)"_s, u"0:0:0:0:0"_s,
     u"50:100:800:600:0"_s},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter.Enabled"_s, u"Enabled"_s, u"Disabled"_s},
    {u"Subtitles"_s, u"Filter out NON-English Subtitles"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Filter out NON-English Subtitles.Enabled"_s, u"Enabled"_s, u"Enabled"_s},
    {u"Subtitles"_s, u"Keep English Titled Subtitles"_s, u"False"_s, u"False"_s},
    {u"Subtitles"_s, u"Add Subtitles"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Set All Subtitle defaults"_s, u"Off"_s, u"On"_s},
    {u"Subtitles"_s, u"Set All Subtitle defaults to no/yes"_s, u"no"_s, u"yes"_s},
    {u"Subtitles"_s, u"Set All Subtitle forces"_s, u"Off"_s, u"On"_s},
    {u"Subtitles"_s, u"Set All Subtitle forces to no/yes"_s, u"no"_s, u"yes"_s},
    {u"Subtitles"_s, u"Use Subtitle .opt files"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Auto Create Sub Options"_s, u"Off"_s, u"Off"_s},
    {u"Subtitles"_s, u"Alternate Subtitle File Path"_s, u"Off"_s, u"Off"_s},
    {u"Chapters"_s, u"Strip Existing Chapters"_s, u"Off"_s, u"Off"_s},
    {u"Chapters"_s, u"Replace With New Chapter File"_s, u"Off"_s, u"Off"_s},
    {u"Chapters"_s, u"Convert TXT to XML Chapters"_s, u"Off"_s, u"Off"_s},
    {u"Chapters"_s, u"Chapters Format"_s, u"HH:MM:SS.ff"_s, u"HH:MM:SS.ff"_s},
    {u"Chapters"_s, u"Alternate Chapters File Path"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Video Frame Rate"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Options"_s, u"INVALID SELECTION"_s, u"Set a Frame Rate"_s},
    {u"Other Options"_s, u"Set Video Frame Rate Value"_s, u"EMPTYVALUE"_s, u"EMPTYVALUE"_s},
    {u"Other Options"_s, u"Remove File Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Custom File Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Custom File Title Text"_s, u""_s, u""_s},
    {u"Other Options"_s, u"Set File Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set File Title Option"_s, u"If Empty"_s, u"If Empty"_s},
    {u"Other Options"_s, u"Remove Video Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Custom Video Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Custom Video Title Text"_s, u""_s, u""_s},
    {u"Other Options"_s, u"Set Video Title"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Set Video Title Option"_s, u"If Empty"_s, u"If Empty"_s},
    {u"Other Options"_s, u"Remove All Original Tags"_s, u"Off"_s, u"On"_s},
    {u"Other Options"_s, u"Remove All Original Attachments"_s, u"Off"_s, u"On"_s},
    {u"Other Options"_s, u"Add Attachments"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Attach Contents of Titled Subfolders Instead"_s, u"Off"_s, u"Off"_s},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s, u""_s, u"30"_s},
    {u"Vantorra - by Zarnegar"_s, u"File Description"_s, u"A batching system for mkvmerge"_s,
     u"A batching system for mkvmerge"_s},
    {u"Vantorra - by Zarnegar"_s, u"Copyright"_s, u"Copyright (c) 2026 The Vantorra developers"_s,
     u"Copyright (c) 2026 The Vantorra developers"_s},
    {u"Vantorra - by Zarnegar"_s, u"Version"_s, u"2.5.5"_s, u"2.5.5"_s},
    {u"Vantorra - by Zarnegar"_s, u"Last Modified Date"_s, u"Mar/07/2026 01:05:09PM local time."_s,
     u"Mar/07/2026 01:05:09PM local time."_s},
    {u"Extensions"_s, u"Careful Batch"_s, u"Off"_s, u"Off"_s},
    {u"Extensions"_s, u"If The Output Exists"_s, u"Replace"_s, u"Replace"_s},
    {u"Extensions"_s, u"Sensible Names And Sizes"_s, u"Off"_s, u"Off"_s},
    {u"Extensions"_s, u"Run Button Follows Folders"_s, u"On"_s, u"On"_s},
    {u"Extensions"_s, u"Delete Source Only After Success"_s, u"Off"_s, u"Off"_s},
    {u"Extensions"_s, u"Identify With Any mkvmerge"_s, u"On"_s, u"On"_s},
};

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

TEST(SettingsRows, TheFirstFileHoldsEveryKeyInOrderWithItsText)
{
    Test_Program test;
    Prepare(test);
    Write_Settings(test.Prog, true);
    QByteArray expected;
    QString section;
    for (const Key_Claim& claim : Keys) {
        if (claim.Section != section)
            expected += "[" + claim.Section.toUtf8() + "]\n";
        section = claim.Section;
        expected += claim.Key.toUtf8() + "=" + claim.First.toUtf8() + "\n";
    }
    EXPECT_EQ(QString::fromUtf8(test.Read(u"app/Vantorra.ini"_s).left(expected.size())), QString::fromUtf8(expected));
}

TEST(SettingsRows, TheFirstFileReadBackAndWrittenChangesOnlyTheTwoNumbersAndTheDisabledBoxes)
{
    Test_Program test;
    Prepare(test);
    Write_Settings(test.Prog, true);
    const Ini_Document document = Read_And_Written(test.Read(u"app/Vantorra.ini"_s));
    for (const Key_Claim& claim : Keys) {
        QString expected = claim.First;
        if (claim.Key == u"Audio Delay"_s)
            expected = u"0"_s;
        else if (claim.Key.startsWith(u"Split multiple"_s))
            expected = u"30"_s;
        else if (claim.Key.startsWith(u"Apply custom"_s) && claim.Key.endsWith(u".Enabled"_s))
            expected = u"Disabled"_s;
        EXPECT_EQ(document.Value(claim.Section, claim.Key), expected) << claim.Key.toStdString();
    }
}

TEST(SettingsRows, AMissingKeyReadsAsItsDefault)
{
    const Ini_Document document = Read_And_Written(Main_Window);
    for (const Key_Claim& claim : Keys)
        EXPECT_EQ(document.Value(claim.Section, claim.Key), claim.Missing) << claim.Key.toStdString();
}

TEST(SettingsRows, EveryOnOffBoxKeepsItsWordAndTakesAnyCase)
{
    int boxes = 0;
    for (const Settings_Row& row : Settings_Rows()) {
        const bool starts_unticked = row.Key == u"Audio Delay Adjust"_s;
        const bool needs_more = row.Key == u"Add Attachments"_s || row.Key.startsWith(u"Attach Contents"_s) ||
                                row.Key.startsWith(u"Apply custom"_s);
        if (!QStringList{u"off"_s, u"on"_s}.contains(row.Default.toLower()) || needs_more)
            continue;
        ++boxes;
        for (const QByteArray word : {"On", "oN", "Off", "OFF"}) {
            const QByteArray text =
                Main_Window + "[" + row.Section.toUtf8() + "]\n" + row.Key.toUtf8() + "=" + word + "\n";
            const bool is_on = word.toLower() == "on" && !starts_unticked;
            EXPECT_EQ(Read_And_Written(text).Value(row.Section, row.Key), is_on ? u"On"_s : u"Off"_s)
                << row.Key.toStdString() << "=" << word.toStdString();
        }
    }
    EXPECT_GE(boxes, 44);
}

/// A text in the file and the text that is written back. `Beside` are further lines of the same section.
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
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "-1:-2:3:4:2", u"-1:-2:3:4:2"_s},
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1:2:3:4", u"50:100:800:600:0"_s},
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1:2:3:4:5:6", u"50:100:800:600:0"_s},
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "", u"50:100:800:600:0"_s},
    {u"View Video File Info"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1.5:2.5:3:4:0", u"2:2:3:4:0"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "3", u"4"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "99", u"41"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "emptyvalue", u"10"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "41", u"41"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "12.5", u"12"_s},
    {u"View Video File Info"_s, u"Set Font Size"_s, "-1e9", u"4"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, "true", u"True"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, "FALSE", u"False"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, "0", u"False"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, "-1", u"True"_s},
    {u"View Video File Info"_s, u"Not First Run"_s, "emptyvalue", u"False"_s},
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
    {u"Paths"_s, u"Last Subtitles Path"_s, "/no such; folder/", u"/no such; folder/"_s},
    {u"Paths"_s, u"Last Chapters Path"_s, "/no such; folder/", u"/no such; folder/"_s},
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
    {u"Subtitle Option Files"_s, u"Title"_s, "A Title", u""_s},
    {u"Subtitle Option Files"_s, u"Title"_s, "A Title", u"A Title"_s, "Sticky Titles=on\n"},
    {u"Subtitle Option Files"_s, u"Language"_s, "English (eng)", u"English (eng)"_s, "Sticky Languages=On\n"},
    {u"Subtitle Option Files"_s, u"Default"_s, "YES", u"yes"_s, "Sticky Default=On\n"},
    {u"Subtitle Option Files"_s, u"Default"_s, "maybe", u""_s, "Sticky Default=On\n"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "No", u"no"_s, "Sticky Forced=On\n"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "maybe", u"no"_s, "Sticky Forced=On\n"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "", u"no"_s, "Sticky Forced=On\n"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "yes", u""_s, "Sticky Forced=Maybe\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "", u"0"_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "0070", u"70"_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "12,34", u"12"_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "000", u"0"_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "-5", u""_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "1,,2", u""_s, "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Delay"_s, "123456789012345678901234567890", u"123456789012345678901234567890"_s,
     "Sticky Delay=On\n"},
    {u"Subtitle Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "-1:-2:3:4:1", u"1:2:3:4:1"_s},
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
    {u"Subtitles"_s, u"Custom Subtitle Filter Language(s)"_s, "nOnE", u"None"_s},
    {u"Subtitles"_s, u"Custom Subtitle Filter Language(s)"_s, "English (eng):French (fre)",
     u"English (eng):French (fre)"_s},
    {u"Subtitles"_s, u"Custom Subtitle Filter Language(s)"_s, "", u"None"_s},
    {u"Subtitles"_s, u"Cut or Keep Subtitle Languages"_s, "KEEP", u"Keep"_s},
    {u"Subtitles"_s, u"Cut or Keep Subtitle Languages"_s, "else", u"Cut"_s},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter"_s, "On", u"Off"_s},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter"_s, "on", u"On"_s,
     "Custom Subtitle Filter Language(s)=English (eng)\n"},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter.Enabled"_s, "Disabled", u"Enabled"_s,
     "Custom Subtitle Filter Language(s)=English (eng)\n"},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter.Enabled"_s, "Enabled", u"Disabled"_s},
    {u"Subtitles"_s, u"Custom Subtitle Filter Window Size and Position (T,L,W,H,MM)"_s, "-5:-6:7:8:9", u"5:6:7:8:0"_s},
    {u"Subtitles"_s, u"Filter out NON-English Subtitles.Enabled"_s, "Disabled", u"Enabled"_s},
    {u"Subtitles"_s, u"Filter out NON-English Subtitles"_s, "On", u"Off"_s,
     "Custom Subtitle Filter Language(s)=English (eng)\nApply custom Subtitle Filter=On\n"},
    {u"Subtitles"_s, u"Filter out NON-English Subtitles"_s, "On", u"Off"_s, "Apply custom Subtitle Filter=On\n"},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter"_s, "On", u"Off"_s,
     "Custom Subtitle Filter Language(s)=English (eng)\nKeep English Titled Subtitles=On\n"},
    {u"Subtitles"_s, u"Apply custom Subtitle Filter"_s, "On", u"On"_s,
     "Custom Subtitle Filter Language(s)=English (eng)\nFilter out NON-English Subtitles=On\n"},
    {u"Subtitles"_s, u"Keep English Titled Subtitles"_s, "x", u"True"_s},
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
    {u"Subtitles"_s, u"Set All Subtitle forces"_s, "perhaps", u"Off"_s},
    {u"Subtitles"_s, u"Set All Subtitle forces to no/yes"_s, "YES", u"yes"_s},
    {u"Subtitles"_s, u"Set All Subtitle forces to no/yes"_s, "x", u"no"_s},
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
    {u"Other Options"_s, u"Set Custom Video Title Text"_s, "  -- \xC3\xA4 = %1  ", u"-- \u00E4 = %1"_s},
    {u"Other Options"_s, u"Set Video Title Option"_s, "FORCE", u"Force"_s},
    {u"Other Options"_s, u"Set Video Title Option"_s, "Always", u"If Empty"_s},
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
    {u"Audio Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "1:2:3:4:no", u"1:2:3:4:0"_s},
    {u"Other Options"_s, u"Set Custom File Title Text"_s, "Fran\xE7ois", u"Fran\u00E7ois"_s},
    {u"Extensions"_s, u"Careful Batch"_s, "perhaps", u"Off"_s},
    {u"Extensions"_s, u"If The Output Exists"_s, "number", u"Number"_s},
    {u"Extensions"_s, u"If The Output Exists"_s, "perhaps", u"Replace"_s},
    {u"Extensions"_s, u"Run Button Follows Folders"_s, "perhaps", u"On"_s},
    {u"Extensions"_s, u"Delete Source Only After Success"_s, "perhaps", u"Off"_s},
    {u"Extensions"_s, u"Identify With Any mkvmerge"_s, "perhaps", u"On"_s},
};

TEST(SettingsRows, EveryOtherTextIsReadByItsRule)
{
    for (const Text_Claim& claim : Texts) {
        QByteArray text = Main_Window;
        if (claim.Section == u"MainWindow"_s)
            text = "[MainWindow]\n" + claim.Key.toUtf8() + "=" + claim.In + text.mid(12).prepend('\n');
        else
            text += "[" + claim.Section.toUtf8() + "]\n" + claim.Beside + claim.Key.toUtf8() + "=" + claim.In + "\n";
        EXPECT_EQ(Read_And_Written(text).Value(claim.Section, claim.Key), claim.Out)
            << claim.Section.toStdString() << "/" << claim.Key.toStdString() << "=" << claim.In.toStdString();
    }
}

TEST(SettingsRows, EveryKeyIsKnownByItsNameInAnyCase)
{
    for (const Key_Claim& claim : Keys) {
        const Settings_Row* const row = Find_Row(claim.Section.toUpper(), claim.Key.trimmed().toLower());
        ASSERT_NE(row, nullptr) << claim.Key.toStdString();
        EXPECT_EQ(row->Number, 1 + static_cast<int>(&claim - Keys));
    }
    EXPECT_EQ(Find_Row(u"Audio"_s, u"Title"_s), nullptr);
    EXPECT_GE(Settings_Rows().size(), std::size(Keys) + 1);
}
