#include "common/media.h"
#include "end_to_end/batch_process.h"
#include "support/paths.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

/// "output|added|chapters|number of problems" for each video, as a check tells it, and whether wide.mkv's size is
/// pinned.
static QStringList Checked(Batch_Process& batch, const QString& kind, const QString& sensible)
{
    const Batch_Result result =
        batch.Run({kind, u"--check"_s, u"--json"_s, u"--tick"_s, u"AddSubs"_s, u"--tick"_s, u"ReplaceChapters"_s,
                   u"--tick"_s, u"ConvertTXT"_s, u"--set"_s, u"Extensions/Sensible Names And Sizes="_s + sensible});
    QStringList lines;
    for (const QJsonObject& check : result.Events(u"check"_s))
        lines += QStringList{File_Name_Of(check[u"output"_s].toString()),
                             check[u"added"_s].toVariant().toStringList().join(u'+'), check[u"chapters"_s].toString(),
                             QString::number(check[u"problems"_s].toArray().size())}
                     .join(u'|');
    const QString wide = result.Values(u"command"_s, u"text"_s).filter(u"wide.mkv"_s).value(0);
    return lines + QStringList{wide.contains(u"--display-dimensions") ? u"pinned"_s : u"left alone"_s};
}

TEST(Habits, AreLeftWithSensibleNamesAndSizesAndElseToldOf)
{
    Batch_Process batch;
    for (const QString& name : {u"E1.mkv"_s, u"Show E1.mkv"_s})
        Place(batch, Short_Video(), u"videos/"_s + name);
    Place(batch, Short_Video(u"mp4"_s), u"videos/GOPR01.MP4"_s);
    Place(batch, Media_File(u"wide.mkv"_s, {u"-i"_s, Short_Video(), u"-vf"_s, u"setsar=16/15"_s}),
          u"videos/wide.mkv"_s);
    batch.Write(u"videos/Show E1.srt"_s, "1\n00:00:00,000 --> 00:00:00,200\nHello\n");
    batch.Write(
        u"videos/Show E1_Chapters.xml"_s,
        "<?xml "
        "version=\"1.0\"?>\n<Chapters><EditionEntry><ChapterAtom><ChapterTimeStart>00:00:00.000</ChapterTimeStart>"
        "<ChapterDisplay><ChapterString>One</ChapterString></ChapterDisplay></ChapterAtom></EditionEntry></Chapters>");
    const QString show = u"Show E1.mkv|Show E1.srt|Show E1_Chapters.xml|0"_s;
    const QStringList sensible{u"E1.mkv||kept|0"_s, u"GOPR01.mkv||kept|0"_s, show, u"wide.mkv||kept|0"_s,
                               u"left alone"_s};
    EXPECT_EQ(Checked(batch, u"--careful"_s, u"On"_s), sensible);
    EXPECT_EQ(Checked(batch, u"--classic"_s, u"On"_s), sensible);
    EXPECT_EQ(Checked(batch, u"--careful"_s, u"Off"_s),
              (QStringList{u"E1.mkv|Show E1.srt|Show E1_Chapters.xml|1"_s, u"MP4.mkv||kept|1"_s, show,
                           u"wide.mkv||kept|1"_s, u"pinned"_s}));
}

TEST(Habits, NoVideoIsSplitIntoAFolderThatReadsAsANumber)
{
    Batch_Process batch;
    Place(batch, Short_Video(), u"videos/a.mkv"_s);
    const QString target = batch.Path(u"t%02d"_s);
    QDir().mkpath(target);
    for (const QString& kind : {u"--careful"_s, u"--classic"_s}) {
        const Batch_Result result = batch.Run({kind, u"--tick"_s, u"SplitVideos"_s, u"--target"_s, target});
        EXPECT_EQ(result.Exit, 2);
        EXPECT_TRUE(result.Err.contains(u"holds \"%02d\"")) << result.Err.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(batch.Path(u"t01"_s)));
}
