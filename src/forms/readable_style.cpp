#include "forms/readable_style.h"

#include "forms/looks.h"

#include <QPainter>
#include <QStyleOption>

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
    return type == CT_PushButton ? size + QSize(option->fontMetrics.averageCharWidth() * 2, 0) : size;
}
