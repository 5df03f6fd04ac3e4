#include "headless/completion_list.h"

#include "headless/batch_options.h"
#include "life/app_folder.h"
#include "rules/click_rules.h"
#include "settings/preset_names.h"
#include "settings/settings_rows.h"
#include "support/shown_text.h"

using namespace Qt::StringLiterals;

static QStringList Boxes()
{
    QStringList names;
    for (const Click_Rule& rule : Click_Rules())
        names += rule.Name;
    return names;
}

static QStringList Keys()
{
    QStringList names;
    for (const Settings_Row& row : Settings_Rows())
        if (row.Used == Settings_Row::Use::Read)
            names += row.Section + u'/' + row.Key.trimmed();
    return names;
}

static QStringList Values_Of(const QString& name)
{
    const Settings_Row* const row = Find_Row(name.section(u'/', 0, 0), name.section(u'/', 1));
    if (row == nullptr)
        return {};
    if (!row->Words.isEmpty())
        return row->Words;
    const bool is_switch = row->Default == "On"_L1 || row->Default == "Off"_L1;
    return is_switch ? QStringList{u"On"_s, u"Off"_s} : QStringList();
}

/// Without those that no line can hold.
static QStringList Presets(const QString& app_folder)
{
    QStringList names = Preset_Names(Choose_App_Folder(App_Folder_Places_Of_This_Process(app_folder)));
    names.removeIf([](const QString& name) { return Printable(name) != name; });
    return names;
}

QStringList Completion_List(const QString& what, const QString& app_folder)
{
    const QString of_key = u"values:"_s;
    if (what == "options"_L1)
        return Option_Names();
    if (what == "commands"_L1)
        return Command_Names();
    if (what == "boxes"_L1)
        return Boxes();
    if (what == "keys"_L1)
        return Keys();
    if (what == "presets"_L1)
        return Presets(app_folder);
    return what.startsWith(of_key) ? Values_Of(what.mid(of_key.size())) : QStringList();
}
