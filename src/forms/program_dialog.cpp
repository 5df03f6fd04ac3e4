#include "forms/program_dialog.h"

#include "forms/screen_place.h"

#include <QCloseEvent>

Program_Dialog::Program_Dialog(Program& program, Slot_Guard& guard, QWidget* owner)
    : QDialog(owner), program_(program), guard_(guard)
{}

void Program_Dialog::closeEvent(QCloseEvent* event)
{
    event->ignore();
    reject();
}

void Program_Dialog::reject()
{
    guard_.Call([this] { Leave(); });
}

void Program_Dialog::Hide_Unless(bool visible)
{
    if (!visible && isVisible())
        done(0);
}

void Program_Dialog::Centre_On_Owner()
{
    const QWidget* owner = parentWidget() ? parentWidget()->window() : nullptr;
    if (!owner)
        return;
    adjustSize();
    QRect place(QPoint(), size());
    place.moveCenter(owner->geometry().center());
    setGeometry(Onto_Screen(place, Frame_Around(owner)));
}
