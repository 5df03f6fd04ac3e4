#include "rules/preset_dialogs.h"

#include "rules/option_rules.h"
#include "rules/presets.h"
#include "settings/preset_names.h"
#include "state/program.h"
#include "support/disk_steps.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/trash.h"

#include <QFileInfo>
#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

/// Why the preset can't be called so; empty: it can.
static QString Why_Not(const Program& program, const QString& name)
{
    const QString& present = program.Preset_Name_Dialog.Keeps;
    if (QString why = Why_No_Preset_Name(name); !why.isEmpty() || present.isEmpty())
        return why;
    if (name == present)
        return u"That is its name now."_s;
    const QString& folder = program.Settings.App_Folder;
    const QString there = Preset_Path(folder, name);
    // Its own name in other letters leads to itself.
    return QFileInfo::exists(there) && there.compare(Preset_Path(folder, present), Case_Of_Names) != 0
               ? u"There is a preset of that name already."_s
               : QString();
}

void txt_PresetName_Change(Program& program)
{
    Preset_Name_Form& form = program.Preset_Name_Dialog;
    const QString name = form.txt_PresetName.Text.trimmed();
    const QString why = Why_Not(program, name);
    form.btn_Done.Enabled = why.isEmpty();
    // Nobody has to be told that a name is still to come.
    form.lbl_PresetNameFault.Caption = name.isEmpty() || name == form.Keeps ? QString() : why;
}

QString Ask_Preset_Name(Program& program, const QString& name, Why_Named why)
{
    const bool saves = why == Why_Named::Save;
    Preset_Name_Form& form = program.Preset_Name_Dialog;
    form = {};
    form.Caption = saves ? u"Save As Preset"_s : u"Rename Preset"_s;
    form.btn_Done.Caption = saves ? u"Save"_s : u"Rename"_s;
    form.Keeps = saves ? QString() : name;
    form.txt_PresetName.Text = Printable(name);
    form.txt_PresetName.Caret = static_cast<int>(form.txt_PresetName.Text.size());
    form.Focus = u"txt_PresetName"_s;
    form.Visible = true;
    txt_PresetName_Change(program);
    const QString view = u"frm_PresetName"_s;
    if (saves)
        Show_Dialog(program, view);
    else
        program.Person.Show_Modal(view); // the main form came down for frm_Presets already
    form.Visible = false;
    return form.Accepted ? form.txt_PresetName.Text.trimmed() : QString();
}

void btn_PresetName_Done_Click(Preset_Name_Form& form)
{
    if (!form.btn_Done.Enabled)
        return;
    form.Accepted = true;
    form.Visible = false;
}

void btn_PresetName_Cancel_Click(Preset_Name_Form& form)
{
    form.Visible = false;
}

/// The marked preset; empty: none is.
static QString Marked(const Presets_Form& form)
{
    return form.Names.value(form.Row);
}

void lst_Presets_Change(Program& program, int row)
{
    Presets_Form& form = program.Presets_Dialog;
    form.Row = row >= 0 && row < form.Names.size() ? row : -1;
    for (Button* const button : {&form.btn_Load, &form.btn_Rename, &form.btn_Trash})
        button->Enabled = form.Row >= 0;
    form.lbl_PresetsNote.Caption =
        form.Names.isEmpty() ? u"There are no presets yet. File > Presets > Save As... makes one."_s : QString();
}

/// Lists anew; `name` is marked then, or what has come to stand in its row.
static void List_Anew(Program& program, const QString& name)
{
    Presets_Form& form = program.Presets_Dialog;
    const int row = form.Row;
    List_Presets(program);
    const qsizetype found = form.Names.indexOf(name);
    lst_Presets_Change(program,
                       found >= 0 ? static_cast<int>(found) : std::min(row, static_cast<int>(form.Names.size()) - 1));
    form.Focus = u"lst_Presets"_s;
}

void Open_Presets_Dialog(Program& program)
{
    program.Presets_Dialog = {};
    program.Presets_Dialog.Row = 0;
    List_Anew(program, program.Settings.Preset.Name);
    program.Presets_Dialog.Visible = true;
}

void btn_Presets_Load_Click(Program& program)
{
    Presets_Form& form = program.Presets_Dialog;
    const QString name = Marked(form);
    if (!name.isEmpty() && Choose_Preset(program, name))
        form.Visible = false;
}

void btn_Presets_Rename_Click(Program& program)
{
    const QString name = Marked(program.Presets_Dialog);
    if (name.isEmpty())
        return;
    QString wanted = Ask_Preset_Name(program, name, Why_Named::Rename);
    if (wanted.isEmpty())
        return;
    const QString& folder = program.Settings.App_Folder;
    const Rename_Result result =
        Rename_To_Free_Name(Preset_Path(folder, name), Presets_Folder(folder) + wanted + u".ini"_s);
    if (result.Error != 0) {
        program.Person.Show_Message({.Title = u"The preset was not renamed"_s,
                                     .Text = result.Error == EEXIST
                                                 ? u"There is a file of that name already. Both stay as they are."_s
                                                 : u"It keeps its name: "_s + System_Words(result.Error) + u'.'});
        wanted = name;
    } else if (program.Settings.Preset.Name.compare(name, Case_Of_Names) == 0) {
        program.Settings.Preset.Name = wanted;
    }
    List_Anew(program, wanted);
}

void btn_Presets_Trash_Click(Program& program)
{
    const QString name = Marked(program.Presets_Dialog);
    if (name.isEmpty() ||
        program.Person.Show_Message(
            {.Title = u"Move the preset to the trash?"_s,
             .Text = u"\""_s + Printable(name) + u"\" goes to the trash. The options of the window stay."_s,
             .Buttons = Message_Buttons::Ok_Cancel}) != Message_Answer::Ok)
        return;
    clsStringBuilder faults;
    if (!Delete_To_Recycle(Preset_Path(program.Settings.App_Folder, name), faults))
        program.Person.Show_Message({.Title = u"The preset is still there"_s,
                                     .Text = u"The trash didn't take it, so it stays as it was. Make room in the trash "
                                             "and try again, or delete it."_s});
    else if (program.Settings.Preset.Name == name)
        program.Settings.Preset = {};
    List_Anew(program, name);
}

void btn_Presets_Done_Click(Presets_Form& form)
{
    form.Visible = false;
}
