// The list of the editor's form: its filter, its cells, and the commands for what is typed into them.
#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/option_editor_view.h"
#include "state/program.h"
#include "ui_option_editor_view.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_list.h"
#include "workbenches/option_marks.h"
#include "workbenches/option_steps.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <algorithm>

using namespace Qt::StringLiterals;

void Option_Editor_View::Connect_List()
{
    QTableView& table = *ui_->lvw_Files;
    table.setModel(&files_);
    table.setItemDelegate(&cells_);
    table.sortByColumn(File_Column, Qt::AscendingOrder);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.viewport()->installEventFilter(this);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Option_Editor_View::Selection_Changed);
    connect(table.selectionModel(), &QItemSelectionModel::currentChanged, this, &Option_Editor_View::Render_Commands);
    connect(&files_, &Option_Files_Model::Sorted, this, [this](int column, bool descending) {
        guard_.Call([=, this] { Sort_Option_List(program_.Option_Files, column, descending); });
    });
    connect(&files_, &Option_Files_Model::Typed, this, [this](int number, Option_Slot slot, const QString& text) {
        guard_.Call([&] { Type_Into_Cell(program_.Option_Files, number, slot, text); });
    });
    connect(&cells_, &Option_Cell_Delegate::Entered, this, &Option_Editor_View::Go_Down);

    ui_->txt_Filter->installEventFilter(this);
    connect(ui_->txt_Filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!filling_)
            guard_.Call([&] { Set_Option_Filter(program_, text); });
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        ui_->txt_Filter->setFocus(Qt::ShortcutFocusReason);
        ui_->txt_Filter->selectAll();
    });
}

/// The commands of the buttons below the list, of its context menu and of the keys.
void Option_Editor_View::Add_Commands()
{
    const auto add = [this](const QString& caption, const QKeySequence& keys, auto command) {
        auto* action = new QAction(caption, this);
        action->setShortcut(keys);
        action->setShortcutVisibleInContextMenu(true);
        connect(action, &QAction::triggered, this, [this, command] {
            Finish_Cell();
            guard_.Call(command);
        });
        ui_->lvw_Files->addAction(action);
        return action;
    };
    fill_ = add(u"Fill &Down"_s, QKeySequence(Qt::CTRL | Qt::Key_D), [this] { Fill(); });
    undo_ = add(u"&Undo"_s, QKeySequence::Undo, [this] { Undo(); });
    apply_ = add(u"Apply &Marked"_s, {}, [this] { Apply_All_Marks(); });
    discard_ =
        add(u"Discard Marks of the &Selected Rows"_s, {}, [this] { Discard_Marks(program_.Option_Files, false); });
    ui_->lvw_Files->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(ui_->btn_FillDown, &QAbstractButton::clicked, fill_, &QAction::trigger);
    connect(ui_->btn_Undo, &QAbstractButton::clicked, undo_, &QAction::trigger);
    connect(ui_->btn_ApplyMarks, &QAbstractButton::clicked, apply_, &QAction::trigger);
}

/// What is being typed into a cell is typed, ahead of any command.
void Option_Editor_View::Finish_Cell()
{
    QWidget* typed_in = QApplication::focusWidget();
    if (typed_in && ui_->lvw_Files->viewport()->isAncestorOf(typed_in))
        ui_->lvw_Files->setFocus();
}

/// On to the next row, as long as that doesn't undo a selection of several.
void Option_Editor_View::Go_Down()
{
    const QModelIndex current = ui_->lvw_Files->currentIndex();
    if (program_.Option_Files.Selection.size() <= 1 && current.row() + 1 < files_.rowCount())
        ui_->lvw_Files->setCurrentIndex(files_.index(current.row() + 1, current.column()));
}

void Option_Editor_View::Fill()
{
    const QModelIndex current = ui_->lvw_Files->currentIndex();
    if (current.isValid() && current.column() >= First_Value_Column)
        Fill_Down(program_.Option_Files, files_.Number_Of(current.row()),
                  static_cast<Option_Slot>(current.column() - First_Value_Column));
}

void Option_Editor_View::Apply_All_Marks()
{
    const Input_Pause pause;
    Apply_Marks(program_);
}

void Option_Editor_View::Undo()
{
    const Input_Pause pause;
    Undo_Last_Apply(program_);
}

bool Option_Editor_View::Key_In_Filter(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape && !ui_->txt_Filter->text().isEmpty()) {
        ui_->txt_Filter->clear();
        return true;
    }
    if (event.key() == Qt::Key_Down) {
        ui_->lvw_Files->setFocus(Qt::TabFocusReason);
        if (program_.Option_Files.Selection.empty() && files_.rowCount() > 0)
            ui_->lvw_Files->setCurrentIndex(files_.index(0, File_Column));
        return true;
    }
    return false;
}

/// Languages, flags and delays take what they need, names and titles share the rest.
void Option_Editor_View::Share_Width()
{
    constexpr int needed[] = {19, 9, 9, 9}; // in digits
    constexpr int least = 14;
    constexpr std::pair<int, double> shares[] = {
        {File_Column, 0.4}, {Option_File_Column, 0.28}, {First_Value_Column, 0.32}};
    QTableView& table = *ui_->lvw_Files;
    const int em = table.fontMetrics().horizontalAdvance(u'0');
    int left = table.viewport()->width();
    for (int at = 0; at < 4; ++at) {
        table.setColumnWidth(First_Value_Column + static_cast<int>(Language_Slot) + at, needed[at] * em);
        left -= needed[at] * em;
    }
    for (const auto& [column, share] : shares)
        table.setColumnWidth(column, std::max(least * em, static_cast<int>(left * share)));
}

void Option_Editor_View::Render_Commands()
{
    const Option_Editor& editor = program_.Option_Files;
    const bool marked = Count_Marked(editor) > 0;
    const bool on_value = ui_->lvw_Files->currentIndex().column() >= First_Value_Column;
    fill_->setEnabled(on_value && editor.Selection.size() > 1);
    undo_->setEnabled(!editor.Steps.empty());
    apply_->setEnabled(marked);
    discard_->setEnabled(marked && !editor.Selection.empty());
    ui_->btn_FillDown->setEnabled(fill_->isEnabled());
    ui_->btn_Undo->setEnabled(undo_->isEnabled());
    ui_->btn_ApplyMarks->setEnabled(apply_->isEnabled());
    if (ui_->txt_Filter->text().trimmed() != editor.Filter)
        ui_->txt_Filter->setText(editor.Filter);
    ui_->lbl_FilterNote->setText(Filter_Note(editor));
    ui_->lbl_FilterNote->setVisible(!ui_->lbl_FilterNote->text().isEmpty());
    Show_Label(*ui_->lbl_Marks, editor.lbl_Marks);
}
