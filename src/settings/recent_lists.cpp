#include "settings/recent_lists.h"

#include "settings/ini_file.h"
#include "settings/row_rules.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"

#include <QDir>
#include <utility>

using namespace Qt::StringLiterals;

/// Entries of a stored list that are looked at.
static constexpr int Stored_Limit = 16;

/// What a stored list is read into.
struct Stored_List
{
    QString& Path;
    QStringList& List;
    Label& Shown;
    Label& Fault;
};

static void Read_List(const Stored_List& stored, QString value)
{
    if (value.toLower() == u"none"_s) {
        stored.Path.clear();
        value.clear();
    }
    if (value.isEmpty())
        return;
    const QStringList folders = Split_Text(QDir::toNativeSeparators(value), u";"_s).mid(0, Stored_Limit);
    const auto if_there = [](const QString& folder) { return Folder_Exists(folder) ? folder : QString(); };
    stored.Path = if_there(folders.constFirst());
    stored.Shown.Caption = stored.Path;
    stored.Fault.Caption.clear();
    for (const QString& folder : folders.mid(1))
        // Deliberate: a folder with two colons in its path stays out of the drop-down; one that is gone leaves an empty
        // item, which the next save drops.
        if (Count_Substring(if_there(folder), u":"_s) < 2)
            stored.List += if_there(folder);
}

void Read_Recent_Sources(Program& program, QString value)
{
    Read_List({program.Options.Path_Videos, program.Settings.Source_MRU, program.Form.ulbl_VideosPath,
               program.Form.lbl_VideoPathFault},
              std::move(value));
}

void Read_Recent_Targets(Program& program, QString value)
{
    Read_List({program.Options.Path_Target, program.Settings.Target_MRU, program.Form.ulbl_TargetPath,
               program.Form.lbl_TargetPathFault},
              std::move(value));
}

/// A name with one of these would read back as another folder.
static bool Can_Be_Stored(const QString& folder)
{
    return !folder.contains(u';') && !Storable_Path(folder).isEmpty();
}

QString Recent_Folders_Value(const QString& path, const QStringList& list)
{
    if (path.isEmpty())
        return u"NONE"_s;
    QString value = (Can_Be_Stored(path) ? path : QString()) + u";"_s;
    for (const QString& folder : list)
        // Deliberate: searched as a piece of text, so a folder that is part of an earlier one's path is dropped.
        // A value is cut when it is read, and a cut folder would be another one.
        if (Can_Be_Stored(folder) && !value.contains(folder) && value.size() + folder.size() <= Longest_Value)
            value += folder + u";"_s;
    value.chop(1);
    return value.isEmpty() ? u"NONE"_s : value;
}

QString Recent_Sources_Value(const Program& program)
{
    return Recent_Folders_Value(program.Options.Path_Videos, program.Settings.Source_MRU);
}

QString Recent_Targets_Value(const Program& program)
{
    return Recent_Folders_Value(program.Options.Path_Target, program.Settings.Target_MRU);
}
