#include "forms/elided_label.h"
#include "forms/test_window.h"
#include "life/start_up.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>

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
    const QString folder = Window.Files.Path(u"<b>"_s + QString(200, u'w') + u'/' + QString(200, u'e') + u'/');
    QDir().mkpath(folder);
    Drop(folder);
    const auto& label = Window.Get<Elided_Label>("ulbl_VideosPath");
    EXPECT_EQ(label.text(), folder);
    EXPECT_TRUE(label.Shown_Text().contains(QChar(0x2026)));
    EXPECT_TRUE(label.Shown_Text().endsWith(u"eee/"));
    EXPECT_TRUE(label.toolTip().contains(u"&lt;b&gt;www"));
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
