#include "rules/folder_changes.h"

#include "common/test_program.h"
#include "rules/folders.h"
#include "rules/recent_folders.h"
#include "settings/recent_lists.h"
#include "support/drop_data.h"
#include "support/text.h"

#include <QDir>

struct FolderChanges : testing::Test, Test_Program
{
    FolderChanges()
    {
        QDir().mkpath(Path(u"new"_s));
        Write(u"new/film.mkv"_s);
    }

    Drop_Data Dropped(const QString& relative) const { return {.Has_File_List = true, .Paths = {Path(relative)}}; }
};

TEST_F(FolderChanges, ADropYieldsTheFolderOfItsFirstItem)
{
    Write(u"a b%20c/x.mkv"_s);
    const std::tuple<Drop_Data, bool, bool, QString> claims[] = {
        {Dropped(u"new"_s), true, true, Path(u"new/"_s)},
        {Dropped(u"new/"_s), true, true, Path(u"new/"_s)},
        {Dropped(u"new/film.mkv"_s), true, true, Path(u"new/"_s)},
        {Dropped(u"gone"_s), true, true, u""_s}, // never "/"
        {{.Has_File_List = true, .Paths = {}}, true, true, u""_s},
        {{.Has_File_List = true, .Paths = {Path(u"target"_s), Path(u"new"_s)}}, true, true, Path(u"target/"_s)},
        {{.Has_File_List = false, .Paths = {Path(u"new"_s)}}, true, false, u""_s},
        {Dropped(u"new"_s), false, false, u""_s},
        {Drop_Data_Of({QUrl::fromLocalFile(Path(u"a b%20c"_s))}), true, true, Path(u"a b%20c/"_s)},
        {Drop_Data_Of({QUrl(u"https://example.org/new"_s), QUrl::fromLocalFile(Path(u"new"_s))}), true, true, u""_s},
        {Drop_Data_Of({}), true, false, u""_s},
    };
    for (const auto& [data, allowed, taken, folder] : claims) {
        QString path = u"before"_s;
        EXPECT_EQ(Drop_Folder(data, allowed, path), taken);
        EXPECT_EQ(path, folder);
    }
}

TEST_F(FolderChanges, ADropPutsTheOldPathIntoTheRecentListAndTestsTheRunButton)
{
    const QString old = Prog.Options.Path_Videos;
    Prog.Settings.Extensions.Run_Button_Follows_Folders = false; // a drop tests it all the same
    Prog.Form.btn_RunVantorra.Enabled = false;
    Prog.Settings.Source_MRU = {u"/x/"_s, Path(u"new/"_s), u""_s, old};
    Drop_On_Videos_Panel(Prog, Dropped(u"new/film.mkv"_s));
    EXPECT_EQ(Prog.Options.Path_Videos, Path(u"new/"_s));
    EXPECT_EQ(Prog.Form.ulbl_VideosPath.Caption, Path(u"new/"_s));
    EXPECT_EQ(Prog.Form.lbl_VideoPathFault.Caption, u""_s);
    EXPECT_EQ(Prog.Settings.Source_MRU, (QStringList{old, u"/x/"_s, u""_s}));
    EXPECT_TRUE(Prog.Form.btn_RunVantorra.Enabled);
    EXPECT_EQ(Prog.Form.Focus, u"btn_NOP"_s);

    Drop_On_Videos_Panel(Prog, Dropped(u"new"_s));
    Drop_On_Videos_Panel(Prog, Dropped(u"new"_s));
    EXPECT_EQ(Prog.Settings.Source_MRU.count(Path(u"new/"_s)), 1);
}

TEST_F(FolderChanges, ABadDropIsToldAndOnlyCompanionFoldersTakeIt)
{
    // Whose rule, which path, the report; the empty text is stored for companions only.
    using Drop = void (*)(Program&, const Drop_Data&);
    const std::tuple<Drop, QString JobOptions::*, int, bool> claims[] = {
        {Drop_On_Videos_Panel, &JobOptions::Path_Videos, 401, false},
        {Drop_On_Audio_Panel, &JobOptions::Path_Audios, 402, true},
        {Drop_On_Subs_Panel, &JobOptions::Path_Subtitles, 403, true},
        {Drop_On_Chapters_Panel, &JobOptions::Path_Chapters, 404, true},
        {Drop_On_Target_Panel, &JobOptions::Path_Target, 405, false}};
    for (const auto& [drop, member, code, taken] : claims) {
        QString& path = Prog.Options.*member;
        path = Path(u"target/"_s);
        drop(Prog, Dropped(u"gone"_s));
        EXPECT_EQ(Codes().value(Codes().size() - 1), code);
        EXPECT_EQ(path, taken ? u""_s : Path(u"target/"_s));

        const std::size_t messages = Person.Messages.size();
        drop(Prog, Dropped(u"new"_s));
        EXPECT_EQ(path, Path(u"new/"_s));
        Prog.Run.Run_In_Progress = true;
        drop(Prog, Dropped(u"gone"_s));
        drop(Prog, Dropped(u"videos"_s));
        Prog.Run.Run_In_Progress = false;
        EXPECT_EQ(path, Path(u"new/"_s));
        EXPECT_EQ(Person.Messages.size(), messages);
    }
}

TEST_F(FolderChanges, ADropTakesATargetThatIsTheSourceAndTellsIt)
{
    Drop_On_Target_Panel(Prog, Dropped(u"videos"_s));
    EXPECT_EQ(Prog.Options.Path_Target, Prog.Options.Path_Videos);
    EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, Same_Folder_Fault);
    Drop_On_Videos_Panel(Prog, Dropped(u"new"_s));
    EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, u""_s);
}

TEST_F(FolderChanges, ThePickerOpensAtTheBoxElseWhereItWasLast)
{
    const auto start_at = [this](const QString& path) {
        Prog.Options.Path_Audios = path;
        mnu_PopupAudioBrowse1_Click(Prog);
        return Person.Folder_Questions.back().second;
    };
    EXPECT_EQ(start_at({}), Prog.Settings.App_Folder);
    EXPECT_EQ(start_at(Path(u"new/"_s)), Path(u"new/"_s));
    EXPECT_EQ(start_at(Path(u"new/gone/more/"_s)), Path(u"new/"_s)) << "as near as there is something";
    Person.Folder_Answer = Path(u"target"_s);
    start_at({});
    EXPECT_EQ(start_at({}), Path(u"target/"_s));
}

TEST_F(FolderChanges, ABrowseStartsAtItsFolderAndPutsTheNewPathIntoTheRecentList)
{
    Prog.Settings.Source_MRU = {u"/x/"_s, Path(u"new/"_s)};
    Prog.Form.btn_RunVantorra.Enabled = false;
    Person.Folder_Answer = Path(u"new"_s);
    mnu_PopupVideoBrowse1_Click(Prog);
    EXPECT_EQ(Person.Folder_Questions.back().first,
              u"Select the folder of Video Files.\r\nIt CANNOT be the same as the Target path."_s);
    EXPECT_EQ(Person.Folder_Questions.back().second, Path(u"videos/"_s));
    EXPECT_EQ(Prog.Options.Path_Videos, Path(u"new/"_s));
    EXPECT_EQ(Prog.Form.ulbl_VideosPath.Caption, Path(u"new/"_s));
    EXPECT_EQ(Prog.Form.lbl_VideoPathFault.Caption, u""_s);
    EXPECT_EQ(Prog.Settings.Source_MRU, (QStringList{Path(u"new/"_s), u"/x/"_s}));
    EXPECT_TRUE(Prog.Form.btn_RunVantorra.Enabled); // the extension's doing

    Prog.Settings.Extensions.Run_Button_Follows_Folders = false;
    Prog.Form.btn_RunVantorra.Enabled = false;
    mnu_PopupVideoBrowse1_Click(Prog);
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
}

TEST_F(FolderChanges, ABrowsedTargetThatIsTheSourceIsEmptied)
{
    Person.Folder_Answer = Path(u"videos"_s);
    mnu_PopupTargetBrowse1_Click(Prog);
    EXPECT_EQ(Person.Folder_Questions.back().first, u"Select a Target Folder to hold your processed files.\r\n"
                                                    "It CANNOT be the same as the Video Files path."_s);
    EXPECT_EQ(Prog.Options.Path_Target, u""_s);
    EXPECT_EQ(Prog.Form.ulbl_TargetPath.Caption, u""_s);
    EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, Same_Folder_Fault);
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
}

TEST_F(FolderChanges, WhateverChangesAFolderForgetsTheLastRun)
{
    QDir().mkpath(Path(u"older"_s));
    Prog.Settings.Source_MRU = {Path(u"older/"_s)};
    Person.Folder_Answer = Path(u"new"_s);
    void (*const changes[])(Program&) = {
        mnu_PopupVideoBrowse1_Click,
        mnu_PopupTargetBrowse1_Click,
        mnu_PopupAudioBrowse1_Click,
        [](Program& program) { Choose_Recent_Source(program, 0); },
        [](Program& program) {
            Drop_On_Target_Panel(program, {true, {program.Options.Path_Videos}});
        },
        [](Program& program) {
            Drop_On_Subs_Panel(program, {true, {program.Options.Path_Videos}});
        },
    };
    for (const auto& change : changes) {
        Main_Form& form = Prog.Form;
        form.pic_VideosPath.Caption = u" Video Files Path (drag 'n drop)   3 Files Found "_s;
        form.pic_TargetPath.Caption = u" Target Path (drag 'n drop)   3 Files Done "_s;
        form.lbl_ProgressFinished.Visible = true;
        form.Progress = Progress_Look::Finished;
        form.ulbl_Title1.Caption = u"last.mkv"_s;
        change(Prog);
        EXPECT_EQ(form.pic_VideosPath.Caption + form.pic_TargetPath.Caption + form.ulbl_Title1.Caption,
                  u"Video Files Path (drag 'n drop)Target Path (drag 'n drop)"_s);
        EXPECT_FALSE(form.lbl_ProgressFinished.Visible);
        EXPECT_EQ(form.Progress, Progress_Look::Idle) << &change - changes;
    }
}
