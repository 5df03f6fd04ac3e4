#include "forms/attachments_view.h"

#include "forms/bindings.h"
#include "forms/looks.h"
#include "forms/path_edit.h"
#include "forms/popup_menus.h"
#include "rules/attachments_dialog.h"
#include "rules/typed_folders.h"
#include "state/program.h"
#include "ui_attachments_view.h"

#include <QMouseEvent>

using namespace Qt::StringLiterals;

Attachments_View::Attachments_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_Attachments>())
{
    ui_->setupUi(this);
    Connect_Popups(*this, program, guard);
    connect(ui_->pic_AttachmentsPath, &Drop_Panel::Dropped, this,
            [this](const Drop_Data& dropped) { guard_.Call([&] { Drop_On_Attachments_Panel(program_, dropped); }); });
    On_Click(ui_->btn_BrowseAttachments, [this] { mnu_PopupAttachBrowse1_Click(program_); });
    On_Click(ui_->chk_UseSubfolders, [this] { Use_Subfolders_Clicked(); });
    On_Click(ui_->btn_Clear, [this] { btn_Attachments_Clear_Click(program_); });
    On_Click(ui_->btn_Restore, [this] { btn_Attachments_Restore_Click(program_); });
    On_Click(ui_->cmd_Done, [this] { cmd_Attachments_Done_Click(program_); });
    ui_->lbl_UseSubfolders->installEventFilter(this);
    edit_ = new Path_Edit(
        guard, *ui_->lbl_AttachmentsPath,
        {.Look = [this](const QString& text) { Look_At_Attachment_Path(program_, text); },
         .Enter = [this](const QString& text) { return Enter_Attachment_Path(program_, text); },
         .Leave = [this](const QString& text) { Leave_Attachment_Path(program_, text); },
         .Give_Up = [this] { Give_Up_Attachment_Path(program_); },
         .Offers = [this](const QString& text) { return Offers_For_Typing(text, program_.Options.Path_Attachments); }});
    edit_->setObjectName("txt_AttachmentsPath");
    edit_->setAccessibleName(u"Attachment folder"_s);
    setTabOrder(ui_->btn_BrowseAttachments, edit_);
    setTabOrder(edit_, ui_->btn_BrowseAttachments);
    ui_->btn_BrowseAttachments->setFocus();
    Set_Looks();
}

Attachments_View::~Attachments_View() = default;

void Attachments_View::Use_Subfolders_Clicked()
{
    Check_Box& box = program_.Options.chk_UseSubfolders;
    box.Value = box.Value == 0 ? 1 : 0;
    chk_UseSubfolders_Click(program_);
}

/// A click on the words acts as one on the box.
bool Attachments_View::eventFilter(QObject* watched, QEvent* event)
{
    const bool click = watched == ui_->lbl_UseSubfolders && event->type() == QEvent::MouseButtonRelease &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (click && ui_->lbl_UseSubfolders->isEnabled())
        guard_.Call([this] { Use_Subfolders_Clicked(); });
    return Program_Dialog::eventFilter(watched, event);
}

void Attachments_View::Set_Looks()
{
    ui_->box_AttachmentsPath->setBackgroundRole(QPalette::Base);
    ui_->btn_BrowseAttachments->setIcon(Picture(u"folder"_s, palette()));
    ui_->btn_BrowseAttachments->setMinimumHeight(fontMetrics().height() + 10);
    ui_->box_AttachmentsPath->setMinimumHeight(fontMetrics().height() + 10);
    Tint(*ui_->lbl_AttachmentsPathFault, Fault_Colour(palette()));
}

void Attachments_View::changeEvent(QEvent* event)
{
    Program_Dialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        Set_Looks();
}

void Attachments_View::Render()
{
    Attachments_Form& form = program_.Attachments_Dialog;
    Show_Label(*ui_->lbl_AttachmentsNotes, form.lbl_AttachmentsNotes);
    Show_Label(*ui_->lbl_AttachmentsPathBox, form.lbl_AttachmentsPathBox);
    Show_Label(*ui_->lbl_AttachmentsPath, form.lbl_AttachmentsPath);
    Show_Label(*ui_->lbl_AttachmentsPathFault, form.lbl_AttachmentsPathFault);
    edit_->Share_Box(*ui_->lbl_AttachmentsPathFault);
    Show_Label(*ui_->lbl_UseSubfolders, form.lbl_UseSubfolders);
    Check_Box box = program_.Options.chk_UseSubfolders;
    box.Caption.clear();
    Show_Check_Box(*ui_->chk_UseSubfolders, box);
    Show_Button(*ui_->btn_Clear, form.btn_Clear);
    Show_Button(*ui_->btn_Restore, form.btn_Restore);
    Give_Focus(*this, form.Focus);
    Hide_Unless(form.Visible);
}
