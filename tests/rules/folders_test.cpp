#include "rules/folders.h"

#include "common/test_program.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct Folders : testing::Test, Test_Program
{};

TEST_F(Folders, APathThatIsThereIsShownWithASeparatorAndOneThatIsGoneBecomesEmpty)
{
    struct Claim
    {
        QString Word;
        QString JobOptions::*Path;
        Label Main_Form::*Shown;
        Label Main_Form::*Fault;
        QString Fault_When_Gone; ///< of a caption that read "old"
    };

    const Claim claims[] = {
        {u"VideosPath"_s, &JobOptions::Path_Videos, &Main_Form::ulbl_VideosPath, &Main_Form::lbl_VideoPathFault,
         u"Video Path Not Set"_s},
        {u"AudioPath"_s, &JobOptions::Path_Audios, &Main_Form::ulbl_AudioPath, &Main_Form::lbl_AudioPathFault,
         u"old"_s},
        {u"SubsPath"_s, &JobOptions::Path_Subtitles, &Main_Form::ulbl_SubsPath, &Main_Form::lbl_SubsPathFault,
         u"old"_s},
        {u"ChaptersPath"_s, &JobOptions::Path_Chapters, &Main_Form::ulbl_ChaptersPath, &Main_Form::lbl_ChapsPathFault,
         u"old"_s},
        {u"TargetPath"_s, &JobOptions::Path_Target, &Main_Form::ulbl_TargetPath, &Main_Form::lbl_TargetPathFault,
         u"Target Path Not Set"_s},
    };
    QDir().mkpath(Path(u"here"_s));
    for (const Claim& claim : claims) {
        QString& path = Prog.Options.*claim.Path;
        Label& fault = Prog.Form.*claim.Fault;
        fault.Caption = u"old"_s;
        path = Path(u"here"_s);
        EXPECT_TRUE(Check_Paths(Prog, claim.Word));
        EXPECT_EQ(path, Path(u"here/"_s));
        EXPECT_EQ((Prog.Form.*claim.Shown).Caption, path);
        EXPECT_EQ(fault.Caption, u""_s);

        fault.Caption = u"old"_s;
        path = Path(u"gone/"_s);
        EXPECT_FALSE(Check_Paths(Prog, claim.Word));
        EXPECT_EQ(path, u""_s);
        EXPECT_EQ((Prog.Form.*claim.Shown).Caption, u""_s);
        EXPECT_EQ(fault.Caption, claim.Fault_When_Gone);
        EXPECT_TRUE(fault.Visible);
    }
}

TEST_F(Folders, AllLooksAtEveryFolderAndAnswersForTheTarget)
{
    Prog.Options.Path_Videos = Path(u"gone"_s);
    EXPECT_TRUE(Check_Paths(Prog, u"All"_s));
    EXPECT_EQ(Prog.Options.Path_Videos, u""_s);
    Prog.Options.Path_Videos = Path(u"videos"_s);
    Prog.Options.Path_Target = Path(u"gone"_s);
    EXPECT_FALSE(Check_Paths(Prog, u"All"_s));
    EXPECT_EQ(Prog.Options.Path_Videos, Path(u"videos/"_s));
    EXPECT_FALSE(Check_Paths(Prog, u"videospath"_s));
}

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

TEST_F(Folders, EmptyMeansNeitherFilesNorSubfolders)
{
    QDir().mkpath(Path(u"empty"_s));
    QDir().mkpath(Path(u"nested/inner"_s));
    Write(u"filled/.hidden"_s);

    struct Claim
    {
        QString Folder;
        bool Mark;
    };

    for (const Claim& claim :
         {Claim{u"empty"_s, true}, {u"nested"_s, false}, {u"filled"_s, false}, {u"gone"_s, false}}) {
        Prog.Options.Path_Audios = Prog.Options.Path_Subtitles = Prog.Options.Path_Chapters = Path(claim.Folder);
        Prog.Form.lbl_AudipPathEmpty.Visible = !claim.Mark;
        Check_Paths(Prog, u"All"_s);
        EXPECT_EQ(Prog.Form.lbl_AudipPathEmpty.Visible, claim.Mark) << claim.Folder.toStdString();
        EXPECT_EQ(Prog.Form.lbl_SubsPathEmpty.Visible, claim.Mark);
        EXPECT_EQ(Prog.Form.lbl_ChapsPathEmpty.Visible, claim.Mark);
    }
    Folder_Counts counts;
    EXPECT_TRUE(Folder_Has_Content(Path(u"nested"_s), counts));
    EXPECT_EQ(counts.Folders, 1);
    EXPECT_EQ(counts.Files, 0);
}

TEST_F(Folders, PathErrorsShowTheirOwnWordsAndClearTheCode)
{
    struct Claim
    {
        int Code;
        QString Title, Text;
    };

    const QString processing =
        u",\r\nthis program experienced an error.\r\n \r\nThe selected path cannot be found.\r\n"_s;
    const QString simple = u"\r\nTo simplify this programs function, it is not allowed.\r\n"_s;
    const Claim claims[] = {
        {1, u"Error #1 - A Source Path cannot be a Destination Path"_s,
         u"The Target path can not be the same as the Video Files Path."_s + simple},
        {11, u"Error #11 - ffprobe.exe path not set"_s,
         u"ffprobe.exe path *must* be set to use this program!\r\n \r\nOperation is aborted.\r\n"_s},
        {14, u"Error #14 - mkvmerge.exe path not set"_s,
         u"mkvmerge.exe path *must* be set to use this program!\r\n \r\nOperation is aborted.\r\n"_s},
        {15, u"Error #15 - mkvmerge.exe not found"_s,
         u"mkvmerge.exe cannot be found at the given path\r\n \r\nOperation is aborted.\r\n"_s},
        {25, u"Error #25 - ffprobe.exe and mkvmerge.exe paths not set"_s,
         u"The Destination Path cannot be from a lower path level\r\nto an existing source path.\r\n \r\n"
         "The chosen Destination Path will be ignored.\r\n"_s},
        {401, u"Error #401 - Video Path processing error!"_s, u"When processing the Video Path"_s + processing},
        {402, u"Error #402 - Audio Path processing error!"_s, u"When processing the Audio Path"_s + processing},
        {403, u"Error #403 - Subtitles Path processing error!"_s, u"When processing the Subtitles Path"_s + processing},
        {404, u"Error #404 - Chapters Path processing error!"_s, u"When processing the Chapters Path"_s + processing},
        {405, u"Error #405 - Target Path processing error!"_s, u"When processing the Target Path"_s + processing},
        {411, u"Error #411 - A path conflict has occurred."_s,
         u"The Video Files path can not be the same as the Target Path."_s + simple},
        {415, u"Error #415 - A path conflict has occurred."_s,
         u"The Target path can not be a the same as the Video Files Path."_s + simple},
        {440, u"Error #440 - Invalid File Name."_s,
         u"You did not supply a valid file name.\r\nA valid file name must be dropped here for proper operation.\r\n"
         " \r\nNOTE: The filename may contain non-displayed unicode characters. Change the filename and try "
         "again.\r\n"_s},
    };
    for (const Claim& claim : claims) {
        int code = claim.Code;
        Show_Path_Error(Prog, code);
        ASSERT_FALSE(Person.Messages.empty());
        EXPECT_EQ(Person.Messages.back().Title, claim.Title);
        EXPECT_EQ(Person.Messages.back().Text, claim.Text);
        EXPECT_EQ(Person.Messages.back().Icon, Message_Icon::Exclamation);
        EXPECT_EQ(Person.Messages.back().Code, claim.Code);
        EXPECT_EQ(code, 0);
    }
    Person.Messages.clear();
    for (int code : {0, -5, 2, 400, 406})
        Show_Path_Error(Prog, code);
    EXPECT_TRUE(Person.Messages.empty());
}

TEST_F(Folders, APanelStandsOnTheFormOnlyWhileItsBoxIsTicked)
{
    Prog.Options.chk_SubsPath.Value = 1;
    Prog.Options.chk_ChaptersPath.Value = 2;
    Show_Folder_Panels(Prog.Options, Prog.Form);
    EXPECT_FALSE(Prog.Form.pic_AudioPath.Visible);
    EXPECT_TRUE(Prog.Form.pic_SubsPath.Visible);
    EXPECT_FALSE(Prog.Form.pic_ChaptersPath.Visible);
}
