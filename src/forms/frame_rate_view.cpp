#include "forms/frame_rate_view.h"

#include "forms/bindings.h"
#include "rules/frame_rate_dialog.h"
#include "state/program.h"
#include "ui_frame_rate_view.h"

Frame_Rate_View::Frame_Rate_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_VideoFrameRate>())
{
    ui_->setupUi(this);
    On_Click(ui_->opt_FrameRate_1, [this] { opt_FrameRate_Click(program_.Frame_Rate_Dialog, 1); });
    On_Click(ui_->opt_FrameRate_2, [this] { opt_FrameRate_Click(program_.Frame_Rate_Dialog, 2); });
    On_Click(ui_->btn_Done, [this] { btn_FrameRate_Done_Click(program_); });
    On_Click(ui_->btn_Cancel, [this] { btn_FrameRate_Cancel_Click(program_.Frame_Rate_Dialog); });
    connect(ui_->cbo_FrameRate, &QComboBox::textActivated, this,
            [this](const QString& text) { program_.Frame_Rate_Dialog.cbo_FrameRate.Text = text; });
}

Frame_Rate_View::~Frame_Rate_View() = default;

void Frame_Rate_View::Render()
{
    const Frame_Rate_Form& form = program_.Frame_Rate_Dialog;
    Show_Option_Pair(*ui_->opt_FrameRate_1, *ui_->opt_FrameRate_2, form.opt_FrameRate);
    Show_Combo_Box(*ui_->cbo_FrameRate, form.cbo_FrameRate);
    Show_Label(*ui_->lbl_SetFrameRate, form.lbl_SetFrameRate);
    Hide_Unless(form.Visible);
}
