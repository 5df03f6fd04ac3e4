#include "forms/number_box_view.h"

#include "forms/bindings.h"
#include "forms/slot_guard.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

Number_Box_View::Number_Box_View(Program& program, Slot_Guard& guard, QLineEdit& edit, Text_Box& record,
                                 Number_Box_Rules rules)
    : QObject(&edit), program_(program), guard_(guard), edit_(edit), record_(record), rules_(rules)
{
    edit.installEventFilter(this);
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        entered_ = true;
        guard_.Call([&] {
            record_.Text = text;
            record_.Caret = edit_.cursorPosition();
            rules_.Change(program_);
            if (backspace_)
                rules_.Key(program_, Number_Key::Backspace);
            // Shown at once: the caret's place belongs to this very change.
            const QSignalBlocker quiet(edit_);
            if (edit_.text() != record_.Text)
                edit_.setText(record_.Text);
            edit_.setCursorPosition(record_.Caret);
        });
    });
}

void Number_Box_View::Render()
{
    Show_Text_Box(edit_, record_);
    // An inactive box takes the colour of the bar that the menus stand on.
    edit_.setBackgroundRole(record_.Active ? QPalette::Base : QPalette::Window);
}

void Number_Box_View::Leave()
{
    if (std::exchange(entered_, false))
        guard_.Call([this] { rules_.Lost_Focus(program_); });
}

/// Focus that goes for these reasons comes back to the box by itself.
static bool Comes_Back(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason || reason == Qt::ActiveWindowFocusReason;
}

bool Number_Box_View::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return Key_Pressed(static_cast<QKeyEvent*>(event)->key());
    case QEvent::KeyRelease:
        backspace_ = false;
        return false;
    case QEvent::FocusIn:
        entered_ = true;
        clicked_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        return false;
    case QEvent::MouseButtonRelease:
        // The click that comes into the box selects what the next digit replaces, as Tab does.
        if (std::exchange(clicked_, false) && !edit_.hasSelectedText())
            QMetaObject::invokeMethod(&edit_, &QLineEdit::selectAll, Qt::QueuedConnection);
        return false;
    case QEvent::FocusOut:
        if (!Comes_Back(static_cast<QFocusEvent*>(event)->reason()))
            Leave();
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool Number_Box_View::Key_Pressed(int key)
{
    backspace_ = key == Qt::Key_Backspace;
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    guard_.Call([&] { rules_.Key(program_, key == Qt::Key_Escape ? Number_Key::Escape : Number_Key::Enter); });
    return true;
}
