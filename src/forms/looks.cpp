#include "forms/looks.h"

#include "forms/drawn_icon.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

bool Is_Dark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

static QColor Shade(const QPalette& palette, QRgb on_light, QRgb on_dark)
{
    return Is_Dark(palette) ? QColor(on_dark) : QColor(on_light);
}

QColor Finished_Colour(const QPalette& palette)
{
    return Shade(palette, 0xff13722f, 0xff63d683);
}

QColor Interrupted_Colour(const QPalette& palette)
{
    return Shade(palette, 0xffa3108f, 0xffff86f0);
}

QColor Fault_Colour(const QPalette& palette)
{
    return Shade(palette, 0xffb3261e, 0xffff9a8f);
}

QColor Mark_Colour(const QPalette& palette)
{
    return Shade(palette, 0xff8a5200, 0xffffc061);
}

QColor Head_Colour(const QPalette& palette)
{
    return Shade(palette, 0xff1f5aa8, 0xff8fc1ff);
}

QColor Grey_Box_Colour(const QPalette& palette)
{
    return Shade(palette, 0xffc0c0c0, 0xff55595e);
}

QIcon Picture(const QString& name, const QPalette& palette)
{
    const QIcon drawn = Drawn_Icon(name);
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64}) {
        QPixmap pixmap = drawn.pixmap(QSize(side, side), 1.0);
        for (const auto& [mode, group] :
             {std::pair(QIcon::Normal, QPalette::Active), std::pair(QIcon::Disabled, QPalette::Disabled)}) {
            QPainter painter(&pixmap);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), palette.color(group, QPalette::WindowText));
            painter.end();
            icon.addPixmap(pixmap, mode);
        }
    }
    return icon;
}

bool Is_Fixed_Width(const QFont& font)
{
    // Many a font has letters of one width and doesn't declare it.
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(u'i');
    return width > 0 && width == metrics.horizontalAdvance(u'W') && width == metrics.horizontalAdvance(u' ');
}

QFont Fixed_Font()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (Is_Fixed_Width(font))
        return font;
    // A desktop without settings of its own may name none.
    font.setStyleHint(QFont::Monospace);
    font.setFamily(u"monospace"_s);
    if (Is_Fixed_Width(font))
        return font;
    for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
        font.setFamily(family);
        if (QFontDatabase::isFixedPitch(family) && Is_Fixed_Width(font))
            return font;
    }
    font.setFamily(u"monospace"_s);
    return font;
}

QString Literal_Tool_Tip(const QString& text)
{
    return text.isEmpty() ? QString() : u"<qt>"_s + text.toHtmlEscaped();
}

void Tint(QLabel& label, const QColor& colour)
{
    QPalette own = QApplication::palette(&label);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        own.setColor(role, colour);
    label.setPalette(own);
}

void Fade_Placeholder(QLineEdit& box)
{
    QColor faint = QApplication::palette().color(QPalette::Text);
    faint.setAlphaF(0.5F);
    QPalette own;
    own.setColor(QPalette::PlaceholderText, faint);
    box.setPalette(own);
}

/// Relative luminance as the contrast rules of the web define it.
static double Luminance(const QColor& colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor Under_White_Text(QColor colour)
{
    while (Contrast(colour, Qt::white) < 4.5)
        colour = colour.darker(105);
    return colour;
}
