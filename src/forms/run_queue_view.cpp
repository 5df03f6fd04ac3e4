#include "forms/run_queue_view.h"

#include "forms/slot_guard.h"
#include "rules/run_queue.h"
#include "state/program.h"
#include "support/drop_data.h"

#include <QAction>
#include <QClipboard>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

Run_Queue_View::Run_Queue_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : QWidget(owner), program_(program), guard_(guard), folders_(new QListWidget(this)), remove_(new QToolButton(this))
{
    setObjectName(u"fram_Queue"_s);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* divider = new QFrame(this);
    divider->setFrameShape(QFrame::HLine);
    divider->setFrameShadow(QFrame::Sunken);
    folders_->setObjectName(u"lst_Queue"_s);
    folders_->setAccessibleName(u"Folders that are run next"_s);
    folders_->setFrameShape(QFrame::NoFrame);
    folders_->setTextElideMode(Qt::ElideMiddle);
    auto* remove = new QAction(u"Don't run it next"_s, folders_);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    folders_->addAction(remove);
    folders_->setContextMenuPolicy(Qt::ActionsContextMenu);
    remove_->setObjectName(u"btn_Unqueue"_s);
    remove_->setText(u"Remove"_s);
    remove_->setToolTip(u"Doesn't run the marked folder next"_s);
    // The owner's, which is there while nothing is queued.
    connect(new QShortcut(QKeySequence::Paste, owner), &QShortcut::activated, this, &Run_Queue_View::Paste);
    connect(remove, &QAction::triggered, this, &Run_Queue_View::Remove);
    connect(remove_, &QToolButton::clicked, this, &Run_Queue_View::Remove);

    auto* row = new QHBoxLayout;
    row->addWidget(folders_);
    row->addWidget(remove_, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(divider);
    layout->addLayout(row);
    hide();
}

QList<QWidget*> Run_Queue_View::In_Tab_Order() const
{
    return {folders_, remove_};
}

/// Who has no mouse copies a folder in a file manager, or its path.
void Run_Queue_View::Paste()
{
    if (!program_.Run.Run_In_Progress || program_.Run.Checking)
        return;
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    if (!copied)
        return;
    const QList<QUrl> urls =
        copied->hasUrls() ? copied->urls() : QList<QUrl>{QUrl::fromLocalFile(copied->text().trimmed())};
    guard_.Call([&] { Drop_In_Run(program_, Drop_Data_Of(urls)); });
}

void Run_Queue_View::Remove()
{
    guard_.Call([this] { Remove_Queued(program_, folders_->currentRow()); });
}

void Run_Queue_View::Show_Folders(bool open)
{
    constexpr int most_rows = 3;
    QStringList captions;
    for (const Queued_Run& queued : program_.Queue.Runs)
        captions += Queued_Caption(queued);
    QStringList shown;
    for (int row = 0; row < folders_->count(); ++row)
        shown += folders_->item(row)->text();
    if (captions != shown) {
        const int marked = std::max(folders_->currentRow(), 0);
        folders_->clear();
        for (const QString& caption : captions) {
            auto* item = new QListWidgetItem(caption, folders_);
            item->setToolTip(caption);
        }
        folders_->setCurrentRow(std::min(marked, folders_->count() - 1));
    }
    const int rows = std::clamp(folders_->count(), 1, most_rows);
    folders_->setFixedHeight(rows * std::max(folders_->sizeHintForRow(0), fontMetrics().height()) + 4);
    setVisible(open && !captions.isEmpty());
}

void Run_Queue_View::Ask()
{
    auto* box = new QMessageBox(QMessageBox::Question, u"Run it next?"_s, Queue_Question(program_),
                                QMessageBox::NoButton, window());
    box->setObjectName(u"frm_QueueQuestion"_s);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = box->addButton(u"&Run it next"_s, QMessageBox::AcceptRole);
    box->setDefaultButton(yes);
    box->setEscapeButton(box->addButton(u"&No"_s, QMessageBox::RejectRole));
    connect(box, &QMessageBox::finished, this, [=, this] {
        const bool agreed = box->clickedButton() == yes;
        guard_.Call([&] { Answer_Queue_Question(program_, agreed); });
    });
    box_ = box;
    box->open();
}

void Run_Queue_View::Render(bool open)
{
    Show_Folders(open);
    const QString question = Queue_Question(program_);
    if (question.isEmpty() && box_ && box_->isVisible())
        box_->reject();
    else if (!question.isEmpty() && box_)
        box_->setText(question); // another folder was dropped
    else if (!question.isEmpty())
        Ask();
}
