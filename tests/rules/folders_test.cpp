#include "rules/folders.h"

#include "common/test_program.h"

#include <QDir>
#include <QFile>

struct Folders : testing::Test, Test_Program
{};

TEST_F(Folders, ATargetThatIsTheSourceIsEmptiedHoweverItIsWritten)
{
    QFile::link(Path(u"videos"_s), Path(u"link"_s));
    for (const QString& target : {u"videos/"_s, u"videos"_s, u"./videos/"_s, u"target/../videos"_s, u"link/"_s}) {
        Prog.Options.Path_Target = Path(target);
        Prog.Form.lbl_TargetPathFault = {.Caption = {}, .Visible = false};
        EXPECT_FALSE(Check_Paths(Prog, u"All"_s)) << target.toStdString();
        EXPECT_EQ(Prog.Options.Path_Target, u""_s);
        EXPECT_TRUE(Prog.Form.lbl_TargetPathFault.Visible);
    }
}

TEST_F(Folders, PathErrorsShowTheirOwnWordsAndClearTheCode)
{
    const QString processing =
        u",\r\nthis program experienced an error.\r\n \r\nThe selected path cannot be found.\r\n"_s;
    const QString simple = u"\r\nTo simplify this programs function, it is not allowed.\r\n"_s;
    const std::tuple<int, QString, QString> claims[] = {
        {1, u"Error #1 - A Source Path cannot be a Destination Path"_s,
         u"The Target path can not be the same as the Video Files Path."_s + simple},
        {15, u"Error #15 - mkvmerge.exe not found"_s,
         u"mkvmerge.exe cannot be found at the given path\r\n \r\nOperation is aborted.\r\n"_s},
        {25, u"Error #25 - ffprobe.exe and mkvmerge.exe paths not set"_s,
         u"The Destination Path cannot be from a lower path level\r\nto an existing source path.\r\n \r\n"
         "The chosen Destination Path will be ignored.\r\n"_s},
        {405, u"Error #405 - Target Path processing error!"_s, u"When processing the Target Path"_s + processing},
    };
    for (const auto& [number, title, text] : claims) {
        int code = number;
        Show_Path_Error(Prog, code);
        ASSERT_FALSE(Person.Messages.empty());
        EXPECT_EQ(Person.Messages.back().Title, title);
        EXPECT_EQ(Person.Messages.back().Text, text);
        EXPECT_EQ(Person.Messages.back().Icon, Message_Icon::Exclamation);
        EXPECT_EQ(Person.Messages.back().Code, number);
        EXPECT_EQ(code, 0);
    }
    Person.Messages.clear();
    for (int code : {0, -5, 2, 400, 406})
        Show_Path_Error(Prog, code);
    EXPECT_TRUE(Person.Messages.empty());
}
