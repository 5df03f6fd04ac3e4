#include "forms/video_format_view.h"

#include "forms/bindings.h"
#include "rules/video_format_dialog.h"
#include "state/program.h"
#include "ui_video_format_view.h"

#include <QSignalBlocker>
#include <algorithm>

Video_Format_View::Video_Format_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_VideoFormatOptions>())
{
    ui_->setupUi(this);
    ui_->cbo_AspectRatio->setInsertPolicy(QComboBox::NoInsert);
    ui_->cbo_AspectRatio->setCompleter(nullptr); // a typed ratio stays as it was typed
    Video_Format_Form& form = program.Video_Format_Dialog;
    On_Click(ui_->opt_AspectRatio_1, [this] { opt_AspectRatio_Click(program_, 1); });
    On_Click(ui_->opt_AspectRatio_2, [this] { opt_AspectRatio_Click(program_, 2); });
    On_Click(ui_->btn_Done, [this] { btn_VideoFormat_Done_Click(program_); });
    On_Click(ui_->btn_Cancel, [this] { btn_VideoFormat_Cancel_Click(program_); });
    connect(ui_->cbo_AspectRatio, &QComboBox::textActivated, this,
            [this](const QString& text) { program_.Video_Format_Dialog.cbo_AspectRatio.Text = text; });
    Keep_Allowed(*ui_->cbo_AspectRatio->lineEdit(), Aspect_Key_Allowed, form.cbo_AspectRatio.Text);
    Keep_Allowed(*ui_->txt_Width, Size_Key_Allowed, form.txt_Width.Text);
    Keep_Allowed(*ui_->txt_Height, Size_Key_Allowed, form.txt_Height.Text);
}

Video_Format_View::~Video_Format_View() = default;

/// What was put in between `before` and `after`: where it begins and how long it is.
static std::pair<qsizetype, qsizetype> Inserted(const QString& before, const QString& after)
{
    const qsizetype most = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < most && before[head] == after[head])
        ++head;
    qsizetype tail = 0;
    while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {head, after.size() - head - tail};
}

void Video_Format_View::Keep_Allowed(QLineEdit& edit, bool (*allowed)(QChar), QString& text)
{
    connect(&edit, &QLineEdit::textEdited, this, [&edit, allowed, &text](QString typed) {
        const auto [at, length] = Inserted(text, typed);
        QString kept = typed.mid(at, length);
        kept.removeIf([allowed](QChar c) { return !allowed(c); });
        if (kept.size() < length) {
            typed.replace(at, length, kept);
            const QSignalBlocker quiet(edit);
            edit.setText(typed);
            edit.setCursorPosition(static_cast<int>(at + kept.size()));
        }
        text = typed;
    });
}

void Video_Format_View::Render()
{
    const Video_Format_Form& form = program_.Video_Format_Dialog;
    Show_Option_Pair(*ui_->opt_AspectRatio_1, *ui_->opt_AspectRatio_2, form.opt_AspectRatio);
    Show_Combo_Box(*ui_->cbo_AspectRatio, form.cbo_AspectRatio);
    ui_->pic_WidthHeight->setEnabled(form.pic_WidthHeight.Enabled);
    Show_Text_Box(*ui_->txt_Width, form.txt_Width);
    Show_Text_Box(*ui_->txt_Height, form.txt_Height);
    Hide_Unless(form.Visible);
}
