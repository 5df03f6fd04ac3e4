#include "forms/startform.h"

#include "forms/options_layout.h"
#include "forms/slot_guard.h"
#include "forms/video_list_view.h"
#include "run/list_runs.h"
#include "state/program.h"
#include "ui_startform.h"

#include <QScreen>
#include <algorithm>

void Startform::Connect_List()
{
    list_ = new Video_List_View(program_, guard_, ui_->spl_Main);
    ui_->spl_Main->addWidget(list_);
    // What the window has more than it needs goes to the list.
    ui_->spl_Main->setStretchFactor(0, 0);
    ui_->spl_Main->setStretchFactor(1, 1);
    connect(ui_->spl_Main, &QSplitter::splitterMoved, this, [this] {
        if (list_->Is_Open() && !ui_->scr_Options->isHidden())
            program_.Settings.Extensions.Video_List_Height = list_->height();
    });
    connect(list_, &Video_List_View::Opened, this, [this](bool open) {
        program_.Settings.Extensions.Video_List_Open = open;
        Open_List(open);
    });
    QWidget* before = ui_->chk_RemoveUnicode;
    for (QWidget* next : list_->In_Tab_Order()) {
        setTabOrder(before, next);
        before = next;
    }
    setTabOrder(before, ui_->img_ProcessFailed);

    const auto click = [this](QPushButton* button, void (*rule)(Program&)) {
        connect(button, &QPushButton::clicked, this, [this, rule] {
            Leave_Boxes();
            guard_.Call([&] { rule(program_); });
        });
    };
    click(ui_->btn_Check, btn_Check_Click);
    click(ui_->btn_RunFailed, btn_RunFailed_Click);
    click(ui_->btn_Continue, btn_Continue_Click);
    list_->Set_Open(true);
}

/// The height that the folders and the options take if none of them has to scroll.
static int Height_Of_Form(const Ui::Startform& ui, const Options_Layout& options)
{
    return ui.fram_Paths->sizeHint().height() + ui.lay_WholeForm->spacing() + options.Whole_Size().height();
}

bool Startform::Has_Room_For_List() const
{
    const int head = list_->minimumSizeHint().height();
    return program_.Form.Screen.Height >= Low_Screen &&
           ui_->spl_Main->height() - Height_Of_Form(*ui_, *options_) >= std::min(head, list_->Usual_Height());
}

void Startform::Divide()
{
    QSplitter& splitter = *ui_->spl_Main;
    if (!list_->Is_Open())
        return;
    const int room = splitter.height() - splitter.handleWidth();
    if (ui_->scr_Options->isHidden()) { // all of their room is the list's
        const int folders = ui_->fram_Paths->sizeHint().height();
        splitter.setSizes({folders, room - folders});
        return;
    }
    const int kept = program_.Settings.Extensions.Video_List_Height;
    const int wanted = kept > 0 ? kept : room - Height_Of_Form(*ui_, *options_);
    const int list = std::max(list_->minimumSizeHint().height(), wanted);
    splitter.setSizes({room - list, list});
}

void Startform::Open_List(bool open)
{
    list_->Set_Open(open);
    if (open && isVisible() && !Has_Room_For_List() && screen()) {
        const int lack = Height_Of_Form(*ui_, *options_) + list_->Usual_Height() - ui_->spl_Main->height();
        const int most = screen()->availableGeometry().bottom() - geometry().bottom();
        if (lack <= most && !isMaximized())
            resize(width(), height() + lack);
    }
    // Where both have no room the list stands in the options' place.
    const bool low = program_.Form.Screen.Height < Low_Screen;
    ui_->scr_Options->setVisible(!open || !low);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Divide();
}

void Startform::Place_More_Runs(bool ahead)
{
    const Main_Form& form = program_.Form;
    const std::pair<QPushButton*, const Button&> buttons[] = {{ui_->btn_Check, form.btn_Check},
                                                              {ui_->btn_Continue, form.btn_Continue},
                                                              {ui_->btn_RunFailed, form.btn_RunFailed}};
    QWidget& more = *ui_->pic_MoreRuns;
    QString shown;
    int wanted = 0;
    for (const auto& [button, record] : buttons)
        if (record.Visible) {
            shown += record.Caption;
            wanted += ui_->lay_MoreRuns->spacing() + button->sizeHint().width();
        }
    if (shown == more_runs_)
        return;
    if (!ahead)
        more_runs_ = shown;
    ui_->lay_MoreRuns->invalidate();
    ui_->lay_Run->invalidate();
    const bool is_beside = ui_->lay_Run->indexOf(&more) >= 0;
    const int others = ui_->lay_Run->minimumSize().width() -
                       (is_beside ? more.minimumSizeHint().width() + ui_->lay_Run->spacing() : 0);
    const QMargins edges = ui_->lay_Central->contentsMargins();
    const bool fits = others + ui_->lay_Run->spacing() + wanted + edges.left() + edges.right() <= form.Screen.Width;
    if (fits == is_beside || fits == ahead)
        return;
    if (fits)
        ui_->lay_Run->insertWidget(ui_->lay_Run->indexOf(ui_->btn_RunVantorra), &more);
    else
        ui_->lay_Central->insertWidget(ui_->lay_Central->indexOf(ui_->fram_Run), &more, 0, Qt::AlignRight);
}
