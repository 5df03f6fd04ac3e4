#include "forms/viewer_keys.h"

#include "support/form_placement.h"

#include <QKeyEvent>

int Viewer_Key(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
        return Key_Escape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key_Enter;
    case Qt::Key_Select:
    case Qt::Key_Execute:
        return Key_Execute;
    case Qt::Key_F12:
        return Key_F12;
    default:
        return 0;
    }
}
