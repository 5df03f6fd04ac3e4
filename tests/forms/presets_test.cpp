#include "forms/form_test.h"

#include <QCheckBox>
#include <QListWidget>

/// Presets as a person makes, finds and keeps them.
struct Presets_By_Hand : Form_Test
{
    void SetUp() override { ASSERT_TRUE(Window.Start()); }

    QString Title() { return Window.Form().windowTitle().section(u" - Vantorra"_s, 0, 0); }

    /// What the menu of the presets shows, once it has opened.
    QList<QAction*> Items()
    {
        auto& menu = Window.Get<QMenu>("mnu_Presets");
        menu.popup({});
        QCoreApplication::processEvents();
        QList<QAction*> items = menu.actions();
        menu.close();
        return items;
    }
};

TEST_F(Presets_By_Hand, AreSavedByKeysStandInTheMenuAndAreLoadedByAClick)
{
    EXPECT_EQ(Items().size(), 3);
    Open("mnu_SavePreset", "frm_PresetName", [](QWidget& form) {
        const QAbstractButton& done = In(form, "btn_Done");
        EXPECT_FALSE(done.isEnabled());
        auto& line = In<QLineEdit>(form, "txt_PresetName");
        QTest::keyClicks(&line, u"a/b"_s);
        EXPECT_TRUE(In<QLabel>(form, "lbl_PresetNameFault").text().contains(u"can't hold"));
        Press(form, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        line.selectAll();
        QTest::keyClicks(&line, u"Tom & [*] <b>"_s);
        EXPECT_TRUE(done.isEnabled());
        Press(form, Qt::Key_Return);
    });
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"app/presets/Tom & [*] <b>.ini"_s)));
    EXPECT_EQ(Title(), u"Tom & [*][*] <b>"_s); // as Qt is told of one that is meant
    auto& box = Window.Get<QCheckBox>("chk_AddSubs");
    Click_On(box);
    EXPECT_EQ(Title(), u"Tom & [*][*] <b> *"_s);
    const QList<QAction*> items = Items();
    ASSERT_EQ(items.size(), 5);
    EXPECT_EQ(items[2]->text(), u"Tom && [*] <b>"_s);
    EXPECT_TRUE(items[2]->isChecked());
    auto& menu = Window.Get<QMenu>("mnu_Presets");
    menu.popup({});
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions()[2]).center());
    QCoreApplication::processEvents();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(Title(), u"Tom & [*][*] <b>"_s);
    EXPECT_TRUE(Window.Get<QLabel>("lbl_Notice").text().contains(u"is loaded"));
}

TEST_F(Presets_By_Hand, AreManagedByKeysAndLoadedByADrop)
{
    for (int i = 0; i < 25; ++i)
        Window.Files.Write(u"app/presets/p%1.ini"_s.arg(i, 2, 10, QChar(u'0')), "[Subtitles]\nAdd Subtitles=On\n");
    EXPECT_EQ(Items().at(22)->text(), u"5 more..."_s);
    Open("mnu_ManagePresets", "frm_Presets", [this](QWidget& form) {
        auto& list = In<QListWidget>(form, "lst_Presets");
        EXPECT_EQ(list.count(), 25);
        EXPECT_EQ(form.focusWidget(), &list);
        QTimer::singleShot(0, &form, [] {
            QWidget& name = *QApplication::activeModalWidget();
            QTest::keyClicks(&In<QLineEdit>(name, "txt_PresetName"), u"p00 & more"_s); // over the marked text
            Press(name, Qt::Key_Return);
        });
        Press(form, Qt::Key_F2);
        EXPECT_EQ(list.currentItem()->text(), u"p00 & more"_s);
        Press(form, Qt::Key_Delete);
        EXPECT_EQ(list.count(), 24);
        EXPECT_EQ(list.currentItem()->text(), u"p01"_s);
        Press(form, Qt::Key_End);
        Press(form, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_TRUE(Names_In_Trash().contains(u"p00 & more.ini"_s));
    EXPECT_EQ(Title(), u"p24"_s);
    EXPECT_TRUE(Window.Get<QCheckBox>("chk_AddSubs").isChecked());

    const QString file = Window.Files.Write(u"else/Mine.INI"_s, "[Subtitles]\nAdd Subtitles=Off\n");
    EXPECT_TRUE(Drop_On(Window.Get("fram_Options"), QStringList{file}));
    EXPECT_EQ(Title(), u"Mine"_s);
    EXPECT_FALSE(Window.Get<QCheckBox>("chk_AddSubs").isChecked());
    EXPECT_EQ(Window.Prog().Options.Path_Videos, u""_s);
}
