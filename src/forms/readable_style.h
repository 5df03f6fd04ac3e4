#pragma once

#include <QProxyStyle>

/// The desktop's style, with some mends. On a dark palette some styles draw the frame of an empty check box or option
/// button in a shade that can't be told from the window: it gets a frame that can. The words of a push button get some
/// room at their sides. A list drops below its box, so that what is chosen stays in view, and its lines stand apart.
/// What is disabled stands on the ground of all else, which some desktops' palettes forget, and can be read there: a
/// run disables nearly everything.
class Readable_Style : public QProxyStyle
{
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};
