#include "forms/desktop_style.h"

#include "forms/looks.h"
#include "forms/readable_style.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QPalette>
#include <optional>
#include <windows.h>

using namespace Qt::StringLiterals;

static std::optional<DWORD> User_Number(const wchar_t* key, const wchar_t* name)
{
    DWORD number = 0;
    DWORD size = sizeof(number);
    if (::RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_DWORD, nullptr, &number, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return number;
}

/// The person has chosen dark programs. Colours of high contrast are the system's own and win.
static bool Wants_Dark()
{
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof(contrast);
    if (::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
        (contrast.dwFlags & HCF_HIGHCONTRASTON))
        return false;
    return User_Number(L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize", L"AppsUseLightTheme") ==
           DWORD(0);
}

/// What is marked has the colour that the person has chosen for windows.
static QColor Accent()
{
    const DWORD colour = User_Number(L"Software\\Microsoft\\Windows\\DWM", L"AccentColor").value_or(0x00d77800);
    return Under_White_Text(QColor(GetRValue(colour), GetGValue(colour), GetBValue(colour)));
}

static QPalette Dark_Palette()
{
    const QColor words(0xf2, 0xf2, 0xf2);
    const QColor faint(0x8a, 0x8a, 0x8a);
    const QColor link(0x6c, 0xb8, 0xff);
    QPalette dark(words, QColor(0x3a, 0x3a, 0x3a), QColor(0x5a, 0x5a, 0x5a), QColor(0x1a, 0x1a, 0x1a),
                  QColor(0x45, 0x45, 0x45), words, Qt::white, QColor(0x1c, 0x1c, 0x1c), QColor(0x2b, 0x2b, 0x2b));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    dark.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3a));
    dark.setColor(QPalette::ToolTipText, words);
    dark.setColor(QPalette::Highlight, Accent());
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, link);
    dark.setColor(QPalette::LinkVisited, link);
    dark.setColor(QPalette::PlaceholderText, faint);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, faint);
    return dark;
}

/// Qt follows the choice with the title bars; its own dark colours fit only a style that draws as Windows did long ago.
class Desktop_Style::Watch : public QAbstractNativeEventFilter
{
  public:
    Watch() : dark_(Wants_Dark())
    {
        Apply();
        qApp->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        // Told to every window, for every setting: only what differs counts.
        const MSG& msg = *static_cast<const MSG*>(message);
        if (msg.message == WM_SETTINGCHANGE && dark_ != Wants_Dark()) {
            dark_ = !dark_;
            Apply();
        }
        return false;
    }

  private:
    void Apply() const
    {
        QApplication::setStyle(new Readable_Style(dark_ ? u"Fusion"_s : u"windowsvista"_s));
        QApplication::setPalette(dark_ ? Dark_Palette() : QPalette());
    }

    bool dark_;
};

Desktop_Style::Desktop_Style() : watch_(std::make_unique<Watch>()) {}

Desktop_Style::~Desktop_Style() = default;
