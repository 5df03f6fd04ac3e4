#pragma once

#include "support/controls.h"

#include <QString>

struct Drop_Data;
struct Program;

/// frm_Attachments: the one folder from which attachments come, and the mode that takes the titled subfolders instead.
/// chk_UseSubfolders lives among the options. The view renders the record and hides the form once Visible is False.
struct Attachments_Form
{
    Label lbl_AttachmentsPath;
    Label lbl_AttachmentsPathFault{.Caption = QStringLiteral("Attachment path not set!")};
    Label lbl_AttachmentsPathBox{.Caption = QStringLiteral("Drop Attachment  folder here:")};
    Label lbl_AttachmentsNotes;
    Label lbl_UseSubfolders{.Caption = QStringLiteral("Attach Contents of Titled Subfolders Instead")};
    QString Kept_Path; ///< the folder before btn_Clear, for btn_Restore
    QString Focus;     ///< "cmd_Done" once the logic gave it the focus
    bool Visible = false;
};

/// Opens the form and returns when it was closed.
void Show_Attachments_Dialog(Program& program);

/// What the form shows at its opening.
void Open_Attachments_Dialog(Program& program);
/// Brings the form, and chk_AddAttachments of the main form, in step with the folder.
void Apply_Attachment_Path(Program& program);

void btn_Attachments_Clear_Click(Program& program);
void btn_Attachments_Restore_Click(Program& program);
void chk_UseSubfolders_Click(Program& program);
void mnu_PopupAttachBrowse1_Click(Program& program);
/// A folder becomes the attachment folder; anything else is refused and only shown as not set.
void Drop_On_Attachments_Panel(Program& program, const Drop_Data& data);
void cmd_Attachments_Done_Click(Program& program);
