#include "forms/presets_view.h"

#include "forms/bindings.h"
#include "forms/looks.h"
#include "rules/preset_dialogs.h"
#include "state/program.h"
#include "support/shown_text.h"
#include "ui_presets_view.h"

#include <QKeyEvent>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

Presets_View::Presets_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_Presets>())
{
    ui_->setupUi(this);
    On_Click(ui_->btn_Load, [this] { btn_Presets_Load_Click(program_); });
    On_Click(ui_->btn_Rename, [this] { btn_Presets_Rename_Click(program_); });
    On_Click(ui_->btn_Trash, [this] { btn_Presets_Trash_Click(program_); });
    On_Click(ui_->btn_Done, [this] { btn_Presets_Done_Click(program_.Presets_Dialog); });
    ui_->lst_Presets->installEventFilter(this);
    connect(ui_->lst_Presets, &QListWidget::currentRowChanged, this,
            [this](int row) { guard_.Call([&] { lst_Presets_Change(program_, row); }); });
    connect(ui_->lst_Presets, &QListWidget::itemDoubleClicked, ui_->btn_Load, &QAbstractButton::click);
}

Presets_View::~Presets_View() = default;

bool Presets_View::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != ui_->lst_Presets || event->type() != QEvent::KeyPress)
        return Program_Dialog::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        ui_->btn_Load->click();
        return true;
    case Qt::Key_F2:
        ui_->btn_Rename->click();
        return true;
    case Qt::Key_Delete:
        ui_->btn_Trash->click();
        return true;
    default:
        return false;
    }
}

/// Only where they changed: the list keeps its place.
void Presets_View::Show_Names()
{
    const Presets_Form& form = program_.Presets_Dialog;
    const QSignalBlocker quiet(ui_->lst_Presets);
    if (shown_ != form.Names) {
        shown_ = form.Names;
        ui_->lst_Presets->clear();
        for (const QString& name : shown_) {
            auto* line = new QListWidgetItem(Printable(name), ui_->lst_Presets);
            line->setToolTip(Literal_Tool_Tip(line->text())); // where it is cut
        }
    }
    if (ui_->lst_Presets->currentRow() != form.Row)
        ui_->lst_Presets->setCurrentRow(form.Row);
}

void Presets_View::Render()
{
    Presets_Form& form = program_.Presets_Dialog;
    Show_Names();
    ui_->lbl_PresetsNote->setText(form.lbl_PresetsNote.Caption);
    ui_->lbl_PresetsNote->setVisible(!form.lbl_PresetsNote.Caption.isEmpty());
    const std::tuple<QPushButton*, const Button&, QChar> buttons[] = {{ui_->btn_Load, form.btn_Load, u'L'},
                                                                      {ui_->btn_Rename, form.btn_Rename, u'R'},
                                                                      {ui_->btn_Trash, form.btn_Trash, u'T'}};
    for (const auto& [widget, record, letter] : buttons) {
        widget->setText(With_Letter(record.Caption, letter));
        Show_Button(*widget, record);
    }
    Give_Focus(*this, form.Focus);
    Hide_Unless(form.Visible);
}
