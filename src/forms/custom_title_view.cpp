#include "forms/custom_title_view.h"

#include "forms/bindings.h"
#include "rules/custom_title.h"
#include "state/program.h"
#include "ui_custom_title_view.h"

Custom_Title_View::Custom_Title_View(Program& program, Slot_Guard& guard, QWidget* owner)
    : Program_Dialog(program, guard, owner), ui_(std::make_unique<Ui::frm_CustomTitle>())
{
    ui_->setupUi(this);
    On_Click(ui_->btn_Clear, [this] { btn_CustomTitle_Clear_Click(program_.Custom_Title); });
    On_Click(ui_->btn_Done, [this] { btn_CustomTitle_Done_Click(program_.Custom_Title); });
    On_Click(ui_->btn_Cancel, [this] { btn_CustomTitle_Cancel_Click(program_.Custom_Title); });
    connect(ui_->txt_CustomTitle, &QLineEdit::textEdited, this, [this](const QString& text) {
        program_.Custom_Title.txt_CustomTitle.Text = text;
        program_.Custom_Title.txt_CustomTitle.Caret = ui_->txt_CustomTitle->cursorPosition();
    });
}

Custom_Title_View::~Custom_Title_View() = default;

void Custom_Title_View::Render()
{
    Custom_Title_Form& form = program_.Custom_Title;
    setWindowTitle(form.Title_Form_Caption);
    Show_Text_Box(*ui_->txt_CustomTitle, form.txt_CustomTitle);
    Give_Focus(*this, form.Focus);
    Hide_Unless(form.Visible);
}
