#include "forms/elided_label.h"

#include "forms/looks.h"

#include <QPainter>
#include <QStyle>

Elided_Label::Elided_Label(QWidget* parent, Qt::TextElideMode cut) : QLabel(parent), cut_(cut)
{
    setTextFormat(Qt::PlainText);
}

void Elided_Label::Set_Text(const QString& text)
{
    if (text == this->text())
        return;
    setText(text);
    setToolTip(Literal_Tool_Tip(text));
    setAccessibleName(text);
}

QString Elided_Label::Shown_Text() const
{
    QString line = text();
    line.replace(u'\n', u' ').replace(u'\r', u' ');
    return fontMetrics().elidedText(line, cut_, contentsRect().width());
}

QSize Elided_Label::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

QSize Elided_Label::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, fontMetrics().height()};
}

void Elided_Label::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, palette(),
                          isEnabled(), Shown_Text(), foregroundRole());
}
