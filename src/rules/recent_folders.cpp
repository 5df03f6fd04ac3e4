#include "rules/recent_folders.h"

#include "rules/folders.h"
#include "rules/option_rules.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"

#include <utility>

using namespace Qt::StringLiterals;

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

void Insert_Recent_Folder(QStringList& list, const QString& folder)
{
    list.prepend(folder);
    if (list.size() >= List_Limit)
        list.removeLast();
}

void Remove_Recent_Folder(QStringList& list, const QString& folder)
{
    if (!folder.isEmpty())
        list.removeIf([&folder](const QString& other) { return other.compare(folder, Case_Of_Names) == 0; });
}

void img_SourceMRU_MouseDown(Program& program)
{
    program.Source_MRU_Form.Arrow_Pressed = true;
}

void img_TargetMRU_MouseDown(Program& program)
{
    program.Target_MRU_Form.Arrow_Pressed = true;
}

void img_SourceMRU_MouseUp(Program& program)
{
    program.Source_MRU_Form.Arrow_Pressed = false;
}

void img_TargetMRU_MouseUp(Program& program)
{
    program.Target_MRU_Form.Arrow_Pressed = false;
}

static void Open_List(Program& program, const Recent_List& recent)
{
    recent.Form.Arrow_Pressed = false;
    if (recent.List.isEmpty())
        return; // a form with nothing to choose would only be in the way
    recent.Form.Text = recent.Shown.Caption;
    recent.Form.Visible = true;
    Show_Dialog(program, recent.Form_Name);
    recent.Form.Visible = false;
    recent.Shown.Caption = recent.Path;
    Tell_Same_Folder(program);
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

static void Choose_Item(Main_Form& form, const Recent_List& recent, int index)
{
    if (index < 0 || index >= recent.List.size())
        return;
    const QString chosen = recent.List.takeAt(index);
    recent.List.prepend(recent.Path);
    recent.Path = chosen;
    Forget_Last_Run(form);
    if (!chosen.isEmpty())
        recent.Fault.Caption.clear(); // it spoke of the folder before
    recent.Form.Visible = false;
}

void Choose_Recent_Source(Program& program, int index)
{
    Choose_Item(program.Form, Source_List(program), index);
}

void Choose_Recent_Target(Program& program, int index)
{
    Choose_Item(program.Form, Target_List(program), index);
}

void Hide_Recent_List(Recent_List_Form& form)
{
    form.Visible = false;
}
