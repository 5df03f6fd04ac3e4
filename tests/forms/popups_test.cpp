#include "forms/test_window.h"
#include "life/popups.h"
#include "life/start_up.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

struct Popup_Menus : testing::Test
{
    Test_Window Window;

    void SetUp() override
    {
        ASSERT_TRUE(Window.Start());
        Window.Set_Folders();
        // All panels are in view, so that each can be clicked.
        for (const char* box : {"chk_AudioPath", "chk_SubsPath", "chk_ChaptersPath"})
            Click_On(Window.Get(box));
        Window.Form().resize(1400, 900);
        QCoreApplication::processEvents();
    }

    static void Expect_Open(const Popup& popup, const QString& where)
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << "no popup at " << where.toStdString();
        EXPECT_EQ(menu->objectName(), popup.Menu);
        ASSERT_EQ(menu->actions().size(), 1);
        EXPECT_EQ(menu->actions().constFirst()->objectName(), popup.Item);
        EXPECT_EQ(menu->actions().constFirst()->text(), popup.Caption);
        menu->close();
        QCoreApplication::processEvents();
    }
};

TEST_F(Popup_Menus, ARightClickOnEachControlAndItsPanelOpensItsPopup)
{
    for (const Popup& popup : Popups())
        for (const QString& name : popup.Controls) {
            auto* control = Window.Form().findChild<QWidget*>(name);
            if (!control || !control->isVisible())
                continue; // pic_AttachmentsPath stands on its form; a fault that is no fault is hidden
            Click_On(*control, Qt::RightButton);
            Expect_Open(popup, name);
        }
}

/// What of a panel takes the focus; null: none of it does now.
static QWidget* Focusable_In(QWidget& panel)
{
    for (QWidget* child : panel.findChildren<QWidget*>())
        if (child->isVisible() && child->isEnabled() && child->focusPolicy() & Qt::TabFocus)
            return child;
    return nullptr;
}

TEST_F(Popup_Menus, TheMenuKeyOpensThePopupOfThePanelThatHasTheFocus)
{
    // Those that wait for another option or a setting are in reach by the menu bar meanwhile.
    Click_On(Window.Get("chk_AddAudio"));
    Click_On(Window.Get("chk_AddSubs"));
    int opened = 0;
    for (const Popup& popup : Popups()) {
        auto* panel = Window.Form().findChild<QWidget*>(popup.Controls.filter(u"pic_"_s).constFirst());
        auto* target = panel ? Focusable_In(*panel) : nullptr;
        if (!target)
            continue;
        target->setFocus();
        QContextMenuEvent key(QContextMenuEvent::Keyboard, target->rect().center(), target->mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(target, &key);
        Expect_Open(popup, target->objectName());
        ++opened;
    }
    EXPECT_EQ(opened, 9) << "five folders, two titles, two kinds of option files";
}

TEST_F(Popup_Menus, ARightClickOnTheEnabledAttachmentsBoxOpensItsFormAtOnce)
{
    auto& box = Window.Get("chk_AddAttachments");
    Click_On(box, Qt::RightButton); // disabled: the panel's popup
    Expect_Open(*Find_Popup(u"pic_AddAttachments"_s), u"chk_AddAttachments"_s);
    Window.Prog().Options.chk_AddAttachments.Enabled = true;
    Window.Form().Render();
    Click_On(box, Qt::RightButton);
    EXPECT_EQ(Window.Person.Forms, QStringList{u"frm_Attachments"_s});
}
