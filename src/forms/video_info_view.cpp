#include "forms/video_info_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/looks.h"
#include "forms/viewer_keys.h"
#include "state/program.h"
#include "support/shown_text.h"
#include "ui_video_info_view.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

Video_Info_View::Video_Info_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_ViewVFI>()), place_(*this, form_.Place)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    ui_->spl_Video->setStretchFactor(1, 1);
    ui_->spl_Video->setSizes({250, 620}); // names are shorter than what is said about them
    ViewVFI_Load(program_, form_);
    ui_->lst_VideoFiles->setModel(&files_);
    ui_->lst_VideoFiles->installEventFilter(this);
    ui_->lst_VideoFiles->viewport()->installEventFilter(this);
    // Keys move the row; the mouse picks when its button goes up, also on the row that is picked already.
    connect(ui_->lst_VideoFiles->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            Pick();
    });
    connect(ui_->txt_VideoInfo, &Drop_Text::Dropped, this, [this](const Drop_Data& dropped) {
        Identify([&] { ViewVFI_txt_VideoInfo_Drop(program_, form_, dropped); });
        raise();
        activateWindow();
    });
    connect(ui_->btn_ShowCodecData, &QAbstractButton::clicked, this,
            [this] { Identify([this] { ViewVFI_btn_ShowCodecData(program_, form_); }); });
    On_Click(ui_->btn_SaveToFile, [this] { ViewVFI_btn_SaveToFile(program_, form_); });
    connect(ui_->btn_Done, &QAbstractButton::clicked, this, &Video_Info_View::reject);
    On_Click(ui_->img_FontInc, [this] { ViewVFI_img_FontInc(program_, form_); });
    On_Click(ui_->img_FontDec, [this] { ViewVFI_img_FontDec(program_, form_); });
    On_Click(ui_->img_FontReset, [this] { ViewVFI_img_FontReset(program_, form_); });
}

Video_Info_View::~Video_Info_View() = default;

void Video_Info_View::Open()
{
    const Input_Pause pause;
    place_.Propose_Size({900, 560});
    ViewVFI_Activate(program_, form_);
    place_.Open();
}

void Video_Info_View::Identify(const std::function<void()>& rule)
{
    if (busy_)
        return;
    const QScopedValueRollback busy(busy_, true);
    guard_.Call(rule);
}

int Video_Info_View::Selected_Row() const
{
    const QModelIndexList rows = ui_->lst_VideoFiles->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void Video_Info_View::Pick()
{
    if (!filling_ && Selected_Row() >= 0)
        Identify([this] { ViewVFI_lst_VideoFiles_Click(program_, form_, Selected_Row()); });
}

/// The list itself knows no row to begin with after a drop, or begins with one that it doesn't pick.
bool Video_Info_View::Pick_By_Key(const QKeyEvent& event)
{
    const int key = event.key();
    const bool picks = key == Qt::Key_Space || key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
    if ((!picks && key != Qt::Key_End) || Selected_Row() >= 0 || files_.rowCount() == 0)
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
    ViewVFI_btn_Done(program_, form_);
    done(0);
}

void Video_Info_View::keyPressEvent(QKeyEvent* event)
{
    if (busy_)
        return;
    if (const int key = Viewer_Key(*event))
        guard_.Call([&] { ViewVFI_KeyDown(program_, form_, key, event->modifiers() & Qt::ShiftModifier); });
    else
        Program_Dialog::keyPressEvent(event);
}

void Video_Info_View::Render()
{
    const QScopedValueRollback filling(filling_, true);
    setWindowTitle(form_.Caption);
    if (listed_ != form_.lst_VideoFiles) {
        listed_ = form_.lst_VideoFiles;
        // Two names that differ only in bytes that are no UTF-8 stay two.
        QStringList shown = listed_;
        for (QString& name : shown)
            name = Bytes_Shown(name);
        files_.setStringList(shown);
    }
    if (Selected_Row() != form_.List_Index) {
        ui_->lst_VideoFiles->setCurrentIndex(files_.index(form_.List_Index));
        if (form_.List_Index < 0)
            ui_->lst_VideoFiles->clearSelection();
    }
    if (shown_text_ != form_.txt_VideoInfo) {
        shown_text_ = form_.txt_VideoInfo;
        ui_->txt_VideoInfo->setPlainText(shown_text_);
    }
    const int points = program_.Settings.ViewVFI_Font_Size;
    for (QWidget* sized : {static_cast<QWidget*>(ui_->txt_VideoInfo), static_cast<QWidget*>(ui_->lst_VideoFiles)})
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
    place_.Render();
    Give_Focus(*this, form_.Focus);
    Hide_Unless(form_.Visible);
}
