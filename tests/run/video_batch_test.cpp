#include "run/video_batch_fixture.h"

#include "support/death_words.h"
#include "support/disk_names.h"

#include <QFile>
#include <filesystem>

static bool Hard_Link(const QString& file, const QString& name)
{
    std::error_code error;
    std::filesystem::create_hard_link(Native_Path(file), Native_Path(name), error);
    return !error;
}

TEST_F(VideoBatch, NamesAreFoundByTheirLoweredExtensionAndKeptAsTheyAre)
{
    for (const QString& name : {u"a.MKV"_s, u"b.mp4"_s, u".hidden.ts"_s, u"notes.txt"_s, u"clip.m"_s, u"plain"_s})
        Test.Write(u"videos/"_s + name, "x");
    QDir().mkpath(Test.Path(u"videos/folder.mkv"_s));
    QStringList list = {u"old"_s};
    EXPECT_TRUE(Find_Video_Files(Prog, Prog.Options.Path_Videos, Video_Extensions, list));
    list.sort();
    EXPECT_EQ(list, (QStringList{u".hidden.ts"_s, u"a.MKV"_s, u"b.mp4"_s}));
    EXPECT_FALSE(Find_Video_Files(Prog, Test.Path(u"nowhere/"_s), Video_Extensions, list));
    EXPECT_EQ(list, QStringList{u""_s});
}

TEST_F(VideoBatch, TheBoxesCountWhatIsFoundAndDone)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    QStringList seen = {Prog.Form.pic_TargetPath.Caption};
    Test.Person.On_Pump = [&] {
        if (const QString& now = Prog.Form.pic_TargetPath.Caption; !seen.contains(now))
            seen += now;
    };
    EXPECT_TRUE(Run());
    EXPECT_EQ(Prog.Form.pic_VideosPath.Caption, u" Video Files Path (drag 'n drop)   1 File Found "_s);
    EXPECT_EQ(seen.mid(1), (QStringList{u" Target Path (drag 'n drop)   0 Files Done "_s,
                                        u" Target Path (drag 'n drop)   1 File Done "_s}));
    EXPECT_EQ(Prog.Form.lbl_ProgressFinished.Caption, u"100%"_s);
}

TEST_F(VideoBatch, EveryEntryIsDigestedAndOnlyVideosAreWritten)
{
    // No progress: on a busy machine it may arrive in one chunk with the closing line, which then goes with it.
    Write_Stand_In(Test, u"tools/mkvmerge"_s, QByteArray(Merge).replace("printf 'Progress: 100%%\\r'; ", ""));
    // A fragment of an extension makes a video that isn't counted as found.
    for (const QString& name : {u"a.mkv"_s, u"clip.m"_s, u"notes.txt"_s, u"FILM.AVI"_s})
        Test.Write(u"videos/"_s + name, "x");
    const int descriptors = Open_Descriptors();
    EXPECT_TRUE(Run());
    EXPECT_EQ(Open_Descriptors(), descriptors);
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_EQ(Names(u"target"_s), (QStringList{u"AVI.mkv"_s, u"a.mkv"_s, u"clip.mkv"_s}));
    EXPECT_EQ(Heard.Files, 2);
    EXPECT_EQ(Heard.Outcomes.size(), 3U);
    EXPECT_EQ(Prog.Form.pic_VideosPath.Caption, u" Video Files Path (drag 'n drop)   2 Files Found "_s);
    EXPECT_EQ(Prog.Form.pic_TargetPath.Caption, u" Target Path (drag 'n drop)   3 Files Done "_s);
    EXPECT_EQ(Test.Results().count(u"@"_s), 4);
    EXPECT_EQ(Test.Results().count(u"               Multiplexing took 0 seconds."_s), 3);
    EXPECT_EQ(
        Test.Results().count(u"            -- Processing video file - \""_s + Test.Path(u"videos/a.mkv"_s) + u'"'), 1);
}

TEST_F(VideoBatch, AFailingFileDoesNotStopTheOthers)
{
    Test.Write(u"videos/empty.mkv"_s);
    EXPECT_TRUE(Run());
    EXPECT_EQ(Test.Codes(), QList<int>{13});
    EXPECT_EQ(Heard.Outcomes.at(0).Exit, -1);
    EXPECT_EQ(Heard.Outcomes.at(0).Reason, u"ffprobe says: [mov] no moov"_s);
    EXPECT_TRUE(Prog.Form.pic_TargetPath.Caption.endsWith(u"1 File Done "_s));

    Test.Write(u"videos/empty.mkv"_s, "x");
    // What mkvmerge does, its status, the reason or the warning.
    const std::tuple<QByteArray, int, QString> claims[] = {
        {"exit 2", 2, u"mkvmerge ended with status 2 and said nothing"_s},
        {"echo banner; echo Bye; printf 'Progress: 3%%\\r'; exit 2", 2,
         u"mkvmerge ended with status 2; its last words: Bye"_s},
        {"printf 'Progress: 3%%\\rError: no\\001space\\nError: b'; exit 2", 2, u"mkvmerge says: no\u0001space"_s},
        {"echo 'Warning: odd'; exit 1", 1, u"odd"_s},
        {"kill -9 $$", -1, u"mkvmerge was ended by "_s},
        {"", 0, {}},
    };
    for (const auto& [merge, exit, reason] : claims) {
        Write_Stand_In(Test, u"tools/mkvmerge"_s, merge);
        EXPECT_TRUE(Run());
        const File_Outcome& outcome = Heard.Outcomes.back();
        const bool is_done = exit == 0 || exit == 1;
        EXPECT_EQ(std::max(outcome.Exit, -1), exit);
        EXPECT_EQ(outcome.Status, is_done ? File_Outcome::Kind::Done : File_Outcome::Kind::Failed);
        EXPECT_EQ(outcome.Reason + outcome.Warnings.join(u'|'), exit < 0 ? reason + What_Ended(outcome.Exit) : reason);
        EXPECT_EQ(outcome.Output, Test.Path(u"target/empty.mkv"_s));
    }
    EXPECT_EQ(Heard.Outcomes.size(), 1 + std::size(claims));
}

TEST_F(VideoBatch, AMkvmergeThatCannotRunStopsTheBatchAheadOfAnyDeletion)
{
    if (!Failed_Starts_Are_Told)
        GTEST_SKIP();
    Test.Write(u"videos/a.mkv"_s, "x");
    Test.Write(u"videos/b.mkv"_s, "x");
    Prog.Options.Delete_Video_After = true;
    for (const QString& tool : {Test.Path(u"missing"_s), u"mkvmerge"_s, u""_s, Test.Write(u"plain"_s, "#!/bin/sh\n")}) {
        Test.Person.Messages.clear();
        Heard.Started.clear();
        Prog.Tools.System_MKVMerge_Path = tool;
        EXPECT_FALSE(Run());
        EXPECT_EQ(Test.Codes(), QList<int>{9});
        EXPECT_EQ(Heard.Started.size(), 1);
        EXPECT_EQ(Heard.Outcomes.back().Status, File_Outcome::Kind::Failed);
    }
    EXPECT_EQ(Names(u"videos"_s), (QStringList{u"a.mkv"_s, u"b.mkv"_s}));
}

TEST_F(VideoBatch, ANameWithoutExtensionIsReportedByWhatWentBefore)
{
    for (const QString& name : {u"1"_s, u"a.mkv"_s, u"plain"_s})
        Test.Write(u"videos/"_s + name, "x");
    for (const bool searched : {false, true}) {
        Prog.Run.Add_Attachments_On = searched;
        EXPECT_TRUE(Run());
        EXPECT_TRUE(Prog.Form.pic_TargetPath.Caption.endsWith(u"1 File Done "_s));
    }
    EXPECT_EQ(Test.Codes(), (QList<int>{70, 70, 70, 71}));
    EXPECT_EQ(Heard.Outcomes.size(), 6U);
}

TEST_F(VideoBatch, AFileThatVanishesIsPassedOver)
{
    Write_Stand_In(Test, u"tools/mkvmerge"_s, "for file in \"$(dirname \"$0\")\"/../videos/*; do rm \"$file\"; done\n");
    for (const QString& name : {u"a.mkv"_s, u"b.mkv"_s, u"c.mkv"_s})
        Test.Write(u"videos/"_s + name, "x");
    EXPECT_TRUE(Run());
    EXPECT_EQ(Heard.Started.size(), 1);
    EXPECT_TRUE(Test.Person.Messages.empty());
    EXPECT_EQ(Test.Results().count(u"@"_s), 3);
}

TEST_F(VideoBatch, ADryRunAssemblesAndTouchesNothing)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    Test.Write(u"videos/a_Track.srt"_s, "x");
    Prog.Options.Delete_Video_After = Prog.Options.Delete_Sundry_Files = true;
    Prog.Run.Dry_Run = true;
    EXPECT_TRUE(Run());
    EXPECT_EQ(Heard.Commands, QStringList{Test.Path(u"target/a.mkv"_s)});
    EXPECT_EQ(Heard.Outcomes.at(0).Status, File_Outcome::Kind::Not_Run);
    EXPECT_EQ(Names(u"videos"_s).size(), 2);
    EXPECT_EQ(Names(u"target"_s), QStringList());
}

TEST_F(VideoBatch, AnOutputThatHasANameAmongTheSourcesOrOutsideOfTheTargetIsNotWrittenThrough)
{
    const auto link_to = [this](const QString& file) {
        return [this, file] { return Hard_Link(file, Guarded.Output); };
    };
    Expect_Guarded({{"to its source", link_to(Guarded.Source), Guarded.Same},
                    {"to another video", link_to(Guarded.Other), Guarded.Same},
                    {"out", link_to(Guarded.Elsewhere), u"output"_s},
                    {"within", link_to(Test.Write(u"target/c.mkv"_s)), {}}});
    EXPECT_EQ(Test.Results().filter(Guarded.Same).size(), 2);
}

TEST_F(VideoBatch, TheSecondWriterOfAFileIsWarnedOfByWhateverName)
{
    for (const QString& name : {u"a.avi"_s, u"a.mp4"_s, u"b.avi"_s, u"c.avi"_s})
        Test.Write(u"videos/"_s + name, "x");
    // As where case doesn't count: two names, one file.
    ASSERT_TRUE(Hard_Link(Test.Write(u"target/b.mkv"_s), Test.Path(u"target/c.mkv"_s)));
    EXPECT_TRUE(Run());
    EXPECT_EQ(Prog.Run.Shared_Outputs.size(), 2);
    EXPECT_EQ(Test.Results().filter(u"write the same file"_s).size(), 2);
    EXPECT_EQ(Prog.Run.Shared_Outputs.filter(u"a.avi"_s).filter(u"a.mp4"_s).size(), 1);
    Prog.Run.Dry_Run = true;
    EXPECT_TRUE(Run());
    EXPECT_EQ(Prog.Run.Shared_Outputs.size(), 2);
}

TEST_F(VideoBatch, AHaltTakesOnlyAwayWhatItsOwnMkvmergeWasWriting)
{
    struct Claim
    {
        const char* What;
        QString Name;
        QByteArray Merge;
        QString Halt_At; ///< once this file is there
        QByteArray Left; ///< of the output; empty: it went to the trash
    };

    const QByteArray wait = "; : > \"$4.now\"; exec sleep 1000";
    const QString now = u"target/a.mkv.now"_s;
    const Claim claims[] = {
        {"half an .mkv", u"a.mkv"_s, "echo half > \"$4\"" + wait, now, ""},
        {"half an .avi", u"a.avi"_s, "echo half > \"$4\"" + wait, now, "half\n"},
        {"not begun", u"a.mkv"_s, wait.mid(2), now, "earlier"},
        {"ended by itself", u"a.mkv"_s, "echo whole > \"$4\"; : > \"$4.now\"", now, "whole\n"},
        {"during the inspection", u"a.mkv"_s, "echo half > \"$4\"", u"videos/a.mkv"_s, "earlier"},
    };
    for (const Claim& claim : claims) {
        Test_Program test;
        test.Prog.Tools.FFProbe_Path = Prog.Tools.FFProbe_Path;
        test.Prog.Tools.System_MKVMerge_Path = Write_Stand_In(test, u"mkvmerge"_s, claim.Merge);
        test.Prog.Options.Delete_Video_After = true;
        test.Write(u"videos/"_s + claim.Name, "x");
        test.Write(u"target/a.mkv"_s, "earlier");
        test.Person.On_Pump = [&] { test.Prog.Run.Halt_Requested = QFile::exists(test.Path(claim.Halt_At)); };
        EXPECT_FALSE(Process_Video_Files(test.Prog));
        EXPECT_EQ(test.Read(u"target/a.mkv"_s), claim.Left) << claim.What;
        EXPECT_EQ(QFile::exists(test.Path(u"target/a.mkv"_s)), !claim.Left.isEmpty()) << claim.What;
        EXPECT_TRUE(QFile::exists(test.Path(u"videos/"_s + claim.Name)) || claim.Left == "whole\n") << claim.What;
        EXPECT_EQ(test.Faults().constLast(), u"*** Process halted before finishing."_s);
        EXPECT_EQ(Children_Left(), 0);
    }
}

TEST_F(VideoBatch, AHaltDuringTheInspectionNeverStartsMkvmerge)
{
    Test.Write(u"videos/a.avi"_s, "x");
    Test.Person.On_Pump = [&] { Prog.Run.Halt_Requested = !Prog.Run.Current_Video_Path.isEmpty(); };
    EXPECT_FALSE(Run());
    EXPECT_TRUE(Heard.Commands.isEmpty());
    EXPECT_EQ(Heard.Outcomes.at(0).Status, File_Outcome::Kind::Not_Run);
    EXPECT_TRUE(Test.Results().isEmpty());
}
