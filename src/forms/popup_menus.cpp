#include "forms/popup_menus.h"

#include "forms/slot_guard.h"
#include "life/popups.h"
#include "state/program.h"

#include <QContextMenuEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {
/// Qt drops the menu request of a disabled control; this lets it rise to the panel.
class Rising_Request : public QObject
{
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ContextMenu || static_cast<QWidget*>(watched)->isEnabled())
            return false;
        event->ignore();
        return true;
    }
};
} // namespace

static QMenu* New_Menu(QWidget& form, Program& program, Slot_Guard& guard, const Popup& popup)
{
    auto* menu = new QMenu(&form);
    menu->setObjectName(popup.Menu);
    QAction* item = menu->addAction(popup.Caption);
    item->setObjectName(popup.Item);
    // Queued: the menu has closed before a form opens.
    QObject::connect(
        item, &QAction::triggered, &form, [&] { guard.Call([&] { popup.Command(program); }); }, Qt::QueuedConnection);
    return menu;
}

void Connect_Popups(QWidget& form, Program& program, Slot_Guard& guard)
{
    auto* rising = new Rising_Request(&form);
    for (const Popup& popup : Popups()) {
        QMenu* menu = nullptr;
        // A control that is disabled, or wants nothing of the click, leaves it to its panel.
        for (const QString& name : popup.Controls) {
            auto* panel = name.startsWith(u"pic_") ? form.findChild<QWidget*>(name) : nullptr;
            if (!panel)
                continue;
            if (!menu)
                menu = New_Menu(form, program, guard, popup);
            for (QWidget* control : panel->findChildren<QWidget*>())
                control->installEventFilter(rising);
            panel->setContextMenuPolicy(Qt::CustomContextMenu);
            QObject::connect(panel, &QWidget::customContextMenuRequested, menu,
                             [panel, menu](const QPoint& at) { menu->popup(panel->mapToGlobal(at)); });
        }
    }
}
