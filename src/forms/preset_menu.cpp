#include "forms/preset_menu.h"

#include "forms/bindings.h"
#include "forms/looks.h"
#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "rules/presets.h"
#include "state/program.h"
#include "support/shown_text.h"

#include <QMenu>

using namespace Qt::StringLiterals;

/// As many as a menu shows without scrolling, on a screen of any size.
static constexpr qsizetype Most_Items = 20;

Preset_Menu::Preset_Menu(Startform& form, Program& program, Slot_Guard& guard)
    : QObject(&form), form_(form), program_(program), guard_(guard), menu_(*form.findChild<QMenu*>(u"mnu_Presets"_s))
{
    connect(&menu_, &QMenu::aboutToShow, this, &Preset_Menu::Fill);
}

void Preset_Menu::Add(const QString& name)
{
    const QString shown = Printable(name);
    const int room = menu_.fontMetrics().averageCharWidth() * 50;
    auto* item = new QAction(With_Letter(menu_.fontMetrics().elidedText(shown, Qt::ElideMiddle, room), QChar()), this);
    item->setCheckable(true);
    item->setChecked(name == program_.Settings.Preset.Name);
    item->setToolTip(Literal_Tool_Tip(u"Loads the preset \""_s + shown + u"\"."_s));
    item->setStatusTip(u"Loads the preset \""_s + shown + u"\"."_s);
    items_ += item;
    // Queued: the menu has closed before a box opens.
    connect(
        item, &QAction::triggered, this,
        [this, name] {
            form_.Leave_Boxes();
            guard_.Call([&] { Choose_Preset(program_, name); });
        },
        Qt::QueuedConnection);
}

void Preset_Menu::Fill()
{
    for (QAction* item : std::exchange(items_, {})) {
        menu_.removeAction(item);
        item->deleteLater();
    }
    guard_.Call([this] { List_Presets(program_); });
    const QStringList& names = program_.Presets_Dialog.Names;
    for (const QString& name : names.mid(0, Most_Items))
        Add(name);
    auto* manage = form_.findChild<QAction*>(u"mnu_ManagePresets"_s);
    if (const qsizetype more = names.size() - Most_Items; more > 0) {
        items_ += new QAction(u"%1 more..."_s.arg(more), this);
        connect(items_.constLast(), &QAction::triggered, manage, &QAction::trigger);
    }
    menu_.insertActions(manage, items_);
    if (!items_.isEmpty())
        items_ += menu_.insertSeparator(manage);
}
