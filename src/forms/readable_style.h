#pragma once

#include <QProxyStyle>

/// The desktop's style, with one mend: on a dark palette some styles draw the frame of an empty check box or option
/// button in a shade that can't be told from the window. It gets a frame that can.
class Readable_Style : public QProxyStyle
{
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
