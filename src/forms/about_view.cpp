#include "forms/about_view.h"

#include "forms/bindings.h"
#include "forms/drawn_icon.h"
#include "life/help_and_about.h"
#include "state/program.h"
#include "ui_about_view.h"

using namespace Qt::StringLiterals;

About_View::About_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_Splash>())
{
    ui_->setupUi(this);
    ui_->pic_Splash->setPixmap(Drawn_Icon(u"vantorra"_s).pixmap(QSize(72, 72), devicePixelRatioF()));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    ui_->lblProductName->setFont(large);
    connect(&tick_, &QTimer::timeout, this, [this] { guard_.Call([this] { Tick_About_Box(program_); }); });
}

About_View::~About_View() = default;

bool About_View::event(QEvent* event)
{
    const bool handled = Program_Dialog::event(event);
    if (event->type() == QEvent::WindowActivate)
        guard_.Call([this] { Activate_About_Box(program_); });
    else if (event->type() == QEvent::WindowDeactivate)
        guard_.Call([this] { Close_About_Box(program_); });
    return handled;
}

void About_View::mouseReleaseEvent(QMouseEvent*)
{
    guard_.Call([this] { Close_About_Box(program_); });
}

void About_View::Leave()
{
    Close_About_Box(program_);
}

void About_View::Render()
{
    const About_Form& form = program_.About_Box;
    Show_Label(*ui_->lbl_Version, form.lbl_Version);
    Show_Label(*ui_->lblProductName, form.lblProductName);
    Show_Label(*ui_->lbl_Author, form.lbl_Author);
    Show_Label(*ui_->lblCompany, form.lblCompany);
    Show_Label(*ui_->lbl_Countdown, form.lbl_Countdown);
    if (form.Timer1_Running != tick_.isActive()) {
        if (form.Timer1_Running)
            tick_.start(1000);
        else
            tick_.stop();
    }
    Hide_Unless(form.Visible);
}
