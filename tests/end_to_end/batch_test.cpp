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
