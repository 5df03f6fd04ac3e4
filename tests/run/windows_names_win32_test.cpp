#include "common/media.h"
#include "run/careful_batch.h"
#include "run/video_batch_fixture.h"
#include "support/long_path.h"

#include <windows.h>

/// A run of either kind over videos whose names Windows has its own opinion of, with the real tools.
struct Windows_Names : testing::Test, Test_Program
{
    Recorder Heard;

    Windows_Names()
    {
        Use_Real_Tools(*this);
        Prog.Options.Log_Verbosity = 1;
        Prog.Listener = &Heard;
    }

    /// "NAME: its reason or warnings" of each video that isn't plainly done, and the names in the target folder.
    QStringList Run(bool careful)
    {
        Prog.Run.Careful = careful;
        careful ? Run_Carefully(Prog) : Process_Video_Files(Prog);
        QStringList words;
        for (const File_Outcome& outcome : Heard.Outcomes)
            if (outcome.Status != File_Outcome::Kind::Done || !outcome.Warnings.isEmpty())
                words += outcome.Name() + u": "_s + outcome.Reason + outcome.Warnings.join(u'|');
        return words + QDir(Prog.Options.Path_Target).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

TEST_F(Windows_Names, NamesThatDifferInCapitalsOnlyAreOneOutput)
{
    Place(*this, Short_Video(u"avi"_s), u"videos/FILM.avi"_s);
    Place(*this, Short_Video(), u"videos/Film.mkv"_s);
    Place(*this, Short_Video(), u"videos/Other.mkv"_s);
    Write(u"target/OTHER.MKV"_s, "old");
    Prog.Settings.Extensions.Sensible_Names_And_Sizes = true;
    EXPECT_EQ(Run(true), (QStringList{u"Film.mkv: its output would be \"Film.mkv\", as that of \"FILM.avi\""_s,
                                      u"FILM.mkv"_s, u"Other.mkv"_s}));
    EXPECT_TRUE(Names_In_Trash().filter(u"OTHER (old 1)"_s).size() == 1) << Names_In_Trash().join(u'|').toStdString();
    EXPECT_GT(Read(u"target/Other.mkv"_s).size(), 100);

    Heard.Outcomes.clear();
    EXPECT_EQ(Run(false).filter(u"write the same file"_s).size(), 1) << "a classic run warns and goes on";
}

TEST_F(Windows_Names, AVideoWhoseOutputWouldBeADeviceOrHaveAnotherNameFailsAheadOfMkvmerge)
{
    for (const QString& name : {u"con.avi"_s, u"Fine.mkv"_s}) {
        const std::wstring path = Long_Path(Path(u"videos/"_s) + name).toStdWString();
        ASSERT_TRUE(CopyFileW(Short_Video(name.right(3)).toStdWString().c_str(), path.c_str(), TRUE));
    }
    for (const bool careful : {true, false}) {
        Heard.Outcomes.clear();
        const QStringList words = Run(careful);
        ASSERT_EQ(words.size(), 2) << words.join(u'\n').toStdString();
        EXPECT_TRUE(words[0].startsWith(u"con.avi: "_s) && words[0].contains(u"ename the video"_s))
            << words[0].toStdString();
        EXPECT_EQ(words[1], u"Fine.mkv"_s);
    }
}

TEST_F(Windows_Names, FoldersBeyondTheOldLimitAreReadAndWritten)
{
    const QString deep = QStringList(6, QString(50, u'd')).join(u'/');
    for (QString* folder : {&Prog.Options.Path_Videos, &Prog.Options.Path_Target}) {
        ASSERT_TRUE(QDir().mkpath(*folder + deep));
        *folder += Native(deep) + u'\\';
    }
    ASSERT_TRUE(QFile::copy(Rich_Video(), Prog.Options.Path_Videos + u"a b.mkv"_s));
    Prog.Options.chk_AddSubs.Value = 1;
    QFile subtitle(Prog.Options.Path_Videos + u"a b.srt"_s);
    ASSERT_TRUE(subtitle.open(QIODevice::WriteOnly));
    subtitle.write("1\n00:00:00,000 --> 00:00:00,100\nHi\n");
    subtitle.close();
    for (const bool careful : {true, false})
        EXPECT_EQ(Run(careful), QStringList{u"a b.mkv"_s});
    EXPECT_EQ(Heard.Outcomes.size(), 2U);
}
