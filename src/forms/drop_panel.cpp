#include "forms/drop_panel.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

Drop_Panel::Drop_Panel(QWidget* parent) : QFrame(parent)
{
    setAcceptDrops(true);
}

void Drop_Panel::dragEnterEvent(QDragEnterEvent* event)
{
    // A link or a text is taken too: the box that refuses it tells the operator why.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Show_Hover(true);
}

void Drop_Panel::dragLeaveEvent(QDragLeaveEvent*)
{
    Show_Hover(false);
}

void Drop_Panel::dropEvent(QDropEvent* event)
{
    Show_Hover(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit Dropped(Drop_Data_Of(event->mimeData()->urls()));
}

void Drop_Panel::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!hovered_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill, 2));
    fill.setAlpha(40);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

void Drop_Panel::Show_Hover(bool on)
{
    hovered_ = on;
    update();
}
