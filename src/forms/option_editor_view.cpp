#include "forms/option_editor_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/looks.h"
#include "state/program.h"
#include "support/form_placement.h"
#include "ui_option_editor_view.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_marks.h"
#include "workbenches/viewer_place.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <algorithm>

using namespace Qt::StringLiterals;

QWidget* Option_Editor_View::Box_Controls::Widget() const
{
    return Line ? static_cast<QWidget*>(Line) : List;
}

Option_Editor_View::Option_Editor_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_OptionsFiles>()), place_(*this, kept_),
      files_(program.Option_Files), cells_(program.Option_Files, this)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Connect_List();
    Connect_Boxes();
    Add_Commands();

    On_Click(ui_->lbl_PickFile, [this] { Refresh(); });
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, ui_->lbl_PickFile,
            &QAbstractButton::click);
    On_Click(ui_->btn_Apply, [this] { Apply(); });
    connect(ui_->btn_Close, &QAbstractButton::clicked, this, &Option_Editor_View::reject);
    On_Click(ui_->img_FontInc, [this] { OptionsFiles_img_FontInc(program_.Option_Files); });
    On_Click(ui_->img_FontDec, [this] { OptionsFiles_img_FontDec(program_.Option_Files); });
    On_Click(ui_->img_FontReset,
             [this] { OptionsFiles_img_FontReset(program_.Option_Files, program_.Form.Text_Size); });
    Set_Looks();
}

Option_Editor_View::~Option_Editor_View() = default;

void Option_Editor_View::Connect_Boxes()
{
    boxes_ = {{{ui_->txt_Title, nullptr, ui_->chk_StickyTitle},
               {nullptr, ui_->cmbo_Language, ui_->chk_StickyLanguage},
               {nullptr, ui_->cmbo_Default, ui_->chk_StickyDefault},
               {nullptr, ui_->cmbo_Forced, ui_->chk_StickyForced},
               {ui_->txt_Delay, nullptr, ui_->chk_StickyDelay}}};
    for (std::size_t at = 0; at < Option_Slot_Count; ++at) {
        const auto slot = static_cast<Option_Slot>(at);
        const Box_Controls& box = boxes_[at];
        if (box.Line || box.List->isEditable())
            connect(box.Line ? box.Line : box.List->lineEdit(), &QLineEdit::textChanged, this,
                    [this, slot](const QString& text) { Changed(slot, text); });
        if (box.List)
            connect(box.List, &QComboBox::textActivated, this,
                    [this, slot](const QString& text) { Changed(slot, text); });
        box.Widget()->installEventFilter(this);
        connect(box.Sticky, &QAbstractButton::clicked, this,
                [this, slot](bool ticked) { guard_.Call([&] { program_.Option_Files.At(slot).Sticky = ticked; }); });
    }
    Find_By_Any_Part(*ui_->cmbo_Language);
    proposals_ = ui_->cmbo_Language->completer()->popup();
    proposals_->installEventFilter(this); // behind the finder's own, so that it comes first
}

void Option_Editor_View::Open()
{
    const Input_Pause pause;
    Option_Editor& editor = program_.Option_Files;
    Activate_Option_Editor(program_);
    ensurePolished();
    if (editor.Box.HasBox) {
        kept_ = {editor.Box.Left, editor.Box.Top, editor.Box.Width, editor.Box.Height, editor.Box.MM == 2 ? 2 : 0};
    } else {
        kept_ = {};
        place_.Propose_Size({1000, 680});
        Place_Form(Placement::Centred, kept_, program_.Form.Shown_Place());
    }
    place_.Open();
    ui_->lvw_Files->scrollToTop();
}

void Option_Editor_View::Leave()
{
    Finish_Cell();
    if (!May_Leave_Marks(program_))
        return;
    Close_Option_Editor(program_, Viewer_Box(kept_));
    done(0);
}

void Option_Editor_View::Refresh()
{
    Finish_Cell();
    const Input_Pause pause;
    lbl_PickFile_Click(program_);
}

void Option_Editor_View::Apply()
{
    Finish_Cell();
    const Input_Pause pause;
    btn_Apply_Click(program_);
    Render_List();
    if (const std::vector<int>& selected = program_.Option_Files.Selection; !selected.empty())
        ui_->lvw_Files->scrollTo(files_.index(files_.Row_Of(selected.front()), 0));
}

std::vector<int> Option_Editor_View::Selected_Rows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : ui_->lvw_Files->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(files_.Number_Of(row));
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void Option_Editor_View::Selection_Changed()
{
    if (!filling_)
        guard_.Call([this] { lvw_Files_Selection_Change(program_, Selected_Rows()); });
}

void Option_Editor_View::Changed(Option_Slot slot, const QString& text)
{
    if (!filling_)
        guard_.Call([&] { Option_Box_Change(program_.Option_Files, slot, text); });
}

/// Enter, the keypad's separator and Select go on to the next box.
static bool Goes_On(const QKeyEvent& event)
{
    const int key = event.key();
    const bool separator = key == Qt::Key_Comma && event.modifiers().testFlag(Qt::KeypadModifier);
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select || separator;
}

bool Option_Editor_View::Key_Between_Boxes(Option_Slot slot, const QKeyEvent& event)
{
    if (!Goes_On(event))
        return false;
    guard_.Call([&] {
        if (const QString next = Next_Box(slot); !next.isEmpty())
            program_.Option_Files.Focus = next;
    });
    return true;
}

/// The list drops down, and the arrow keys go on, at the line that stands in the box.
void Option_Editor_View::Begin_At_Text(QComboBox& list)
{
    const QScopedValueRollback filling(filling_, true);
    const QString text = list.currentText();
    const int line = text.isEmpty() ? -1 : list.findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (list.isEditable() && line != list.currentIndex() && (line >= 0 || text.isEmpty()))
        list.setCurrentIndex(line);
}

/// What drops a list down, or goes from line to line without it.
static bool Opens_Or_Moves(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::Wheel;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp ||
           key == Qt::Key_F4;
}

bool Option_Editor_View::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->lvw_Files->viewport() && event->type() == QEvent::Resize)
        Share_Width();
    if (watched == ui_->txt_Filter && event->type() == QEvent::KeyPress)
        return Key_In_Filter(*static_cast<QKeyEvent*>(event));
    // A language that is marked in the proposals stands in the box already: the same key goes on. While they are in
    // view they keep it from the box that its focus has gone, so that its caret would blink on.
    if (watched == proposals_ && event->type() == QEvent::KeyPress && Goes_On(*static_cast<QKeyEvent*>(event))) {
        proposals_->hide();
        return Key_Between_Boxes(Language_Slot, *static_cast<QKeyEvent*>(event));
    }
    for (std::size_t at = 0; at < Option_Slot_Count; ++at) {
        if (watched != boxes_[at].Widget())
            continue;
        const auto slot = static_cast<Option_Slot>(at);
        if (boxes_[at].List && Opens_Or_Moves(*event))
            Begin_At_Text(*boxes_[at].List);
        if (event->type() == QEvent::KeyPress)
            return Key_Between_Boxes(slot, *static_cast<QKeyEvent*>(event));
        // A wheel that only passes by must not choose what is then written to files.
        if (event->type() == QEvent::Wheel && !boxes_[at].Widget()->hasFocus()) {
            event->ignore();
            return true;
        }
        if (event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            // A list that drops down, or another program's window, takes the focus for a while only.
            if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && isVisible())
                guard_.Call([&] { Option_Box_Leave(program_.Option_Files, slot); });
        }
    }
    return Program_Dialog::eventFilter(watched, event);
}

/// Enter pushes the button that has the focus.
void Option_Editor_View::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        Program_Dialog::keyPressEvent(event);
}

// ---- What is seen

void Option_Editor_View::Set_Looks()
{
    ui_->lbl_PickFile->setIcon(Picture(u"refresh"_s, palette()));
    files_.Set_Looks(palette());
    Fade_Placeholder(*ui_->txt_Filter);
    Tint(*ui_->lbl_Marks, Mark_Colour(palette()));
}

void Option_Editor_View::changeEvent(QEvent* event)
{
    Program_Dialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        Set_Looks();
        if (isVisible())
            Render();
    }
}

void Option_Editor_View::Render_List()
{
    const QScopedValueRollback filling(filling_, true);
    const Option_Editor& editor = program_.Option_Files;
    QTableView& table = *ui_->lvw_Files;
    // A reset forgets the current cell.
    const QModelIndex current = table.currentIndex();
    const int number = current.isValid() ? files_.Number_Of(current.row()) : -1;
    files_.Render();
    if (current.isValid() && !table.currentIndex().isValid() && files_.Row_Of(number) >= 0)
        table.selectionModel()->setCurrentIndex(files_.index(files_.Row_Of(number), current.column()),
                                                QItemSelectionModel::NoUpdate);
    if (Selected_Rows() != editor.Selection)
        Restore_Selection();
}

void Option_Editor_View::Restore_Selection()
{
    std::vector<int> rows;
    for (const int number : program_.Option_Files.Selection)
        if (const int row = files_.Row_Of(number); row >= 0)
            rows.push_back(row);
    std::ranges::sort(rows);
    QItemSelection selection;
    for (const int row : rows) {
        const QModelIndex index = files_.index(row, 0);
        // Rows side by side make one range: thousands of ranges would be slow to compare and to draw.
        if (!selection.isEmpty() && selection.last().bottom() + 1 == index.row())
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        else
            selection.append(QItemSelectionRange(index));
    }
    ui_->lvw_Files->selectionModel()->select(selection,
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// A grey box is grey, and says in slanted letters why it is empty.
void Option_Editor_View::Render_Box(Option_Slot slot)
{
    const Option_Editor& editor = program_.Option_Files;
    const Option_Box& record = editor.Boxes[slot];
    const Box_Controls& box = boxes_[slot];
    const QString note = record.Set ? QString() : Grey_Box_Note(editor);
    QLineEdit* line = box.Line ? box.Line : box.List->lineEdit();
    if (line) {
        if (line->text() != record.Text)
            line->setText(record.Text);
        line->setPlaceholderText(note);
    } else {
        box.List->setPlaceholderText(note.isEmpty() ? u" "_s : note);
        const int index = record.Set ? std::max(box.List->findText(record.Text, Qt::MatchFixedString), 0) : -1;
        if (box.List->currentIndex() != index)
            box.List->setCurrentIndex(index);
    }
    QWidget& widget = *box.Widget();
    QFont font = this->font();
    font.setPointSize(editor.Font_Size);
    font.setItalic(!record.Set);
    if (widget.font() != font)
        widget.setFont(font);
    QPalette colours; // says nothing: the form's own
    if (!record.Set) {
        colours = palette();
        const QColor grey = Grey_Box_Colour(colours);
        colours.setColor(QPalette::Base, grey);
        colours.setColor(QPalette::Button, grey);
        colours.setColor(QPalette::PlaceholderText, colours.color(QPalette::Text));
    }
    if (widget.property("grey") != QVariant(!record.Set) || !record.Set) {
        widget.setProperty("grey", !record.Set);
        widget.setPalette(colours);
    }
    if (box.Sticky->isChecked() != record.Sticky)
        box.Sticky->setChecked(record.Sticky);
}

void Option_Editor_View::Render_Text_Size()
{
    const Option_Editor& editor = program_.Option_Files;
    QFont font = ui_->lvw_Files->font();
    if (font.pointSize() != editor.Font_Size) {
        font.setPointSize(editor.Font_Size);
        ui_->lvw_Files->setFont(font);
        Share_Width();
    }
    ui_->lvw_Files->verticalHeader()->setDefaultSectionSize(ui_->lvw_Files->fontMetrics().height() + 6);
    Show_Label(*ui_->lbl_FontSize, editor.lbl_FontSize);
}

static void Show_Lines(QComboBox& list, const QStringList& lines)
{
    if (list.count() != lines.size()) {
        list.clear();
        list.addItems(lines);
    }
}

void Option_Editor_View::Render()
{
    const QScopedValueRollback filling(filling_, true);
    Option_Editor& editor = program_.Option_Files;
    setWindowTitle(editor.Kind.Form_Caption);
    ui_->lbl_PickFile->setText(editor.Kind.Pick_File_Caption);
    Show_Lines(*ui_->cmbo_Language, editor.cmbo_Language);
    Show_Lines(*ui_->cmbo_Default, QStringList{QString()} + editor.cmbo_Default);
    Show_Lines(*ui_->cmbo_Forced, QStringList{QString()} + editor.cmbo_Forced);
    Render_List();
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot)
        Render_Box(static_cast<Option_Slot>(slot));
    Render_Text_Size();
    Render_Commands();
    Give_Focus(*this, editor.Focus);
}
