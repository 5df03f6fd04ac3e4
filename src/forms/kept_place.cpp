#include "forms/kept_place.h"

#include "forms/screen_place.h"

#include <QEvent>
#include <QLayout>
#include <QTimer>
#include <QWidget>

static bool Same(const Form_Place& a, const Form_Place& b)
{
    return a.Left == b.Left && a.Top == b.Top && a.Width == b.Width && a.Height == b.Height &&
           a.Window_State == b.Window_State;
}

Kept_Place::Kept_Place(QWidget& form, Form_Place& place) : QObject(&form), form_(form), place_(place)
{
    form.installEventFilter(this);
}

void Kept_Place::Propose_Size(const QSize& usual)
{
    if (place_.Width > 0)
        return;
    form_.ensurePolished();
    const QSize size = usual.expandedTo(form_.minimumSizeHint());
    place_.Width = size.width();
    place_.Height = size.height();
}

void Kept_Place::Open()
{
    // A form that was maximised tells of its normal place on the way.
    const Form_Place wanted = place_;
    const QRect normal = Onto_Screen(Rect_Of(wanted, form_.minimumSizeHint()), Frame_Around(form_.parentWidget()));
    const bool was_maximised = form_.isVisible() && (form_.isMaximized() || form_.isFullScreen());
    placed_ = normal;
    form_.setWindowState(Qt::WindowNoState);
    form_.setGeometry(normal);
    // A window manager gives such a form its old normal place back in its own time.
    if (was_maximised && wanted.Window_State == 0)
        QTimer::singleShot(100, this, [this, normal] {
            if (normal == placed_)
                form_.setGeometry(normal);
        });
    if (wanted.Window_State == 2)
        form_.setWindowState(Qt::WindowMaximized);
    Note();
}

void Kept_Place::Render()
{
    if (form_.isVisible() && !Same(place_, shown_))
        Open();
}

void Kept_Place::Note()
{
    const bool whole_screen = form_.isMaximized() || form_.isFullScreen();
    place_.Window_State = whole_screen ? 2 : form_.isMinimized() ? 1 : 0;
    const QRect normal = place_.Window_State == 0 ? form_.geometry() : form_.normalGeometry();
    if (normal.isValid()) {
        place_.Left = normal.left();
        place_.Top = normal.top();
        place_.Width = normal.width();
        place_.Height = normal.height();
    }
    shown_ = place_;
}

bool Kept_Place::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if ((type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange) && form_.isVisible())
        Note();
    return false;
}
