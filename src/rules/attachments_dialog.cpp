#include "rules/attachments_dialog.h"

#include "rules/option_rules.h"
#include "rules/typed_folders.h"
#include "state/program.h"
#include "support/drop_data.h"
#include "support/paths.h"
#include "support/text.h"

#include <QDir>

using namespace Qt::StringLiterals;

static void Caption_Add_Attachments(JobOptions& options, bool path_set)
{
    options.chk_AddAttachments.Caption =
        path_set ? u"Add Attachments (path set)"_s : u"Add Attachments (path not set)"_s;
}

/// The controls of the form that tell whether there is a folder, and one to go back to.
static void Show_Folder(Program& program, const QString& folder)
{
    Attachments_Form& form = program.Attachments_Dialog;
    const bool set = !folder.isEmpty();
    form.lbl_AttachmentsPath.Caption = folder;
    form.lbl_AttachmentsPathFault.Visible = !set;
    if (!set)
        form.lbl_AttachmentsPathFault.Caption = u"Attachment path NOT set!"_s;
    const QString& in_use = program.Options.Path_Attachments;
    form.btn_Clear.Enabled = !in_use.isEmpty();
    form.btn_Restore.Enabled = !form.Kept_Path.isEmpty() && form.Kept_Path != in_use;
    form.lbl_UseSubfolders.Enabled = set;
    program.Options.chk_UseSubfolders.Enabled = set;
}

void Show_Attachments_Dialog(Program& program)
{
    Open_Attachments_Dialog(program);
    Show_Dialog(program, u"frm_Attachments"_s);
    program.Attachments_Dialog.Visible = false;
}

void Open_Attachments_Dialog(Program& program)
{
    program.Attachments_Dialog.Visible = true;
    Show_Folder(program, program.Options.Path_Attachments);
}

void Apply_Attachment_Path(Program& program)
{
    JobOptions& options = program.Options;
    const bool set = !options.Path_Attachments.isEmpty();
    Show_Folder(program, options.Path_Attachments);
    options.chk_AddAttachments.Enabled = set;
    if (!set) {
        options.chk_AddAttachments.Value = 0;
        options.Add_Attachments_On = false;
    }
    Caption_Add_Attachments(options, set);
}

void btn_Attachments_Clear_Click(Program& program)
{
    program.Attachments_Dialog.Kept_Path = program.Options.Path_Attachments;
    program.Options.Path_Attachments.clear();
    Apply_Attachment_Path(program);
    program.Attachments_Dialog.Focus = u"cmd_Done"_s;
}

void btn_Attachments_Restore_Click(Program& program)
{
    if (!program.Attachments_Dialog.Kept_Path.isEmpty()) {
        program.Options.Path_Attachments = program.Attachments_Dialog.Kept_Path;
        Apply_Attachment_Path(program);
    }
    program.Attachments_Dialog.Focus = u"cmd_Done"_s;
}

void chk_UseSubfolders_Click(Program& program)
{
    program.Options.Use_Attachment_Subfolders = program.Options.chk_UseSubfolders.Value == 1;
}

void mnu_PopupAttachBrowse1_Click(Program& program)
{
    QString& path = program.Options.Path_Attachments;
    const QString start = path.isEmpty() ? QDir::toNativeSeparators(QDir::rootPath()) : path;
    const QString chosen = program.Person.Pick_Folder(u"Select the Attachment folder."_s, start);
    if (!chosen.isEmpty())
        path = Cut_At_Nul(With_Separator(chosen));
    Apply_Attachment_Path(program);
}

void Drop_On_Attachments_Panel(Program& program, const Drop_Data& data)
{
    const QString path = data.Paths.value(0);
    if (!Folder_Exists(path)) {
        Show_Folder(program, {});
        return;
    }
    program.Options.Path_Attachments = With_Separator(path);
    Apply_Attachment_Path(program);
}

static void Show_Typing_Fault(Program& program, const QString& fault)
{
    program.Attachments_Dialog.lbl_AttachmentsPathFault.Caption = fault;
    program.Attachments_Dialog.lbl_AttachmentsPathFault.Visible = !fault.isEmpty();
}

void Look_At_Attachment_Path(Program& program, const QString& text)
{
    Show_Typing_Fault(program, Fault_Of_Typing(text, program.Options.Path_Attachments));
}

bool Enter_Attachment_Path(Program& program, const QString& text)
{
    QString& path = program.Options.Path_Attachments;
    const QString folder = Folder_Of_Typing(text, path);
    if (folder.isEmpty() && !text.trimmed().isEmpty()) {
        Show_Typing_Fault(program, No_Such_Folder);
        return false;
    }
    if (folder.isEmpty())
        program.Attachments_Dialog.Kept_Path = path;
    path = folder;
    Apply_Attachment_Path(program);
    program.Attachments_Dialog.Focus = u"cmd_Done"_s;
    return true;
}

void Leave_Attachment_Path(Program& program, const QString& text)
{
    if (!Enter_Attachment_Path(program, text)) {
        Enter_Attachment_Path(program, {});
        program.Attachments_Dialog.lbl_AttachmentsPath.Caption = text.trimmed();
        Show_Typing_Fault(program, No_Such_Folder);
    }
    program.Attachments_Dialog.Focus.clear(); // it has gone on already
}

void Give_Up_Attachment_Path(Program& program)
{
    Show_Folder(program, program.Options.Path_Attachments);
}

void cmd_Attachments_Done_Click(Program& program)
{
    Attachments_Form& form = program.Attachments_Dialog;
    const bool folder_there = Folder_Exists(form.lbl_AttachmentsPath.Caption);
    if (!folder_there)
        form.lbl_AttachmentsPath.Caption.clear();
    Caption_Add_Attachments(program.Options, folder_there && !program.Options.Path_Attachments.isEmpty());
    form.Visible = false;
}
