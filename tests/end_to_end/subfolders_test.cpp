#include "common/media.h"
#include "end_to_end/batch_process.h"

#include <QFile>

/// A shelf of two seasons with what must not be walked, the target among it, and subtitles beside a video and
/// elsewhere.
struct Subfolders_Test : Batch_Process, testing::Test
{
    Subfolders_Test()
    {
        const QString video = Short_Video(u"mkv"_s);
        for (const char* place : {"videos/top.mkv", "videos/S1/E1.mkv", "videos/S2/E1.mkv", "videos/S2/More.mkv/E2.mkv",
                                  "videos/S1/E1_Attachments/no.mkv", "videos/out/no.mkv"})
            Place(*this, video, QString::fromUtf8(place));
        for (const char* place : {"videos/S1/E1_Track2.srt", "videos/S2/E1_Track2.srt"})
            Write(QString::fromUtf8(place), "1\n00:00:00,100 --> 00:00:00,900\nHi\n");
        QFile::link(Path(u"videos/S1"_s), Path(u"videos/linked"_s));
    }

    Batch_Result Run_Shelf(const QStringList& more)
    {
        return Batch_Process::Run(
            QStringList{u"--careful"_s, u"--recursive"_s, u"--target"_s, Path(u"videos/out"_s), u"--json"_s} + more);
    }

    QStringList Sources(const Batch_Result& result) const
    {
        return result.Values(u"result"_s, u"source"_s)
            .replaceInStrings(Path(u"videos/"_s), QString())
            .replaceInStrings(u"\\"_s, u"/"_s);
    }
};

TEST_F(Subfolders_Test, EachFolderIsWalkedAsItWouldBeAlone)
{
    const Batch_Result result = Run_Shelf({u"--tick"_s, u"AddSubs"_s});
    EXPECT_EQ(Sources(result), (QStringList{u"top.mkv"_s, u"S1/E1.mkv"_s, u"S2/E1.mkv"_s, u"S2/More.mkv/E2.mkv"_s}));
    EXPECT_EQ(result.Values(u"result"_s, u"status"_s), QStringList(4, u"done"_s)) << result.Err.toStdString();
    for (const auto& [output, tracks] : {std::pair(u"top.mkv"_s, 2), std::pair(u"S1/E1.mkv"_s, 3),
                                         std::pair(u"S2/E1.mkv"_s, 3), std::pair(u"S2/More.mkv/E2.mkv"_s, 2)})
        EXPECT_EQ(Tracks_Of(Path(u"videos/out/"_s + output)).size(), tracks) << output.toStdString();

    EXPECT_EQ(Sources(Run_Shelf({u"--only"_s, u"s2/*"_s, u"--leave-out"_s, u"*More*"_s})), QStringList{u"S2/E1.mkv"_s});
    // Back where it was: the options are the same, and so is what was done.
    EXPECT_EQ(Sources(Run_Shelf({u"--tick"_s, u"AddSubs"_s, u"--resume"_s})), QStringList{u"S2/E1.mkv"_s});
}

TEST_F(Subfolders_Test, AFolderThatCantBeMadeFailsItsVideosAndKeepsThemWithTheirCompanions)
{
    Write(u"videos/out/S1"_s, "in the way");
    const Batch_Result result = Run_Shelf({u"--tick"_s, u"AddSubs"_s, u"--tick"_s, u"DeleteVideoAP"_s, u"--set"_s,
                                           u"Menu/Delete Source Video Sundry Files=True"_s});
    EXPECT_EQ(result.Exit, 2);
    EXPECT_EQ(result.Values(u"result"_s, u"status"_s), (QStringList{u"done"_s, u"failed"_s, u"done"_s, u"done"_s}))
        << result.Err.toStdString();
    EXPECT_EQ(Names_In(u"videos/S1"_s), (QStringList{u"E1.mkv"_s, u"E1_Attachments"_s, u"E1_Track2.srt"_s}));
    EXPECT_EQ(Names_In(u"videos/S2"_s), QStringList{u"More.mkv"_s});
}
