#include "forms/summary_label.h"

#include "forms/looks.h"

#include <QApplication>

Summary_Label::Summary_Label(QWidget* parent) : Elided_Label(parent, Qt::ElideRight)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void Summary_Label::Set_Look(Summary_Look look)
{
    const QPalette colours = QApplication::palette(this);
    const QColor colour = look == Summary_Look::Failures   ? Fault_Colour(colours)
                          : look == Summary_Look::Warnings ? Mark_Colour(colours)
                                                           : colours.color(QPalette::WindowText);
    if (palette().color(QPalette::WindowText) != colour)
        Tint(*this, colour);
}

QSize Summary_Label::sizeHint() const
{
    // Rounded up: a pixel too few would cost two letters.
    const QMargins edges = contentsMargins();
    return {fontMetrics().horizontalAdvance(text()) + 1 + edges.left() + edges.right(), fontMetrics().height()};
}
