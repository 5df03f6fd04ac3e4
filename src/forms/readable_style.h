#pragma once

#include <QProxyStyle>

/// The desktop's style, with two mends. On a dark palette some styles draw the frame of an empty check box or option
/// button in a shade that can't be told from the window: it gets a frame that can. The words of a push button get some
/// room at their sides.
class Readable_Style : public QProxyStyle
{
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};
