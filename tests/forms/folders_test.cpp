#include "forms/elided_label.h"
#include "forms/test_window.h"
#include "life/start_up.h"
#include "support/paths.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QStatusBar>

struct Folder_Panels : testing::Test
{
    Test_Window Window;

    void SetUp() override { ASSERT_TRUE(Window.Start()); }

    void Drop(const QString& folder) { Drop_On(Window.Get("pic_VideosPath"), {folder}); }

    QString Shown(const char* label) { return Window.Get<QLabel>(label).text(); }
};

TEST_F(Folder_Panels, APanelComesAndGoesWithItsBoxAndNothingMoves)
{
    const int target = Window.Get("pic_TargetPath").y();
    const QRect form = Window.Form().geometry();
    Click_On(Window.Get("chk_AudioPath"));
    EXPECT_TRUE(Window.Get("pic_AudioPath").isVisible());
    Click_On(Window.Get("chk_SubsPath"));
    Click_On(Window.Get("chk_ChaptersPath"));
    EXPECT_LT(Window.Get("pic_AudioPath").y(), Window.Get("pic_SubsPath").y());
    EXPECT_LT(Window.Get("pic_SubsPath").y(), Window.Get("pic_ChaptersPath").y());
    EXPECT_LT(Window.Get("pic_ChaptersPath").y(), Window.Get("pic_TargetPath").y());
    EXPECT_EQ(Window.Get("pic_TargetPath").y(), target);
    EXPECT_EQ(Window.Form().geometry(), form);
    for (const char* box : {"chk_AudioPath", "chk_SubsPath", "chk_ChaptersPath"})
        Click_On(Window.Get(box));
    EXPECT_FALSE(Window.Get("pic_SubsPath").isVisible());
    EXPECT_EQ(Window.Get("pic_TargetPath").y(), target);
}

TEST_F(Folder_Panels, ALongPathIsCutInItsMiddleAndWholeInItsTooltip)
{
    const QString folder = Window.Files.Path(u"&lt;"_s + QString(200, u'w') + u'/' + QString(200, u'e') + u'/');
    QDir().mkpath(folder);
    Drop(folder);
    const auto& label = Window.Get<Elided_Label>("ulbl_VideosPath");
    EXPECT_EQ(label.text(), folder);
    EXPECT_TRUE(label.Shown_Text().contains(QChar(0x2026)));
    EXPECT_TRUE(label.Shown_Text().endsWith(u"eee"_s + Path_Separator));
    EXPECT_TRUE(label.toolTip().contains(u"&amp;lt;www"));
}

TEST_F(Folder_Panels, AFolderThatVanishesIsToldAtTheRunAndLosesItsPanelsPath)
{
    Window.Set_Folders();
    QDir(Window.Files.Path(u"target"_s)).removeRecursively();
    Click_On(Window.Get("btn_RunVantorra"));
    EXPECT_EQ(Shown("ulbl_TargetPath"), u"");
    EXPECT_TRUE(Window.Get("lbl_TargetPathFault").isVisible());
    EXPECT_EQ(Shown("lbl_TargetPathFault"), u"Target Path Not Set");
    EXPECT_FALSE(Window.Get("btn_RunVantorra").isEnabled()) << "it follows the press's own check";
    EXPECT_TRUE(Window.Files.Read(u"app/Vantorra_Process.log"_s).contains("The Target path does not exist!"));
}

TEST_F(Folder_Panels, TheArrowOffersTheRecentFoldersAndAChoiceSwapsThem)
{
    QDir().mkpath(Window.Files.Path(u"older"_s));
    Drop(Window.Files.Path(u"older"_s));
    Drop(Window.Files.Path(u"videos"_s));
    Window.Person.On_Form[u"frm_SourceMRU"_s] = [&](QWidget& form) {
        auto* list = form.findChild<QComboBox*>(u"cmbo_MRU"_s);
        const auto* box = &Window.Get("box_VideosPath");
        EXPECT_EQ(form.geometry().topLeft(), box->mapToGlobal(QPoint()));
        EXPECT_EQ(form.width(), box->width());
        EXPECT_EQ(list->itemText(0), Window.Files.Path(u"older/"_s));
        list->showPopup();
        QTest::keyClick(list->view(), Qt::Key_Home);
        QTest::keyClick(list->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
    };
    Click_On(Window.Get("img_SourceMRU"));
    EXPECT_EQ(Shown("ulbl_VideosPath"), Window.Files.Path(u"older/"_s));
    EXPECT_EQ(Window.Prog().Settings.Source_MRU.constFirst(), Window.Files.Path(u"videos/"_s));
    EXPECT_FALSE(Window.Get<QAbstractButton>("img_SourceMRU").isDown());

    Window.Person.On_Form[u"frm_SourceMRU"_s] = [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); };
    Click_On(Window.Get("img_SourceMRU"));
    EXPECT_EQ(Shown("ulbl_VideosPath"), Window.Files.Path(u"older/"_s));
}

TEST_F(Folder_Panels, APathIsTypedPastedCompletedAndGivenUp)
{
    QDir().mkpath(Window.Files.Path(u"shelf/Season 1"_s));
    Window.Set_Folders();
    auto& edit = Window.Get<QLineEdit>("txt_VideosPath");
    const QString videos = Shown("ulbl_VideosPath");
    const auto& fault = Window.Get<QLabel>("lbl_VideoPathFault");
    Press(Window.Get("img_SourceMRU"), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ(edit.selectedText(), videos);

    QTest::keyClicks(&edit, Window.Files.Path(u"shelf/nix"_s));
    EXPECT_TRUE(fault.isVisible());
    EXPECT_EQ(fault.text(), u"There is no such folder");
    Press(edit, Qt::Key_Return);
    EXPECT_TRUE(edit.hasFocus());
    Press(edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), videos);
    EXPECT_FALSE(fault.isVisible());

    QTest::keyClicks(&edit, Window.Files.Path(u"shelf/Sea"_s));
    ASSERT_TRUE(edit.completer()->popup()->isVisible());
    QTest::keyClick(edit.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(edit.completer()->popup(), Qt::Key_Return);
    Window.Form().activateWindow(); // no window manager does it
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown("ulbl_VideosPath"), Window.Files.Path(u"shelf/Season 1/"_s));
    EXPECT_TRUE(Window.Get("btn_NOP").hasFocus());

    // What stands in a box counts before a key of the menu is obeyed.
    Click_On(Window.Get("ulbl_TargetPath"));
    QTest::keyClicks(&Window.Get<QLineEdit>("txt_TargetPath"), u"gone"_s);
    Press(Window.Form(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(Shown("ulbl_TargetPath"), u"gone");
    EXPECT_EQ(Window.Prog().Options.Path_Target, u"");
    EXPECT_FALSE(Window.Get("btn_RunVantorra").isEnabled());
    EXPECT_TRUE(Window.Person.Boxes.empty());
}

TEST_F(Folder_Panels, AFolderMayBeDroppedAnywhereAndTheStatusBarSaysWhatCameOfIt)
{
    const QString film = Window.Files.Write(u"shelf/a.mkv"_s);
    Window.Files.Write(u"shelf/b.mkv"_s);
    const auto status = [this] { return Window.Get<QLabel>("lbl_Notice").text(); };
    EXPECT_TRUE(Drop_On(Window.Form(), {film}));
    EXPECT_EQ(Shown("ulbl_VideosPath"), Window.Files.Path(u"shelf/"_s));
    EXPECT_EQ(status(), u"Only the dropped video is ticked.");
    EXPECT_EQ(Window.Get<QAbstractButton>("chip_Left_Out").text(), u"Left out 1");
    Drop_On(Window.Form(), {Window.Files.Path(u"shelf"_s)});
    EXPECT_EQ(status(), u"All videos of the folder are ticked again.");
    Window.Prog().Run.Press_In_Work = true;
    EXPECT_FALSE(Drop_On(Window.Form(), {Window.Files.Path(u"videos"_s)}));
    Window.Prog().Run.Press_In_Work = false;

    Drop(Window.Files.Path(u"videos"_s)); // the notice goes with what it spoke of
    QEvent over(QEvent::Enter);
    QCoreApplication::sendEvent(&Window.Get("chk_StripChaps"), &over);
    EXPECT_EQ(Window.Get<QStatusBar>("statusbar").currentMessage(), Window.Get("chk_StripChaps").toolTip());
}
