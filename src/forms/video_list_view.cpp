#include "forms/video_list_view.h"

#include "forms/elided_label.h"
#include "forms/looks.h"
#include "forms/run_queue_view.h"
#include "forms/slot_guard.h"
#include "life/video_commands.h"
#include "rules/video_list.h"
#include "rules/video_order.h"
#include "rules/video_texts.h"
#include "run/list_runs.h"
#include "state/program.h"
#include "ui_video_list_view.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QShortcut>
#include <QTableView>
#include <QToolButton>
#include <numeric>

using namespace Qt::StringLiterals;

/// The folder is counted anew at most so often.
static constexpr int Recount_Ms = 1000;
/// A click on an option is followed by others.
static constexpr int Look_Ms = 500;

Video_List_View::Video_List_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : QWidget(owner), program_(program), guard_(guard), ui_(std::make_unique<Ui::Video_List>()), model_(program.Videos)
{
    ui_->setupUi(this);
    chips_ = {ui_->chip_All,      ui_->chip_Waiting,  ui_->chip_Done,    ui_->chip_Warnings, ui_->chip_Failed,
              ui_->chip_Problems, ui_->chip_Left_Out, ui_->chip_Skipped, ui_->chip_Not_Run};
    QTableView& table = *ui_->tbl_Videos;
    table.setModel(&model_);
    table.setIconSize(QSize(16, 16));
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setSectionsClickable(true);
    table.horizontalHeader()->setSortIndicatorShown(true);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    if (auto* corner = table.findChild<QAbstractButton*>()) {
        corner->setToolTip(u"Marks all videos"_s);
        corner->setAccessibleName(corner->toolTip());
    }
    table.installEventFilter(this);
    ui_->txt_VideoFilter->installEventFilter(this);
    queue_ = new Run_Queue_View(program, guard, this);
    ui_->lay_Videos->addWidget(queue_);
    recount_.setSingleShot(true);
    recount_.setInterval(Recount_Ms);
    look_.setSingleShot(true);
    look_.setInterval(Look_Ms);
    Connect();
    Add_Commands();
}

Video_List_View::~Video_List_View() = default;

void Video_List_View::Connect()
{
    Video_List& list = program_.Videos;
    for (std::size_t chip = 0; chip < chips_.size(); ++chip)
        connect(chips_[chip], &QToolButton::clicked, this, [this, &list, chip] {
            guard_.Call([&list, chip] { Choose_Chip(list, static_cast<Video_Chip>(chip)); });
        });
    connect(ui_->txt_VideoFilter, &QLineEdit::textEdited, this,
            [this, &list](const QString& text) { guard_.Call([&] { Set_Filter(list, text); }); });
    connect(ui_->tbl_Videos->horizontalHeader(), &QHeaderView::sectionClicked, this, [this, &list](int section) {
        guard_.Call([&list, section] { Sort_Videos(list, static_cast<Video_Column>(section)); });
    });
    connect(ui_->tbl_Videos->horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section) {
        own_widths_ = own_widths_ || (!sharing_ && section + 1 < model_.columnCount()); // the last one takes the rest
    });
    connect(&model_, &Video_List_Model::Tick_Clicked, this,
            [this](int number) { guard_.Call([this, number] { Tick_Video(program_, number); }); });
    connect(ui_->tbl_Videos->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Video_List_View::Note_Selection);
    connect(ui_->tbl_Videos, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!Is_On_Box(index)) // two clicks there are two ticks
            guard_.Call([this] { Show_Video_Info(program_); });
    });
    connect(ui_->tbl_Videos->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        // Where nothing is in work there is nothing to turn away from.
        if (!scrolling_ && program_.Videos.In_Work >= 0)
            follows_ = Is_In_View(model_.Row_Of(program_.Videos.In_Work));
    });
    connect(ui_->btn_Videos, &QToolButton::clicked, this, [this](bool open) {
        Set_Open(open);
        emit Opened(open);
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        if (!Is_Open())
            ui_->btn_Videos->click();
        ui_->txt_VideoFilter->setFocus(Qt::ShortcutFocusReason);
        ui_->txt_VideoFilter->selectAll();
    });
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
        // What a run moves there itself is no news.
        if (!program_.Run.Press_In_Work && !recount_.isActive())
            recount_.start();
    });
    connect(&recount_, &QTimer::timeout, this, [this] { guard_.Call([this] { Recount_Videos_Folder(program_); }); });
    connect(&look_, &QTimer::timeout, this, [this] { guard_.Call([this] { Look_Again(program_); }); });
}

void Video_List_View::Add_Commands()
{
    for (const Video_Command& command : Video_Commands()) {
        auto* action = new QAction(command.Caption, this);
        action->setObjectName(command.Name);
        action->setShortcut(QKeySequence(command.Keys));
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
        ui_->tbl_Videos->addAction(action);
        // Queued: the menu has closed before a form opens.
        connect(
            action, &QAction::triggered, this, [this, &command] { guard_.Call([&] { command.Rule(program_); }); },
            Qt::QueuedConnection);
    }
    ui_->tbl_Videos->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void Video_List_View::Set_Looks()
{
    model_.Set_Looks(palette());
    QTableView& table = *ui_->tbl_Videos;
    const QFontMetrics metrics = fontMetrics();
    table.verticalHeader()->setDefaultSectionSize(metrics.height() + 6);
    table.setMinimumHeight(metrics.height() * 5);
    Fade_Placeholder(*ui_->txt_VideoFilter);
    Share_Width();
}

/// What the window has more or less than the columns need goes to or is taken from those with words, until the person
/// has set one: the result, the last of them, is to be seen without scrolling.
void Video_List_View::Share_Width()
{
    if (own_widths_)
        return;
    const QScopedValueRollback sharing(sharing_, true);
    constexpr int usual[] = {12, 38, 9, 10, 20, 22};
    constexpr int result = 40;
    constexpr double share[] = {0, 0.3, 0, 0, 0.2, 0.2}; // the rest is the result's
    constexpr int least[] = {12, 31, 9, 10, 11, 13};
    const int em = fontMetrics().horizontalAdvance(u'0');
    const int needed = std::accumulate(std::begin(usual), std::end(usual), result) * em;
    const int more = ui_->tbl_Videos->viewport()->width() - needed;
    for (int column = 0; column < 6; ++column)
        ui_->tbl_Videos->setColumnWidth(
            column, std::max(least[column] * em, usual[column] * em + static_cast<int>(more * share[column])));
}

bool Video_List_View::Is_Open() const
{
    return ui_->btn_Videos->isChecked();
}

void Video_List_View::Set_Open(bool open)
{
    ui_->btn_Videos->setChecked(open);
    ui_->btn_Videos->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    ui_->tbl_Videos->setVisible(open);
    ui_->txt_VideoFilter->setVisible(open);
    setMaximumHeight(open ? QWIDGETSIZE_MAX : sizeHint().height());
    counted_ = 0; // the chips come and go with it
    Render_Head();
}

int Video_List_View::Usual_Height() const
{
    constexpr int rows = 8;
    return ui_->btn_Videos->sizeHint().height() + ui_->tbl_Videos->verticalHeader()->defaultSectionSize() * rows +
           ui_->tbl_Videos->horizontalHeader()->sizeHint().height() + 8;
}

QSize Video_List_View::sizeHint() const
{
    return {QWidget::sizeHint().width(), Is_Open() ? Usual_Height() : ui_->btn_Videos->sizeHint().height()};
}

QList<QWidget*> Video_List_View::In_Tab_Order() const
{
    QList<QWidget*> order{ui_->btn_Videos};
    for (QToolButton* chip : chips_)
        order += chip;
    return order + QList<QWidget*>{ui_->txt_VideoFilter, ui_->tbl_Videos} + queue_->In_Tab_Order();
}

/// The pointer is on the tick box of a cell.
bool Video_List_View::Is_On_Box(const QModelIndex& index) const
{
    if (static_cast<Video_Column>(index.column()) != Video_Column::Video || !program_.Videos.Takes_Ticks)
        return false;
    const QTableView& table = *ui_->tbl_Videos;
    constexpr int around = 8;
    const int at = table.viewport()->mapFromGlobal(QCursor::pos()).x() - table.visualRect(index).left();
    return at < table.style()->pixelMetric(QStyle::PM_IndicatorWidth) + around;
}

bool Video_List_View::Is_In_View(int row) const
{
    const QTableView& table = *ui_->tbl_Videos;
    return row >= table.rowAt(0) && row >= 0 && table.rowViewportPosition(row) < table.viewport()->height();
}

void Video_List_View::Note_Selection()
{
    if (selecting_)
        return;
    std::vector<int>& selected = program_.Videos.Selected;
    selected.clear();
    for (const QModelIndex& index : ui_->tbl_Videos->selectionModel()->selectedRows())
        selected.push_back(model_.Number_Of(index.row()));
    std::sort(selected.begin(), selected.end());
    Enable_Commands();
}

void Video_List_View::Enable_Commands()
{
    for (QAction* action : ui_->tbl_Videos->actions())
        action->setEnabled(Is_Possible(program_, action->objectName()));
}

/// Who comes by the keyboard finds a row marked, for the commands, and in sight. A click marks its own.
void Video_List_View::Mark_A_Row(Qt::FocusReason reason)
{
    const bool by_key = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (!by_key || model_.rowCount() == 0)
        return;
    const int current = std::max(0, ui_->tbl_Videos->currentIndex().row());
    if (program_.Videos.Selected.empty())
        ui_->tbl_Videos->selectRow(current);
    ui_->tbl_Videos->scrollTo(model_.index(current, 0));
}

/// Rows came or went: what is marked stays marked, as far as it is shown. No command reaches what isn't seen.
void Video_List_View::Restore_Selection()
{
    const QScopedValueRollback selecting(selecting_, true);
    std::erase_if(program_.Videos.Selected, [this](int number) { return model_.Row_Of(number) < 0; });
    QItemSelection selection;
    for (const int number : program_.Videos.Selected)
        selection.select(model_.index(model_.Row_Of(number), 0),
                         model_.index(model_.Row_Of(number), model_.columnCount() - 1));
    QItemSelectionModel& model = *ui_->tbl_Videos->selectionModel();
    model.select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty())
        model.setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
}

/// The row in work stays in sight, unless the person looks elsewhere.
void Video_List_View::Follow_Work()
{
    const int number = program_.Videos.In_Work;
    if (number < 0) {
        followed_ = -1;
        follows_ = follows_ || !program_.Run.Press_In_Work;
        return;
    }
    if (!follows_ || number == followed_)
        return;
    followed_ = number;
    const QScopedValueRollback scrolling(scrolling_, true);
    if (const int row = model_.Row_Of(number); row >= 0)
        ui_->tbl_Videos->scrollTo(model_.index(row, 0));
}

void Video_List_View::Render_Head()
{
    const Video_List& list = program_.Videos;
    if (counted_ == list.Turned + list.Filled + 1)
        return;
    counted_ = list.Turned + list.Filled + 1;
    Enable_Commands();
    ui_->btn_Videos->setText(List_Caption(list));
    const auto counts = Count_Chips(list);
    for (std::size_t i = 0; i < chips_.size(); ++i) {
        const auto chip = static_cast<Video_Chip>(i);
        chips_[i]->setText(Chip_Caption(chip, counts[i]));
        chips_[i]->setChecked(list.Chip == chip);
        chips_[i]->setVisible(Is_Open() && (Is_Always_Shown(chip) || counts[i] > 0 || list.Chip == chip));
    }
    QHeaderView& head = *ui_->tbl_Videos->horizontalHeader();
    head.setSortIndicator(list.Sorted_By ? static_cast<int>(*list.Sorted_By) : -1,
                          list.Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void Video_List_View::Watch_Folder()
{
    const Video_List& list = program_.Videos;
    if (watched_ == list.Filled)
        return;
    watched_ = list.Filled;
    QSet<QString> folders;
    if (!list.Folder.isEmpty())
        folders += list.Folder;
    for (const Video_Row& row : list.Rows)
        if (!row.Sub_Path.isEmpty())
            folders += list.Folder + row.Sub_Path;
    const QStringList directories = watcher_.directories();
    const QSet<QString> known(directories.cbegin(), directories.cend());
    if (const QSet<QString> gone = known - folders; !gone.isEmpty())
        watcher_.removePaths(gone.values());
    if (const QSet<QString> fresh = folders - known; !fresh.isEmpty())
        watcher_.addPaths(fresh.values());
}

void Video_List_View::Render()
{
    const Video_List& list = program_.Videos;
    Watch_Folder();
    if (model_.Render())
        Restore_Selection();
    Render_Head();
    if (busy_ != program_.Run.Press_In_Work) {
        busy_ = program_.Run.Press_In_Work;
        Enable_Commands();
    }
    Follow_Work();
    queue_->Render(Is_Open());
    ui_->lbl_ListNote->Set_Text(list.Notes.join(u' '));
    if (list.Recount_Journal && !look_.isActive())
        look_.start();
}

bool Video_List_View::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == ui_->tbl_Videos)
        Share_Width();
    if (event->type() == QEvent::FocusIn && watched == ui_->tbl_Videos)
        Mark_A_Row(static_cast<const QFocusEvent*>(event)->reason());
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (watched == ui_->txt_VideoFilter && key.key() == Qt::Key_Escape && !ui_->txt_VideoFilter->text().isEmpty()) {
        ui_->txt_VideoFilter->clear();
        guard_.Call([this] { Set_Filter(program_.Videos, {}); });
        return true;
    }
    if (watched == ui_->txt_VideoFilter && key.key() == Qt::Key_Down) {
        ui_->tbl_Videos->setFocus(Qt::TabFocusReason);
        return true;
    }
    // Left alone they go to the ends of the row, which is marked as a whole.
    const bool end = key.key() == Qt::Key_End;
    if (watched == ui_->tbl_Videos && (end || key.key() == Qt::Key_Home) && key.modifiers() == Qt::NoModifier) {
        ui_->tbl_Videos->setCurrentIndex(model_.index(end ? model_.rowCount() - 1 : 0, 0));
        return true;
    }
    return false;
}
