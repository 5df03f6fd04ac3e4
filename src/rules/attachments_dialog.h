#pragma once

#include "state/dialogs.h"

#include <QString>

struct Drop_Data;
struct Program;

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

/// Typed into the folder's box. While it is typed; with Enter (False: the text is no folder's, and nothing changes);
/// once the box is left, when such a text sets none; given up.
void Look_At_Attachment_Path(Program& program, const QString& text);
bool Enter_Attachment_Path(Program& program, const QString& text);
void Leave_Attachment_Path(Program& program, const QString& text);
void Give_Up_Attachment_Path(Program& program);

void cmd_Attachments_Done_Click(Program& program);
