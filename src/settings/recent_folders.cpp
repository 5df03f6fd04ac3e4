#include "settings/recent_folders.h"

#include "program.h"
#include "settings/folders.h"
#include "settings/option_rules.h"
#include "support/paths.h"
#include "support/text.h"

#include <utility>

using namespace Qt::StringLiterals;

/// Entries of a stored list that are looked at.
static constexpr int Stored_Limit = 16;
/// A drop-down with that many items loses its last one after an insert.
static constexpr int List_Limit = 15;

/// What belongs together of one list.
struct Recent_List
{
    QString& Path;
    QStringList& List;
    Label& Shown;
    Label& Fault;
    Recent_List_Form& Form;
    QString Form_Name;
};

static Recent_List Source_List(Program& program)
{
    return {program.Options.Path_Videos,     program.Settings.Source_MRU, program.Form.ulbl_VideosPath,
            program.Form.lbl_VideoPathFault, program.Source_MRU_Form,     u"frm_SourceMRU"_s};
}

static Recent_List Target_List(Program& program)
{
    return {program.Options.Path_Target,      program.Settings.Target_MRU, program.Form.ulbl_TargetPath,
            program.Form.lbl_TargetPathFault, program.Target_MRU_Form,     u"frm_TargetMRU"_s};
}

static void Read_List(const Recent_List& recent, QString value)
{
    if (value.toLower() == u"none"_s) {
        recent.Path.clear();
        value.clear();
    }
    if (value.isEmpty())
        return;
    const QStringList folders = Split_Text(value, u";"_s).mid(0, Stored_Limit);
    const auto if_there = [](const QString& folder) { return Folder_Exists(folder) ? folder : QString(); };
    recent.Path = if_there(folders.constFirst());
    recent.Shown.Caption = recent.Path;
    recent.Fault.Caption.clear();
    for (const QString& folder : folders.mid(1))
        // Deliberate: a folder with two colons in its path stays out of the drop-down; one that is gone leaves an empty
        // item, which the next save drops.
        if (Count_Substring(if_there(folder), u":"_s) < 2)
            recent.List += if_there(folder);
}

void Read_Recent_Sources(Program& program, QString value)
{
    Read_List(Source_List(program), std::move(value));
}

void Read_Recent_Targets(Program& program, QString value)
{
    Read_List(Target_List(program), std::move(value));
}

/// A name with one of these would read back as another folder.
static bool Can_Be_Stored(const QString& folder)
{
    return !folder.contains(u';') && !folder.contains(u'\n') && !folder.contains(u'\r');
}

QString Recent_Folders_Value(const QString& path, const QStringList& list)
{
    if (path.isEmpty())
        return u"NONE"_s;
    QString value = (Can_Be_Stored(path) ? path : QString()) + u";"_s;
    for (const QString& folder : list)
        // Deliberate: searched as a piece of text, so a folder that is part of an earlier one's path is dropped.
        if (Can_Be_Stored(folder) && !value.contains(folder))
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

void Insert_Recent_Folder(QStringList& list, const QString& folder)
{
    list.prepend(folder);
    if (list.size() >= List_Limit)
        list.removeLast();
}

void Remove_Recent_Folder(QStringList& list, const QString& folder)
{
    if (!folder.isEmpty())
        list.removeAll(folder);
}

void img_SourceMRU_MouseDown(Program& program)
{
    program.Source_MRU_Form.Arrow_Pressed = true;
}

void img_TargetMRU_MouseDown(Program& program)
{
    program.Target_MRU_Form.Arrow_Pressed = true;
}

static void Open_List(Program& program, const Recent_List& recent)
{
    recent.Form.Text = recent.Shown.Caption;
    recent.Form.Visible = true;
    Show_Dialog(program, recent.Form_Name);
    recent.Form.Visible = false;
    recent.Shown.Caption = recent.Path;
    recent.Form.Arrow_Pressed = false;
    Follow_Folders(program);
}

void img_SourceMRU_Click(Program& program)
{
    Open_List(program, Source_List(program));
}

void img_TargetMRU_Click(Program& program)
{
    Open_List(program, Target_List(program));
}

static void Choose_Item(const Recent_List& recent, int index)
{
    if (index < 0 || index >= recent.List.size())
        return;
    const QString chosen = recent.List.takeAt(index);
    recent.List.prepend(recent.Path);
    recent.Path = chosen;
    recent.Form.Visible = false;
}

void Choose_Recent_Source(Program& program, int index)
{
    Choose_Item(Source_List(program), index);
}

void Choose_Recent_Target(Program& program, int index)
{
    Choose_Item(Target_List(program), index);
}

void Hide_Recent_List(Recent_List_Form& form)
{
    form.Visible = false;
}
