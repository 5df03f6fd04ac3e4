#include "forms/drop_text.h"

#include "forms/looks.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

Drop_Text::Drop_Text(QWidget* parent) : QPlainTextEdit(parent)
{
    setFont(Fixed_Font());
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void Drop_Text::dragEnterEvent(QDragEnterEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void Drop_Text::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void Drop_Text::dragLeaveEvent(QDragLeaveEvent*) {}

void Drop_Text::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit Dropped(Drop_Data_Of(event->mimeData()->urls()));
}
