#include "settings/preset_names.h"

#include "support/disk_names.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

static const QString Extension = QStringLiteral(".ini");

QString Presets_Folder(const QString& app_folder)
{
    return With_Separator(app_folder) + u"presets"_s + Path_Separator;
}

QString Preset_Name_Of(const QString& path)
{
    const QString name = File_Name_Of(path);
    return name.endsWith(Extension, Qt::CaseInsensitive) ? name.chopped(Extension.size()) : QString();
}

QStringList Preset_Names(const QString& app_folder)
{
    QStringList names;
    for (const QString& file : List_Files(Presets_Folder(app_folder)))
        if (const QString name = Preset_Name_Of(file); !name.isEmpty() && !name.startsWith(u'.'))
            names += name;
    names.removeDuplicates(); // "a.ini" and "a.INI": the first is the one
    return names;
}

QString Preset_Path(const QString& app_folder, const QString& name)
{
    const bool leads_elsewhere = QDir::toNativeSeparators(name).contains(Path_Separator);
    if (name.isEmpty() || name.startsWith(u'.') || leads_elsewhere || name.contains(QChar(u'\0')) ||
        !Why_Not_A_Name(name + Extension).isEmpty())
        return {};
    return As_On_Disk(Presets_Folder(app_folder) + name + Extension);
}

QString Why_No_Preset_Name(const QString& name)
{
    constexpr qsizetype longest_name = 255;
    const QString plain = name.trimmed();
    if (plain.isEmpty())
        return u"A preset needs a name."_s;
    if (plain.contains(u'/') || plain.contains(u'\\'))
        return u"The name can't hold \"/\" or \"\\\"."_s;
    if (plain.startsWith(u'.'))
        return u"The name can't begin with a dot."_s;
    if (Has_Stand_Ins(plain) || std::any_of(plain.begin(), plain.end(), Can_Mislead))
        return u"The name can't hold line breaks or other control characters."_s;
    if (const QString why = Why_Not_A_Name(plain + Extension); !why.isEmpty())
        return u"The name "_s + why + u'.';
    const qsizetype too_many = Bytes_Of_Name(plain + Extension).size() - longest_name;
    if (too_many > 0)
        return u"The name is too long: it is stored in %1 bytes, and %2 are left for it."_s
            .arg(longest_name - Extension.size() + too_many)
            .arg(longest_name - Extension.size());
    return {};
}
