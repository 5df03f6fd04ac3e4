#include "forms/process_log_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/viewer_keys.h"
#include "state/program.h"
#include "ui_process_log_view.h"

#include <QKeyEvent>

Process_Log_View::Process_Log_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_ProcessLog>()), place_(*this, form_.Place)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    On_Click(ui_->btn_LoadFullLog, [this] { Load_Full_Log(); });
    On_Click(ui_->btn_Done, [this] { ProcessLog_btn_Done(program_, form_); });
    On_Click(ui_->img_FontInc, [this] { ProcessLog_img_FontInc(program_, form_); });
    On_Click(ui_->img_FontDec, [this] { ProcessLog_img_FontDec(program_, form_); });
    On_Click(ui_->img_FontReset, [this] { ProcessLog_img_FontReset(program_, form_); });
}

Process_Log_View::~Process_Log_View() = default;

void Process_Log_View::Open()
{
    const Input_Pause pause;
    place_.Propose_Size({900, 560});
    ProcessLog_Activate(program_, form_);
    ui_->lst_ProcessLog->Show_Lines(form_.lst_ProcessLog);
    ui_->lst_ProcessLog->Select_Row(form_.Selected_Row);
    ui_->btn_Done->setFocus();
    place_.Open();
}

void Process_Log_View::Load_Full_Log()
{
    const Input_Pause pause;
    ProcessLog_btn_LoadFullLog(program_, form_);
    ui_->lst_ProcessLog->Show_Lines(form_.lst_ProcessLog);
    ui_->lst_ProcessLog->Select_Row(form_.Selected_Row);
}

void Process_Log_View::Leave()
{
    ProcessLog_btn_Done(program_, form_);
    done(0);
}

void Process_Log_View::keyPressEvent(QKeyEvent* event)
{
    if (const int key = Viewer_Key(*event))
        guard_.Call([&] { ProcessLog_KeyDown(program_, form_, key, event->modifiers() & Qt::ShiftModifier); });
    else
        Program_Dialog::keyPressEvent(event);
}

void Process_Log_View::Render()
{
    setWindowTitle(form_.Caption);
    // The lines are shown by what loads them: they change at no other time.
    ui_->lst_ProcessLog->Set_Text_Size(program_.Settings.ProcessLog_Font_Size);
    Show_Button(*ui_->btn_LoadFullLog, form_.btn_LoadFullLog);
    ui_->btn_LoadFullLog->setText(With_Letter(form_.btn_LoadFullLog.Caption, u'L'));
    Show_Button(*ui_->btn_Done, form_.btn_Done);
    ui_->btn_Done->setText(With_Letter(form_.btn_Done.Caption, u'D'));
    Show_Label(*ui_->lbl_LoadLog, form_.lbl_LoadLog);
    Show_Label(*ui_->lbl_LogLines, form_.lbl_LogLines);
    Show_Label(*ui_->lbl_FontSize, form_.lbl_FontSize);
    place_.Render();
    Give_Focus(*this, form_.Focus);
    Hide_Unless(form_.Visible);
}
