#include "forms/desktop_style.h"

#include "forms/looks.h"
#include "forms/readable_style.h"

#include <QAbstractItemView>
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <QTableView>
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

namespace {

/// Windows' own style marks the lines of a list, but not of a table, in a pale shade and leaves the words as they are.
/// Delegates that write their words themselves learn it from the view's palette, and the shade is one to read them on.
class Light_Style : public Readable_Style
{
  public:
    Light_Style() : Readable_Style(u"windowsvista"_s) {}

    using Readable_Style::polish;
    using Readable_Style::unpolish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element == PE_FrameStatusBarItem)
            return; // a line beside words that stand alone
        if (element == PE_PanelItemViewItem && Is_List(widget) && option->state.testFlag(State_Selected))
            painter->fillRect(option->rect, Mark_On(widget->palette()));
        else
            Readable_Style::drawPrimitive(element, option, painter, widget);
    }

    void polish(QPalette& palette) override
    {
        Readable_Style::polish(palette);
        // A bar that shows how far a run is has the same colour while another window is in front.
        for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
            palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
    }

    void polish(QWidget* widget) override
    {
        Readable_Style::polish(widget);
        if (!Is_List(widget))
            return;
        QPalette marks;
        marks.setColor(QPalette::HighlightedText, widget->palette().color(QPalette::Text));
        widget->setPalette(marks);
    }

    void unpolish(QWidget* widget) override
    {
        Readable_Style::unpolish(widget);
        if (Is_List(widget))
            widget->setPalette(QPalette());
    }

  private:
    /// So pale that the colours of words which mean something still read on it.
    static QColor Mark_On(const QPalette& palette)
    {
        const QColor ground = palette.color(QPalette::Base);
        const QColor mark = palette.color(QPalette::Active, QPalette::Highlight);
        const auto part = [](int one, int other) { return (4 * one + other) / 5; };
        return QColor(part(ground.red(), mark.red()), part(ground.green(), mark.green()),
                      part(ground.blue(), mark.blue()));
    }

    static bool Is_List(const QWidget* widget)
    {
        return qobject_cast<const QAbstractItemView*>(widget) && !qobject_cast<const QTableView*>(widget);
    }
};

} // namespace

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
        QApplication::setStyle(dark_ ? new Readable_Style(u"Fusion"_s) : new Light_Style);
        QApplication::setPalette(dark_ ? Dark_Palette() : QPalette());
    }

    bool dark_;
};

Desktop_Style::Desktop_Style() : watch_(std::make_unique<Watch>()) {}

Desktop_Style::~Desktop_Style() = default;
