#include "settings/settings_store.h"

#include "common/test_program.h"

#include <QDir>

static const QByteArray Window_Place = "[MainWindow]\nLeft=100\nTop=50\nWidth=800\nHeight=600\n";

static void Read_Text(Test_Program& test, const QByteArray& text)
{
    test.Write(u"app/Vantorra.ini"_s, Window_Place + text);
    Read_Settings(test.Prog);
}

TEST(SettingsStore, WhatASettingMeansForTheEnabledStateOfABox)
{
    const QByteArray audio_list = "[Audio]\nCustom Audio Filter Language(s)=English (eng)\n";
    const QByteArray subs_list = "[Subtitles]\nCustom Subtitle Filter Language(s)=English (eng)\n";
    const std::tuple<QByteArray, Check_Box JobOptions::*, bool, int> claims[] = {
        {"", &JobOptions::chk_CustomAudioFilter, false, 0},
        {audio_list, &JobOptions::chk_CustomAudioFilter, true, 0},
        {audio_list + "Apply custom Audio Filter=On\n", &JobOptions::chk_EngAudioOnly, false, 0},
        {audio_list + "Keep English Titled Audio=On\n", &JobOptions::chk_CustomAudioFilter, false, 0},
        {"[Audio]\nFilter out NON-English Audio=On\n", &JobOptions::chk_EngAudioOnly, true, 1},
        {"[Audio]\nStrip Existing Audio=On\n", &JobOptions::chk_StripOrigAudioTitle, false, 0},
        {"[Audio]\nStrip Existing Audio=On\n", &JobOptions::chk_AudioDelayAdjust, false, 0},
        {"[Audio]\nStrip Existing Audio=On\n", &JobOptions::chk_EngAudioOnly, false, 0},
        {"[Audio]\nStrip Existing Audio=Perhaps\n", &JobOptions::chk_EngAudioOnly, true, 0},
        {"[Audio]\nStrip Existing Audio=Perhaps\n", &JobOptions::chk_StripOrigAudio, true, 2},
        {"[Audio]\nAudio Delay Adjust=On\n", &JobOptions::chk_AudioDelayAdjust, true, 0},
        {"[Audio]\nUse Audio .opt files=On\n", &JobOptions::chk_UseAudioOpts, false, 1},
        {"[Audio]\nUse Audio .opt files=On\n", &JobOptions::chk_ApplyDefaultAudioOpts, false, 0},
        {"[Audio]\nAdd Audio Files=On\n", &JobOptions::chk_UseAudioOpts, true, 0},
        {"[Audio]\nAdd Audio Files=On\nUse Audio .opt files=On\n", &JobOptions::chk_ApplyDefaultAudioOpts, true, 0},
        {subs_list, &JobOptions::chk_CustomSubsFilter, true, 0},
        {subs_list + "Apply custom Subtitle Filter=On\n", &JobOptions::chk_EngSubsOnly, false, 0},
        {"[Subtitles]\nStrip Existing Subtitles=On\n", &JobOptions::chk_SubDefaults, false, 1},
        {"[Subtitles]\nStrip Existing Subtitles=On\n", &JobOptions::chk_StripOrigSubsTitle, false, 0},
        {"[Subtitles]\nSet All Subtitle forces=perhaps\n", &JobOptions::chk_SubForces, true, 0},
        {"[Subtitles]\nAdd Subtitles=On\nUse Subtitle .opt files=On\n", &JobOptions::chk_ApplyDefaultSubOpts, true, 0},
        {"[Chapters]\nConvert TXT to XML Chapters=On\n", &JobOptions::chk_ConvertTXT, false, 1},
        {"[Chapters]\nReplace With New Chapter File=On\n", &JobOptions::chk_ConvertTXT, true, 0},
        {"", &JobOptions::chk_VideoFormatOptions, false, 0},
        {"[Video Format Options]\nAspect Ratio or Video Dimensions=Aspect Ratio\n", &JobOptions::chk_VideoFormatOptions,
         true, 0},
        {"", &JobOptions::chk_VideoFrameRate, false, 0},
        {"[Other Options]\nSet Video Frame Rate Value=25p\n", &JobOptions::chk_VideoFrameRate, true, 0},
        {"[Other Options]\nSet Video Frame Rate Options=Use MediaInfo discovered Frame Rate\n",
         &JobOptions::chk_VideoFrameRate, true, 0},
        {"[Other Options]\nRemove File Title=On\n", &JobOptions::chk_CustomFileTitle, false, 0},
        {"[Other Options]\nRemove File Title=On\n", &JobOptions::chk_SetFileTitle, false, 0},
        {"[Other Options]\nSet Custom Video Title=On\n", &JobOptions::chk_SetVideoTitle, false, 0},
        {"[Other Options]\nSet Custom Video Title=On\n", &JobOptions::chk_CustomVideoTitle, true, 1},
        {"[Other Options]\nAdd Attachments=On\n", &JobOptions::chk_AddAttachments, false, 0},
        {"[Paths]\nAttachments Path=/no/such/folder/\n", &JobOptions::chk_UseSubfolders, false, 0},
    };
    for (const auto& [text, member, enabled, value] : claims) {
        Test_Program test;
        Read_Text(test, text);
        const Check_Box& box = test.Prog.Options.*member;
        EXPECT_EQ(box.Enabled, enabled) << text.toStdString() << box.Caption.toStdString();
        EXPECT_EQ(box.Value, value) << text.toStdString() << box.Caption.toStdString();
    }
}

TEST(SettingsStore, WhatWasReadShowsOnTheForm)
{
    Test_Program test;
    const QByteArray folder = test.Path(u"app/"_s).toUtf8();
    const QByteArray videos = test.Path(u"videos/"_s).toUtf8();
    const QByteArray target = test.Path(u"target/"_s).toUtf8();
    Read_Text(test, "[Menu]\nLog Verbosity=3\nDelete Processed File=True\n"
                    "[Paths]\nSystem mkvmerge.exe Path=/opt/mkvmerge\nAttachments Path=" +
                        folder +
                        "\n[Audio]\nAudio Delay=-250\nFilter out NON-English Audio=On\n"
                        "[Subtitles]\nCustom Subtitle Filter Language(s)=A (aaa):B (bbb):C (ccc)\n"
                        "Cut or Keep Subtitle Languages=Keep\nApply custom Subtitle Filter=On\n"
                        "Custom Subtitle Filter Window Size and Position (T,L,W,H,MM)=-4:5:6:1:0\n"
                        "Set All Subtitle forces to no/yes=no\n"
                        "[Chapters]\nChapters Format=other\nReplace With New Chapter File=On\n"
                        "Convert TXT to XML Chapters=On\n"
                        "[Other Options]\nAdd Attachments=On\nAttach Contents of Titled Subfolders Instead=On\n"
                        "Set Custom File Title Text=Mine\nSplit multiple video files (minutes)=45\n"
                        "[Most Recently Used Sources]\nMRU Sources=" +
                        videos + "\n[Most Recently Used Destinations]\nMRU Targets=" + target +
                        "\n[Experimental]\nVantorra Run is Default=TRUE\n"
                        "[Extensions]\nDelete Source Only After Success=on\n");
    const JobOptions& options = test.Prog.Options;
    const Main_Form& form = test.Prog.Form;
    EXPECT_EQ(
        (QStringList{form.mnu_VerbosityStatus.Caption, options.chk_CustomSubsFilter.Caption,
                     options.chk_SubForces.Caption, options.chk_SubDefaults.Caption, options.lbl_ChapsFormat.Caption,
                     options.chk_AddAttachments.Caption, options.chk_CustomFileTitle.Caption,
                     options.chk_CustomVideoTitle.Caption, form.lbl_AudioPathFault.Caption,
                     form.lbl_SubsPathFault.Caption, form.lbl_ChapsPathFault.Caption, form.txt_AudioDelayValue.Text,
                     form.txt_SplitVideosValue.Text}),
        (QStringList{u"Log Verbosity 3 - Include All Active Checkboxes"_s, u"Apply custom Subtitle Filter (keep)"_s,
                     u"Set All Subtitles forces to \"no\""_s, u"Set All Subtitles defaults to \"yes\""_s,
                     u"HH:MM:SS.hh(h)"_s, u"Add Attachments (path set)"_s, u"Set Custom File Title (NOT empty)"_s,
                     u"Set Custom Video Title (empty)"_s, u"Audio Path Not Set"_s, u"Subtitle  Path Not Set"_s,
                     u"Chapters  Path Not Set"_s, u"-250"_s, u"45"_s}));
    EXPECT_EQ(options.chk_DeleteVideoAP.Value, 1);
    EXPECT_EQ(test.Prog.Settings.Mkvmerge_Path_Ini, QDir::toNativeSeparators(u"/opt/mkvmerge"_s));
    EXPECT_EQ(options.AudioFilterMode, 2);
    EXPECT_EQ(options.SubsFilter.Count, 3);
    EXPECT_EQ(options.SubsFilterMode, 4);
    EXPECT_EQ(options.SubsFilter.Top, 4);
    EXPECT_FALSE(options.SubsFilter.HasBox || form.txt_AudioDelayValue.Active);
    EXPECT_TRUE(options.AudioFilter.HasBox) << "a missing place is the main form's";
    EXPECT_TRUE(options.chk_UseSubfolders.Enabled && options.Use_Attachment_Subfolders && options.Add_Attachments_On);
    EXPECT_TRUE(options.lbl_ChapsFormat.Enabled && form.btn_RunVantorra.Enabled);
    EXPECT_EQ(test.Prog.Attachments_Dialog.lbl_AttachmentsPath.Caption, QString::fromUtf8(folder));
    EXPECT_EQ(options.Path_Videos, QString::fromUtf8(videos));
    EXPECT_TRUE(test.Prog.Settings.Run_Is_Default_Flag && test.Prog.Settings.Settings_Loaded);
    EXPECT_TRUE(test.Prog.Settings.Extensions.Delete_Source_Only_After_Success);
}

TEST(SettingsStore, WithSaveOnExitOffOnlyThatSettingIsWritten)
{
    Test_Program test;
    Read_Text(test, "Save Settings on Exit=True\n[Audio]\nAudio Delay=5\n");
    const QByteArray before = test.Read(u"app/Vantorra.ini"_s);
    test.Prog.Options.Audio_Delay = u"6"_s;
    mnu_SaveOnQuit_Click(test.Prog);
    EXPECT_EQ(test.Read(u"app/Vantorra.ini"_s), before) << "the tick alone writes nothing";
    mnu_SaveNow_Click(test.Prog);
    EXPECT_EQ(test.Read(u"app/Vantorra.ini"_s).replace("\r\n", "\n"), QByteArray(before).replace("=True", "=False"));
}

TEST(SettingsStore, AFileWithThatSettingAloneReadsAsTheFirstOneWould)
{
    Test_Program test;
    test.Prog.Form.Place = {.Left = 1, .Top = 2, .Width = 800, .Height = 600};
    test.Write(u"app/Vantorra.ini"_s, "[MainWindow]\nSave Settings on Exit=False\n");
    Read_Settings(test.Prog);
    EXPECT_FALSE(test.Prog.Settings.Save_On_Exit);
    EXPECT_EQ(test.Prog.Form.Place.Width, 800);
    // A missing key would mean that these are on.
    EXPECT_FALSE(test.Prog.Options.Delete_Video_After || test.Prog.Options.mnu_AppendLogs);
    EXPECT_EQ(test.Read(u"app/Vantorra.ini"_s), "[MainWindow]\nSave Settings on Exit=False\n");
}

TEST(SettingsStore, SavingNowResetsTheLogViewersFontAlone)
{
    Test_Program test;
    Read_Text(test, "[ProcessLog]\nSet Font Size=20\n[View Video File Info]\nSet Font Size=20\n");
    Write_Settings(test.Prog, false);
    EXPECT_EQ(test.Prog.Settings.ProcessLog_Font_Size, 20);
    mnu_SaveNow_Click(test.Prog);
    const Ini_Document document = Load_Ini_File(test.Prog.Settings.Ini_File);
    EXPECT_EQ(document.Value(u"ProcessLog"_s, u"Set Font Size"_s), u"10"_s);
    EXPECT_EQ(document.Value(u"View Video File Info"_s, u"Set Font Size"_s), u"20"_s);
}

TEST(SettingsStore, ABoxThatIsNeitherOnNorOffEndsTheWritingAtItsRow)
{
    Test_Program test;
    Read_Text(test, "Mine=stays\n[Audio]\nAudio Delay=5\nAdd Audio Files=Perhaps\nUse Audio .opt files=Off\n"
                    "[Subtitles]\nAdd Subtitles=Off\n");
    test.Prog.Options.Audio_Delay = u"6"_s;
    test.Prog.Options.chk_UseAudioOpts.Value = 1;
    test.Prog.Options.chk_AddSubs.Value = 1;
    const Caught_Error error = Error_Of([&] { Write_Settings(test.Prog, false); });
    EXPECT_EQ(error.Number, 9);
    EXPECT_TRUE(error.Message.contains(u"[Audio] \"Add Audio Files\""_s)) << error.Message.toStdString();
    const Ini_Document document = Load_Ini_File(test.Prog.Settings.Ini_File);
    EXPECT_EQ(document.Value(u"Audio"_s, u"Audio Delay"_s), u"6"_s) << "ahead of it: new";
    EXPECT_EQ(document.Value(u"Audio"_s, u"Add Audio Files"_s), u"Perhaps"_s);
    EXPECT_EQ(document.Value(u"Audio"_s, u"Use Audio .opt files"_s), u"Off"_s) << "behind it: as it was";
    EXPECT_EQ(document.Value(u"Subtitles"_s, u"Add Subtitles"_s), u"Off"_s);
    EXPECT_EQ(document.Value(u"MainWindow"_s, u"Mine"_s), u"stays"_s);
    EXPECT_EQ(document.Value(u"MainWindow"_s, u"Save Settings on Exit"_s), u"True"_s);
}

TEST(SettingsStore, ANumberThatIsNoneIsAnErrorThatNamesFileSectionAndKey)
{
    const QByteArray noise("\x7F"
                           "ELF\x02\x01\x00\x00[\xFF\xFE=\x00",
                           13);
    const QByteArray place = "Window Size and Position (T,L,W,H,MM)=";
    // The file, the section and key that are named, the error.
    const std::tuple<QByteArray, QString, int> claims[] = {
        {"", u"[MainWindow] \"Top\""_s, 13},
        {noise, u"[MainWindow] \"Top\""_s, 13},
        {"[MainWindow]\nTop=1\nLef", u"[MainWindow] \"Left\""_s, 13},
        {"[MainWindow]\nTop=1\nLeft=one\n", u"[MainWindow] \"Left\""_s, 13},
        {"[MainWindow]\nTop=1\nLeft=1\nHeight=1\nWidth=99999999999\n", u"[MainWindow] \"Width\""_s, 6},
        {Window_Place + "[ProcessLog]\nSet Font Size=big\n", u"[ProcessLog] \"Set Font Size\""_s, 13},
        {Window_Place + "[ProcessLog]\nSet Font Size=\n", u"[ProcessLog] \"Set Font Size\""_s, 13},
        {Window_Place + "[ProcessLog]\n" + place + "1:2:x:4:5\n", u"[ProcessLog] \"Window Size"_s, 13},
        {Window_Place + "[View Video File Info]\nNot First Run=perhaps\n",
         u"[View Video File Info] \"Not First Run\""_s, 13},
        {Window_Place + "[Audio Option Files]\n" + place + "-2147483648:2:3:4:5\n",
         u"[Audio Option Files] \"Window Size"_s, 6},
    };
    for (const auto& [text, section_and_key, number] : claims) {
        Test_Program test;
        test.Write(u"app/Vantorra.ini"_s, text);
        const Caught_Error error = Error_Of([&] { Read_Settings(test.Prog); });
        EXPECT_EQ(error.Number, number) << text.toStdString();
        EXPECT_TRUE(error.Subject.contains(test.Prog.Settings.Ini_File)) << error.Subject.toStdString();
        EXPECT_TRUE(error.Subject.contains(section_and_key)) << error.Subject.toStdString();
        EXPECT_EQ(test.Read(u"app/Vantorra.ini"_s), text) << "the file stays as it was";
    }
}

TEST(SettingsStore, AFileThatCantBeWrittenIsToldAndTheProgramGoesOn)
{
    Test_Program test;
    Read_Text(test, "");
    test.Prog.Settings.Ini_File = test.Path(u"app/missing/Vantorra.ini"_s);
    Write_Settings(test.Prog, false);
    ASSERT_EQ(test.Person.Messages.size(), 1U);
    EXPECT_TRUE(test.Person.Messages[0].Text.contains(test.Prog.Settings.Ini_File));
    test.Prog.Settings.Ini_File = test.Path(u"videos"_s);
    Write_Settings(test.Prog, false);
    EXPECT_EQ(test.Person.Messages.size(), 2U);
}

TEST(SettingsStore, AnOverrideIsReadAsIfTheFileSaidSo)
{
    using Result = Override_Result;
    const std::pair<Result, QStringList> claims[] = {
        {Result::Taken,
         {u"audio/AUDIO delay= 70 "_s, u"Subtitles/Set All Subtitle defaults to no/yes=no"_s,
          u"Other Options/Set Custom File Title Text=\"a=b/c\""_s,
          u"Other Options/Set Custom Video Title Text=one\ntwo"_s, u"Menu/Log Verbosity=5"_s,
          u"Experimental/Vantorra Run is Default=True"_s}},
        {Result::Without_Effect,
         {u"Paths/Last Videos Path=/x/"_s, u"Paths/Last Target Path=/x/"_s, u"Audio/Audio Delay Adjust=On"_s,
          u"Audio/Apply custom Audio Filter.Enabled=Disabled"_s, u"Vantorra - by Zarnegar/Version=9"_s}},
        {Result::Not_Understood,
         {u"Audio/Add Audio Files=maybe"_s, u"Audio/Audio Delay=ten"_s, u"Extensions/Careful Batch=yes"_s,
          u"Menu/Log Verbosity=loud"_s}},
        {Result::Unknown_Key, {u"Audio/No Such Key=1"_s}},
        {Result::No_Assignment, {u"Audio Delay=1"_s, u"Audio/Audio Delay"_s, u"/=/"_s, u""_s}},
    };
    Test_Program test;
    for (const auto& [result, assignments] : claims)
        for (const QString& assignment : assignments)
            EXPECT_EQ(Add_Override(test.Prog, assignment), result) << assignment.toStdString();
    Read_Text(test, "[Audio]\nAudio Delay=1\n");
    EXPECT_EQ(test.Prog.Options.Audio_Delay, u"70"_s);
    EXPECT_EQ(test.Prog.Options.chk_SubDefaults.Tag, u"no"_s);
    EXPECT_EQ(test.Prog.Options.Custom_File_Title, u"a=b/c"_s);
    EXPECT_EQ(test.Prog.Options.Custom_Video_Title, u"one two"_s);
    EXPECT_EQ(test.Prog.Options.Log_Verbosity, 5);
    EXPECT_EQ(Value_In_Force(*Find_Row(u"Audio"_s, u"Audio Delay"_s), test.Prog), u"70"_s);
}

TEST(SettingsStore, APathThatWouldReadBackAsAnotherIsNotStored)
{
    Test_Program test;
    Read_Text(test, "");
    test.Prog.Options.Path_Audios = u"/a\nb/"_s;
    test.Prog.Options.Path_Subtitles = u"/"_s + QString(3000, u'x');
    test.Prog.Options.Path_Chapters = u"/a \"b\";c/"_s;
    Write_Settings(test.Prog, false);
    const Ini_Document document = Load_Ini_File(test.Prog.Settings.Ini_File);
    EXPECT_EQ(document.Value(u"Paths"_s, u"Last Audios Path"_s), u""_s);
    EXPECT_EQ(document.Value(u"Paths"_s, u"Last Subtitles Path"_s), u""_s);
    EXPECT_EQ(document.Value(u"Paths"_s, u"Last Chapters Path"_s), u"/a \"b\";c/"_s);
}
