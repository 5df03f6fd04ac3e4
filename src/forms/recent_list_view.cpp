#include "forms/recent_list_view.h"

#include "rules/recent_folders.h"

#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static const Recent_List_Parts Source_Parts{"frm_SourceMRU", "box_VideosPath", &Program::Source_MRU_Form,
                                            &Settings_State::Source_MRU, Choose_Recent_Source};
static const Recent_List_Parts Target_Parts{"frm_TargetMRU", "box_TargetPath", &Program::Target_MRU_Form,
                                            &Settings_State::Target_MRU, Choose_Recent_Target};

void Recent_Combo::hidePopup()
{
    QComboBox::hidePopup();
    emit Closed();
}

Recent_List_View::Recent_List_View(Program& program, Slot_Guard& guard, QWidget* owner, const Recent_List_Parts& parts)
    : Program_Dialog(program, guard, owner), parts_(parts), cmbo_MRU_(new Recent_Combo(this))
{
    setObjectName(QLatin1StringView(parts.Name));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    cmbo_MRU_->setObjectName(u"cmbo_MRU"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(cmbo_MRU_);
    connect(cmbo_MRU_, &QComboBox::activated, this,
            [this](int index) { guard_.Call([&] { parts_.Choose(program_, index); }); });
    // The list closes before it tells what was chosen; without a choice the form goes too.
    connect(
        cmbo_MRU_, &Recent_Combo::Closed, this, [this] { guard_.Call([this] { Leave(); }); }, Qt::QueuedConnection);
}

void Recent_List_View::Open()
{
    const auto* box = parentWidget()->findChild<QWidget*>(QLatin1StringView(parts_.Path_Box));
    setGeometry(QRect(box->mapToGlobal(QPoint()), box->size()));
    cmbo_MRU_->setMinimumHeight(box->height());
    // It lies over the path box, and looks like it.
    QPalette like_box = palette();
    like_box.setBrush(QPalette::Button, like_box.brush(QPalette::Base));
    for (const QPalette::ColorRole words : {QPalette::ButtonText, QPalette::PlaceholderText})
        like_box.setBrush(words, like_box.brush(QPalette::Text));
    cmbo_MRU_->setPalette(like_box);
}

void Recent_List_View::showEvent(QShowEvent* event)
{
    Program_Dialog::showEvent(event);
    QTimer::singleShot(0, cmbo_MRU_, [this] {
        if (cmbo_MRU_->count() > 0)
            cmbo_MRU_->showPopup();
    });
}

/// Another form in front means that nothing is chosen. The list itself is no other form.
void Recent_List_View::changeEvent(QEvent* event)
{
    Program_Dialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isVisible() && !isActiveWindow() &&
        !QApplication::activePopupWidget())
        guard_.Call([this] { Leave(); });
}

void Recent_List_View::Leave()
{
    Hide_Recent_List(program_.*parts_.Record);
}

void Recent_List_View::Render()
{
    const Recent_List_Form& form = program_.*parts_.Record;
    const QStringList& folders = program_.Settings.*parts_.List;
    QStringList shown;
    for (int i = 0; i < cmbo_MRU_->count(); ++i)
        shown += cmbo_MRU_->itemText(i);
    if (shown != folders) {
        cmbo_MRU_->clear();
        cmbo_MRU_->addItems(folders);
    }
    cmbo_MRU_->setCurrentIndex(-1);
    cmbo_MRU_->setPlaceholderText(form.Text);
    Hide_Unless(form.Visible);
}

Source_MRU_View::Source_MRU_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Recent_List_View(program, guard, owner, Source_Parts)
{}

Target_MRU_View::Target_MRU_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Recent_List_View(program, guard, owner, Target_Parts)
{}
