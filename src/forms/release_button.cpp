#include "forms/release_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOptionButton>

Release_Button::Release_Button(QWidget* parent) : QPushButton(parent)
{
    setAutoDefault(false);
}

void Release_Button::Set_Colour(const QColor& colour)
{
    colour_ = colour;
    update();
}

void Release_Button::paintEvent(QPaintEvent* event)
{
    if (!isEnabled() || !colour_.isValid()) {
        QPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(colour_.darker(125));
    painter.setBrush(isDown() ? colour_.darker(120) : underMouse() ? colour_.darker(108) : colour_);
    painter.drawRoundedRect(box, 4, 4);
    if (hasFocus()) {
        painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(3, 3, -3, -3), 3, 3);
    }
    painter.setPen(Qt::white);
    // The letter's line is the style's business: some show it only while Alt is down.
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool line = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this);
    painter.drawText(rect(), Qt::AlignCenter | (line ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), text());
}

bool Release_Button::event(QEvent* event)
{
    if (event->type() == QEvent::Shortcut && isEnabled()) {
        if (static_cast<QShortcutEvent*>(event)->isAmbiguous())
            setFocus(Qt::ShortcutFocusReason);
        else
            Release_In_Middle();
        return true;
    }
    return QPushButton::event(event);
}

void Release_Button::mousePressEvent(QMouseEvent* event)
{
    QPushButton::mousePressEvent(event);
    event->accept(); // the release of any button comes here
}

void Release_Button::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::KeyboardModifiers keys = event->modifiers();
    const Mouse_Release release{.Button = event->button() == Qt::LeftButton    ? Mouse_Button::Left
                                          : event->button() == Qt::RightButton ? Mouse_Button::Right
                                                                               : Mouse_Button::Middle,
                                .Modifiers = {.Shift = keys.testFlag(Qt::ShiftModifier),
                                              .Control = keys.testFlag(Qt::ControlModifier),
                                              .Alt = keys.testFlag(Qt::AltModifier)},
                                .X = event->position().toPoint().x(),
                                .Y = event->position().toPoint().y(),
                                .Width = width(),
                                .Height = height(),
                                .Time = static_cast<std::int64_t>(event->timestamp())};
    QPushButton::mouseReleaseEvent(event);
    event->accept();
    emit Released_At(release);
}

void Release_Button::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat() && !(event->modifiers() & ~Qt::KeypadModifier))
        Release_In_Middle();
    else
        QPushButton::keyPressEvent(event);
}

void Release_Button::keyReleaseEvent(QKeyEvent* event)
{
    const bool space = event->key() == Qt::Key_Space && !event->isAutoRepeat() && isDown();
    QPushButton::keyReleaseEvent(event);
    if (space)
        Release_In_Middle();
}

void Release_Button::Release_In_Middle()
{
    emit Released_At({.Modifiers = {}, .X = width() / 2, .Y = height() / 2, .Width = width(), .Height = height()});
}
