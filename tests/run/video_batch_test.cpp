#include "run/video_batch.h"

#include "common/stand_in_tool.h"
#include "inspect/video_names.h"

#include <QDir>
#include <QFile>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// What an ffprobe says about a file with one video track, and about nothing that is empty.
const QByteArray Probe = "for file; do :; done\n"
                         "[ -s \"$file\" ] || { [ \"$2\" = quiet ] || echo \"[mov @ 0x5] no moov\" >&2; exit 1; }\n"
                         "case \"$*\" in\n"
                         "*-show_format*) printf 'format|filename=x|duration=1.5|size=1\\n' ;;\n"
                         "*) printf 'stream|index=0|codec_name=h264|codec_type=video|tag:language=eng\\n' ;;\n"
                         "esac\n";
/// A mkvmerge that writes its output and says so; the fourth argument is the output.
const QByteArray Merge = "echo 'mkvmerge v74.0.0'; echo 'The file has been opened for writing.'\n"
                         "sleep 0.05; printf 'Progress: 100%%\\r'; sleep 0.05\n"
                         "echo done > \"$4\"; echo 'Multiplexing took 0 seconds.'\n";

/// Gives the file a second name, by a symbolic link or by a hard one.
bool Link(const QString& file, const QString& name, bool symbolic)
{
    return symbolic ? QFile::link(file, name)
                    : ::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) == 0;
}

/// Keeps what a driver would hear.
struct Recorder : Run_Listener
{
    int Files = -1;
    QStringList Started;
    QStringList Commands;
    std::vector<File_Outcome> Outcomes;
    std::function<void()> On_Start;
    std::function<void()> On_Command;

    void Run_Started(int files) override { Files = files; }

    void File_Started(int index, const QString& source) override
    {
        Started += QString::number(index) + u' ' + source.section(u'/', -1);
        if (On_Start)
            On_Start();
    }

    void Command_Ready(const Program&, const QString&, const QString& output) override
    {
        Commands += output;
        if (On_Command)
            On_Command();
    }

    void File_Finished(const File_Outcome& outcome) override { Outcomes.push_back(outcome); }
};

struct VideoBatch : testing::Test
{
    Test_Program Test;
    Program& Prog = Test.Prog;
    Recorder Heard;

    VideoBatch()
    {
        Prog.Tools.FFProbe_Path = Write_Stand_In(Test, u"tools/ffprobe"_s, Probe);
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(Test, u"tools/mkvmerge"_s, Merge);
        Prog.Options.Log_Verbosity = 1;
        Prog.Listener = &Heard;
    }

    bool Run()
    {
        Find_Video_Files(Prog, Prog.Options.Path_Videos, Video_Extensions, Prog.Run.Video_File_List);
        return Process_Video_Files(Prog);
    }

    QStringList Names(const QString& folder) const
    {
        return QDir(Test.Path(folder)).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

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
        {"kill -9 $$", -9, u"mkvmerge was ended by the signal SIGKILL (9)"_s},
        {"", 0, {}},
    };
    for (const auto& [merge, exit, reason] : claims) {
        Write_Stand_In(Test, u"tools/mkvmerge"_s, merge);
        EXPECT_TRUE(Run());
        const File_Outcome& outcome = Heard.Outcomes.back();
        const bool is_done = exit == 0 || exit == 1;
        EXPECT_EQ(outcome.Exit, exit);
        EXPECT_EQ(outcome.Status, is_done ? File_Outcome::Kind::Done : File_Outcome::Kind::Failed);
        EXPECT_EQ(outcome.Reason + outcome.Warnings.join(u'|'), reason);
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

TEST_F(VideoBatch, WithoutADescriptorThePipeIsReported)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const auto take_all = [&limit] {
        const int next = ::dup(0);
        ::close(next);
        const rlimit none = {static_cast<rlim_t>(next), limit.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    };
    for (const bool for_mkvmerge : {true, false}) {
        Test.Person.Messages.clear();
        (for_mkvmerge ? Heard.On_Command : Heard.On_Start) = take_all;
        // ffprobe's failure is one file's, mkvmerge's ends the batch.
        EXPECT_EQ(Run(), !for_mkvmerge);
        ::setrlimit(RLIMIT_NOFILE, &limit);
        EXPECT_EQ(Test.Codes(), QList<int>{for_mkvmerge ? 8 : 11});
    }
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

TEST_F(VideoBatch, ANameThatIsNotUtf8GetsItsReport)
{
    const QByteArray path = QFile::encodeName(Test.Path(u"videos/bad_"_s)) + "\xff.mkv";
    FILE* file = ::fopen(path.constData(), "w");
    ASSERT_NE(file, nullptr);
    ::fputs("x", file);
    ::fclose(file);
    Test.Write(u"videos/good.mkv"_s, "x");
    EXPECT_TRUE(Run());
    EXPECT_EQ(Test.Codes(), QList<int>{13});
    EXPECT_EQ(Names(u"target"_s), QStringList{u"good.mkv"_s});
    ::unlink(path.constData()); // Qt can't
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

TEST_F(VideoBatch, AnOutputThatIsASourceOrHasANameOutsideOfTheTargetIsNotWrittenThrough)
{
    const QString output = Test.Path(u"target/a.mkv"_s);
    const QString elsewhere = Test.Write(u"elsewhere/old.mkv"_s, "precious");
    const QString source = Test.Write(u"videos/a.avi"_s, "precious");
    const QString other = Test.Write(u"videos/b.mkv_kept"_s, "precious");
    const auto link = [&](const QString& to) { return QFile::link(to, output); };
    const auto hard_link = [&](const QString& to) { return Link(to, output, false); };
    const QString same = u"is the same file on disk as"_s;
    // The reason; none where the output is written.
    const std::tuple<const char*, std::function<bool()>, QString> claims[] = {
        {"link to its source", [&] { return link(source); }, same},
        {"hard link to its source", [&] { return hard_link(source); }, same},
        {"link to another video", [&] { return link(other); }, same},
        {"hard link to another video", [&] { return hard_link(other); }, same},
        {"link out", [&] { return link(elsewhere); }, u"output"_s},
        {"link out by steps",
         [&] { return link(u"step"_s) && QFile::link(u"../elsewhere/old.mkv"_s, Test.Path(u"target/step"_s)); },
         u"output"_s},
        {"link to nothing out", [&] { return link(elsewhere + u"2"_s); }, u"output"_s},
        {"link to itself", [&] { return link(output); }, u"output"_s},
        {"link within", [&] { return link(Test.Write(u"target/b.mkv"_s)); }, {}},
        {"hard link out", [&] { return hard_link(elsewhere); }, u"output"_s},
        {"hard link within", [&] { return hard_link(Test.Write(u"target/c.mkv"_s)); }, {}},
    };
    for (const auto& [what, make, reason] : claims) {
        QFile::remove(output);
        ASSERT_TRUE(make()) << what;
        Prog.Options.Delete_Video_After = !reason.isEmpty();
        EXPECT_TRUE(Run());
        EXPECT_EQ(Heard.Outcomes.back().Status == File_Outcome::Kind::Done, reason.isEmpty()) << what;
        EXPECT_TRUE(Heard.Outcomes.back().Reason.contains(reason)) << what;
        for (const QString& file : {u"elsewhere/old.mkv"_s, u"videos/a.avi"_s, u"videos/b.mkv_kept"_s})
            EXPECT_EQ(Test.Read(file), "precious") << what;
        EXPECT_FALSE(QFile::exists(elsewhere + u"2"_s)) << what;
    }
    EXPECT_EQ(Heard.Commands.size(), 2);
    EXPECT_EQ(Test.Results().filter(same).size(), 4);
}

TEST_F(VideoBatch, TheSecondWriterOfAFileIsWarnedOfByWhateverName)
{
    for (const QString& name : {u"a.avi"_s, u"a.mp4"_s, u"b.avi"_s, u"c.avi"_s})
        Test.Write(u"videos/"_s + name, "x");
    // As where case doesn't count: two names, one file.
    ASSERT_TRUE(Link(Test.Write(u"target/b.mkv"_s), Test.Path(u"target/c.mkv"_s), false));
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
