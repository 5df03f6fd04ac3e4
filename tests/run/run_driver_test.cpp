#include "common/stand_in_tool.h"
#include "common/test_installation.h"
#include "common/test_trash.h"

#include "rules/video_list.h"
#include "run/halt.h"
#include "run/list_runs.h"
#include "run/run_driver.h"
#include "run/video_list_watch.h"
#include "support/platform_names.h"

#include <QFile>

static const QByteArray Probe = "case \"$*\" in\n"
                                "*show_format*) echo 'format|filename=v.avi|duration=60.5|size=1';;\n"
                                "*show_streams*) echo 'stream|index=0|codec_type=video|width=320|height=180';;\n"
                                "*) echo 'ffprobe version 5.1 Copyright (c) 2007-2022 the FFmpeg developers';;\n"
                                "esac";

/// A program with stand-ins for both tools and one video.
struct Driver_Test : Test_Program
{
    Driver_Test()
    {
        Write_Stand_In(*this, u"app/ffprobe"_s, Probe);
        Mkvmerge("printf 'Progress: 10%%\\n'; sleep 0.1; echo 'Multiplexing took 1 second.'");
        Write(u"videos/v.avi"_s, "x");
    }

    /// What mkvmerge does; its arguments are kept in the file "arguments".
    void Mkvmerge(const QByteArray& body)
    {
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(
            *this, u"tools/mkvmerge"_s, "echo \"$@\" > '" + Path_In_Script(Path(u"arguments"_s)) + "'\n" + body);
    }

    Press_Result Press() { return btn_RunVantorra_MouseUp(Prog, {.X = 5, .Y = 5, .Width = 10, .Height = 10}); }

    QString Log() { return QString::fromUtf8(Read(u"app/Vantorra_Process.log"_s)); }

    /// What the form shows and which flags are up, in one line.
    QString State() const
    {
        const Main_Form& form = Prog.Form;
        QStringList words;
        const auto add = [&words](bool holds, const QString& word) {
            if (holds)
                words += word;
        };
        add(form.pic_QuitButton.Visible, u"quit"_s);
        add(form.btn_RunVantorra.Visible, u"run"_s);
        add(form.btn_Halt.Visible, (form.btn_Halt.Enabled ? u"+"_s : u"-"_s) + form.btn_Halt.Caption);
        add(form.btn_ViewVidInfo.Enabled, u"info"_s);
        add(form.fram_WholeForm.Enabled, u"open"_s);
        add(form.lbl_ProgressFinished.Visible, form.lbl_ProgressFinished.Caption);
        add(Prog.Run.Run_In_Progress, u"in-progress"_s);
        add(Prog.Run.Halt_Requested, u"halt-requested"_s);
        return words.join(u' ');
    }
};

TEST(Run_Driver, OnlyAPlainLeftReleaseOnTheButtonStartsARun)
{
    constexpr int size = 10;
    const std::tuple<Mouse_Release, bool> cases[] = {
        {{.X = -1, .Y = 5, .Width = size, .Height = size}, true},
        {{.X = 5, .Y = -1, .Width = size, .Height = size}, true},
        {{.X = 11, .Y = 5, .Width = size, .Height = size}, true},
        {{.X = 5, .Y = 11, .Width = size, .Height = size}, true},
        {{.Button = Mouse_Button::Right, .X = 11, .Y = 5, .Width = size, .Height = size}, true},
        {{.Modifiers = {.Shift = true}, .X = -1, .Y = 5, .Width = size, .Height = size}, true},
        {{.Button = Mouse_Button::Right, .X = 5, .Y = 5, .Width = size, .Height = size}, false},
        {{.Modifiers = {.Shift = true}, .X = 5, .Y = 5, .Width = size, .Height = size}, false},
        {{.Modifiers = {.Control = true}, .X = 5, .Y = 5, .Width = size, .Height = size}, false},
        {{.Modifiers = {.Alt = true}, .X = 5, .Y = 5, .Width = size, .Height = size}, false},
    };
    for (const auto& [release, parked] : cases) {
        Driver_Test test;
        const QString before = test.State();
        EXPECT_EQ(btn_RunVantorra_MouseUp(test.Prog, release), Press_Result::Ignored);
        EXPECT_EQ(test.Prog.Form.Focus, parked ? u"btn_NOP"_s : QString());
        EXPECT_EQ(test.State(), before);
        EXPECT_TRUE(test.Log().isEmpty());
        EXPECT_EQ(test.Person.Pumps, 0);
    }
    for (const int edge : {0, size}) {
        Driver_Test test;
        const Mouse_Release release = {.X = edge, .Y = edge, .Width = size, .Height = size};
        EXPECT_EQ(btn_RunVantorra_MouseUp(test.Prog, release), Press_Result::Finished) << "the edge is the button's";
    }
}

TEST(Run_Driver, APressWhileThePressBeforeIsAtWorkHasNoEffect)
{
    Driver_Test test;
    test.Mkvmerge("echo run >> '" + Path_In_Script(test.Path(u"runs"_s)) + "'");
    int nested = 0;
    test.Person.On_Pump = [&] {
        ++nested;
        EXPECT_EQ(test.Press(), Press_Result::Ignored);
    };
    EXPECT_EQ(test.Press(), Press_Result::Finished);
    EXPECT_GT(nested, 0);
    EXPECT_EQ(test.Read(u"runs"_s), "run\n");
    test.Person.On_Pump = nullptr;
    EXPECT_EQ(test.Press(), Press_Result::Finished) << "the next press counts again";
}

TEST(Run_Driver, MissingFoldersAndVideosAreRefusedWithOneLineInTheLog)
{
    const std::tuple<QString, QString, QString> cases[] = {
        {u"none/"_s, u"none/"_s, u"        -- The Video path and the Target path do not exist!"_s},
        {QString(), u"target/"_s, u"        -- The Video path does not exist!"_s},
        {u"videos/"_s, u"none/"_s, u"        -- The Target path does not exist!"_s},
        {u"target/"_s, u"app/"_s, u"        -- NO VIDEO FILES FOUND!"_s},
    };

    for (const auto& [videos, target, line] : cases) {
        Driver_Test test;
        test.Write(u"target/readme.txt"_s);
        test.Write(u"app/Vantorra_Interim.log"_s);
        test.Prog.Options.Path_Videos = videos.isEmpty() ? videos : test.Path(videos);
        test.Prog.Options.Path_Target = test.Path(target);
        test.Prog.Logs.Log_Results.AppendLine(u"told at start-up"_s);
        const QString before = test.State();

        EXPECT_EQ(test.Press(), Press_Result::Refused);
        EXPECT_EQ(test.State(), before);
        EXPECT_TRUE(test.Log().contains(u"told at start-up\r\n"_s + line + u"\r\n"_s)) << test.Log().toStdString();
        EXPECT_EQ(test.Log().count(u"This entry generated on"_s), 1);
        EXPECT_TRUE(test.Results().isEmpty());
        EXPECT_TRUE(QFile::exists(test.Path(u"app/Vantorra_Interim.log"_s)));
        EXPECT_EQ(test.Prog.Form.lbl_VideoPathFault.Caption == u"NO VIDEO FILES FOUND!"_s,
                  line.contains(u"NO VIDEO"_s));
    }
}

TEST(Run_Driver, ACarefulRunTakesWhatIsTickedAndAClassicOneSaysThatItTakesNoSubfoldersAndOneVideoAtATime)
{
    struct Warnings : Run_Listener
    {
        QStringList Texts;

        void Warned(const QString&, const QString& text) override { Texts += text; }
    };

    Driver_Test test;
    Warnings heard;
    test.Prog.Settings.Extensions = {.Careful_Batch = true, .Videos_At_Once = 2, .Include_Subfolders = true};
    Follow_Videos_Folder(test.Prog);
    Tick_Video(test.Prog, 0);
    test.Prog.Listener = &heard;
    Run_Ticked(test.Prog, {.X = 5, .Y = 5, .Width = 10, .Height = 10});
    EXPECT_TRUE(test.Log().contains(u"        -- No video is ticked in the list.\r\n"_s));
    EXPECT_EQ(heard.Texts, QStringList());

    test.Prog.Settings.Extensions.Careful_Batch = false;
    EXPECT_EQ(test.Press(), Press_Result::Finished);
    EXPECT_EQ(heard.Texts.size(), 2);
}

TEST(Run_Driver, WithoutFfprobeOrAnyMkvmergeAPressEndsWithItsReportAndNoLogEntry)
{
    const Test_Installation nothing_installed;
    for (const QString& there : {u"local mkvmerge"_s, u"ffprobe"_s, u"mkvmerge"_s}) {
        Driver_Test test;
        const QString mkvmerge = test.Prog.Tools.System_MKVMerge_Path;
        if (there == u"mkvmerge"_s)
            QFile::remove(test.Path(Executable_Name(u"app/ffprobe"_s)));
        else
            test.Prog.Tools.System_MKVMerge_Path = test.Path(Executable_Name(u"gone/mkvmerge"_s));
        const bool has_local = there == u"local mkvmerge"_s;
        test.Prog.Tools.Local_MKVMerge_Path = has_local ? mkvmerge : QString();
        EXPECT_EQ(test.Press(), has_local ? Press_Result::Finished : Press_Result::Refused);
        EXPECT_EQ(test.Codes(), QList<int>{there == u"mkvmerge"_s ? 20 : 52});
        EXPECT_EQ(test.Log().isEmpty(), !has_local);
        EXPECT_EQ(test.Prog.Tools.System_MKVMerge_Path == mkvmerge, there != u"ffprobe"_s);
    }
}

TEST(Run_Driver, NoMkvmergeAtAllFailsAtItsFirstChildAndStillCountsAsFinished)
{
    Driver_Test test;
    test.Prog.Tools.System_MKVMerge_Path.clear();
    EXPECT_EQ(test.Press(), Press_Result::Finished);
    EXPECT_EQ(test.Codes(), QList<int>{9});
    EXPECT_EQ(test.Prog.Form.lbl_ProgressFinished.Caption, u"FINISHED"_s);
    EXPECT_FALSE(test.Prog.Form.lbl_ProgressFinished.Visible) << "the run never showed a percentage";
}

TEST(Run_Driver, TheFormChangesInItsOrder)
{
    Driver_Test test;
    QStringList states;
    test.Person.On_Pump = [&] {
        if (const QString state = test.State(); states.isEmpty() || states.constLast() != state)
            states += state;
    };
    EXPECT_EQ(test.Press(), Press_Result::Finished);
    states += test.State();
    EXPECT_EQ(states, (QStringList{u"quit +HALT open"_s, u"+HALT"_s, u"+HALT in-progress"_s, u"+HALT 10% in-progress"_s,
                                   u"+HALT FINISHED"_s, u"quit run info open FINISHED"_s}));
    EXPECT_EQ(test.Prog.Form.Progress, Progress_Look::Finished);
    EXPECT_TRUE(test.Prog.Form.btn_Halt.Enabled);
}

TEST(Run_Driver, AHaltByTheButtonEndsTheRunAndIsWrittenDown)
{
    Driver_Test test;
    test.Mkvmerge("echo 'Progress: 10%'; exec sleep 1000");
    test.Person.On_Pump = [&] {
        if (test.Prog.Form.lbl_ProgressFinished.Visible && test.Prog.Run.Run_In_Progress)
            btn_Halt_MouseUp(test.Prog);
        if (test.Prog.Run.Halt_Requested && test.Prog.Run.Run_In_Progress) {
            EXPECT_TRUE(test.State().startsWith(u"-HALTING"_s)) << test.State().toStdString();
        }
    };
    EXPECT_EQ(test.Press(), Press_Result::Interrupted);
    EXPECT_EQ(test.State(), u"quit run info open INTERRUPTED"_s);
    EXPECT_EQ(test.Prog.Form.Progress, Progress_Look::Interrupted);
    EXPECT_EQ(test.Prog.Form.btn_Halt.Caption, u"HALT"_s);
    EXPECT_TRUE(test.Log().contains(u"        *** Process halted before finishing!\r\n"_s));
    EXPECT_EQ(Children_Left(), 0);
}

TEST(Run_Driver, AHaltWorksFromThePressOnWhateverHangs)
{
    for (const QByteArray& hangs : {QByteArray("-version"), QByteArray("show_format"), QByteArray("show_streams")}) {
        Driver_Test test;
        Write_Stand_In(test, u"app/ffprobe"_s,
                       "case \"$*\" in *" + hangs + "*) : > '" + Path_In_Script(test.Path(u"app/ffprobe.now"_s)) +
                           "'; sleep 1000 & wait;; esac\n" + Probe);
        test.Person.On_Pump = [&] {
            // Escape, as the form passes it on; the button does the same.
            if (test.Prog.Form.btn_Halt.Visible && QFile::exists(test.Path(u"app/ffprobe.now"_s)))
                Halt_Key(test.Prog);
        };
        EXPECT_EQ(test.Press(), Press_Result::Interrupted) << hangs.toStdString();
        EXPECT_TRUE(test.Person.Messages.empty()) << "no file is to blame";
        EXPECT_FALSE(QFile::exists(test.Path(u"arguments"_s))) << "mkvmerge was never started";
        EXPECT_TRUE(test.Log().contains(u"*** Process halted before finishing!"_s));
        EXPECT_EQ(test.State(), u"quit run info open"_s);
        EXPECT_EQ(Children_Left(), 0);
    }
}

TEST(Run_Driver, AHaltOfAnEarlierMomentDoesNotReachTheRun)
{
    Driver_Test test;
    btn_Halt_MouseUp(test.Prog);
    EXPECT_EQ(test.Press(), Press_Result::Finished);
}

TEST(Run_Driver, TheHaltKeyWorksOnceAndOnlyWhileARunGoesOn)
{
    Test_Program test;
    Button& halt = test.Prog.Form.btn_Halt;
    Halt_Key(test.Prog);
    EXPECT_FALSE(test.Prog.Run.Halt_Requested);
    EXPECT_EQ(halt.Caption, u"HALT"_s);
    test.Prog.Run.Run_In_Progress = true;
    Halt_Key(test.Prog);
    EXPECT_TRUE(test.Prog.Run.Halt_Requested);
    EXPECT_EQ(halt.Caption, u"HALTING"_s);
    EXPECT_TRUE(halt.Enabled) << "unlike the button, the key leaves it enabled";
    halt.Caption = u"unchanged"_s;
    Halt_Key(test.Prog);
    EXPECT_EQ(halt.Caption, u"unchanged"_s);
}

TEST(Run_Driver, ThreeOptionsAreSampledAtThePress)
{
    const std::pair<int, bool> cases[] = {{1, true}, {1, false}, {0, true}, {2, true}};
    for (const auto& [value, enabled] : cases) {
        Driver_Test test;
        JobOptions& options = test.Prog.Options;
        for (Check_Box* box :
             {&options.chk_StripOrigAudioTitle, &options.chk_StripOrigSubsTitle, &options.chk_AddAttachments})
            *box = {.Value = value, .Enabled = enabled, .Caption = {}, .Tag = {}};
        test.Person.On_Pump = [&] {
            if (test.Prog.Run.Run_In_Progress)
                options.chk_StripOrigAudioTitle.Value = 0; // too late
        };
        test.Press();
        const bool sampled = value == 1 && enabled;
        EXPECT_EQ(test.Prog.Run.Strip_Audio_Titles, sampled);
        EXPECT_EQ(test.Prog.Run.Strip_Subtitle_Titles, sampled);
        EXPECT_EQ(test.Prog.Run.Add_Attachments_On, sampled);
    }
}

TEST(Run_Driver, VideosThatFailedAreNamedWithTheirReasonsWhenTheRunIsOver)
{
    for (const bool fails : {true, false}) {
        Driver_Test test;
        test.Mkvmerge(fails ? "echo 'Error: no such thing'; exit 2" : "echo 'Multiplexing took 1 second.'");
        for (int number = 0; number < 13; ++number)
            test.Write(u"videos/"_s + Possible_Name(u"a\n%1.avi"_s.arg(number)), "x");
        EXPECT_EQ(test.Press(), Press_Result::Finished);
        Show_Run_Warnings(test.Prog);
        ASSERT_EQ(test.Person.Messages.size(), fails ? 1U : 0U);
        if (!fails)
            continue;
        const QStringList lines = test.Person.Messages.front().Text.split(u"\r\n"_s);
        EXPECT_EQ(lines.size(), 13);
        const QString first = Possible_Name(u"a\n0.avi"_s).replace(u'\n', u"\\n"_s);
        EXPECT_EQ(lines.front(), first + u": mkvmerge says: no such thing"_s);
        EXPECT_EQ(lines.back(), u"... and 2 more");
    }
}

TEST(Run_Driver, TheSplitBoxChoosesTheSplitRun)
{
    for (const int value : {0, 1, 2}) {
        Driver_Test test;
        test.Prog.Options.chk_SplitVideos.Value = value;
        test.Prog.Options.Split_Minutes = u"30"_s;
        EXPECT_EQ(test.Press(), Press_Result::Finished);
        EXPECT_EQ(test.Read(u"arguments"_s).contains("--split duration:1800s"), value == 1);
    }
}

TEST(Run_Driver, ALeftOverInterimLogGoesToTheTrashAndOldWordsAreForgottenUnlessTheRunIsDry)
{
    for (const bool dry : {true, false}) {
        Driver_Test test;
        test.Prog.Run.Dry_Run = dry;
        test.Write(u"app/Vantorra_Interim.log"_s, "old");
        test.Prog.Logs.Log_Results.AppendLine(u"told at start-up"_s);
        EXPECT_EQ(test.Press(), Press_Result::Finished);
        EXPECT_EQ(QFile::exists(test.Path(u"app/Vantorra_Interim.log"_s)), dry);
        EXPECT_NE(Names_In_Trash().contains(u"Vantorra_Interim.log"_s), dry);
        EXPECT_EQ(test.Log().isEmpty(), dry);
        EXPECT_FALSE(test.Log().contains(u"told at start-up"_s));
        EXPECT_EQ(test.Read(u"arguments"_s).isEmpty(), dry);
    }
    Driver_Test test;
    test.Prog.Options.Log_Verbosity = 1;
    const Refused_By_Trash refused(test.Write(u"app/Vantorra_Interim.log"_s));
    EXPECT_EQ(test.Press(), Press_Result::Finished);
    EXPECT_TRUE(
        test.Log().contains(u"-- Could not be moved to the trash - \""_s + test.Path(u"app/Vantorra_Interim"_s)));
}

TEST(Run_Driver, TheEndOfALongRunIsToldAndOneThatFinishedTakesTheProgramAlong)
{
    const std::tuple<int, bool, bool> cases[] = {
        {61, true, false}, {61, true, true}, {61, false, false}, {59, true, false}};
    for (const auto& [age, on, halted] : cases) {
        Driver_Test test;
        Video_List_Watch watch(test.Prog);
        test.Prog.Listener = &watch;
        test.Prog.Settings.Extensions.Tell_At_The_End = on;
        test.Prog.Form.Quit_When_Done = on;
        test.Person.On_Pump = [&test, seconds = age, halt = halted] {
            if (!test.Prog.Run.Run_In_Progress || !test.Prog.Form.lbl_ProgressFinished.Visible)
                return;
            test.Prog.Now = [then = test.Prog.Run.Started.addSecs(seconds)] { return then; };
            if (halt)
                btn_Halt_MouseUp(test.Prog);
        };
        Run_Ticked(test.Prog, {});
        const QString counts =
            halted ? u"INTERRUPTED\n0 done, 0 with warnings, 0 failed, 0 skipped, 1 not run - 0 B in 1:01\n"_s
                   : u"FINISHED\n1 done, 0 with warnings, 0 failed, 0 skipped, 0 not run - 1 B in 1:01\n"_s;
        EXPECT_EQ(test.Person.Told_Away.value(0),
                  on && age > 60 ? u"Vantorra: "_s + counts + test.Path(u"videos/"_s) : QString());
        EXPECT_EQ(test.Person.Unloads, on && !halted ? 1 : 0);
    }
}
