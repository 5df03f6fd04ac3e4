#include "forms/state_icons.h"

#include "forms/looks.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <utility>

static QColor Colour_Of(Video_State state, const QPalette& palette)
{
    switch (state) {
    case Video_State::Done:
        return Finished_Colour(palette);
    case Video_State::Warning:
        return Mark_Colour(palette);
    case Video_State::Failed:
        return Fault_Colour(palette);
    case Video_State::Working:
        return palette.color(QPalette::Active, QPalette::Highlight);
    default:
        return palette.color(QPalette::Disabled, QPalette::Text);
    }
}

/// The lines of a state's picture, in a square of 16.
static QPainterPath Shape_Of(Video_State state)
{
    QPainterPath path;
    switch (state) {
    case Video_State::Waiting:
        path.addEllipse(3, 3, 10, 10);
        break;
    case Video_State::Left_Out:
        path.moveTo(4, 8);
        path.lineTo(12, 8);
        break;
    case Video_State::Working:
        path.moveTo(5, 3);
        path.lineTo(13, 8);
        path.lineTo(5, 13);
        path.closeSubpath();
        break;
    case Video_State::Done:
        path.moveTo(3, 8.5);
        path.lineTo(6.5, 12);
        path.lineTo(13, 4);
        break;
    case Video_State::Warning:
        path.moveTo(8, 2.5);
        path.lineTo(14, 13);
        path.lineTo(2, 13);
        path.closeSubpath();
        path.moveTo(8, 6.5);
        path.lineTo(8, 9.5);
        path.moveTo(8, 11.2);
        path.lineTo(8, 11.4);
        break;
    case Video_State::Failed:
        path.moveTo(4, 4);
        path.lineTo(12, 12);
        path.moveTo(12, 4);
        path.lineTo(4, 12);
        break;
    case Video_State::Skipped:
        path.moveTo(4, 4);
        path.lineTo(8, 8);
        path.lineTo(4, 12);
        path.moveTo(9, 4);
        path.lineTo(13, 8);
        path.lineTo(9, 12);
        break;
    case Video_State::Not_Run:
        path.addRect(4, 4, 8, 8);
        break;
    }
    return path;
}

QIcon State_Icon(Video_State state, const QPalette& palette)
{
    const std::pair<QIcon::Mode, QColor> looks[] = {
        {QIcon::Normal, Colour_Of(state, palette)},
        {QIcon::Selected, palette.color(QPalette::Active, QPalette::HighlightedText)}};
    QIcon icon;
    for (const auto& [mode, colour] : looks)
        for (const int side : {16, 32, 48}) {
            QPixmap pixmap(side, side);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(side / 16.0, side / 16.0);
            painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(Shape_Of(state));
            painter.end();
            icon.addPixmap(pixmap, mode);
        }
    return icon;
}
