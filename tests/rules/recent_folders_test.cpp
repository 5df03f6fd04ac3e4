#include "rules/recent_folders.h"

#include "common/test_program.h"
#include "settings/recent_lists.h"

#include <QDir>

/// A program with folders 0 to 19, no paths set.
struct RecentFolders : testing::Test, Test_Program
{
    RecentFolders()
    {
        Prog.Options.Path_Videos.clear();
        Prog.Options.Path_Target.clear();
        for (int i = 0; i < 20; ++i)
            QDir().mkpath(Folder(i));
    }

    QString Folder(int number) const { return Path(u"f%1/"_s.arg(number, 2, 10, QLatin1Char('0'))); }

    QStringList Folders(int from, int to) const
    {
        QStringList list;
        for (int i = from; i <= to; ++i)
            list += Folder(i);
        return list;
    }
};

TEST_F(RecentFolders, TheWriterDropsEmptyItemsAndThoseWithinAnEarlierText)
{
    const std::tuple<QString, QStringList, QString> claims[] = {
        {u""_s, {u"/a/"_s}, u"NONE"_s},
        {u"/a/"_s, {}, u"/a/"_s},
        {u"/a/"_s, {u"/b/"_s, u""_s, u"/c/"_s}, u"/a/;/b/;/c/"_s},
        {u"/a/b/"_s, {u"/a/"_s, u"/A/"_s, u"/a/b/c/"_s}, u"/a/b/;/A/;/a/b/c/"_s},
        {u"/a/"_s, {u"/x;y/"_s, u"/x\ny/"_s, u"/x\ry/"_s, u"/b/"_s}, u"/a/;/b/"_s},
        {u"/x;y/"_s, {u"/b/"_s, u"/c/"_s}, u";/b/;/c/"_s},
        {u"/x;y/"_s, {}, u"NONE"_s},
        {u"/a\0b/"_s, {u"/"_s + QString(3000, u'x') + u"/"_s}, u"NONE"_s},
        {u"/a/"_s,
         {u"/"_s + QString(2040, u'x') + u"/"_s, u"/"_s + QString(2041, u'x') + u"/"_s, u"/b/"_s},
         u"/a/;/"_s + QString(2040, u'x') + u"/"_s},
    };
    for (const auto& [path, list, value] : claims)
        EXPECT_EQ(Recent_Folders_Value(path, list), value) << path.toStdString();
}

TEST_F(RecentFolders, ChoosingSwapsWithTheCurrentPathSoThatChoosingAgainReturns)
{
    Prog.Form.Topmost_On = true;
    Prog.Options.Path_Videos = Folder(0);
    Prog.Form.ulbl_VideosPath.Caption = Folder(0);
    Prog.Form.lbl_VideoPathFault.Caption = u"NO VIDEO FILES FOUND!"_s;
    Prog.Settings.Source_MRU = Folders(1, 2);
    QString shown;
    bool topmost_inside = true;
    Person.On_Form[u"frm_SourceMRU"_s] = [&] {
        shown = Prog.Source_MRU_Form.Text;
        topmost_inside = Person.Topmost;
        Choose_Recent_Source(Prog, 1);
        EXPECT_FALSE(Prog.Source_MRU_Form.Visible);
    };
    img_SourceMRU_MouseDown(Prog);
    img_SourceMRU_Click(Prog);
    EXPECT_EQ(shown, Folder(0));
    EXPECT_FALSE(topmost_inside);
    EXPECT_TRUE(Person.Topmost);
    EXPECT_FALSE(Prog.Source_MRU_Form.Arrow_Pressed);
    EXPECT_EQ(Prog.Options.Path_Videos, Folder(2));
    EXPECT_EQ(Prog.Form.ulbl_VideosPath.Caption, Folder(2));
    EXPECT_EQ(Prog.Form.lbl_VideoPathFault.Caption, u""_s) << "it spoke of the folder before";
    EXPECT_EQ(Prog.Settings.Source_MRU, (QStringList{Folder(0), Folder(1)}));

    Person.On_Form[u"frm_SourceMRU"_s] = [&] { Choose_Recent_Source(Prog, 0); };
    img_SourceMRU_Click(Prog);
    EXPECT_EQ(Prog.Options.Path_Videos, Folder(0));
    Person.On_Form[u"frm_SourceMRU"_s] = [&] { Choose_Recent_Source(Prog, 9); };
    img_SourceMRU_Click(Prog);
    EXPECT_EQ(Prog.Options.Path_Videos, Folder(0));
    Prog.Settings.Target_MRU = Folders(3, 3);
    Choose_Recent_Target(Prog, 0);
    EXPECT_EQ(Prog.Options.Path_Target, Folder(3));
    Prog.Settings.Source_MRU.clear();
    Person.On_Form[u"frm_SourceMRU"_s] = [] { ADD_FAILURE() << "there is nothing to choose"; };
    img_SourceMRU_MouseDown(Prog);
    img_SourceMRU_Click(Prog);
    EXPECT_FALSE(Prog.Source_MRU_Form.Arrow_Pressed);
}
