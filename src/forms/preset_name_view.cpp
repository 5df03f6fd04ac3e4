#include "forms/preset_name_view.h"

#include "forms/bindings.h"
#include "forms/looks.h"
#include "rules/preset_dialogs.h"
#include "state/program.h"
#include "ui_preset_name_view.h"

using namespace Qt::StringLiterals;

Preset_Name_View::Preset_Name_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_PresetName>())
{
    ui_->setupUi(this);
    On_Click(ui_->btn_Done, [this] { btn_PresetName_Done_Click(program_.Preset_Name_Dialog); });
    On_Click(ui_->btn_Cancel, [this] { btn_PresetName_Cancel_Click(program_.Preset_Name_Dialog); });
    connect(ui_->txt_PresetName, &QLineEdit::textEdited, this, [this](const QString& text) {
        program_.Preset_Name_Dialog.txt_PresetName.Text = text;
        program_.Preset_Name_Dialog.txt_PresetName.Caret = ui_->txt_PresetName->cursorPosition();
        guard_.Call([this] { txt_PresetName_Change(program_); });
    });
    Set_Looks();
}

Preset_Name_View::~Preset_Name_View() = default;

void Preset_Name_View::Set_Looks()
{
    Tint(*ui_->lbl_PresetNameFault, Fault_Colour(palette()));
    // It says nothing at first, and what comes must not move the buttons.
    ui_->lbl_PresetNameFault->setMinimumHeight(fontMetrics().height() * 2);
}

void Preset_Name_View::changeEvent(QEvent* event)
{
    Program_Dialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        Set_Looks();
}

void Preset_Name_View::Render()
{
    Preset_Name_Form& form = program_.Preset_Name_Dialog;
    setWindowTitle(form.Caption);
    Show_Text_Box(*ui_->txt_PresetName, form.txt_PresetName);
    ui_->lbl_PresetNameFault->setText(form.lbl_PresetNameFault.Caption);
    ui_->btn_Done->setText(
        With_Letter(form.btn_Done.Caption, form.btn_Done.Caption.isEmpty() ? QChar() : form.btn_Done.Caption.front()));
    Show_Button(*ui_->btn_Done, form.btn_Done);
    Give_Focus(*this, form.Focus);
    Hide_Unless(form.Visible);
}
