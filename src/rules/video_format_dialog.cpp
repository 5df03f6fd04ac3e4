#include "rules/video_format_dialog.h"

#include "rules/option_rules.h"
#include "state/program.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

const QStringList& Aspect_Ratio_List()
{
    static const QStringList ratios = {u"NONE"_s, u"4/3"_s,  u"1.66"_s, u"16/9"_s, u"1.85"_s,
                                       u"2.00"_s, u"2.21"_s, u"2.35"_s, u"2.40"_s};
    return ratios;
}

void Show_Video_Format_Dialog(Program& program)
{
    Open_Video_Format_Dialog(program);
    Show_Dialog(program, u"frm_VideoFormatOptions"_s);
    if (program.Video_Format_Dialog.Visible) // closed by neither of its buttons
        btn_VideoFormat_Cancel_Click(program);
    program.Options.chk_VideoFormatOptions.Enabled = program.Settings.Video_Format_Usable;
}

static void Select_Item(Video_Format_Form& form, int item)
{
    form.opt_AspectRatio.Selected = item;
    form.cbo_AspectRatio.Enabled = item == 1;
    form.pic_WidthHeight.Enabled = item == 2;
}

void Open_Video_Format_Dialog(Program& program)
{
    Video_Format_Form& form = program.Video_Format_Dialog;
    JobOptions& options = program.Options;
    const QString& value = options.Video_Format_Value;
    form.cbo_AspectRatio.Items = Aspect_Ratio_List();
    form.Saved_Kind = options.Video_Format_Kind;
    form.Saved_Value = value;
    form.Saved_Usable = program.Settings.Video_Format_Usable;
    form.Visible = true;

    if (value.contains(u'x'))
        options.Video_Format_Kind = 2;
    if (value.isEmpty()) {
        opt_AspectRatio_Click(program, 1);
        return;
    }
    Select_Item(form, options.Video_Format_Kind == 2 ? 2 : 1);
    if (options.Video_Format_Kind == 1)
        form.cbo_AspectRatio.Text = value;
    if (options.Video_Format_Kind == 2) {
        const QStringList sizes = Split_Text(value, u"x"_s);
        form.txt_Width.Text = sizes.value(0);
        form.txt_Height.Text = sizes.value(1);
    }
}

void opt_AspectRatio_Click(Program& program, int item)
{
    Select_Item(program.Video_Format_Dialog, item);
    program.Options.Video_Format_Kind = static_cast<std::int16_t>(item);
}

static bool Is_Digit_Or_Backspace(QChar key)
{
    return (key >= u'0' && key <= u'9') || key == u'\b';
}

bool Aspect_Key_Allowed(QChar key)
{
    return Is_Digit_Or_Backspace(key) || key == u'.' || key == u'/';
}

bool Size_Key_Allowed(QChar key)
{
    return Is_Digit_Or_Backspace(key) || key == u'.';
}

void btn_VideoFormat_Done_Click(Program& program)
{
    Video_Format_Form& form = program.Video_Format_Dialog;
    std::int16_t& kind = program.Options.Video_Format_Kind;
    QString& value = program.Options.Video_Format_Value;
    bool& usable = program.Settings.Video_Format_Usable;
    usable = false;
    value.clear();
    if (kind == 1 && form.cbo_AspectRatio.Text != u"NONE"_s) {
        value = form.cbo_AspectRatio.Text;
        usable = true;
    } else if (kind == 2) {
        // Deliberate: a bad size leaves kind 2 with an empty value; a box that is ticked stays so, but disabled.
        if (Is_All_Digits(form.txt_Width.Text) && Is_All_Digits(form.txt_Height.Text)) {
            value = form.txt_Width.Text + u"x"_s + form.txt_Height.Text;
            usable = true;
        }
    } else {
        kind = 0;
    }
    form.Visible = false;
}

void btn_VideoFormat_Cancel_Click(Program& program)
{
    Video_Format_Form& form = program.Video_Format_Dialog;
    program.Options.Video_Format_Kind = form.Saved_Kind;
    program.Options.Video_Format_Value = form.Saved_Value;
    program.Settings.Video_Format_Usable = form.Saved_Usable;
    form.Visible = false;
}
