#include "forms/screen_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

QRect Onto_Screen(const QRect& place)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (!screen)
        screen = QGuiApplication::screenAt(place.topLeft());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return place;
    const QRect area = screen->availableGeometry();
    QRect moved = place;
    moved.setSize(place.size().boundedTo(area.size()));
    moved.moveLeft(std::clamp(moved.left(), area.left(), area.right() - moved.width() + 1));
    moved.moveTop(std::clamp(moved.top(), area.top(), area.bottom() - moved.height() + 1));
    return moved;
}
