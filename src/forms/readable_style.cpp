#include "forms/readable_style.h"

#include "forms/looks.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

void Readable_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if ((element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) || !Is_Dark(option->palette))
        return;
    QColor frame = option->palette.color(QPalette::WindowText);
    frame.setAlpha(option->state.testFlag(State_Enabled) ? 130 : 60);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(frame);
    painter->setBrush(Qt::NoBrush);
    const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox)
        painter->drawRoundedRect(box, 2, 2);
    else
        painter->drawEllipse(box);
    painter->restore();
}

QSize Readable_Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                       const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton)
        return size + QSize(option->fontMetrics.averageCharWidth() * 2, 0);
    if (type == CT_ItemViewItem && widget && widget->inherits("QComboBoxListView"))
        return size + QSize(0, option->fontMetrics.height() / 3);
    return size;
}

int Readable_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* answer) const
{
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

/// Words a step nearer to those in use, until they can be read.
static QColor Readable_On(const QColor& ground, QColor words, const QColor& in_use)
{
    for (int step = 0; step < 10 && Contrast(words, ground) < 3; ++step)
        words = QColor((words.red() * 4 + in_use.red()) / 5, (words.green() * 4 + in_use.green()) / 5,
                       (words.blue() * 4 + in_use.blue()) / 5);
    return words;
}

void Readable_Style::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    palette.setBrush(QPalette::Disabled, QPalette::Window, palette.brush(QPalette::Active, QPalette::Window));
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(
            QPalette::Disabled, role,
            Readable_On(ground, palette.color(QPalette::Disabled, role), palette.color(QPalette::Active, role)));
}
