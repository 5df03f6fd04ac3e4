#include "run/split_run.h"

#include "common/stand_in_tool.h"
#include "inspect/video_names.h"
#include "run/video_batch.h"
#include "support/disk_names.h"
#include "support/paths.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <filesystem>

namespace {

/// What an ffprobe says about a file with one video track, and about nothing that is empty.
const QByteArray Split_Probe = "for file; do :; done\n"
                               "[ -s \"$file\" ] || exit 1\n"
                               "case \"$*\" in\n"
                               "*-show_format*) printf 'format|filename=x|duration=1.5|size=1\\n' ;;\n"
                               "*) printf 'stream|index=0|codec_type=video|disposition:attached_pic=0|tag:x=y\\n' ;;\n"
                               "esac\n";
const QByteArray Split_Merge =
    "echo 'mkvmerge v74.0.0 (A name) 64-bit'; sleep 0.05; echo 'Multiplexing took 0 seconds.'\n";

struct SplitRun : testing::Test
{
    Test_Program Test;
    Program& Prog = Test.Prog;

    SplitRun()
    {
        Prog.Tools.FFProbe_Path = Write_Stand_In(Test, u"tools/ffprobe"_s, Split_Probe);
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(Test, u"tools/mkvmerge"_s, Split_Merge);
        Prog.Options.Log_Verbosity = 1;
        Prog.Options.Split_Minutes = u"30"_s;
    }

    bool Run()
    {
        Find_Video_Files(Prog, Prog.Options.Path_Videos, Video_Extensions, Prog.Run.Video_File_List);
        return Split_Video_Files(Prog);
    }
};

} // namespace

TEST_F(SplitRun, TheBoxesCountWithoutTheLeadingBlankAndTheTargetOnlyFromTheFirstFileOn)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    QStringList seen = {Prog.Form.pic_TargetPath.Caption};
    Test.Person.On_Pump = [&] {
        if (const QString& now = Prog.Form.pic_TargetPath.Caption; !seen.contains(now))
            seen += now;
    };
    EXPECT_TRUE(Run());
    EXPECT_EQ(Prog.Form.pic_VideosPath.Caption, u"Video Files Path (drag 'n drop)   1 File Found "_s);
    EXPECT_EQ(seen.mid(1), QStringList{u"Target Path (drag 'n drop)   1 File Done "_s});
    EXPECT_EQ(Prog.Form.ulbl_Title1.Caption, u"a.mkv"_s);
    Test.Write(u"videos/b.mkv"_s, "x");
    Prog.Run.Dry_Run = true;
    Prog.Tools.System_MKVMerge_Path = Write_Stand_In(Test, u"tools/mkvmerge"_s, "echo x > \"$4\"");
    EXPECT_TRUE(Run());
    EXPECT_EQ(Prog.Form.pic_VideosPath.Caption, u"Video Files Path (drag 'n drop)   2 Files Found "_s);
    EXPECT_EQ(Prog.Form.pic_TargetPath.Caption, u"Target Path (drag 'n drop)   2 Files Done "_s);
    EXPECT_TRUE(QDir(Test.Path(u"target"_s)).isEmpty()) << "a dry run writes nothing";
    EXPECT_TRUE(Prog.Run.Mkvmerge_Arguments.Text().endsWith(u"--split duration:1800s --track-order 0:0"_s));
}

TEST_F(SplitRun, ADeletionNoteOfTheRunBeforeIsRepeatedForEachFile)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    Test.Write(u"videos/b.mkv"_s, "x");
    Prog.Run.Source_Deleted = true;
    Prog.Run.Current_Video_Path = u"/v/old.mkv"_s;
    EXPECT_TRUE(Run());
    EXPECT_EQ(Test.Results().filter(u"Source video file DELETED after Processing - \"/v/old.mkv\""_s).size(), 2);
    EXPECT_EQ(Test.Results().filter(u"-- Processing video file - \""_s).size(), 2);
}

TEST_F(SplitRun, BadFilesAreReportedAndTheWalkGoesOn)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    Test.Write(u"videos/empty.mkv"_s);
    Test.Write(u"videos/plain"_s, "x");
    Test.Write(u"videos/notes.txt"_s, "x");
    EXPECT_TRUE(Run());
    QList<int> codes = Test.Codes();
    std::sort(codes.begin(), codes.end());
    EXPECT_EQ(codes, (QList<int>{13, 70}));
    EXPECT_EQ(Prog.Form.pic_TargetPath.Caption, u"Target Path (drag 'n drop)   2 Files Done "_s);
}

TEST_F(SplitRun, AMkvmergeThatCannotBeStartedEndsTheRunAtTheFirstFile)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    Test.Write(u"videos/b.mkv"_s, "x");
    Prog.Tools.System_MKVMerge_Path = u"mkvmerge"_s;
    EXPECT_FALSE(Run());
    EXPECT_EQ(Test.Codes(), QList<int>{9});
    EXPECT_TRUE(Test.Faults().isEmpty());
}

TEST_F(SplitRun, AHaltDigestsTheFileAndKeepsThePieces)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    Prog.Run.Kill_By_Name = false;
    Prog.Tools.System_MKVMerge_Path = Write_Stand_In(
        Test, u"tools/mkvmerge"_s, "echo piece > \"$4\"; echo 'It has been opened for writing.'; sleep 60");
    Test.Person.On_Pump = [&] {
        if (File_Exists(Test.Path(u"target/a.mkv"_s)))
            Prog.Run.Halt_Requested = true;
    };
    EXPECT_FALSE(Run());
    EXPECT_EQ(Test.Faults(), QStringList{u"*** Process halted before finishing."_s});
    EXPECT_EQ(Test.Results().filter(u"-- Processing video file - \""_s).size(), 1);
    EXPECT_EQ(Test.Read(u"target/a.mkv"_s), "piece\n");
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(SplitRun, APieceThatIsASourceOrLeadsOutOfTheTargetIsNotWritten)
{
    for (const QString& name : {u"a-001.mkv"_s, u"a-1000.mkv"_s}) {
        const QString source = Test.Write(u"videos/a.mkv"_s, "precious");
        const QString piece = Test.Path(u"target/"_s + name);
        std::error_code error; // a hard link, as others take rights on Windows
        std::filesystem::create_hard_link(Native_Path(source), Native_Path(piece), error);
        ASSERT_FALSE(error);
        EXPECT_TRUE(Run());
        EXPECT_EQ(Test.Results().filter(u"*** Not processed: the output \""_s + piece).size(), 1);
        QFile::remove(piece);
    }
}
