#include "forms/startform.h"

#include "forms/options_layout.h"
#include "forms/screen_place.h"
#include "forms/slot_guard.h"
#include "life/app_folder.h"
#include "life/menu_commands.h"
#include "life/start_up.h"
#include "rules/option_rules.h"
#include "run/careful_hint.h"
#include "state/program.h"
#include "support/paths.h"
#include "tools/tool_discovery.h"
#include "ui_startform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

static bool Same_Place(const Form_Place& a, const Form_Place& b)
{
    return a.Left == b.Left && a.Top == b.Top && a.Width == b.Width && a.Height == b.Height;
}

QSize Startform::sizeHint() const
{
    // A scroll area never asks for all that it holds.
    const QMargins edges = ui_->lay_Central->contentsMargins();
    // The layouts may remember the scroll area as it was with the groups in another order.
    for (QLayout* stale : findChildren<QLayout*>())
        stale->invalidate();
    const QSize options = options_->Whole_Size();
    const int height = QMainWindow::sizeHint().height() - ui_->scr_Options->sizeHint().height() + options.height();
    // Room for a scroll bar, so that one that comes pushes nothing aside.
    const int width = options.width() + options_->Scroll_Bar_Room();
    return {std::max(width, ui_->fram_Run->sizeHint().width()) + edges.left() + edges.right(), height};
}

void Startform::Propose_Place()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(QPoint(), sizeHint());
    program_.Form.Screen = {area.left(), area.top(), area.width(), area.height(), 0};
    // Where not even the rest has room, folders that aren't in view keep none.
    for (QWidget* panel : {ui_->pic_AudioPath, ui_->pic_SubsPath, ui_->pic_ChaptersPath}) {
        QSizePolicy policy = panel->sizePolicy();
        policy.setRetainSizeWhenHidden(area.height() >= Very_Low_Screen);
        panel->setSizePolicy(policy);
    }
    if (File_Exists(With_Separator(program_.Settings.App_Folder) + Settings_File_Name))
        return; // it knows the place
    Render();
    // A size asked for before the first show must already know the style.
    for (QWidget* widget : findChildren<QWidget*>())
        widget->ensurePolished();
    Measure();
    const QSize size = sizeHint().boundedTo(area.size());
    program_.Form.Place.Width = size.width();
    program_.Form.Place.Height = size.height();
}

void Startform::Show_First()
{
    show();
    shown_ = true;
    // Only a form that is shown knows for sure what its style asks for, and what the window's frame takes.
    Measure();
    Open_List(program_.Form.Never_Placed ? program_.Form.Screen.Height >= Low_Screen
                                         : program_.Settings.Extensions.Video_List_Open && Has_Room_For_List());
    if (program_.Form.Never_Placed)
        Make_Room();
    const QRect frame = frameGeometry();
    const QRect within = Onto_Screen(frame);
    if (frame != within)
        setGeometry(within.marginsRemoved({geometry().left() - frame.left(), geometry().top() - frame.top(),
                                           frame.right() - geometry().right(), frame.bottom() - geometry().bottom()}));
    // A screen that shows nothing, such as a locked one, must not hold up the start.
    QDeadlineTimer patience(200);
    while (!windowHandle()->isExposed() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, 20);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Startform::Become_Ready()
{
    const bool first = program_.Form.Never_Placed;
    guard_.Call([this] {
        First_Activation(program_);
        Show_Careful_Batch(program_);
    });
    if (first)
        Make_Room(); // what the rules put in view has its size only now
}

void Startform::Make_Room()
{
    const QSize most = screen() ? screen()->availableGeometry().size() : sizeHint();
    resize(sizeHint().boundedTo(most));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Divide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // A screen too narrow for all groups in a row may have the height for two.
    const QSize lack = ui_->fram_Options->sizeHint() - ui_->scr_Options->contentsRect().size();
    resize((size() + lack.expandedTo(QSize(0, 0))).boundedTo(most));
    Divide();
}

void Startform::Set_Topmost(bool on)
{
    const Qt::WindowFlags flags = windowFlags().setFlag(Qt::WindowStaysOnTopHint, on);
    // The window's own handle takes the wish without the window being hidden and shown again.
    overrideWindowFlags(flags);
    if (QWindow* handle = windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}

void Startform::Render_Place()
{
    const Form_Place& place = program_.Form.Place;
    if (Same_Place(place, shown_place_) || isMaximized() || isFullScreen() || isMinimized())
        return;
    // A settings file may name a place on a screen that is gone, or no size at all.
    setGeometry(Onto_Screen(Rect_Of(place, minimumSizeHint())));
    shown_place_ = place;
    Note_Place();
}

void Startform::Note_Place()
{
    if (isMinimized())
        return;
    const Form_Place now{geometry().left(), geometry().top(), width(), height(), 0};
    const bool whole_screen = isMaximized() || isFullScreen();
    program_.Form.Whole_Screen = whole_screen ? now : Form_Place();
    if (!whole_screen)
        program_.Form.Place = shown_place_ = now;
}

void Startform::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    if (shown_)
        Note_Place();
}

void Startform::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (shown_)
        Note_Place();
}

void Startform::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (unloaded_) {
        event->accept();
        return;
    }
    Leave_Boxes();
    guard_.Call([this] {
        if (!program_.Form.Options_Ready || program_.Run.Run_In_Progress || !Query_Unload(program_))
            return;
        Unload(program_);
        unloaded_ = true;
    });
    if (unloaded_) {
        event->accept();
        QCoreApplication::quit();
    }
}

static Key_Press Key_Press_Of(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    const Key code = event.key() == Qt::Key_Escape ? Key::Escape
                     : event.key() == Qt::Key_F4   ? Key::F4
                     : event.key() == Qt::Key_F12  ? Key::F12
                                                   : Key::Other;
    return {.Code = code,
            .Modifiers = {.Shift = held.testFlag(Qt::ShiftModifier),
                          .Control = held.testFlag(Qt::ControlModifier),
                          .Alt = held.testFlag(Qt::AltModifier)}};
}

void Startform::keyPressEvent(QKeyEvent* event)
{
    guard_.Call([&] { Form_Key_Down(program_, Key_Press_Of(*event)); });
    QMainWindow::keyPressEvent(event);
}

void Startform::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && shown_)
        Note_Place();
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange)
        if (options_)
            Set_Looks();
}

/// Once the focus was parked, Tab goes on from the control that it was taken from.
bool Startform::focusNextPrevChild(bool next)
{
    if (focusWidget() == ui_->btn_NOP && left_ && left_->isVisible() && left_->isEnabled())
        left_->setFocus(Qt::OtherFocusReason);
    return QMainWindow::focusNextPrevChild(next);
}

bool Startform::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        by_key_ = true;
    else if (event->type() == QEvent::MouseButtonPress)
        by_key_ = false;
    return Too_Early(watched, event) || Into_Group(watched, event) || Right_Click(watched, event) ||
           Clicked_Pane(watched, event) || QMainWindow::eventFilter(watched, event);
}

/// A group's letter goes to its first box that can be used. Left alone, Qt would try one that is off.
bool Startform::Into_Group(QObject* watched, const QEvent* event)
{
    auto* group = event->type() == QEvent::Shortcut ? qobject_cast<QGroupBox*>(watched) : nullptr;
    if (!group || group->window() != this)
        return false;
    for (QWidget* next = group->nextInFocusChain(); next != group; next = next->nextInFocusChain())
        if (group->isAncestorOf(next) && next->isEnabled() && next->isVisible() && next->focusPolicy() & Qt::TabFocus) {
            next->setFocus(Qt::ShortcutFocusReason);
            break;
        }
    return true;
}

/// Until the form is ready it shows itself, and no more.
bool Startform::Too_Early(QObject* watched, const QEvent* event) const
{
    if (program_.Form.Options_Ready)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
        return widget && widget->window() == this;
    default:
        return false;
    }
}

/// The right clicks that do something at once instead of opening a popup; the menu key counts as one.
bool Startform::Right_Click(QObject* watched, QEvent* event)
{
    void (*rule)(Program&) = nullptr;
    if (watched == ui_->chk_SubDefaults)
        rule = chk_SubDefaults_Right_Click;
    else if (watched == ui_->chk_SubForces)
        rule = chk_SubForces_Right_Click;
    else if (watched == ui_->chk_AddAttachments)
        rule = chk_AddAttachments_Right_Click;
    else
        return false;
    const auto* box = static_cast<QWidget*>(watched);
    if (!box->isEnabled())
        return false; // a disabled box leaves the click to its panel

    if (event->type() == QEvent::ContextMenu) {
        if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
            guard_.Call([&] { rule(program_); });
        return true;
    }
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::RightButton || !box->rect().contains(mouse->position().toPoint()))
        return false;
    guard_.Call([&] { rule(program_); });
    return true;
}

/// Whoever clicks on the disabled button of the video info viewer is told what it lacks; in a run it lacks nothing. A
/// disabled button swallows its clicks, so that the pane below it never hears of them.
bool Startform::Clicked_Pane(QObject* watched, QEvent* event)
{
    if (watched != ui_->btn_ViewVidInfo || event->type() != QEvent::MouseButtonRelease ||
        ui_->btn_ViewVidInfo->isEnabled() || program_.Run.Run_In_Progress)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton && ui_->btn_ViewVidInfo->rect().contains(mouse->position().toPoint()))
        guard_.Call([this] { pic_ViewVidInfo_Click(program_); });
    return true;
}
