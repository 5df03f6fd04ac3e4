#include "forms/status_line.h"

#include "forms/elided_label.h"
#include "support/controls.h"

#include <QEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <QTextDocumentFragment>

/// For so long a tool tip doesn't cover a new notice.
static constexpr int Reading_Ms = 6000;

Status_Line::Status_Line(QMainWindow& form) : QObject(&form), bar_(*form.statusBar()), notice_(new Elided_Label(&bar_))
{
    bar_.setObjectName("statusbar");
    notice_->setObjectName("lbl_Notice");
    bar_.setSizeGripEnabled(false);
    bar_.setContentsMargins(6, 0, 0, 0); // as far in as what stands above
    bar_.addWidget(notice_, 1);
    for (QWidget* widget : form.findChildren<QWidget*>())
        widget->installEventFilter(this);
}

void Status_Line::Render(const Label& notice)
{
    if (notice.Caption == notice_->text())
        return;
    notice_->Set_Text(notice.Caption);
    if (notice.Caption.isEmpty())
        return;
    bar_.clearMessage();
    since_notice_.start();
}

/// As QToolTip finds it: that of the nearest one that has a tip.
static QString Tip_Of(const QWidget* widget)
{
    while (widget && !widget->isWindow() && widget->toolTip().isEmpty())
        widget = widget->parentWidget();
    if (!widget || widget->isWindow())
        return {};
    const QString tip = widget->toolTip();
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

bool Status_Line::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Enter && event->type() != QEvent::Leave)
        return false;
    if (since_notice_.isValid() && !since_notice_.hasExpired(Reading_Ms) && !notice_->text().isEmpty())
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    bar_.showMessage(Tip_Of(event->type() == QEvent::Enter ? widget : widget->parentWidget()));
    return false;
}
