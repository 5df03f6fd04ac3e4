#include "forms/language_filter_view.h"

#include "forms/bindings.h"
#include "forms/looks.h"
#include "forms/screen_place.h"
#include "rules/language_filter.h"
#include "state/program.h"
#include "ui_language_filter_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>

Language_Filter_View::Language_Filter_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_CustomFilter>())
{
    ui_->setupUi(this);
    On_Click(ui_->opt_CustomFilter_0, [this] { opt_CustomFilter_Click(program_, 0); });
    On_Click(ui_->opt_CustomFilter_1, [this] { opt_CustomFilter_Click(program_, 1); });
    On_Click(ui_->btn_CustomClear, [this] { btn_CustomClear_Click(program_); });
    On_Click(ui_->btn_Done, [this] { btn_CustomFilter_Done_Click(program_); });
    On_Click(ui_->btn_Cancel, [this] { btn_CustomFilter_Cancel_Click(program_); });
    connect(ui_->txt_Find, &QLineEdit::textEdited, this, [this](const QString& text) { Find(text); });
    ui_->txt_Find->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        ui_->txt_Find->setFocus(Qt::ShortcutFocusReason);
        ui_->txt_Find->selectAll();
    });
    for (QListWidget* list : {ui_->lst_Found, ui_->lst_LanguageList, ui_->lst_LanguageSelection}) {
        list->installEventFilter(this);
        connect(list, &QListWidget::clicked, this,
                [this, list](const QModelIndex& index) { Line_Clicked(list, index.row()); });
    }
}

Language_Filter_View::~Language_Filter_View() = default;

void Language_Filter_View::Line_Clicked(const QListWidget* list, int index)
{
    guard_.Call([&] {
        if (list == ui_->lst_Found)
            lst_Found_Click(program_, index);
        else if (list == ui_->lst_LanguageList)
            lst_LanguageList_Click(program_, index);
        else
            lst_LanguageSelection_Click(program_, index);
    });
}

void Language_Filter_View::Find(const QString& text)
{
    guard_.Call([&] { txt_Find_Change(program_, text); });
}

/// Return chooses, Escape empties the field, Down goes to the list. What is left is the dialog's.
bool Language_Filter_View::Key_In_Find(int key)
{
    const QString text = ui_->txt_Find->text();
    bool taken = false;
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        guard_.Call([&] { taken = txt_Find_Return(program_); });
    else if (key == Qt::Key_Escape && !text.isEmpty()) {
        Find({});
        taken = true;
    } else if (key == Qt::Key_Down) {
        ui_->lst_LanguageList->setFocus(Qt::OtherFocusReason);
        for (int row = 0; row < ui_->lst_LanguageList->count() && !taken; ++row)
            if (!ui_->lst_LanguageList->isRowHidden(row)) {
                ui_->lst_LanguageList->setCurrentRow(row);
                taken = true;
            }
    }
    return taken;
}

bool Language_Filter_View::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return Program_Dialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == ui_->txt_Find)
        return Key_In_Find(key);
    const auto* list = qobject_cast<QListWidget*>(watched);
    if (!list)
        return Program_Dialog::eventFilter(watched, event);
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return false;
    if (list->currentRow() >= 0)
        Line_Clicked(list, list->currentRow());
    return true;
}

void Language_Filter_View::Open()
{
    const Language_Filter_Form& form = program_.Language_Filter;
    Fade_Placeholder(*ui_->txt_Find);
    if (form.Has_Place)
        setGeometry(Onto_Screen(Rect_Of(form.Place), Frame_Around(parentWidget())));
    else
        Centre_On_Owner();
    ui_->lst_LanguageList->setFocus();
}

/// Rebuilds the list only if it changed; the place in it stays, and no line is marked.
static void Show_Lines(QListWidget& list, const QStringList& lines)
{
    bool same = list.count() == lines.size();
    for (int i = 0; same && i < list.count(); ++i)
        same = list.item(i)->text() == lines[i];
    if (!same) {
        const int row = list.currentRow();
        const int scroll = list.verticalScrollBar()->value();
        list.clear();
        list.addItems(lines);
        list.setCurrentRow(std::min(row, list.count() - 1), QItemSelectionModel::NoUpdate);
        list.verticalScrollBar()->setValue(scroll);
    }
    list.clearSelection();
}

/// Each line with a box that is ticked for a selected language; the click is the list's, not the box's.
void Language_Filter_View::Show_Found()
{
    const Language_Filter_Form& form = program_.Language_Filter;
    QListWidget& list = *ui_->lst_Found;
    QStringList lines;
    for (int i = 0; i < static_cast<int>(form.lst_Found.size()); ++i)
        lines += Found_Text(form, i);
    Show_Lines(list, lines);
    for (int i = 0; i < list.count(); ++i) {
        const bool choosable = form.lst_Found[static_cast<std::size_t>(i)].Choosable;
        list.item(i)->setFlags(choosable ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
        list.item(i)->setCheckState(Is_Selected(form, i) ? Qt::Checked : Qt::Unchecked);
    }
    constexpr int fewest = 2;
    constexpr int most = 5;
    const int rows = std::clamp(list.count(), fewest, most);
    list.setFixedHeight(rows * std::max(list.sizeHintForRow(0), fontMetrics().height()) + 2 * list.frameWidth());
    list.setVisible(list.count() > 0);
    Show_Label(*ui_->lbl_FoundCount, form.lbl_FoundCount);
    Show_Label(*ui_->lbl_FoundHint, form.lbl_FoundHint);
}

void Language_Filter_View::Render()
{
    const Language_Filter_Form& form = program_.Language_Filter;
    setWindowTitle(form.Caption);
    ui_->opt_CustomFilter_0->setText(With_Letter(form.opt_CustomFilter_Captions[0], u'F'));
    ui_->opt_CustomFilter_1->setText(With_Letter(form.opt_CustomFilter_Captions[1], u'K'));
    ui_->opt_CustomFilter_0->setChecked(form.opt_CustomFilter == 0);
    ui_->opt_CustomFilter_1->setChecked(form.opt_CustomFilter != 0);
    Show_Found();
    Show_Lines(*ui_->lst_LanguageList, form.lst_LanguageList);
    for (int i = 0; i < ui_->lst_LanguageList->count(); ++i)
        ui_->lst_LanguageList->setRowHidden(i, !Is_Looked_For(program_, form.lst_LanguageList[i]));
    if (ui_->txt_Find->text() != form.txt_Find)
        ui_->txt_Find->setText(form.txt_Find);
    Show_Lines(*ui_->lst_LanguageSelection, form.lst_LanguageSelection);
    Show_Label(*ui_->lbl_SelLanguages, form.lbl_SelLanguages);
    Show_Label(*ui_->lbl_List1Count, form.lbl_List1Count);
    Show_Label(*ui_->lbl_MaxLanguages, form.lbl_MaxLanguages);
    Hide_Unless(form.Visible);
}

void Language_Filter_View::Note_Place()
{
    if (isVisible())
        program_.Language_Filter.Place = {geometry().left(), geometry().top(), width(), height(), 0};
}

void Language_Filter_View::showEvent(QShowEvent* event)
{
    Program_Dialog::showEvent(event);
    Note_Place();
}

void Language_Filter_View::moveEvent(QMoveEvent* event)
{
    Program_Dialog::moveEvent(event);
    Note_Place();
}

void Language_Filter_View::resizeEvent(QResizeEvent* event)
{
    Program_Dialog::resizeEvent(event);
    Note_Place();
}
