#include "common/media.h"
#include "inspect/video_names.h"
#include "run/split_run.h"
#include "run/video_batch.h"

#include <QDir>
#include <QJsonArray>

/// Seven seconds with a key picture each second, English sound and one of no language.
static QString Seven_Seconds()
{
    return Media_File(u"seven.mkv"_s,
                      u"-f lavfi -i testsrc=duration=7:size=64x48:rate=10 -f lavfi -i sine=duration=7 "
                      "-map 0 -map 1 -map 1 -c:v mpeg4 -g 10 -c:a ac3 -metadata:s:a:0 language=eng"_s.split(u' '));
}

/// Lengths in seconds of what stands in the target folder, in order of the names.
static QStringList Pieces_Of(const Test_Program& test)
{
    QStringList pieces;
    for (const QString& name : QDir(test.Path(u"target"_s)).entryList(QDir::Files, QDir::Name)) {
        const QJsonObject piece = Identify(test.Path(u"target/"_s + name));
        const double seconds = piece[u"container"_s][u"properties"_s][u"duration"_s].toDouble() / 1e9;
        pieces += name + u' ' + QString::number(qRound(seconds));
    }
    return pieces;
}

static bool Split(Test_Program& test, const QString& minutes)
{
    Use_Real_Tools(test);
    test.Prog.Options.Split_Minutes = minutes;
    Find_Video_Files(test.Prog, test.Prog.Options.Path_Videos, Video_Extensions, test.Prog.Run.Video_File_List);
    return Split_Video_Files(test.Prog);
}

/// Keeps what a driver hears of the last file.
struct Split_Listener : Run_Listener
{
    File_Outcome Last;

    void File_Finished(const File_Outcome& outcome) override { Last = outcome; }
};

TEST(Split, PiecesHaveTheSetLengthAndAllTracks)
{
    Test_Program test;
    Split_Listener heard;
    test.Prog.Listener = &heard;
    const QString source = Place(test, Seven_Seconds(), u"videos/My Film.mkv"_s);
    test.Prog.Options.Delete_Video_After = test.Prog.Options.Delete_Sundry_Files = true;
    const QString companion = test.Write(u"videos/My Film_Track1.srt"_s);
    test.Prog.Options.AudioFilterMode = 1;
    EXPECT_TRUE(Split(test, u"0.05"_s));
    EXPECT_EQ(Pieces_Of(test), (QStringList{u"My Film-001.mkv 3"_s, u"My Film-002.mkv 3"_s, u"My Film-003.mkv 1"_s}));
    for (const QString& name : {u"001"_s, u"002"_s, u"003"_s}) {
        QStringList tracks = Tracks_Of(test.Path(u"target/My Film-"_s + name + u".mkv"_s));
        tracks.replaceInStrings(u" default"_s, QString());
        EXPECT_EQ(tracks, (QStringList{u"0 video und"_s, u"1 audio eng"_s, u"2 audio und"_s})) << name.toStdString();
    }
    const QString film = test.Path(u"target/My Film"_s);
    EXPECT_EQ(heard.Last.Output, film + u"-001.mkv"_s);
    EXPECT_EQ(heard.Last.Pieces, (QStringList{film + u"-001.mkv"_s, film + u"-002.mkv"_s, film + u"-003.mkv"_s}));
    EXPECT_TRUE(Split(test, u"10"_s)); // fewer pieces: what an earlier run left isn't this one's
    EXPECT_EQ(heard.Last.Pieces, QStringList{film + u"-001.mkv"_s});
    EXPECT_TRUE(QFile::exists(source) && QFile::exists(companion));
    Test_Program rich;
    Place(rich, Rich_Video(), u"videos/b.MKV"_s);
    EXPECT_TRUE(Split(rich, u"10"_s));
    EXPECT_EQ(Tracks_Of(rich.Path(u"target/MKV-001.mkv"_s)).size(), 4) << "subtitles are copied too";
}
