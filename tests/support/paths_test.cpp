#include "support/paths.h"

#include "common/test_program.h"
#include "support/string_builder.h"
#include "support/trash.h"

#include <QFile>

TEST(Paths, BaseNameAndExtensionAreCutAtTheLastDotOfTheName)
{
    const std::tuple<QString, QString, QString> claims[] = {
        {u"/in/Movie.mkv"_s, u"Movie"_s, u"mkv"_s},
        {u"/in.d/Movie"_s, u"Movie"_s, u""_s},
        {u"film.part1.MKV"_s, u"film.part1"_s, u"MKV"_s},
        {u"/in/.mkv"_s, u""_s, u"mkv"_s},
        {u"/in/Movie."_s, u"Movie"_s, u""_s},
    };
    for (const auto& [path, base, extension] : claims) {
        EXPECT_EQ(Get_Base_Name(Native(path)), base) << path.toStdString();
        EXPECT_EQ(Get_Extension(Native(path)), extension) << path.toStdString();
    }
}

TEST(Paths, QuotesAreAddedOnlyAroundBlanksAndOnlyOnce)
{
    EXPECT_EQ(Quote_Path(u""_s), u""_s);
    EXPECT_EQ(Quote_Path(u"/a/b"_s), u"/a/b"_s);
    EXPECT_EQ(Quote_Path(u"/a b"_s), u"\"/a b\""_s);
    EXPECT_EQ(Quote_Path(u"\"/a b\""_s), u"\"/a b\""_s);
}

TEST(Paths, MasksMatchTheWholeNameWithoutCase)
{
    const QString masks = u"*.mp3;*.m?a"_s;
    EXPECT_TRUE(Match_File_Masks(u"The MOVIE.Mp3"_s, masks));
    EXPECT_TRUE(Match_File_Masks(u"x.m4a"_s, masks));
    EXPECT_FALSE(Match_File_Masks(u"x.mp3.opt"_s, masks));
    EXPECT_FALSE(Match_File_Masks(u""_s, masks));
    EXPECT_FALSE(Match_File_Masks(u"x.mp3"_s, u""_s));
}

TEST(Paths, ARelativePathNeverExists)
{
    const Test_Program test;
    test.Write(u"videos/a.mkv"_s);
    EXPECT_TRUE(File_Exists(test.Path(u"videos/a.mkv"_s)));
    EXPECT_FALSE(File_Exists(test.Path(u"videos"_s)));
    EXPECT_TRUE(Folder_Exists(test.Path(u"videos"_s)));
    EXPECT_FALSE(Folder_Exists(u"."_s));
    EXPECT_TRUE(Path_Exists(u"."_s));
    EXPECT_FALSE(Path_Exists(u""_s));
}

TEST(Paths, OneFolderByTwoNamesIsTheSame)
{
    const Test_Program test;
    const QString videos = test.Path(u"videos"_s);
    EXPECT_TRUE(Same_Folder(videos, videos + Path_Separator));
    EXPECT_TRUE(Same_Folder(videos, test.Path(u"target/../videos/"_s)));
    EXPECT_FALSE(Same_Folder(videos, test.Path(u"target"_s)));
    EXPECT_FALSE(Same_Folder(videos, u""_s));
    EXPECT_FALSE(Same_Folder(test.Path(u"gone"_s), test.Path(u"gone too"_s)));
}

TEST(Files, AFolderGoesToTheTrashWithOrWithoutItsSeparatorAndWhatIsGoneIsNoFault)
{
    const Test_Program test;
    test.Write(u"old/x"_s);
    clsStringBuilder faults;
    for (int time = 1; time <= 2; ++time)
        EXPECT_TRUE(Delete_To_Recycle(test.Path(u"old//"_s), faults));
    EXPECT_FALSE(QFile::exists(test.Path(u"old"_s)));
    EXPECT_EQ(faults.ToString(), u""_s);
}
