#include "forms/halt_question_view.h"
#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "forms/summary_label.h"
#include "forms/system_status.h"
#include "life/menu_commands.h"
#include "life/start_up.h"
#include "logs/results_digest.h"
#include "run/halt.h"
#include "run/list_runs.h"
#include "state/program.h"
#include "ui_startform.h"

#include <QStatusBar>

using namespace Qt::StringLiterals;

void Startform::Connect_Run()
{
    connect(ui_->btn_RunVantorra, &Release_Button::Released_At, this, [this](const Mouse_Release& release) {
        Leave_Boxes(); // a button's letter takes no focus from them
        guard_.Call([&] { Run_Ticked(program_, release); });
    });
    connect(ui_->img_Quit, &QPushButton::clicked, this, [this] { guard_.Call([this] { img_Quit_Click(program_); }); });
    connect(ui_->btn_ViewVidInfo, &QPushButton::clicked, this,
            [this] { guard_.Call([this] { btn_ViewVidInfo_Click(program_); }); });
    connect(ui_->img_ProcessFailed, &QToolButton::clicked, this,
            [this] { guard_.Call([this] { Flash_Process_Failed(program_); }); });
    connect(ui_->btn_Halt, &Release_Button::Released_At, this,
            [this](const Mouse_Release& release) { guard_.Call([&] { btn_Halt_MouseUp(program_, release); }); });
    statusBar()->setSizeGripEnabled(false);
    summary_ = new Summary_Label(statusBar());
    summary_->setObjectName(u"lbl_RunSummary"_s);
    // Ends where the button above it does.
    summary_->setContentsMargins(0, 0, ui_->lay_Central->contentsMargins().right(), 0);
    statusBar()->addPermanentWidget(summary_);
    question_ = new Halt_Question_View(program_, guard_, *this);
}

void Startform::Render_Progress()
{
    const Main_Form& form = program_.Form;
    ui_->ulbl_Title1->setVisible(form.ulbl_Title1.Visible && !form.ulbl_Title1.Caption.isEmpty());
    ui_->pic_Progress->Set_Progress(form.Progress_Fraction, form.Progress);
    ui_->img_ProcessFailed->setIconSize(form.img_ProcessFailed_Out ? QSize(1, 1) : QSize(32, 32));
    summary_->Set_Look(form.Summary);
    system_->Show({.In_Work = program_.Run.Run_In_Progress && !program_.Run.Checking,
                   .Moving = program_.Run.Run_In_Progress,
                   .Fraction = form.Progress_Fraction,
                   .Failed = form.Summary == Summary_Look::Failures});
    question_->Render();
}
