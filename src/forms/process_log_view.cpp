#include "forms/process_log_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/looks.h"
#include "forms/viewer_keys.h"
#include "state/program.h"
#include "support/form_placement.h"
#include "ui_process_log_view.h"
#include "workbenches/log_find_bar.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>

static QColor Colour_Of_Line(const QString& line, const QPalette& palette)
{
    switch (Kind_Of_Line(line)) {
    case Log_Line::Head:
        return Head_Colour(palette);
    case Log_Line::Warning:
        return Mark_Colour(palette);
    case Log_Line::Fault:
        return Fault_Colour(palette);
    case Log_Line::Plain:
        break;
    }
    return {};
}

Process_Log_View::Process_Log_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_ProcessLog>()), place_(*this, form_.Place)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    constexpr int entries_width = 190;
    constexpr int lines_width = 700;
    ui_->spl_Log->setStretchFactor(1, 1);
    ui_->spl_Log->setSizes({entries_width, lines_width});
    ui_->lst_Entries->setModel(&entries_);
    ui_->lst_ProcessLog->Set_Colouring(Colour_Of_Line);
    Connect_Search();
    On_Click(ui_->btn_LoadFullLog, [this] { Load_Full_Log(); });
    On_Click(ui_->btn_Done, [this] { ProcessLog_btn_Done(program_, form_); });
    On_Click(ui_->img_FontInc, [this] { ProcessLog_img_FontInc(program_, form_); });
    On_Click(ui_->img_FontDec, [this] { ProcessLog_img_FontDec(program_, form_); });
    On_Click(ui_->img_FontReset, [this] { ProcessLog_img_FontReset(program_, form_); });
}

Process_Log_View::~Process_Log_View() = default;

void Process_Log_View::Connect_Search()
{
    const auto on_key = [this](const QKeySequence& key, const std::function<void()>& rule) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, rule] { Go(rule); });
    };
    const auto find = [this](bool back) { return [this, back] { ProcessLog_Find_Next(form_, back); }; };
    const auto fault = [this](bool back) { return [this, back] { ProcessLog_Next_Fault(form_, back); }; };
    const auto open = [this] { ProcessLog_Open_Find(form_); };
    on_key(QKeySequence::Find, open);
    on_key(Qt::Key_F3, find(false));
    on_key(Qt::SHIFT | Qt::Key_F3, find(true));
    on_key(Qt::Key_F8, fault(false));
    on_key(Qt::SHIFT | Qt::Key_F8, fault(true));
    connect(ui_->btn_FindNext, &QAbstractButton::clicked, this, [this, find] { Go(find(false)); });
    connect(ui_->btn_FindBack, &QAbstractButton::clicked, this, [this, find] { Go(find(true)); });
    connect(ui_->btn_NextFault, &QAbstractButton::clicked, this, [this, fault] { Go(fault(false)); });
    On_Click(ui_->btn_Find, open);
    On_Click(ui_->btn_CloseFind, [this] { ProcessLog_Close_Find(form_); });
    connect(ui_->txt_Find, &QLineEdit::textEdited, this,
            [this](const QString& text) { Go([&] { ProcessLog_txt_Find_Change(form_, text); }); });
    connect(ui_->chk_WrapLines, &QAbstractButton::clicked, this,
            [this](bool ticked) { guard_.Call([&] { program_.Settings.Extensions.Wrap_Log_Lines = ticked; }); });
    connect(ui_->lst_Entries->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& entry) {
                if (!selecting_)
                    Go([&] { ProcessLog_lst_Entries_Click(form_, entry.row()); });
            });
    connect(ui_->lst_ProcessLog->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& line) {
                if (!selecting_)
                    guard_.Call([&] { ProcessLog_lst_ProcessLog_Click(form_, line.row()); });
            });
}

void Process_Log_View::Go(const std::function<void()>& rule)
{
    guard_.Call(rule);
    const QScopedValueRollback selecting(selecting_, true);
    if (form_.Selected_Row != ui_->lst_ProcessLog->currentIndex().row())
        ui_->lst_ProcessLog->Go_To_Row(form_.Selected_Row);
}

void Process_Log_View::Show_Lines()
{
    const QScopedValueRollback selecting(selecting_, true);
    ui_->lst_ProcessLog->Show_Lines(form_.lst_ProcessLog);
    ui_->lst_ProcessLog->Select_Row(form_.Selected_Row);
    QStringList entries;
    for (const Log_Entry_Head& entry : form_.lst_Entries)
        entries += entry.Caption;
    entries_.setStringList(entries);
    ui_->lst_Entries->setVisible(!entries.isEmpty());
}

void Process_Log_View::Open()
{
    const Input_Pause pause;
    place_.Propose_Size({900, 560});
    ProcessLog_Activate(program_, form_);
    Show_Lines();
    ui_->btn_Done->setFocus();
    place_.Open();
}

void Process_Log_View::Load_Full_Log()
{
    const Input_Pause pause;
    ProcessLog_btn_LoadFullLog(program_, form_);
    Show_Lines();
}

void Process_Log_View::Leave()
{
    ProcessLog_btn_Done(program_, form_);
    done(0);
}

void Process_Log_View::keyPressEvent(QKeyEvent* event)
{
    const bool back = event->modifiers() & Qt::ShiftModifier;
    const int key = Viewer_Key(*event);
    if (key == Key_Enter && ui_->txt_Find->hasFocus())
        Go([&] { ProcessLog_Find_Next(form_, back); });
    else if (key != 0)
        guard_.Call([&] { ProcessLog_KeyDown(program_, form_, key, back); });
    else
        Program_Dialog::keyPressEvent(event);
}

void Process_Log_View::Render_Entries()
{
    const QScopedValueRollback selecting(selecting_, true);
    const QModelIndex entry = entries_.index(form_.Entry_Row);
    if (ui_->lst_Entries->currentIndex() == entry)
        return;
    ui_->lst_Entries->setCurrentIndex(entry);
    if (!entry.isValid())
        ui_->lst_Entries->clearSelection();
}

void Process_Log_View::Render()
{
    setWindowTitle(form_.Caption);
    ui_->fram_Find->setVisible(form_.Find.Open);
    if (ui_->txt_Find->text() != form_.Find.Text)
        ui_->txt_Find->setText(form_.Find.Text);
    if (form_.Focus == ui_->txt_Find->objectName())
        ui_->txt_Find->selectAll();
    ui_->lst_ProcessLog->Set_Found(form_.Find.Open ? form_.Find.Text : QString());
    ui_->lst_ProcessLog->Set_Wrapped(program_.Settings.Extensions.Wrap_Log_Lines);
    ui_->chk_WrapLines->setChecked(program_.Settings.Extensions.Wrap_Log_Lines);
    Render_Entries();
    // The lines are shown by what loads them: they change at no other time.
    ui_->lst_ProcessLog->Set_Text_Size(program_.Settings.ProcessLog_Font_Size);
    Show_Button(*ui_->btn_LoadFullLog, form_.btn_LoadFullLog);
    ui_->btn_LoadFullLog->setText(With_Letter(form_.btn_LoadFullLog.Caption, u'L'));
    Show_Button(*ui_->btn_Done, form_.btn_Done);
    ui_->btn_Done->setText(With_Letter(form_.btn_Done.Caption, u'D'));
    Show_Label(*ui_->lbl_LoadLog, form_.lbl_LoadLog);
    Show_Label(*ui_->lbl_LogLines, form_.lbl_LogLines);
    Show_Label(*ui_->lbl_Place, form_.lbl_Place);
    Show_Label(*ui_->lbl_FontSize, form_.lbl_FontSize);
    place_.Render();
    Give_Focus(*this, form_.Focus);
    Hide_Unless(form_.Visible);
}
