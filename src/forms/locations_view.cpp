#include "forms/locations_view.h"

#include "forms/bindings.h"
#include "forms/input_pause.h"
#include "forms/looks.h"
#include "forms/screen_place.h"
#include "forms/viewer_keys.h"
#include "state/program.h"
#include "support/form_placement.h"
#include "ui_locations_view.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

using namespace Qt::StringLiterals;

Locations_View::Locations_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_Locations>())
{
    ui_->setupUi(this);
    On_Click(ui_->btn_Clear, [this] { Locations_btn_Clear(program_, form_); });
    connect(ui_->btn_PathFromRegistry, &QAbstractButton::clicked, this,
            [this] { Try([this] { Locations_btn_PathFromRegistry(program_, form_); }); });
    On_Click(ui_->btn_BrowseMKVMerge, [this] { Locations_mnu_PopupMKVMergeBrowse1(program_, form_); });
    On_Click(ui_->cmd_Done, [this] { Locations_cmd_Done(program_, form_); });
    connect(ui_->pic_MKVMerge_Path, &Drop_Panel::Dropped, this,
            [this](const Drop_Data& dropped) { Try([&] { Locations_Drop(program_, form_, dropped); }); });

    auto* menu = new QMenu(this);
    menu->setObjectName(u"mnu_PopupMKVMergeBrowse"_s);
    QAction* browse = menu->addAction(u"Browse for mkvmerge.exe"_s);
    browse->setObjectName(u"mnu_PopupMKVMergeBrowse1"_s);
    // Queued: the menu has closed before the file dialog opens.
    connect(
        browse, &QAction::triggered, this,
        [this] { guard_.Call([this] { Locations_mnu_PopupMKVMergeBrowse1(program_, form_); }); }, Qt::QueuedConnection);
    ui_->pic_MKVMerge_Path->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui_->pic_MKVMerge_Path, &QWidget::customContextMenuRequested, menu,
            [this, menu](const QPoint& at) { menu->popup(ui_->pic_MKVMerge_Path->mapToGlobal(at)); });
    Set_Looks();
}

Locations_View::~Locations_View() = default;

void Locations_View::Set_Looks()
{
    ui_->box_MKVMerge_Path->setBackgroundRole(QPalette::Base);
    ui_->btn_BrowseMKVMerge->setIcon(Picture(u"folder"_s, palette()));
    ui_->btn_BrowseMKVMerge->setMinimumHeight(fontMetrics().height() + 10);
    ui_->box_MKVMerge_Path->setMinimumHeight(fontMetrics().height() + 10);
    for (QLabel* fault : {ui_->lbl_ffprobe_PathFault, ui_->lbl_MKVMerge_PathFault})
        Tint(*fault, Fault_Colour(palette()));
}

void Locations_View::changeEvent(QEvent* event)
{
    Program_Dialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        Set_Looks();
}

void Locations_View::Open()
{
    Locations_Activate(program_, form_);
    Render();
    Centre_On_Owner();
    form_.Place = {geometry().left(), geometry().top(), width(), height(), 0};
}

/// The form is seen, and in front of the main form, before the tools are tried: that may take long, and no run may
/// begin meanwhile.
void Locations_View::showEvent(QShowEvent* event)
{
    Program_Dialog::showEvent(event);
    if (!event->spontaneous())
        QTimer::singleShot(0, this, [this] { Try([this] { Locations_Try_Tools(program_, form_); }); });
}

void Locations_View::Try(const std::function<void()>& rule)
{
    const Input_Pause pause;
    guard_.Call(rule);
}

void Locations_View::Leave()
{
    Locations_cmd_Done(program_, form_);
    done(0);
}

void Locations_View::keyPressEvent(QKeyEvent* event)
{
    const int key = Viewer_Key(*event);
    if (key == 0 || key == Key_Escape) {
        Program_Dialog::keyPressEvent(event);
        return;
    }
    guard_.Call([&] { Locations_KeyDown(program_, form_, key); });
}

/// A version text without the line end that it came with.
static Label Trimmed(Label label)
{
    label.Caption = label.Caption.trimmed();
    return label;
}

void Locations_View::Render()
{
    setWindowTitle(form_.Caption);
    Show_Label(*ui_->lbl_ffprobe_Loc, form_.lbl_ffprobe_Loc);
    Show_Label(*ui_->lbl_ffprobe_Path, form_.lbl_ffprobe_Path);
    Show_Label(*ui_->lbl_ffprobe_PathFault, Trimmed(form_.lbl_ffprobe_PathFault));
    Show_Label(*ui_->lbl_ffprobe_Version, Trimmed(form_.lbl_ffprobe_Version));
    Show_Label(*ui_->lbl_MKVMerge_Loc, Trimmed(form_.lbl_MKVMerge_Loc));
    Show_Label(*ui_->lbl_MKVMerge_Path, form_.lbl_MKVMerge_Path);
    Show_Label(*ui_->lbl_MKVMerge_PathFault, form_.lbl_MKVMerge_PathFault);
    Show_Label(*ui_->lbl_MKVMerge_Version, Trimmed(form_.lbl_MKVMerge_Version));
    ui_->lbl_MKVMerge_Path->setVisible(!form_.lbl_MKVMerge_Path.Caption.isEmpty());
    ui_->lbl_MKVMerge_Choose->setText(program_.Settings.lbl_MKVMerge_Choose);
    Show_Button(*ui_->btn_PathFromRegistry, form_.btn_PathFromRegistry);
    Show_Button(*ui_->btn_Clear, form_.btn_Clear);
    ui_->btn_PathFromRegistry->setText(With_Letter(form_.btn_PathFromRegistry.Caption, u'R'));
    ui_->btn_Clear->setText(With_Letter(form_.btn_Clear.Caption, u'l'));
    ui_->cmd_Done->setText(With_Letter(form_.cmd_Done.Caption, u'D'));
    if (isVisible() && (form_.Place.Left != geometry().left() || form_.Place.Top != geometry().top()))
        setGeometry(
            Onto_Screen(QRect(QPoint(form_.Place.Left, form_.Place.Top), size()), Frame_Around(parentWidget())));
    Give_Focus(*this, form_.Focus);
    Hide_Unless(form_.Visible);
}
