#include "forms/help_view.h"

#include "forms/looks.h"
#include "forms/screen_place.h"
#include "state/program.h"

#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Help_View::Help_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), words_(new QLineEdit(this)), page_(new QTextBrowser(this))
{
    setObjectName(u"frm_Help"_s);
    setWindowTitle(u"Vantorra Help"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    words_->setObjectName(u"txt_Find"_s);
    words_->setPlaceholderText(u"Find"_s);
    Fade_Placeholder(*words_);
    words_->setAccessibleName(u"Find"_s);
    words_->setClearButtonEnabled(true);
    page_->setObjectName(u"txt_Help"_s);
    page_->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(words_);
    layout->addWidget(page_);
    connect(words_, &QLineEdit::returnPressed, this, &Help_View::Find_Next);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, &Help_View::Find_Next);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, words_, [this] {
        words_->setFocus();
        words_->selectAll();
    });
}

void Help_View::Open()
{
    page_->setSource(QUrl::fromLocalFile(program_.Help.File));
    if (isVisible())
        return;
    QRect place(QPoint(), QSize(860, 680));
    const QWidget* owner = parentWidget() ? parentWidget()->window() : nullptr;
    if (owner)
        place.moveCenter(owner->geometry().center());
    setGeometry(Onto_Screen(place, Frame_Around(owner)));
    words_->setFocus();
}

void Help_View::Find_Next()
{
    if (words_->text().isEmpty() || page_->find(words_->text()))
        return;
    page_->moveCursor(QTextCursor::Start); // behind the last place comes the first
    page_->find(words_->text());
}
