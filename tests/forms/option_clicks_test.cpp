#include "forms/test_window.h"
#include "life/menu_commands.h"
#include "life/start_up.h"
#include "rules/click_rules.h"
#include "rules/option_rules.h"

#include <QApplication>
#include <QCheckBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QToolButton>

/// The window, and a program without one that is handed the same clicks.
struct Option_Clicks : testing::Test
{
    Test_Window Window;
    Program& Plain = Window.Files.Prog;

    void SetUp() override
    {
        ASSERT_TRUE(Window.Start());
        Load_Settings(Plain);
        First_Activation(Plain);
    }

    /// Every box: value, enabled state and caption, as the records have them and as the widgets show them.
    void Expect_The_Same()
    {
        for (const Click_Rule& rule : Click_Rules()) {
            const Check_Box& plain = Plain.Options.*rule.Box;
            const Check_Box& record = Window.Prog().Options.*rule.Box;
            EXPECT_EQ(record.Value, plain.Value) << rule.Name.toStdString();
            EXPECT_EQ(record.Enabled, plain.Enabled) << rule.Name.toStdString();
            EXPECT_EQ(record.Caption, plain.Caption) << rule.Name.toStdString();
            const auto* box = Window.Form().findChild<QCheckBox*>(rule.Name);
            if (!box)
                continue;
            EXPECT_EQ(box->isChecked(), record.Value == 1) << rule.Name.toStdString();
            EXPECT_EQ(box->isEnabled(), record.Enabled) << rule.Name.toStdString();
            EXPECT_EQ(box->text(), record.Caption) << rule.Name.toStdString();
        }
    }
};

TEST_F(Option_Clicks, EachBoxActsAsItsRuleTickedAndUnticked)
{
    // Without a text their boxes would ask for it.
    Window.Prog().Options.Custom_File_Title = Window.Prog().Options.Custom_Video_Title = u"Film"_s;
    for (const Click_Rule& rule : Click_Rules()) {
        auto* box = Window.Form().findChild<QCheckBox*>(rule.Name);
        if (rule.Name == u"chk_UseSubfolders")
            continue; // stands on frm_Attachments
        ASSERT_TRUE(box) << rule.Name.toStdString();
        for (int i = 0; i < 2; ++i) {
            Click_On(*box);
            Click(Plain, rule);
            Expect_The_Same();
            if (HasFailure())
                FAIL() << "after click " << i + 1 << " on " << rule.Name.toStdString();
        }
        // Left ticked for the boxes behind it, so that they are clicked with and without it.
        Click_On(*box);
        Click(Plain, rule);
    }
}

TEST_F(Option_Clicks, SpaceTicksABoxAndLeavesTheFocusWhileTheMouseParksIt)
{
    auto& box = Window.Get<QCheckBox>("chk_StripChaps");
    box.setFocus();
    Press(box, Qt::Key_Space);
    EXPECT_EQ(Window.Prog().Options.chk_StripChaps.Value, 1);
    EXPECT_TRUE(box.hasFocus());
    Click_On(box);
    EXPECT_EQ(Window.Prog().Options.chk_StripChaps.Value, 0);
    EXPECT_TRUE(Window.Get("btn_NOP").hasFocus());
    Press(box, Qt::Key_Tab);
    EXPECT_TRUE(Window.Get("chk_ChaptersPath").hasFocus());
}

TEST_F(Option_Clicks, TheOptionButtonsAndTheChapterFormatFollowTheirRecords)
{
    struct
    {
        const char* Box;
        const char* First;
        const char* Second;
        const Option_Pair& Pair;
    } const titles[] = {
        {"chk_SetFileTitle", "opt_SetFileTitle_1", "opt_SetFileTitle_2", Window.Prog().Options.opt_SetFileTitle},
        {"chk_SetVideoTitle", "opt_SetVideoTitle_1", "opt_SetVideoTitle_2", Window.Prog().Options.opt_SetVideoTitle},
    };

    for (const auto& title : titles) {
        Click_On(Window.Get(title.Second));
        EXPECT_EQ(title.Pair.Selected, 1) << "disabled until its box is ticked";
        Click_On(Window.Get(title.Box));
        Click_On(Window.Get(title.Second));
        EXPECT_EQ(title.Pair.Selected, 2);
        EXPECT_TRUE(Window.Get<QRadioButton>(title.Second).isChecked());
        Click_On(Window.Get(title.First));
        EXPECT_EQ(title.Pair.Selected, 1);
    }

    Click_On(Window.Get("chk_ReplaceChapters"));
    Click_On(Window.Get("chk_ConvertTXT"));
    Click_On(Window.Get("lbl_ChapsFormat"));
    EXPECT_EQ(Window.Get<QToolButton>("lbl_ChapsFormat").text(), u"HH:MM:SS.hh(h)");
    EXPECT_EQ(Window.Prog().Options.Chapter_Format_Index, 1);
}

TEST_F(Option_Clicks, ARightClickOrTheMenuKeyFlipsTheWordOfTheFlagBoxes)
{
    auto& box = Window.Get<QCheckBox>("chk_SubDefaults");
    const QString first = Window.Prog().Options.chk_SubDefaults.Tag;
    Click_On(box, Qt::RightButton);
    EXPECT_NE(Window.Prog().Options.chk_SubDefaults.Tag, first);
    EXPECT_EQ(box.text(), u"Set All Subtitles defaults to \"%1\""_s.arg(Window.Prog().Options.chk_SubDefaults.Tag));
    EXPECT_EQ(box.isChecked(), Window.Prog().Options.chk_SubDefaults.Value == 1);
    box.setFocus();
    QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint(), box.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&box, &menu_key);
    EXPECT_EQ(Window.Prog().Options.chk_SubDefaults.Tag, first);
    Window.Choose("mnu_FlipSubForces");
    const QWidget& longer = Window.Get("chk_SubForces");
    EXPECT_GE(longer.minimumWidth(), longer.sizeHint().width()) << "no change of a caption moves anything";
    EXPECT_EQ(Window.Get<QCheckBox>("chk_SubForces").text(),
              u"Set All Subtitles forces to \"%1\""_s.arg(Window.Prog().Options.chk_SubForces.Tag));
}

TEST_F(Option_Clicks, EachMenuTickFlipsItsRecordAndShowsIt)
{
    for (const Menu_Tick& tick : Menu_Ticks()) {
        const QByteArray name = tick.Name.toLatin1();
        const bool before = tick.Ticked(Window.Prog());
        EXPECT_EQ(Window.Action(name).isChecked(), before) << name.constData();
        EXPECT_EQ(Window.Action(name).text().remove(u'&'), tick.Caption);
        Window.Choose(name);
        EXPECT_EQ(tick.Ticked(Window.Prog()), !before) << name.constData();
        EXPECT_EQ(Window.Action(name).isChecked(), !before) << name.constData();
    }
}

TEST_F(Option_Clicks, ABoxIsLeftForAnotherControlAndByTheEndOnly)
{
    QWidget other;
    Click_On(Window.Get("chk_SplitVideos"));
    auto& edit = Window.Get<QLineEdit>("txt_SplitVideosValue");
    const std::function<void()> no_leaving[] = {
        [&] {
            other.show();
            other.activateWindow();
            QCoreApplication::processEvents();
            Window.Form().activateWindow();
        },
        [&] {
            Press(edit, Qt::Key_F, Qt::AltModifier);
            Press(*QApplication::activePopupWidget(), Qt::Key_Escape);
            Press(Window.Form(), Qt::Key_Escape);
        },
        [&] {
            auto& bar = Window.Get<QMenuBar>("menubar");
            Click_On(bar, bar.actionGeometry(bar.actions().constFirst()).center(), Qt::LeftButton, {});
            Press(*QApplication::activePopupWidget(), Qt::Key_Escape);
        },
    };
    for (const auto& way : no_leaving) {
        Click_On(edit);
        EXPECT_EQ(edit.selectedText(), edit.text()) << "the click selects what the digits replace";
        Press(edit, Qt::Key_4);
        Press(edit, Qt::Key_4);
        way();
        QCoreApplication::processEvents();
        EXPECT_EQ(Window.Prog().Options.Split_Minutes, u"30") << &way - no_leaving;
        edit.setFocus();
        Press(edit, Qt::Key_Escape);
        Click_On(Window.Get("chk_StripChaps"));
    }
    // A rule may take the focus while another window is in front.
    Click_On(edit);
    Press(edit, Qt::Key_5);
    Press(edit, Qt::Key_5);
    other.activateWindow();
    QCoreApplication::processEvents();
    Window.Choose("mnu_KeepTopmost");
    EXPECT_EQ(Window.Prog().Options.Split_Minutes, u"55");
    Window.Form().activateWindow();
    Click_On(edit);
    Press(edit, Qt::Key_6);
    Press(edit, Qt::Key_6);
    Window.Quit();
    EXPECT_TRUE(Window.Files.Read(u"app/Vantorra.ini"_s).contains("=66"));
}

TEST_F(Option_Clicks, ALetterLeavesAnEmptyDelayBoxEmpty)
{
    Click_On(Window.Get("chk_AudioDelayAdjust"));
    auto& edit = Window.Get<QLineEdit>("txt_AudioDelayValue");
    Click_On(edit);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_8, Qt::Key_Backspace, Qt::Key_X})
        Press(edit, key);
    EXPECT_EQ(edit.text(), u"");
}

TEST_F(Option_Clicks, AGroupsLetterGoesToItsFirstBoxThatCanBeUsed)
{
    const std::pair<Qt::Key, const char*> letters[] = {{Qt::Key_A, "chk_StripOrigAudio"},
                                                       {Qt::Key_U, "chk_StripOrigSubs"},
                                                       {Qt::Key_C, "chk_StripChaps"},
                                                       {Qt::Key_O, "chk_RemoveAllTags"}};
    for (const auto& [letter, box] : letters) {
        Press(Window.Form(), letter, Qt::AltModifier);
        EXPECT_TRUE(Window.Get(box).hasFocus()) << box;
    }
}
