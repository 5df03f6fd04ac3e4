#include "common/media.h"
#include "forms/form_test.h"
#include "forms/window_operator.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QListWidget>

/// What a person does in the small forms.
struct Dialogs : Form_Test
{
    void SetUp() override { ASSERT_TRUE(Window.Start()); }
};

TEST_F(Dialogs, ATypedTitleReachesTheOptionAndItsCaptionAndClearTakesItBack)
{
    Open("mnu_CustomFileTitle", "frm_CustomTitle", [](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Set Custom File Title");
        QTest::keyClicks(&In<QLineEdit>(form, "txt_CustomTitle"), u"My \"Film\" & more"_s);
        Press(form, Qt::Key_Return); // Done is the button that Enter presses
    });
    EXPECT_EQ(Window.Prog().Options.Custom_File_Title, u"My \"Film\" & more");
    EXPECT_EQ(Window.Get<QCheckBox>("chk_CustomFileTitle").text(), u"Set Custom File Title (NOT empty)");

    Open("mnu_CustomFileTitle", "frm_CustomTitle", [](QWidget& form) {
        QTest::keyClicks(&In<QLineEdit>(form, "txt_CustomTitle"), u"other"_s);
        Click_On(In(form, "btn_Cancel"));
    });
    Open("mnu_CustomFileTitle", "frm_CustomTitle", [](QWidget& form) { Press(form, Qt::Key_Escape); });
    EXPECT_EQ(Window.Prog().Options.Custom_File_Title, u"My \"Film\" & more");

    Open("mnu_CustomFileTitle", "frm_CustomTitle", [](QWidget& form) {
        Click_On(In(form, "btn_Clear"));
        EXPECT_TRUE(form.isVisible());
        Click_On(In(form, "btn_Done"));
    });
    EXPECT_EQ(Window.Prog().Options.Custom_File_Title, u"");
    EXPECT_EQ(Window.Get<QCheckBox>("chk_CustomFileTitle").text(), u"Set Custom File Title (empty)");
}

TEST_F(Dialogs, ATickAsksForATitleThatIsNotThereAndNoneTakesTheTickBack)
{
    auto& box = Window.Get<QCheckBox>("chk_CustomVideoTitle");
    Click_On(box);
    EXPECT_EQ(Window.Person.Forms, QStringList{u"frm_CustomTitle"_s});
    EXPECT_FALSE(box.isChecked());
    EXPECT_TRUE(Window.Get("chk_SetVideoTitle").isEnabled());
    Window.Person.On_Form[u"frm_CustomTitle"_s] = [](QWidget& form) {
        QTest::keyClicks(&In<QLineEdit>(form, "txt_CustomTitle"), u"Film"_s);
        Press(form, Qt::Key_Return);
    };
    for (int i = 0; i < 3; ++i)
        Click_On(box);
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(Window.Prog().Options.Custom_Video_Title, u"Film");
    EXPECT_EQ(Window.Person.Forms.size(), 2) << "asked once more, then it has one";
}

TEST_F(Dialogs, AChosenRateMakesItsBoxUsableAndNoneTakesItBack)
{
    EXPECT_FALSE(Window.Get("chk_VideoFrameRate").isEnabled());
    const auto choose = [&](Qt::Key key) {
        Open("mnu_VideoFrameRate", "frm_VideoFrameRate", [key](QWidget& form) {
            auto& list = In<QComboBox>(form, "cbo_FrameRate");
            EXPECT_EQ(list.count(), 14);
            list.setFocus();
            Press(form, Qt::Key_Home);
            if (key == Qt::Key_Down)
                Press(form, key);
            Click_On(In(form, "btn_Done"));
        });
    };
    choose(Qt::Key_Down);
    EXPECT_EQ(Window.Prog().Options.Frame_Rate_Value, u"23.976fps");
    EXPECT_TRUE(Window.Get("chk_VideoFrameRate").isEnabled());
    Open("mnu_VideoFrameRate", "frm_VideoFrameRate", [](QWidget& form) {
        Click_On(In(form, "opt_FrameRate_1"));
        EXPECT_FALSE(In<QComboBox>(form, "cbo_FrameRate").isEnabled());
        Click_On(In(form, "btn_Cancel"));
    });
    EXPECT_EQ(Window.Prog().Options.Frame_Rate_Kind, 2);
    choose(Qt::Key_Home);
    EXPECT_FALSE(Window.Get("chk_VideoFrameRate").isEnabled());
}

TEST_F(Dialogs, TheFormatBoxesDropEveryOtherCharacterTypedOrPasted)
{
    Open("mnu_VideoFormatOptions", "frm_VideoFormatOptions", [](QWidget& form) {
        auto* ratio = In<QComboBox>(form, "cbo_AspectRatio").lineEdit();
        ratio->clear();
        QTest::keyClicks(ratio, u"4x/-3e"_s);
        EXPECT_EQ(ratio->text(), u"4/3");
        Click_On(In(form, "opt_AspectRatio_2"));
        EXPECT_FALSE(ratio->isEnabled());
        auto& width = In<QLineEdit>(form, "txt_Width");
        QTest::keyClicks(&width, u"7a20"_s);
        EXPECT_EQ(width.text(), u"720");
        QTest::keyClicks(&In<QLineEdit>(form, "txt_Height"), u"5/7 6"_s);
        Click_On(In(form, "btn_Done"));
    });
    EXPECT_EQ(Window.Prog().Options.Video_Format_Value, u"720x576");
    EXPECT_TRUE(Window.Get("chk_VideoFormatOptions").isEnabled());
    Open("mnu_VideoFormatOptions", "frm_VideoFormatOptions", [](QWidget& form) {
        EXPECT_EQ(In<QLineEdit>(form, "txt_Height").text(), u"576");
        QTest::keyClick(&In<QLineEdit>(form, "txt_Width"), Qt::Key_Backspace);
        Click_On(In(form, "btn_Cancel"));
    });
    EXPECT_EQ(Window.Prog().Options.Video_Format_Value, u"720x576");
}

TEST_F(Dialogs, TenLanguagesMoveByMouseAndKeyAndTheEleventhStays)
{
    int top = 0;
    Open("mnu_CustomAudioFilter", "frm_CustomFilter", [&](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Choose Audio Language(s) to Filter");
        top = form.geometry().top();
        auto& list = In<QListWidget>(form, "lst_LanguageList");
        auto& selection = In<QListWidget>(form, "lst_LanguageSelection");
        const int all = list.count();
        const QString first = list.item(0)->text();
        const auto click_first = [&] {
            list.scrollToTop();
            const QPoint at = list.visualItemRect(list.item(0)).center();
            Click_On(*list.viewport(), at, Qt::LeftButton, {});
        };
        for (int i = 0; i < 9; ++i)
            click_first();
        list.setFocus();
        list.setCurrentRow(0);
        Press(form, Qt::Key_Space);
        EXPECT_EQ(selection.count(), 10);
        EXPECT_EQ(In<QLabel>(form, "lbl_SelLanguages").text(), u"Selected Languages  =  10");
        click_first();
        EXPECT_EQ(list.count(), all - 10);
        Click_On(*selection.viewport(), selection.visualItemRect(selection.item(0)).center(), Qt::LeftButton, {});
        EXPECT_EQ(selection.count(), 9);
        EXPECT_EQ(list.findItems(first, Qt::MatchExactly).size(), 1);
        Click_On(In(form, "opt_CustomFilter_1"));
        Click_On(In(form, "btn_Done"));
    });
    EXPECT_EQ(Window.Prog().Options.AudioFilter.Count, 9);
    EXPECT_EQ(Window.Prog().Options.AudioFilter.Top, top) << "the place is kept though it never moved";
    EXPECT_EQ(Window.Get<QCheckBox>("chk_CustomAudioFilter").text(), u"Apply custom Audio Filter (keep)");
    EXPECT_TRUE(Window.Get("chk_CustomAudioFilter").isEnabled());
    Open("mnu_CustomAudioFilter", "frm_CustomFilter", [](QWidget& form) {
        Click_On(In(form, "btn_CustomClear"));
        Click_On(In(form, "btn_Done"));
    });
    EXPECT_FALSE(Window.Get("chk_CustomAudioFilter").isEnabled());
}

TEST_F(Dialogs, WhatACheckFoundIsChosenByAClickAndAnyOtherLanguageByItsCode)
{
    Place(Window.Files, Rich_Video(), u"videos/a.mkv"_s);
    Place(Window.Files, Short_Video(), u"videos/b.mkv"_s);
    Window.Files.Write(u"videos/a.de.srt"_s, "1\n00:00:00,000 --> 00:00:00,200\nHallo\n");
    Program& program = Window.Prog();
    program.Settings.Extensions.Language_From_File_Name = true;
    program.Options.chk_AddSubs.Value = 1;
    program.Options.chk_StripOrigAudio.Value = 1; // what is dropped counts, too
    Window.Set_Folders();
    Open("mnu_CustomAudioFilter", "frm_CustomFilter", [](QWidget& form) {
        EXPECT_TRUE(In<QLabel>(form, "lbl_FoundHint").text().startsWith(u"Press Check"_s));
        EXPECT_FALSE(In<QWidget>(form, "lst_Found").isVisible());
        Click_On(In(form, "btn_Cancel"));
    });
    const QString tip = Window.Get("chk_CustomAudioFilter").toolTip();
    Window.Choose("mnu_Check");
    EXPECT_EQ(program.Videos.Rows.at(0).Added_Files, QStringList{u"a.de.srt - German (ger), from the file's name"_s});
    Open("mnu_CustomAudioFilter", "frm_CustomFilter", [](QWidget& form) {
        auto& found = In<QListWidget>(form, "lst_Found");
        auto& selection = In<QListWidget>(form, "lst_LanguageSelection");
        EXPECT_FALSE(In<QWidget>(form, "lbl_FoundHint").isVisible());
        ASSERT_EQ(found.count(), 3);
        EXPECT_EQ(found.item(1)->text(), u"German (ger) - 1 of 2");
        // On the box, too: it is the line that is clicked.
        Click_On(*found.viewport(), found.visualItemRect(found.item(1)).center(), Qt::LeftButton, {});
        Click_On(*found.viewport(), found.visualItemRect(found.item(2)).topLeft() + QPoint(8, 8), Qt::LeftButton, {});
        EXPECT_EQ(found.item(2)->checkState(), Qt::Checked);
        found.setFocus();
        found.setCurrentRow(2);
        Press(form, Qt::Key_Space);
        EXPECT_EQ(found.item(2)->checkState(), Qt::Unchecked);
        Press(form, Qt::Key_F, Qt::ControlModifier);
        auto& find = In<QLineEdit>(form, "txt_Find");
        EXPECT_TRUE(find.hasFocus());
        QTest::keyClicks(&find, u"ja"_s);
        EXPECT_TRUE(In<QListWidget>(form, "lst_LanguageList").isRowHidden(0));
        Press(form, Qt::Key_Return);
        EXPECT_EQ(selection.item(1)->text(), u"Japanese (jpn)");
        Press(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible() && find.text().isEmpty());
        EXPECT_FALSE(In<QListWidget>(form, "lst_LanguageList").isRowHidden(0));
        Click_On(In(form, "btn_Done"));
    });
    auto& box = Window.Get("chk_CustomAudioFilter");
    EXPECT_EQ(box.toolTip(),
              u"<qt>Cuts the audio tracks in German (ger), Japanese (jpn); a right click opens the list.");
    program.Options.AudioFilter.Languages.clear();
    Window.Form().Render();
    EXPECT_EQ(box.toolTip(), tip);
}

TEST_F(Dialogs, AnAttachmentFolderIsDroppedClearedAndRestored)
{
    const QString folder = Window.Files.Path(u"fonts/"_s);
    QDir().mkpath(folder);
    Open("mnu_Attachments", "frm_Attachments", [&](QWidget& form) {
        EXPECT_TRUE(In<QLabel>(form, "lbl_AttachmentsPathFault").isVisible());
        EXPECT_FALSE(In(form, "chk_UseSubfolders").isEnabled());
        Drop_On(In<QWidget>(form, "pic_AttachmentsPath"), {Window.Files.Write(u"fonts/a.ttf"_s)});
        EXPECT_EQ(In<QLabel>(form, "lbl_AttachmentsPath").text(), u"");
        Drop_On(In<QWidget>(form, "pic_AttachmentsPath"), {folder});
        EXPECT_EQ(In<QLabel>(form, "lbl_AttachmentsPath").text(), folder);
        Click_On(In(form, "btn_Clear"));
        EXPECT_TRUE(In(form, "cmd_Done").hasFocus());
        EXPECT_EQ(In<QLabel>(form, "lbl_AttachmentsPath").text(), u"");
        Click_On(In(form, "btn_Restore"));
        Click_On(In<QLabel>(form, "lbl_UseSubfolders"));
        EXPECT_TRUE(In(form, "chk_UseSubfolders").isChecked());
        Click_On(In(form, "cmd_Done"));
    });
    EXPECT_EQ(Window.Prog().Options.Path_Attachments, folder);
    EXPECT_TRUE(Window.Prog().Options.Use_Attachment_Subfolders);
    EXPECT_EQ(Window.Get<QCheckBox>("chk_AddAttachments").text(), u"Add Attachments (path set)");
}

TEST_F(Dialogs, TheLocationsShowBothToolsAndTakeADropOfTheirFolder)
{
    const QString mkvmerge = Tool_In_Path(u"mkvmerge"_s);
    Open("mnu_ExecutablePaths", "frm_Locations", [&](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Drop the executable files here to register their paths.");
        EXPECT_TRUE(Wait_Until([&] { return !In<QLabel>(form, "lbl_MKVMerge_Version").text().isEmpty(); }));
        EXPECT_EQ(In<QLabel>(form, "lbl_ffprobe_Path").text(), Window.Prog().Tools.FFProbe_Path);
        EXPECT_TRUE(In<QLabel>(form, "lbl_ffprobe_Version").text().startsWith(u"ffprobe version"));
        EXPECT_TRUE(In<QLabel>(form, "lbl_MKVMerge_Version").text().startsWith(u"- mkvmerge v"));
        Click_On(In(form, "btn_Clear"));
        EXPECT_TRUE(In<QLabel>(form, "lbl_MKVMerge_PathFault").isVisible());
        EXPECT_FALSE(In(form, "btn_Clear").isEnabled());
        Drop_On(In<QWidget>(form, "pic_MKVMerge_Path"), {QFileInfo(mkvmerge).path()});
        EXPECT_EQ(In<QLabel>(form, "lbl_MKVMerge_Path").text(), mkvmerge);
        EXPECT_EQ(In<QLabel>(form, "lbl_MKVMerge_Choose").text(), u"Set by Operator");
        Press(form, Qt::Key_Return);
    });
    EXPECT_EQ(Window.Prog().Tools.System_MKVMerge_Path, mkvmerge);
}

TEST_F(Dialogs, AFilterInBarsBecomesQtsNameFilters)
{
    EXPECT_EQ(Name_Filters(u"Program Files (*.exe)|*.exe|"_s), QStringList{u"Program Files (*.exe)"_s});
    EXPECT_EQ(Name_Filters(u"mkvmerge|mkvmerge|Videos|*.mkv;*.mp4|"_s),
              (QStringList{u"mkvmerge (mkvmerge)"_s, u"Videos (*.mkv *.mp4)"_s}));
    EXPECT_EQ(Name_Filters(u""_s), QStringList());
}
