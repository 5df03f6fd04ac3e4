#include "common/media.h"
#include "common/stand_in_tool.h"
#include "inspect/video_names.h"
#include "run/video_batch.h"
#include "support/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A run of the real tools over real media.
struct Batch : testing::Test
{
    Test_Program Test;
    Program& Prog = Test.Prog;

    Batch()
    {
        Use_Real_Tools(Test);
        Prog.Options.Log_Verbosity = 6;
    }

    bool Run()
    {
        Find_Video_Files(Prog, Prog.Options.Path_Videos, Video_Extensions, Prog.Run.Video_File_List);
        return Process_Video_Files(Prog);
    }

    QStringList Outputs() const
    {
        return QDir(Test.Path(u"target"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QString Output(const QString& name) const { return Test.Path(u"target/"_s + name); }

    /// A mkvmerge that runs the real one behind `ahead`.
    void Wrap_Mkvmerge(const QByteArray& ahead)
    {
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(Test, u"tools/wrapped"_s, ahead + "exec mkvmerge \"$@\"\n");
    }
};

} // namespace

TEST_F(Batch, EachContainerBecomesAMatroskaFileWithItsTracks)
{
    const QStringList extensions = {u"mkv"_s, u"mp4"_s, u"avi"_s, u"ts"_s, u"webm"_s, u"mov"_s};
    for (const QString& extension : extensions)
        Place(Test, Short_Video(extension), u"videos/from_%1.%1"_s.arg(extension));
    EXPECT_TRUE(Run());
    for (const QString& extension : extensions) {
        const QJsonObject output = Identify(Output(u"from_%1.mkv"_s.arg(extension)));
        EXPECT_EQ(output[u"container"_s][u"type"_s].toString(), u"Matroska"_s) << extension.toStdString();
        const QJsonArray tracks = output[u"tracks"_s].toArray();
        ASSERT_EQ(tracks.size(), 2) << extension.toStdString();
        EXPECT_EQ(tracks[0][u"type"_s].toString(), u"video"_s);
        EXPECT_EQ(tracks[0][u"properties"_s][u"display_dimensions"_s].toString(), u"64x48"_s);
        EXPECT_EQ(tracks[1][u"type"_s].toString(), u"audio"_s);
    }
    EXPECT_TRUE(Test.Person.Messages.empty());
    EXPECT_EQ(Test.Results().filter(u"-- Processing video file - \""_s).size(), extensions.size());
    EXPECT_FALSE(Prog.Run.Process_Failed);
}

TEST_F(Batch, LanguagesFlagsTitlesAndOrderAreThoseOfTheSource)
{
    const QString source = Place(Test, Rich_Video(), u"videos/rich.mkv"_s);
    EXPECT_TRUE(Run());
    EXPECT_EQ(Tracks_Of(Output(u"rich.mkv"_s)), Tracks_Of(source));
    EXPECT_EQ(Tracks_Of(source).size(), 4);
    const QJsonObject output = Identify(Output(u"rich.mkv"_s));
    EXPECT_EQ(output[u"container"_s][u"properties"_s][u"title"_s].toString(), u"A rich film"_s);
    EXPECT_EQ(output[u"tracks"_s][2][u"properties"_s][u"track_name"_s].toString(), u"Deutscher Ton"_s);
}

TEST_F(Batch, NamesOfAnyKindArriveWhole)
{
    // 255 bytes with its extension, the longest that a file system takes.
    const QStringList names = {u"  two  blanks "_s,
                               u"a \"double\" quote"_s,
                               u"an 'apostrophe'"_s,
                               u"$(touch x)"_s,
                               u"50%s %d"_s,
                               u"a\nbreak"_s,
                               u"-dash"_s,
                               u"--output"_s,
                               u"@file"_s,
                               u"Été 漢字 😀"_s,
                               u"semi;colon, comma"_s,
                               QString(251, u'n')};
    const QByteArray old_locale = qgetenv("LC_ALL");
    qputenv("LC_ALL", "C");
    for (const QString& name : names)
        Place(Test, Short_Video(), u"videos/%1.mkv"_s.arg(name));
    EXPECT_TRUE(Run());
    old_locale.isEmpty() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", old_locale);
    for (const QString& name : names)
        EXPECT_EQ(Tracks_Of(Output(name + u".mkv"_s)).size(), 2) << name.toStdString();
    EXPECT_EQ(Outputs().size(), names.size());
    EXPECT_TRUE(Test.Person.Messages.empty());
}

TEST_F(Batch, ATagThatLooksLikeAnOptionStaysATag)
{
    const QString hostile = u"x\" --attach-file /etc/passwd \" '$(id)'"_s;
    const QString media = Media_File(
        u"hostile.mkv"_s, {u"-i"_s, Short_Video(), u"-c"_s, u"copy"_s, u"-metadata"_s, u"title="_s + hostile,
                           u"-metadata:s:v:0"_s, u"title="_s + hostile, u"-metadata:s:a:0"_s, u"title=--attach-file"_s,
                           u"-metadata:s:v:0"_s, u"handler_name=( /etc/passwd )"_s});
    Place(Test, media, u"videos/hostile.mkv"_s);
    EXPECT_TRUE(Run());
    const QJsonObject output = Identify(Output(u"hostile.mkv"_s));
    EXPECT_EQ(output[u"attachments"_s].toArray().size(), 0);
    EXPECT_EQ(output[u"tracks"_s].toArray().size(), 2);
}

TEST_F(Batch, BadFilesDoNotHurtTheGoodOnes)
{
    const QString good = Short_Video();
    QFile file(good);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    Test.Write(u"videos/empty.mkv"_s);
    Test.Write(u"videos/text.mkv"_s, "This is not a video at all.\n");
    Test.Write(u"videos/noise.mp4"_s, QByteArray(5000, '\x91'));
    Test.Write(u"videos/truncated.mkv"_s, content.left(content.size() / 2));
    for (const QString& name : {u"good1.mkv"_s, u"good2.mkv"_s, u"good3.mkv"_s})
        Place(Test, good, u"videos/"_s + name);
    EXPECT_TRUE(Run());
    for (const QString& name : {u"good1.mkv"_s, u"good2.mkv"_s, u"good3.mkv"_s, u"truncated.mkv"_s})
        EXPECT_EQ(Tracks_Of(Output(name)).size(), 2) << name.toStdString();
    EXPECT_FALSE(Outputs().contains(u"empty.mkv"_s));
    EXPECT_FALSE(Outputs().contains(u"noise.mkv"_s));
    for (const Message_Box& box : Test.Person.Messages)
        EXPECT_EQ(box.Code, 13);
    EXPECT_TRUE(Prog.Form.pic_TargetPath.Caption.endsWith(u"7 Files Done "_s));
}

TEST_F(Batch, ARawStreamWithoutDurationEndsTheRunAndIsNamed)
{
    const QString media = Media_File(u"raw.h264"_s, {u"-i"_s, Short_Video(), u"-an"_s, u"-c:v"_s, u"libx264"_s});
    const QString path = Place(Test, media, u"videos/raw.h264"_s);
    try {
        Run();
        FAIL() << "A raw stream has no duration";
    } catch (const Run_Time_Error& error) {
        EXPECT_EQ(error.Number(), Error_Number::Type_Mismatch);
        EXPECT_TRUE(error.Message().contains(path)) << error.what();
    }
}

TEST_F(Batch, ATargetThatTakesNothingFailsEachFileAndKeepsTheSource)
{
    struct Claim
    {
        QString Target;
        QByteArray Ahead;
    };

    Place(Test, Short_Video(), u"videos/a.mkv"_s);
    const Claim claims[] = {
        {u"/proc/"_s, ""},                                        // can't be written, whoever asks
        {Test.Path(u"target/"_s), "trap '' XFSZ\nulimit -f 2\n"}, // full after a kilobyte
        {Test.Write(u"a_file"_s, "x") + u'/', ""},                // no folder at all
    };
    for (const Claim& claim : claims) {
        Prog.Options.Path_Target = claim.Target;
        Wrap_Mkvmerge(claim.Ahead);
        Prog.Settings.Extensions.Delete_Source_Only_After_Success = true;
        Prog.Options.Delete_Video_After = true;
        EXPECT_TRUE(Run());
        EXPECT_EQ(Prog.Run.Exit_Status, 2) << claim.Target.toStdString();
        EXPECT_TRUE(QFile::exists(Test.Path(u"videos/a.mkv"_s)));
    }
}

TEST_F(Batch, AHaltInTheMiddleOfALargeFileLeavesTheEarlierOutputsWhole)
{
    const QString large = Media_File(u"large.mkv"_s, {u"-f"_s, u"lavfi"_s, u"-i"_s, u"anoisesrc=duration=300"_s,
                                                      u"-c:a"_s, u"pcm_s32le"_s, u"-ar"_s, u"48000"_s});
    Place(Test, large, u"videos/large.mkv"_s);
    Test.Write(u"target/earlier.mkv"_s, "whole");

    struct Halter : Run_Listener
    {
        Program* Prog = nullptr;

        void Progress(int, int) override { Prog->Run.Halt_Requested = true; }
    } halter;

    halter.Prog = &Prog;
    Prog.Listener = &halter;
    EXPECT_FALSE(Run());
    EXPECT_EQ(Prog.Run.Exit_Status, -9);
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_EQ(Outputs(), QStringList{u"earlier.mkv"_s});
    EXPECT_EQ(Test.Read(u"target/earlier.mkv"_s), "whole");
    EXPECT_TRUE(QFile::exists(Test.Path(u"videos/large.mkv"_s)));
    EXPECT_EQ(Test.Faults().constLast(), u"*** Process halted before finishing."_s);
}
