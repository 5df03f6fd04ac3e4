#include "rules/custom_title.h"

#include "rules/option_rules.h"
#include "state/program.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

QString Ask_Custom_Title(Program& program, const QString& caption, const QString& title)
{
    Custom_Title_Form& form = program.Custom_Title;
    form.Title_Form_Caption = caption;
    form.Title_Form_Text = title;
    form.Saved_Title = title;
    form.txt_CustomTitle.Text = title;
    form.txt_CustomTitle.Caret = static_cast<int>(title.size());
    form.Focus = u"txt_CustomTitle"_s;
    form.Visible = true;
    Show_Dialog(program, u"frm_CustomTitle"_s);
    form.Visible = false;
    return form.Title_Form_Text;
}

void btn_CustomTitle_Clear_Click(Custom_Title_Form& form)
{
    form.txt_CustomTitle.Text.clear();
    form.txt_CustomTitle.Caret = 0;
    form.Focus = u"txt_CustomTitle"_s;
}

void btn_CustomTitle_Done_Click(Custom_Title_Form& form)
{
    form.Title_Form_Text = On_One_Line(form.txt_CustomTitle.Text);
    form.Visible = false;
}

void btn_CustomTitle_Cancel_Click(Custom_Title_Form& form)
{
    form.Title_Form_Text = form.Saved_Title;
    form.Visible = false;
}
