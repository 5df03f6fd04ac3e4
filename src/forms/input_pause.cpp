#include "forms/input_pause.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>

Input_Pause::Input_Pause() : modal_(QApplication::activeModalWidget())
{
    QGuiApplication::setOverrideCursor(QCursor(Qt::BusyCursor));
    QCoreApplication::instance()->installEventFilter(this);
}

Input_Pause::~Input_Pause()
{
    QGuiApplication::restoreOverrideCursor();
}

bool Input_Pause::eventFilter(QObject*, QEvent* event)
{
    if (QApplication::activeModalWidget() != modal_)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Close:
        if (!event->spontaneous())
            return false;
        event->ignore();
        return true;
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}
