#include "forms/video_info_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/looks.h"
#include "forms/viewer_keys.h"
#include "state/program.h"
#include "support/form_placement.h"
#include "support/shown_text.h"
#include "ui_video_info_view.h"
#include "workbenches/video_tracks.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <algorithm>

Video_Info_View::Video_Info_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_ViewVFI>()), place_(*this, form_.Place),
      tracks_(form_.Tracks.Table, this)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    ui_->spl_Video->setStretchFactor(1, 1);
    ui_->spl_Video->setSizes({250, 620}); // names are shorter than what is said about them
    ViewVFI_Load(program_, form_);
    Connect_List();
    Connect_Table();
    connect(ui_->btn_ShowCodecData, &QAbstractButton::clicked, this,
            [this] { Identify([this] { ViewVFI_btn_ShowCodecData(program_, form_); }); });
    On_Click(ui_->btn_SaveToFile, [this] { ViewVFI_btn_SaveToFile(program_, form_); });
    connect(ui_->btn_Done, &QAbstractButton::clicked, this, &Video_Info_View::reject);
    On_Click(ui_->img_FontInc, [this] { ViewVFI_img_FontInc(program_, form_); });
    On_Click(ui_->img_FontDec, [this] { ViewVFI_img_FontDec(program_, form_); });
    On_Click(ui_->img_FontReset, [this] { ViewVFI_img_FontReset(program_, form_); });
}

Video_Info_View::~Video_Info_View() = default;

void Video_Info_View::Connect_List()
{
    ui_->lst_VideoFiles->setModel(&files_);
    ui_->lst_VideoFiles->installEventFilter(this);
    ui_->lst_VideoFiles->viewport()->installEventFilter(this);
    // Keys move the row; the mouse picks when its button goes up, also on the row that is picked already.
    connect(ui_->lst_VideoFiles->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            Pick();
    });
    connect(ui_->txt_VideoInfo, &Drop_Text::Dropped, this, [this](const Drop_Data& dropped) {
        Identify([this, dropped] { ViewVFI_txt_VideoInfo_Drop(program_, form_, dropped); });
        raise();
        activateWindow();
    });
}

void Video_Info_View::Connect_Table()
{
    QTableView& table = *ui_->tbl_Tracks;
    table.setModel(&tracks_);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.setCornerButtonEnabled(false);
    connect(ui_->tab_Views, &QTabWidget::currentChanged, this, [this](int tab) {
        guard_.Call([&] { ViewVFI_Show_Table(program_, form_, ui_->tab_Views->widget(tab) == ui_->pag_Tracks); });
    });
    connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, [this] { Show_Next_Difference(false); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F8, this), &QShortcut::activated, this,
            [this] { Show_Next_Difference(true); });
    ask_.setSingleShot(true);
    connect(&ask_, &QTimer::timeout, this, &Video_Info_View::Ask_Next);
}

void Video_Info_View::Open()
{
    const Input_Pause pause;
    const QScopedValueRollback busy(busy_, true);
    place_.Propose_Size({900, 560});
    ViewVFI_Activate(program_, form_);
    place_.Open();
}

void Video_Info_View::Identify(const std::function<void()>& rule)
{
    if (busy_)
        return;
    if (asking_) {
        later_ = [this, rule] { Identify(rule); };
        return ViewVFI_Stop_Asking(program_, form_);
    }
    const QScopedValueRollback busy(busy_, true);
    guard_.Call(rule);
}

void Video_Info_View::Ask_Next()
{
    if (busy_ || asking_)
        return;
    {
        const QScopedValueRollback asking(asking_, true);
        guard_.Call([this] { ViewVFI_Ask_Next(program_, form_); });
    }
    if (const std::function<void()> later = std::exchange(later_, {}))
        later();
}

std::vector<int> Video_Info_View::Selected_Rows() const
{
    std::vector<int> rows;
    for (const QModelIndex& row : ui_->lst_VideoFiles->selectionModel()->selectedRows())
        rows.push_back(row.row());
    std::ranges::sort(rows);
    return rows;
}

void Video_Info_View::Pick()
{
    const std::vector<int> rows = Selected_Rows();
    if (filling_ || rows.empty())
        return;
    const int current = ui_->lst_VideoFiles->currentIndex().row();
    const bool is_picked = std::ranges::binary_search(rows, current);
    Identify([this, rows, row = is_picked ? current : rows.front()] { ViewVFI_Pick(program_, form_, rows, row); });
}

void Video_Info_View::Show_Next_Difference(bool back)
{
    ui_->tab_Views->setCurrentWidget(ui_->pag_Tracks);
    const int row = tracks_.Next_Difference(ui_->tbl_Tracks->currentIndex().row(), back);
    if (row >= 0)
        ui_->tbl_Tracks->setCurrentIndex(tracks_.index(row, 0));
}

/// The list itself knows no row to begin with after a drop, or begins with one that it doesn't pick.
bool Video_Info_View::Pick_By_Key(const QKeyEvent& event)
{
    const int key = event.key();
    const bool picks = key == Qt::Key_Space || key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
    if ((!picks && key != Qt::Key_End) || !Selected_Rows().empty() || files_.rowCount() == 0)
        return false;
    const QModelIndex row = files_.index(key == Qt::Key_End ? files_.rowCount() - 1 : 0);
    ui_->lst_VideoFiles->selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
    return true;
}

bool Video_Info_View::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->lst_VideoFiles && event->type() == QEvent::KeyPress)
        return Pick_By_Key(*static_cast<QKeyEvent*>(event));
    if (watched == ui_->lst_VideoFiles->viewport() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        Pick();
    return Program_Dialog::eventFilter(watched, event);
}

void Video_Info_View::Leave()
{
    if (busy_)
        return;
    if (asking_) {
        later_ = [this] { reject(); };
        return ViewVFI_Stop_Asking(program_, form_);
    }
    ViewVFI_btn_Done(program_, form_);
    done(0);
}

void Video_Info_View::keyPressEvent(QKeyEvent* event)
{
    if (busy_)
        return;
    const int key = Viewer_Key(*event);
    if (asking_ && key != 0 && key != Key_F12)
        reject();
    else if (key != 0)
        guard_.Call([&] { ViewVFI_KeyDown(program_, form_, key, event->modifiers() & Qt::ShiftModifier); });
    else
        Program_Dialog::keyPressEvent(event);
}

void Video_Info_View::Render_List()
{
    if (listed_ != form_.lst_VideoFiles) {
        listed_ = form_.lst_VideoFiles;
        // Two names that differ only in bytes that are no UTF-8 stay two.
        QStringList shown = listed_;
        for (QString& name : shown)
            name = Bytes_Shown(name);
        files_.setStringList(shown);
    }
    if (later_ || Selected_Rows() == form_.Picked)
        return;
    QItemSelection selection;
    for (const int row : form_.Picked)
        selection.select(files_.index(row), files_.index(row));
    QItemSelectionModel& model = *ui_->lst_VideoFiles->selectionModel();
    model.setCurrentIndex(files_.index(form_.List_Index), QItemSelectionModel::NoUpdate);
    model.select(selection, QItemSelectionModel::ClearAndSelect);
}

void Video_Info_View::Render_Table()
{
    QTableView& table = *ui_->tbl_Tracks;
    const int row_before = table.currentIndex().row();
    if (tracks_.Render(palette())) {
        table.clearSpans();
        table.setColumnHidden(static_cast<int>(Track_Column::Video_Name), form_.Tracks.Wanted.size() < 2);
        const int words = static_cast<int>(Track_Column::Type);
        for (int row = 0; row < tracks_.rowCount(); ++row)
            if (tracks_.Is_Words(row))
                table.setSpan(row, words, 1, tracks_.columnCount() - words);
        table.resizeColumnsToContents();
        if (row_before >= 0)
            table.setCurrentIndex(tracks_.index(std::min(row_before, tracks_.rowCount() - 1), 0));
    }
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
    if (Is_To_Ask(form_))
        ask_.start(0);
}

void Video_Info_View::Render()
{
    const QScopedValueRollback filling(filling_, true);
    setWindowTitle(form_.Caption);
    Render_List();
    if (shown_text_ != form_.txt_VideoInfo) {
        shown_text_ = form_.txt_VideoInfo;
        ui_->txt_VideoInfo->setPlainText(shown_text_);
    }
    const int points = program_.Settings.ViewVFI_Font_Size;
    for (QWidget* sized : std::initializer_list<QWidget*>{ui_->txt_VideoInfo, ui_->lst_VideoFiles, ui_->tbl_Tracks})
        if (QFont font = sized->font(); font.pointSize() != points) {
            font.setPointSize(points);
            sized->setFont(font);
        }
    Show_Label(*ui_->lbl_FileName, form_.lbl_FileName);
    ui_->lbl_FileName->setToolTip(Literal_Tool_Tip(form_.lbl_FileName.Caption));
    ui_->lbl_DroppedFileName->setText(form_.lbl_DroppedFileName.Caption);
    ui_->shp_VideoInfo->setVisible(form_.shp_VideoInfo.Visible);
    Show_Button(*ui_->btn_ShowCodecData, form_.btn_ShowCodecData);
    ui_->btn_ShowCodecData->setText(With_Letter(form_.btn_ShowCodecData.Caption, u'C'));
    Show_Button(*ui_->btn_SaveToFile, form_.btn_SaveToFile);
    ui_->btn_SaveToFile->setText(With_Letter(form_.btn_SaveToFile.Caption, u'S'));
    Show_Button(*ui_->btn_Done, form_.btn_Done);
    ui_->btn_Done->setText(With_Letter(form_.btn_Done.Caption, u'D'));
    Show_Label(*ui_->lbl_FontSize, form_.lbl_FontSize);
    Show_Label(*ui_->lbl_Told, form_.lbl_Told);
    ui_->lbl_Told->setVisible(!form_.lbl_Told.Caption.isEmpty());
    Render_Table();
    place_.Render();
    Give_Focus(*this, form_.Focus);
    Hide_Unless(form_.Visible);
}
