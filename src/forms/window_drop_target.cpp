#include "forms/window_drop_target.h"

#include "forms/drop_panel.h"
#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "rules/presets.h"
#include "rules/window_drop.h"
#include "state/program.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

Window_Drop_Target::Window_Drop_Target(Startform& form, Drop_Panel& panel, Program& program, Slot_Guard& guard)
    : QObject(&form), panel_(panel), program_(program), guard_(guard)
{
    form.setAcceptDrops(true);
    form.installEventFilter(this);
    // They would take a file's name as a text.
    for (QLineEdit* edit : form.findChildren<QLineEdit*>())
        edit->setAcceptDrops(false);
}

bool Window_Drop_Target::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(*event);
        const bool idle = !program_.Run.Press_In_Work;
        const bool taken = idle || (program_.Run.Run_In_Progress && !program_.Run.Checking);
        if (event->type() == QEvent::DragEnter)
            is_preset_ = Is_Preset_Drop(Drop_Data_Of(drop.mimeData()->urls()));
        drop.setDropAction(Qt::CopyAction);
        drop.setAccepted(taken);
        panel_.Show_Hover(idle && event->type() != QEvent::Drop && !is_preset_);
        if (taken && event->type() == QEvent::Drop)
            guard_.Call([&] { Drop_On_Window(program_, Drop_Data_Of(drop.mimeData()->urls())); });
        return true;
    }
    case QEvent::DragLeave:
        panel_.Show_Hover(false);
        return true;
    default:
        return false;
    }
}
