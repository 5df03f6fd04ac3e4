#include "forms/halt_question_view.h"

#include "forms/slot_guard.h"
#include "run/halt.h"
#include "state/program.h"

#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

Halt_Question_View::Halt_Question_View(Program& program, Slot_Guard& guard, QWidget& form)
    : QObject(&form), program_(program), guard_(guard), form_(form)
{}

void Halt_Question_View::Open()
{
    auto* box = new QMessageBox(QMessageBox::Question, u"Stop the run?"_s, program_.Form.Halt_Question,
                                QMessageBox::NoButton, &form_);
    box->setObjectName(u"frm_HaltQuestion"_s);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    const QAbstractButton* now = box->addButton(u"&Stop now"_s, QMessageBox::DestructiveRole);
    const QAbstractButton* after = box->addButton(
        program_.Run.At_Once > 1 ? u"&After those in work"_s : u"&After this video"_s, QMessageBox::AcceptRole);
    QPushButton* go_on = box->addButton(u"&Go on"_s, QMessageBox::RejectRole);
    box->setDefaultButton(go_on);
    box->setEscapeButton(go_on);
    connect(box, &QMessageBox::finished, this, [=, this] {
        const QAbstractButton* clicked = box->clickedButton();
        const Halt_Answer answer = clicked == now     ? Halt_Answer::Stop_Now
                                   : clicked == after ? Halt_Answer::After_This_Video
                                                      : Halt_Answer::Go_On;
        guard_.Call([&] { Answer_Halt_Question(program_, answer); });
    });
    box_ = box;
    box->open();
}

void Halt_Question_View::Render()
{
    const bool asked = !program_.Form.Halt_Question.isEmpty();
    if (asked && !box_)
        Open();
    else if (!asked && box_ && box_->isVisible())
        box_->reject();
}
