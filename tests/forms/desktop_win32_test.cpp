#include "forms/desktop_notice.h"
#include "forms/desktop_style.h"
#include "forms/drawn_icon.h"
#include "forms/looks.h"
#include "forms/readable_style.h"
#include "forms/test_window.h"

#include <QApplication>
#include <QProxyStyle>
#include <QSystemTrayIcon>
#include <windows.h>

static const wchar_t* const Personalize = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";

/// The person's choice between light and dark programs, put back in the end, and told to the window.
struct Desktop_Look : testing::Test
{
    const QPalette Palette = QApplication::palette();
    QWidget Window;
    DWORD Before = 1;

    Desktop_Look()
    {
        DWORD size = sizeof(Before);
        ::RegGetValueW(HKEY_CURRENT_USER, Personalize, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &Before, &size);
        Window.show();
    }

    ~Desktop_Look() override
    {
        Choose(Before);
        QApplication::setStyle(new Readable_Style);
        QApplication::setPalette(Palette);
    }

    void Choose(DWORD light)
    {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, Personalize, L"AppsUseLightTheme", REG_DWORD, &light, sizeof(light));
        ::SendMessageW(reinterpret_cast<HWND>(Window.winId()), WM_SETTINGCHANGE, 0,
                       reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
        QCoreApplication::processEvents();
    }

    static QString Base_Style() { return qobject_cast<QProxyStyle*>(QApplication::style())->baseStyle()->name(); }
};

TEST_F(Desktop_Look, FollowsTheChoiceAtStartAndLater)
{
    Choose(0);
    const Desktop_Style style;
    EXPECT_EQ(Base_Style(), u"fusion");
    ASSERT_TRUE(Is_Dark(QApplication::palette()));
    const QPalette dark = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window},
        {QPalette::Link, QPalette::Base}};
    for (const auto& [words, ground] : pairs) {
        EXPECT_GE(Contrast(dark.color(QPalette::Active, words), dark.color(QPalette::Active, ground)), 4.5) << words;
        EXPECT_GE(Contrast(dark.color(QPalette::Disabled, words), dark.color(QPalette::Disabled, ground)), 3) << words;
    }
    Choose(1);
    EXPECT_EQ(Base_Style(), u"windowsvista");
    EXPECT_FALSE(Is_Dark(QApplication::palette()));
    Choose(0);
    EXPECT_TRUE(Is_Dark(Window.palette())) << "windows that are there follow, too";
}

TEST(Close_Key, AltF4ThatTheSystemSwallowsLeavesTheProgram)
{
    for (const bool shift : {true, false}) {
        Test_Window window;
        ASSERT_TRUE(window.Start());
        const auto form = reinterpret_cast<HWND>(window.Form().winId());
        EXPECT_NE(::GetMenuState(::GetSystemMenu(form, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED, 0U);
        BYTE keys[256] = {};
        keys[VK_SHIFT] = shift ? 0x80 : 0;
        keys[VK_MENU] = 0x80;
        ::SetKeyboardState(keys);
        ::PostMessageW(form, WM_SYSKEYDOWN, VK_F4, 1 << 29);
        QCoreApplication::processEvents();
        keys[VK_SHIFT] = keys[VK_MENU] = 0;
        ::SetKeyboardState(keys);
        EXPECT_EQ(window.Form().Unloaded(), !shift);
    }
}

TEST(Desktop_Notice, ItsIconGoesWhenThePersonIsBack)
{
    QApplication::setWindowIcon(Drawn_Icon(u"vantorra"_s));
    EXPECT_EQ(QApplication::windowIcon().availableSizes().size(), 9) << "drawn by the build";
    QWidget window;
    window.show();
    const auto icons = [&window] { return window.findChildren<QSystemTrayIcon*>(); };
    Show_Desktop_Notice(window, u"FINISHED"_s, u"1 done\nC:\\v\\Tom & Jerry\\"_s);
    ASSERT_EQ(icons().size(), 1);
    EXPECT_TRUE(icons()[0]->isVisible());
    emit qApp->applicationStateChanged(Qt::ApplicationActive);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(icons().isEmpty());
}
