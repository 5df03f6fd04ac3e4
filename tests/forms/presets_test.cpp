#include "forms/form_test.h"
#include "support/disk_names.h"

#include <QCheckBox>
#include <QListWidget>

/// Presets as a person makes, finds and keeps them.
struct Presets_By_Hand : Form_Test
{
    void SetUp() override { ASSERT_TRUE(Window.Start()); }

    QString Title() { return Window.Form().windowTitle().section(u" - Vantorra"_s, 0, 0); }
};

TEST_F(Presets_By_Hand, AreSavedByKeysStandInTheMenuAndAreLoadedByAClick)
{
    // A mark that Qt would put a star in its place of, where a file may have such a name.
    const QString marked = u"Tom & [*] <b>"_s;
    const QString name = Why_Not_A_Name(marked).isEmpty() ? marked : u"Tom & b"_s;
    const QString title = QString(name).replace(u"[*]"_s, u"[*][*]"_s); // as Qt is told of one that is meant
    Open("mnu_SavePreset", "frm_PresetName", [&](QWidget& form) {
        const QAbstractButton& done = In(form, "btn_Done");
        EXPECT_FALSE(done.isEnabled());
        auto& line = In<QLineEdit>(form, "txt_PresetName");
        QTest::keyClicks(&line, u"a/b"_s);
        EXPECT_TRUE(In<QLabel>(form, "lbl_PresetNameFault").text().contains(u"can't hold"));
        Press(form, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        line.selectAll();
        QTest::keyClicks(&line, name);
        EXPECT_TRUE(done.isEnabled());
        Press(form, Qt::Key_Return);
    });
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"app/presets/"_s + name + u".ini"_s)));
    EXPECT_EQ(Title(), title);
    auto& box = Window.Get<QCheckBox>("chk_AddSubs");
    Click_On(box);
    EXPECT_EQ(Title(), title + u" *"_s);
    auto& menu = Window.Get<QMenu>("mnu_Presets");
    menu.popup({});
    ASSERT_EQ(menu.actions().size(), 5);
    EXPECT_EQ(menu.actions()[2]->text(), QString(name).replace(u"&"_s, u"&&"_s));
    EXPECT_TRUE(menu.actions()[2]->isChecked());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions()[2]).center());
    QCoreApplication::processEvents();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(Title(), title);
    EXPECT_TRUE(Window.Get<QLabel>("lbl_Notice").text().contains(u"is loaded"));
}

TEST_F(Presets_By_Hand, AreManagedByKeysAndLoadedByADrop)
{
    for (int i = 10; i < 35; ++i)
        Window.Files.Write(u"app/presets/p%1.ini"_s.arg(i), "[Subtitles]\nAdd Subtitles=On\n");
    Open("mnu_ManagePresets", "frm_Presets", [](QWidget& form) {
        auto& list = In<QListWidget>(form, "lst_Presets");
        EXPECT_EQ(form.focusWidget(), &list);
        QTimer::singleShot(0, &form, [] {
            QWidget& name = *QApplication::activeModalWidget();
            QTest::keyClicks(&In<QLineEdit>(name, "txt_PresetName"), u"n"_s); // over the marked text
            Press(name, Qt::Key_Return);
        });
        Press(form, Qt::Key_F2);
        EXPECT_EQ(list.currentItem()->text(), u"n"_s);
        Press(form, Qt::Key_Delete);
        Press(form, Qt::Key_End);
        Press(form, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_TRUE(Names_In_Trash().contains(u"n.ini"_s));
    EXPECT_EQ(Title(), u"p34"_s);
    EXPECT_EQ(Window.Prog().Options.chk_AddSubs.Value, 1);

    const QString file = Window.Files.Write(u"else/Mine.INI"_s, "[Subtitles]\nAdd Subtitles=Off\n");
    EXPECT_TRUE(Drop_On(Window.Get("fram_Options"), QStringList{file}));
    EXPECT_EQ(Title(), u"Mine"_s);
    EXPECT_EQ(Window.Prog().Options.Path_Videos, u""_s);
}
