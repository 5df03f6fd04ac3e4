#include "forms/startform.h"

#include "forms/bindings.h"
#include "forms/close_key.h"
#include "forms/drawn_icon.h"
#include "forms/looks.h"
#include "forms/menu_bar.h"
#include "forms/number_box_view.h"
#include "forms/options_layout.h"
#include "forms/path_edit.h"
#include "forms/popup_menus.h"
#include "forms/preset_menu.h"
#include "forms/slot_guard.h"
#include "forms/status_line.h"
#include "forms/system_status.h"
#include "forms/video_list_view.h"
#include "forms/window_drop_target.h"
#include "life/hand_clicks.h"
#include "life/start_up.h"
#include "rules/click_rules.h"
#include "rules/language_filter.h"
#include "rules/option_rules.h"
#include "run/run_summary.h"
#include "state/program.h"
#include "ui_startform.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFontInfo>
#include <QStyleHints>
#include <utility>

using namespace Qt::StringLiterals;

/// Pictures in a library that is linked in whole need a word to be registered.
static void Load_Pictures()
{
    Q_INIT_RESOURCE(forms);
}

Startform::Startform(Program& program, Slot_Guard& guard)
    : program_(program), guard_(guard), ui_(std::make_unique<Ui::Startform>()),
      system_(std::make_unique<System_Status>(*this))
{
    Load_Pictures();
    ui_->setupUi(this);
    // No close button: leaving goes through the menu, the quit button or Alt+F4. Some window managers close all the
    // same; that counts as Alt+F4.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    options_ = new Options_Layout(*ui_, this);
    Connect_Options();
    Connect_Folders();
    Connect_Run();
    Connect_List();
    Connect_Popups(*this, program_, guard_);
    Connect_Menus(*this, program_, guard_);
    new Preset_Menu(*this, program_, guard_);
    // What stands beside or below them stays under the pointer while they are hidden.
    const std::initializer_list<QWidget*> come_and_go = {ui_->pic_QuitButton, ui_->pic_AudioPath, ui_->pic_SubsPath,
                                                         ui_->pic_ChaptersPath};
    for (QWidget* panel : come_and_go) {
        QSizePolicy kept = panel->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        panel->setSizePolicy(kept);
    }
    program_.Form.Double_Click_Ms = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    // For all controls that there are by now.
    status_ = new Status_Line(*this);
    new Window_Drop_Target(*this, *ui_->pic_VideosPath, program_, guard_);
    Set_Looks();
    Watch_Close_Key(*this, [this] {
        guard_.Call([this] { Form_Key_Down(program_, {.Code = Key::F4, .Modifiers = {.Alt = true}}); });
    });
    qApp->installEventFilter(this);
}

Startform::~Startform()
{
    guard_.Stop(); // a control that goes may still tell that it lost the focus
}

void Startform::Connect_Options()
{
    for (const Click_Rule& rule : Click_Rules())
        if (auto* box = findChild<QCheckBox*>(rule.Name))
            connect(box, &QCheckBox::clicked, this,
                    [this, &rule] { guard_.Call([&] { Click_By_Hand(program_, rule); }); });

    const auto connect_pair = [this](QRadioButton* first, QRadioButton* second, void (*rule)(Program&, int)) {
        connect(first, &QRadioButton::clicked, this, [=, this] { guard_.Call([&] { rule(program_, 1); }); });
        connect(second, &QRadioButton::clicked, this, [=, this] { guard_.Call([&] { rule(program_, 2); }); });
    };
    connect_pair(ui_->opt_SetFileTitle_1, ui_->opt_SetFileTitle_2, opt_SetFileTitle_Click);
    connect_pair(ui_->opt_SetVideoTitle_1, ui_->opt_SetVideoTitle_2, opt_SetVideoTitle_Click);

    connect(ui_->lbl_ChapsFormat, &QToolButton::clicked, this,
            [this] { guard_.Call([this] { lbl_ChapsFormat_Click(program_); }); });
    number_boxes_ = {
        new Number_Box_View(program_, guard_, *ui_->txt_AudioDelayValue, program_.Form.txt_AudioDelayValue,
                            {txt_AudioDelayValue_Change, txt_AudioDelayValue_Key, txt_AudioDelayValue_LostFocus}),
        new Number_Box_View(program_, guard_, *ui_->txt_SplitVideosValue, program_.Form.txt_SplitVideosValue,
                            {txt_SplitVideosValue_Change, txt_SplitVideosValue_Key, txt_SplitVideosValue_LostFocus})};
}

void Startform::Set_Looks()
{
    const QPalette& colours = palette();
    const QIcon down = Picture(u"arrow_down"_s, colours);
    for (QToolButton* arrow : {ui_->img_SourceMRU, ui_->img_TargetMRU})
        arrow->setIcon(down);
    const QIcon folder = Picture(u"folder"_s, colours);
    for (QToolButton* browse : Browse_Buttons())
        browse->setIcon(folder);
    ui_->img_ProcessFailed->setIcon(Drawn_Icon(u"failed"_s));
    for (QFrame* box : Path_Boxes())
        box->setBackgroundRole(QPalette::Base);

    for (QLabel* fault : Fault_Labels())
        Tint(*fault, Fault_Colour(colours));
    for (QLabel* mark : {ui_->lbl_AudipPathEmpty, ui_->lbl_SubsPathEmpty, ui_->lbl_ChapsPathEmpty})
        Tint(*mark, Mark_Colour(colours));
    ui_->btn_RunVantorra->Set_Colour(Under_White_Text(colours.color(QPalette::Active, QPalette::Highlight)));
    ui_->btn_Halt->Set_Colour(QColor(0xb7, 0x1c, 0x1c));
    list_->Set_Looks();
    Render_Progress();
    Measure();
}

void Startform::Measure()
{
    program_.Form.Text_Size = static_cast<std::int16_t>(QFontInfo(font()).pointSize());
    // Nested layouts remember sizes of an earlier font.
    for (QLayout* nested : findChildren<QLayout*>())
        nested->invalidate();
    options_->Measure();
    // The titles of the folders stand in one column, the boxes in the next.
    const QList<QLabel*> titles{ui_->lbl_VideosPathTitle, ui_->lbl_AudioPathTitle, ui_->lbl_SubsPathTitle,
                                ui_->lbl_ChaptersPathTitle, ui_->lbl_TargetPathTitle};
    int title_width = 0;
    for (const QLabel* title : titles)
        title_width = std::max(title_width, title->sizeHint().width());
    for (QLabel* title : titles)
        title->setMinimumWidth(title_width);
    const int row = ui_->txt_AudioDelayValue->sizeHint().height();
    for (QFrame* box : Path_Boxes())
        box->setFixedHeight(row);
    for (QToolButton* button : Browse_Buttons())
        button->setFixedSize(std::max(row + 4, button->minimumSizeHint().width()), row);

    QFont bold = font();
    bold.setBold(true);
    for (QPushButton* button : {ui_->btn_RunVantorra, ui_->btn_Halt}) {
        button->setFont(bold);
        button->setMinimumSize(fontMetrics().horizontalAdvance(u"Run Vantorra"_s) * 2, fontMetrics().height() * 5 / 2);
    }
    for (QPushButton* button :
         {ui_->img_Quit, ui_->btn_ViewVidInfo, ui_->btn_Check, ui_->btn_RunFailed, ui_->btn_Continue})
        button->setMinimumHeight(row + 4);
    ui_->pic_Progress->setFixedHeight(row);
    ui_->lbl_ProgressFinished->setFont(bold);
    // Neither a run that begins nor a file that fails moves what stands above.
    ui_->fram_Run->setFixedHeight(
        std::max({ui_->btn_RunVantorra->minimumHeight(), ui_->pic_ProcessFailed->minimumHeight(),
                  fontMetrics().height() + ui_->lay_Work->spacing() + row}));
}

/// A filter's box tells what is chosen, and what it was drawn with where nothing is.
static void Show_Filter_Tip(QCheckBox& box, const QString& chosen)
{
    static const char* const own = "own_tip";
    if (!box.property(own).isValid())
        box.setProperty(own, box.toolTip());
    const QString tip = chosen.isEmpty() ? box.property(own).toString() : Literal_Tool_Tip(chosen);
    if (box.toolTip() != tip)
        box.setToolTip(tip);
}

void Startform::Render()
{
    const Main_Form& form = program_.Form;
    setWindowTitle(Window_Title(program_).replace(u"[*]"_s, u"[*][*]"_s)); // where Qt would put a mark of its own
    for (const Click_Rule& rule : Click_Rules())
        if (auto* box = findChild<QCheckBox*>(rule.Name))
            Show_Check_Box(*box, program_.Options.*rule.Box);
    Show_Filter_Tip(*ui_->chk_CustomAudioFilter, Filter_Tip(program_.Options.AudioFilter, u"audio"_s));
    Show_Filter_Tip(*ui_->chk_CustomSubsFilter, Filter_Tip(program_.Options.SubsFilter, u"subtitle"_s));
    ui_->btn_Check->setText(With_Letter(form.btn_Check.Caption, u'k'));
    ui_->btn_RunFailed->setText(With_Letter(form.btn_RunFailed.Caption, u'g'));
    ui_->btn_Continue->setText(With_Letter(form.btn_Continue.Caption, u'n'));
    Place_More_Runs(true);
    // What goes makes room before something comes: together they would widen the window.
    for (const bool comes : {false, true})
        for (const auto& [name, field] : Button_Bindings())
            if (auto* button = findChild<QAbstractButton*>(QLatin1StringView(name));
                button && (form.*field).Visible == comes)
                Show_Button(*button, form.*field);
    Place_More_Runs(false);

    Show_Option_Pair(*ui_->opt_SetFileTitle_1, *ui_->opt_SetFileTitle_2, program_.Options.opt_SetFileTitle);
    Show_Option_Pair(*ui_->opt_SetVideoTitle_1, *ui_->opt_SetVideoTitle_2, program_.Options.opt_SetVideoTitle);
    ui_->lbl_ChapsFormat->setText(program_.Options.lbl_ChapsFormat.Caption);
    ui_->lbl_ChapsFormat->setEnabled(program_.Options.lbl_ChapsFormat.Enabled);
    for (Number_Box_View* box : number_boxes_)
        box->Render();
    for (Tree_Line* line : {ui_->lin_AudioDiagram_1, ui_->lin_AudioDiagram_2})
        line->Set_On(form.Audio_Diagram_On);
    for (Tree_Line* line : {ui_->lin_SubsDiagram_1, ui_->lin_SubsDiagram_2})
        line->Set_On(form.Subs_Diagram_On);

    ui_->btn_RunVantorra->setText(With_Letter(form.btn_RunVantorra.Caption, u'R'));
    ui_->btn_RunVantorra->setToolTip(
        form.btn_RunVantorra.Enabled
            ? u"Processes every video of the video folder with the options above."_s
            : u"A run takes a video folder, another folder as its target, and ffprobe in this program's folder."_s);
    ui_->btn_Halt->setText(With_Letter(form.btn_Halt.Caption, QChar()));
    ui_->btn_ViewVidInfo->setText(With_Letter(form.btn_ViewVidInfo.Caption, u'I'));
    list_->Render();
    status_->Render(form.lbl_Notice);
    Render_Folders();
    Render_Progress();
    Render_Menus(*this, program_);
    Render_Place();
    Render_Focus();
}

void Startform::Render_Focus()
{
    QString name = std::exchange(program_.Form.Focus, {});
    if (name.isEmpty())
        return;
    // Deliberate: a check box that a key has clicked keeps the focus, or the next key would go nowhere. A click with
    // the mouse parks it.
    const bool keep =
        name == u"btn_NOP" && by_key_ && qobject_cast<QAbstractButton*>(focusWidget()) && focusWidget()->isEnabled();
    if (!keep) {
        if (focusWidget() && focusWidget() != ui_->btn_NOP)
            left_ = focusWidget();
        Leave_Boxes(); // a window that isn't in front tells nobody that its focus went elsewhere
        Give_Focus(*this, name);
    }
}

void Startform::Leave_Boxes()
{
    for (Number_Box_View* box : number_boxes_)
        box->Leave();
    for (Path_Edit* edit : path_edits_)
        edit->Leave();
}
