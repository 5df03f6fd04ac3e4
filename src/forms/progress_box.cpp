#include "forms/progress_box.h"

#include "forms/looks.h"

#include <QPainter>
#include <algorithm>

Progress_Box::Progress_Box(QWidget* parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
}

void Progress_Box::Set_Progress(double fraction, Progress_Look look)
{
    fraction = std::clamp(fraction, 0.0, 1.0);
    if (fraction == fraction_ && look == look_)
        return;
    fraction_ = fraction;
    look_ = look;
    // Without a run to tell of it must not look like a box to type in.
    setBackgroundRole(look == Progress_Look::Idle ? QPalette::Window : QPalette::Base);
    update();
    for (QWidget* child : findChildren<QWidget*>())
        child->update();
}

int Progress_Box::Filled_Width() const
{
    return qRound(fraction_ * contentsRect().width());
}

QColor Progress_Box::Colour() const
{
    switch (look_) {
    case Progress_Look::Finished:
        return Finished_Colour(palette());
    case Progress_Look::Interrupted:
        return Interrupted_Colour(palette());
    default:
        return palette().color(QPalette::Highlight);
    }
}

void Progress_Box::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    QRect fill = contentsRect();
    fill.setWidth(Filled_Width());
    painter.fillRect(fill, Colour());
    painter.end();
    QFrame::paintEvent(event);
}

Progress_Label::Progress_Label(QWidget* parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void Progress_Label::paintEvent(QPaintEvent*)
{
    const auto* box = qobject_cast<Progress_Box*>(parentWidget());
    if (!box)
        return;
    QPainter painter(this);
    const int edge = mapFrom(box, QPoint(box->contentsRect().left() + box->Filled_Width(), 0)).x();
    const auto draw = [&](const QRect& part, const QColor& colour) {
        painter.setClipRect(part);
        painter.setPen(colour);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    };
    const bool running = box->Look() == Progress_Look::Running || box->Look() == Progress_Look::Idle;
    draw(QRect(0, 0, edge, height()), palette().color(QPalette::HighlightedText));
    draw(QRect(edge, 0, width() - edge, height()), running ? palette().color(QPalette::Text) : box->Colour());
}
