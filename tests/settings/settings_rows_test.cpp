#include "settings/settings_rows.h"

#include "common/test_program.h"
#include "settings/settings_store.h"

#include <QDir>
#include <QFile>
#include <algorithm>

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

/// Texts in the file and those that are written back, "one>other|next>other". `Beside` are further lines of the same
/// section. What is claimed of a key of the audio tracks holds for that of the subtitles, and so on: see Twin_Of.
struct Text_Claims
{
    QString Section, Key;
    QByteArray Texts;
    QByteArray Beside = {};
};

static const Text_Claims Texts[] = {
    {u"MainWindow"_s, u"Save Settings on Exit"_s, "TRUE>True"},
    {u"MainWindow"_s, u"Left"_s, "-7>0| 12.5 >12"},
    {u"MainWindow"_s, u"Top"_s, "-3>0"},
    {u"MainWindow"_s, u"Width"_s, "1024.4>1024"},
    {u"MainWindow"_s, u"Height"_s, "-9>-9"},
    {u"ProcessLog"_s, u"Window Size and Position (T,L,W,H,MM)"_s,
     "-1:-2:3:4:2>-1:-2:3:4:2|1.5:2.5:3:4:0>2:2:3:4:0|1:2:3:4>50:100:800:600:0|"
     "1:2:3:4:5:6>50:100:800:600:0|>50:100:800:600:0"},
    {u"ProcessLog"_s, u"Set Font Size"_s, "3>4|99>41|emptyvalue>10|41>41|12.5>12|-1e9>4"},
    {u"ProcessLog"_s, u"Not First Run"_s, "true>True|FALSE>False|0>False|-1>True|emptyvalue>False"},
    {u"Menu"_s, u"Append Logs"_s, "no>True|FALSE>False|>True"},
    {u"Menu"_s, u"Log Verbosity"_s, "7>7|8>0|03>0|x>0|>0"},
    {u"Menu"_s, u"Delete Processed File"_s, "false>False"},
    {u"Menu"_s, u"Delete Source Video Sundry Files"_s, "x>True"},
    {u"Paths"_s, u"Last Videos Path"_s, "/somewhere/>"},
    {u"Paths"_s, u"Last Target Path"_s, "/somewhere/>"},
    {u"Paths"_s, u"Last Audios Path"_s, "/no such; folder/>/no such; folder/"},
    {u"Paths"_s, u"Attachments Path"_s, "/no such folder/>"},
    {u"Paths"_s, u"Set or read"_s, ">Set by Operator|Read from Registry>Read from Registry"},
    {u"Audio Option Files"_s, u"Title"_s, "A Title>"},
    {u"Audio Option Files"_s, u"Title"_s, "A Title>A Title", "Sticky Titles=on\n"},
    {u"Audio Option Files"_s, u"Language"_s, "English (eng)>English (eng)", "Sticky Languages=On\n"},
    {u"Audio Option Files"_s, u"Default"_s, "YES>yes|maybe>", "Sticky Default=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "No>no|maybe>|>", "Sticky Forced=On\n"},
    {u"Audio Option Files"_s, u"Forced"_s, "yes>", "Sticky Forced=Maybe\n"},
    {u"Audio Option Files"_s, u"Delay"_s,
     ">0|0070>70|12,34>12|000>0|-5>|1,,2>|123456789012345678901234567890>123456789012345678901234567890",
     "Sticky Delay=On\n"},
    {u"Audio Option Files"_s, u"Window Size and Position (T,L,W,H,MM)"_s, "-1:-2:3:4:1>1:2:3:4:1"},
    {u"Subtitle Option Files"_s, u"Forced"_s, "maybe>no|>no", "Sticky Forced=On\n"},
    {u"Audio"_s, u"Custom Audio Filter Language(s)"_s,
     "nOnE>NONE|English (eng):French (fre)>English (eng):French (fre)|>NONE"},
    {u"Audio"_s, u"Cut or Keep Audio Languages"_s, "KEEP>Keep|else>Cut"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On>Off"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "on>On", "Custom Audio Filter Language(s)=English (eng)\n"},
    {u"Audio"_s, u"Apply custom Audio Filter.Enabled"_s, "Disabled>Enabled",
     "Custom Audio Filter Language(s)=English (eng)\n"},
    {u"Audio"_s, u"Apply custom Audio Filter.Enabled"_s, "Enabled>Disabled"},
    {u"Audio"_s, u"Custom Audio Filter Window Size and Position (T,L,W,H,MM)"_s, "-5:-6:7:8:9>5:6:7:8:0"},
    {u"Audio"_s, u"Filter out NON-English Audio.Enabled"_s, "Disabled>Enabled"},
    {u"Audio"_s, u"Filter out NON-English Audio"_s, "On>Off",
     "Custom Audio Filter Language(s)=English (eng)\nApply custom Audio Filter=On\n"},
    {u"Audio"_s, u"Filter out NON-English Audio"_s, "On>Off", "Apply custom Audio Filter=On\n"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On>Off",
     "Custom Audio Filter Language(s)=English (eng)\nKeep English Titled Audio=On\n"},
    {u"Audio"_s, u"Apply custom Audio Filter"_s, "On>On",
     "Custom Audio Filter Language(s)=English (eng)\nFilter out NON-English Audio=On\n"},
    {u"Audio"_s, u"Keep English Titled Audio"_s, "x>True"},
    {u"Audio"_s, u"Audio Delay"_s, "123456>99999|-123456>-99999|word>0|->0|>0|007>007|-250>-250|1.5>0"},
    {u"Most Recently Used Sources"_s, u"MRU Sources"_s, "none>NONE"},
    {u"Most Recently Used Destinations"_s, u"MRU Targets"_s, ">NONE"},
    {u"Video Format Options"_s, u"Aspect Ratio or Video Dimensions"_s,
     "ASPECT RATIO>Aspect Ratio|video dimensions>Video Dimensions|x>emptyvalue"},
    {u"Video Format Options"_s, u"Settings"_s, "720X480>720x480|EmptyValue>emptyvalue"},
    {u"Video Format Options"_s, u"Use Video Format Options"_s, "perhaps>Off"},
    {u"Subtitles"_s, u"Set All Subtitle defaults"_s, "perhaps>Off"},
    {u"Subtitles"_s, u"Set All Subtitle defaults to no/yes"_s, "YES>yes|x>no"},
    {u"Chapters"_s, u"Chapters Format"_s, "x>HH:MM:SS.hh(h)|HH:mm:SS.ff>HH:MM:SS.ff"},
    {u"Other Options"_s, u"Set Video Frame Rate Options"_s,
     "USE MediaInfo discovered Frame Rate>Use MediaInfo discovered Frame Rate|x>INVALID SELECTION"},
    {u"Other Options"_s, u"Set Video Frame Rate Value"_s, "23.976FPS>23.976fps|EMPTYVALUE>EMPTYVALUE"},
    {u"Other Options"_s, u"Set Custom File Title Text"_s, "  -- \xC3\xA4 = %1  >-- \xC3\xA4 = %1"},
    {u"Other Options"_s, u"Set File Title Option"_s, "FORCE>Force|Always>If Empty"},
    {u"Other Options"_s, u"Add Attachments"_s, "On>Off"},
    {u"Other Options"_s, u"Attach Contents of Titled Subfolders Instead"_s, "On>Off"},
    {u"Other Options"_s, u"Split multiple video files (minutes)"_s,
     "9>30|10>10|999>999|1000>30|12 minutes>12 minutes|word>30|>30"},
    {u"Vantorra - by Zarnegar"_s, u"Version"_s, "1.0.0>2.5.5"},
    {u"Extensions"_s, u"Careful Batch"_s, "perhaps>Off"},
    {u"Extensions"_s, u"If The Output Exists"_s, "number>Number|perhaps>Replace"},
    {u"Extensions"_s, u"Videos At Once"_s, "16>16|3>3|17>1|0>1|two>1"},
    {u"Extensions"_s, u"Run Button Follows Folders"_s, "perhaps>On"},
    {u"Extensions"_s, u"Delete Source Only After Success"_s, "perhaps>Off"},
    {u"Extensions"_s, u"Identify With Any mkvmerge"_s, "perhaps>On"},
};

/// One of the texts, and what is written back.
struct Text_Claim
{
    QString Section, Key;
    QByteArray In;
    QString Out;
    QByteArray Beside;
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
    std::vector<Text_Claim> claims;
    for (const Text_Claims& of_key : Texts)
        for (const QByteArray& text : of_key.Texts.split('|')) {
            const qsizetype sign = text.indexOf('>');
            claims.push_back(
                {of_key.Section, of_key.Key, text.left(sign), QString::fromUtf8(text.mid(sign + 1)), of_key.Beside});
            claims.push_back(Twin_Of(claims.back()));
        }
    for (const Text_Claim& claim : claims) {
        QByteArray text = Main_Window;
        if (claim.Section == u"MainWindow"_s)
            text = "[MainWindow]\n" + claim.Key.toUtf8() + "=" + claim.In + text.mid(12).prepend('\n');
        else
            text += "[" + claim.Section.toUtf8() + "]\n" + claim.Beside + claim.Key.toUtf8() + "=" + claim.In + "\n";
        const QString out = claim.Section == u"Paths"_s ? QDir::toNativeSeparators(claim.Out) : claim.Out;
        EXPECT_EQ(Read_And_Written(text).Value(claim.Section, claim.Key), out)
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
