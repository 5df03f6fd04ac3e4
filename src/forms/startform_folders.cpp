#include "forms/startform.h"

#include "forms/bindings.h"
#include "forms/elided_label.h"
#include "forms/path_edit.h"
#include "forms/slot_guard.h"
#include "rules/folder_changes.h"
#include "rules/recent_folders.h"
#include "rules/typed_folders.h"
#include "state/program.h"
#include "ui_startform.h"

using namespace Qt::StringLiterals;

void Startform::Connect_Folders()
{
    const auto panel = [this](Drop_Panel* pane, QToolButton* browse, auto drop, auto pick) {
        connect(pane, &Drop_Panel::Dropped, this,
                [=, this](const Drop_Data& dropped) { guard_.Call([&] { drop(program_, dropped); }); });
        connect(browse, &QToolButton::clicked, this, [=, this] { guard_.Call([&] { pick(program_); }); });
    };
    panel(ui_->pic_VideosPath, ui_->btn_BrowseVideos, Drop_On_Videos_Panel, mnu_PopupVideoBrowse1_Click);
    panel(ui_->pic_AudioPath, ui_->btn_BrowseAudio, Drop_On_Audio_Panel, mnu_PopupAudioBrowse1_Click);
    panel(ui_->pic_SubsPath, ui_->btn_BrowseSubs, Drop_On_Subs_Panel, mnu_PopupSubsBrowse1_Click);
    panel(ui_->pic_ChaptersPath, ui_->btn_BrowseChapters, Drop_On_Chapters_Panel, mnu_PopupChapsBrowse1_Click);
    panel(ui_->pic_TargetPath, ui_->btn_BrowseTarget, Drop_On_Target_Panel, mnu_PopupTargetBrowse1_Click);

    const auto arrow = [this](QToolButton* button, auto press, auto release, auto click) {
        connect(button, &QToolButton::pressed, this, [=, this] { guard_.Call([&] { press(program_); }); });
        connect(button, &QToolButton::released, this, [=, this] { guard_.Call([&] { release(program_); }); });
        connect(button, &QToolButton::clicked, this, [=, this] { guard_.Call([&] { click(program_); }); });
    };
    arrow(ui_->img_SourceMRU, img_SourceMRU_MouseDown, img_SourceMRU_MouseUp, img_SourceMRU_Click);
    arrow(ui_->img_TargetMRU, img_TargetMRU_MouseDown, img_TargetMRU_MouseUp, img_TargetMRU_Click);
    Connect_Typing();
}

void Startform::Connect_Typing()
{
    const struct
    {
        Folder_Box Box;
        const char* Name;
        Elided_Label* Shown;
        const QLabel* Title;
        QWidget* Next; ///< behind it in the order of the Tab key
    } boxes[] = {
        {Folder_Box::Videos, "txt_VideosPath", ui_->ulbl_VideosPath, ui_->lbl_VideosPathTitle, ui_->img_SourceMRU},
        {Folder_Box::Audio, "txt_AudioPath", ui_->ulbl_AudioPath, ui_->lbl_AudioPathTitle, ui_->btn_BrowseAudio},
        {Folder_Box::Subtitles, "txt_SubsPath", ui_->ulbl_SubsPath, ui_->lbl_SubsPathTitle, ui_->btn_BrowseSubs},
        {Folder_Box::Chapters, "txt_ChaptersPath", ui_->ulbl_ChaptersPath, ui_->lbl_ChaptersPathTitle,
         ui_->btn_BrowseChapters},
        {Folder_Box::Target, "txt_TargetPath", ui_->ulbl_TargetPath, ui_->lbl_TargetPathTitle, ui_->img_TargetMRU}};

    for (const auto& [which, name, shown, title, next] : boxes) {
        const Folder_Box box = which; // a lambda can't capture what a binding names
        Path_Edit_Rules rules{
            .Look = [this, box](const QString& text) { Look_At_Typing(program_, box, text); },
            .Enter = [this, box](const QString& text) { return Enter_Typing(program_, box, text); },
            .Leave = [this, box](const QString& text) { Leave_Typing(program_, box, text); },
            .Give_Up = [this, box] { Give_Up_Typing(program_, box); },
            .Offers = [this, box](const QString& text) { return Offers_For_Typing(text, Path_In_Box(program_, box)); }};
        auto* edit = new Path_Edit(guard_, *shown, std::move(rules));
        edit->setObjectName(QLatin1StringView(name));
        edit->setAccessibleName(title->text());
        // Behind it first: only so does the order take what comes ahead of all others.
        setTabOrder(next, edit);
        setTabOrder(edit, next);
        path_edits_.push_back(edit);
    }
    ui_->img_SourceMRU->setFocus(); // the first key that is pressed writes nothing anywhere
}

QList<QFrame*> Startform::Path_Boxes() const
{
    return {ui_->box_VideosPath, ui_->box_AudioPath, ui_->box_SubsPath, ui_->box_ChaptersPath, ui_->box_TargetPath};
}

QList<QToolButton*> Startform::Browse_Buttons() const
{
    return {ui_->btn_BrowseVideos, ui_->btn_BrowseAudio, ui_->btn_BrowseSubs, ui_->btn_BrowseChapters,
            ui_->btn_BrowseTarget};
}

QList<QLabel*> Startform::Fault_Labels() const
{
    return {ui_->lbl_VideoPathFault, ui_->lbl_AudioPathFault, ui_->lbl_SubsPathFault, ui_->lbl_ChapsPathFault,
            ui_->lbl_TargetPathFault};
}

/// A headline stands beside its box. What a run counts stands inside it, so that the boxes stay in line.
static std::pair<QString, QString> Headline_And_Count(const QString& caption)
{
    const qsizetype end = caption.indexOf(u')') + 1;
    return {caption.left(end).trimmed(), caption.mid(end).trimmed()};
}

void Startform::Render_Folders()
{
    const Main_Form& form = program_.Form;
    for (const auto& [name, field] : Panel_Bindings())
        if (auto* panel = findChild<QWidget*>(QLatin1StringView(name))) {
            panel->setEnabled((form.*field).Enabled);
            panel->setVisible((form.*field).Visible);
        }
    for (const auto& [name, field] : Label_Bindings())
        if (auto* label = findChild<QLabel*>(QLatin1StringView(name)))
            Show_Label(*label, form.*field);
    for (QLabel* fault : Fault_Labels())
        fault->setVisible(fault->isVisibleTo(fault->parentWidget()) && !fault->text().isEmpty());
    for (std::size_t box = 0; box < path_edits_.size(); ++box)
        path_edits_[box]->Share_Box(*Fault_Labels()[static_cast<qsizetype>(box)]);

    const auto [videos, found] = Headline_And_Count(form.pic_VideosPath.Caption);
    const auto [target, done] = Headline_And_Count(form.pic_TargetPath.Caption);
    ui_->lbl_VideosPathTitle->setText(With_Letter(videos, u'V'));
    ui_->lbl_VideosPathCount->setText(found);
    ui_->lbl_VideosPathCount->setVisible(!found.isEmpty());
    ui_->lbl_AudioPathTitle->setText(With_Letter(form.pic_AudioPath.Caption, u'd'));
    ui_->lbl_SubsPathTitle->setText(With_Letter(form.pic_SubsPath.Caption, u'b'));
    ui_->lbl_ChaptersPathTitle->setText(With_Letter(form.pic_ChaptersPath.Caption, u'e'));
    ui_->lbl_TargetPathTitle->setText(With_Letter(target, u'T'));
    ui_->lbl_TargetPathCount->setText(done);
    ui_->lbl_TargetPathCount->setVisible(!done.isEmpty());
    ui_->img_SourceMRU->setDown(program_.Source_MRU_Form.Arrow_Pressed);
    ui_->img_TargetMRU->setDown(program_.Target_MRU_Form.Arrow_Pressed);
}
