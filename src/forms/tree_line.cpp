#include "forms/tree_line.h"

#include <QPainter>

Tree_Line::Tree_Line(QWidget* parent) : QWidget(parent) {}

void Tree_Line::Set_On(bool on)
{
    if (on == on_)
        return;
    on_ = on;
    update();
}

void Tree_Line::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(QPen(on_ ? palette().color(QPalette::WindowText) : QColor(0x80, 0x80, 0x80), 1));
    const int x = width() / 2;
    const int y = height() / 2;
    painter.drawLine(x, 0, x, y);
    painter.drawLine(x, y, width() - 1, y);
}
