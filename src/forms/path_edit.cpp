#include "forms/path_edit.h"

#include "forms/elided_label.h"
#include "forms/slot_guard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <utility>

Path_Edit::Path_Edit(Slot_Guard& guard, Elided_Label& shown, Path_Edit_Rules rules)
    : QLineEdit(&shown), guard_(guard), shown_(shown), rules_(std::move(rules))
{
    setFrame(false);
    setAcceptDrops(false);
    setGeometry(shown.rect());
    shown.installEventFilter(this);
    shown.parentWidget()->installEventFilter(this);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        begun_ = true;
        Offer_Folders(text);
        guard_.Call([&] { rules_.Look(text); });
    });
}

void Path_Edit::Offer_Folders(const QString& text)
{
    offers_.setStringList(rules_.Offers(text));
    if (completer())
        return;
    auto* completer = new QCompleter(&offers_, this);
    // What can be meant need not begin as it was typed.
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(10);
    setCompleter(completer);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& chosen) { guard_.Call([&] { rules_.Look(chosen); }); });
}

void Path_Edit::Share_Box(const QLabel& fault)
{
    const bool alone = shown_.text().isEmpty() && !fault.isHidden() && !edited_;
    shown_.setMaximumWidth(alone ? 0 : QWIDGETSIZE_MAX);
}

/// The text that nothing was changed of yet, ready to be replaced.
void Path_Edit::Begin()
{
    setText(shown_.text());
    shown_first_ = text(); // a line has no room for every letter of a name
    selectAll();
}

void Path_Edit::Leave()
{
    if (!edited_)
        return;
    edited_ = begun_ = clicked_ = false;
    const QString typed = text();
    clear();
    guard_.Call([&] {
        if (typed != shown_first_)
            rules_.Leave(typed);
    });
    if (hasFocus()) {
        edited_ = true;
        Begin();
    }
}

void Path_Edit::focusInEvent(QFocusEvent* event)
{
    if (!std::exchange(edited_, true)) {
        Begin();
        clicked_ = event->reason() == Qt::MouseFocusReason;
        guard_.Call([] {}); // a fault that stood alone makes room
    }
    QLineEdit::focusInEvent(event);
    update();
}

void Path_Edit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason)
        Leave();
    update();
}

void Path_Edit::keyPressEvent(QKeyEvent* event)
{
    const bool changed = text() != shown_first_;
    const bool offers = completer() && completer()->popup()->isVisible();
    if (event->key() == Qt::Key_Escape && changed && !offers)
        Give_Up();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && changed)
        Enter();
    else
        QLineEdit::keyPressEvent(event);
}

void Path_Edit::Give_Up()
{
    guard_.Call([this] { rules_.Give_Up(); });
    Begin();
    begun_ = false;
}

void Path_Edit::Enter()
{
    const QString typed = text();
    const QString before = std::exchange(shown_first_, typed); // the rule may take the focus
    bool taken = false;
    guard_.Call([&] { taken = rules_.Enter(typed); });
    if (!taken)
        shown_first_ = before;
}

void Path_Edit::mousePressEvent(QMouseEvent* event)
{
    begun_ = begun_ || !clicked_;
    QLineEdit::mousePressEvent(event);
}

void Path_Edit::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    // The click that comes into the box selects what the next letter replaces, as Tab does.
    if (std::exchange(clicked_, false) && !hasSelectedText())
        selectAll();
}

/// A right click on a path that nobody is typing is its panel's.
void Path_Edit::contextMenuEvent(QContextMenuEvent* event)
{
    if (begun_)
        QLineEdit::contextMenuEvent(event);
    else
        event->ignore();
}

void Path_Edit::paintEvent(QPaintEvent* event)
{
    if (edited_)
        QLineEdit::paintEvent(event);
}

bool Path_Edit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &shown_ && event->type() == QEvent::Resize)
        setGeometry(shown_.rect());
    // What stands beside the path in the box belongs to it.
    if (watched == shown_.parentWidget() && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        setFocus(Qt::OtherFocusReason);
        return true;
    }
    return QLineEdit::eventFilter(watched, event);
}
