#include "forms/screen_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

QMargins Frame_Around(const QWidget* window)
{
    if (!window || window->isMaximized() || window->isFullScreen())
        return {};
    const QRect inner = window->geometry();
    const QRect outer = window->frameGeometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

QRect Onto_Screen(const QRect& place, const QMargins& frame)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (!screen)
        screen = QGuiApplication::screenAt(place.topLeft());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return place;
    const QRect area = screen->availableGeometry().marginsRemoved(frame);
    QRect moved = place;
    moved.setSize(place.size().boundedTo(area.size()));
    moved.moveLeft(std::clamp(moved.left(), area.left(), area.right() - moved.width() + 1));
    moved.moveTop(std::clamp(moved.top(), area.top(), area.bottom() - moved.height() + 1));
    return moved;
}

QRect Rect_Of(const Form_Place& place, const QSize& least)
{
    static constexpr int far_away = 1'000'000;
    const auto cut = [](int value, int lowest) { return std::clamp(value, lowest, far_away); };
    const QSize size(cut(place.Width, 0), cut(place.Height, 0));
    return {QPoint(cut(place.Left, -far_away), cut(place.Top, -far_away)), size.expandedTo(least)};
}
