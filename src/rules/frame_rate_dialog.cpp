#include "rules/frame_rate_dialog.h"

#include "rules/option_rules.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

const QStringList& Frame_Rate_List()
{
    static const QStringList rates = {
        u"NONE"_s, u"23.976fps"_s, u"24p"_s, u"25p"_s,         u"29.970fps"_s,   u"30p"_s,         u"50i"_s,
        u"50p"_s,  u"60i"_s,       u"60p"_s, u"24000/1001p"_s, u"30000/1001p"_s, u"60000/1001i"_s, u"60000/1001p"_s};
    return rates;
}

void Show_Frame_Rate_Dialog(Program& program)
{
    Open_Frame_Rate_Dialog(program);
    Show_Dialog(program, u"frm_VideoFrameRate"_s);
    program.Frame_Rate_Dialog.Visible = false;
    program.Options.chk_VideoFrameRate.Enabled = program.Settings.Frame_Rate_Usable;
}

void Open_Frame_Rate_Dialog(Program& program)
{
    Frame_Rate_Form& form = program.Frame_Rate_Dialog;
    form.cbo_FrameRate.Items = Frame_Rate_List();
    form.cbo_FrameRate.Text = program.Options.Frame_Rate_Value;
    opt_FrameRate_Click(form, program.Options.Frame_Rate_Kind == 1 ? 1 : 2);
    form.Visible = true;
}

void opt_FrameRate_Click(Frame_Rate_Form& form, int item)
{
    form.opt_FrameRate.Selected = item;
    form.Working_Kind = static_cast<std::int16_t>(item);
    form.cbo_FrameRate.Enabled = item == 2;
}

void btn_FrameRate_Done_Click(Program& program)
{
    Frame_Rate_Form& form = program.Frame_Rate_Dialog;
    JobOptions& options = program.Options;
    const QString& rate = form.cbo_FrameRate.Text;
    const bool found_rate = form.Working_Kind == 1;
    const bool own_rate = form.Working_Kind == 2 && !rate.isEmpty() && rate != u"NONE"_s;

    program.Settings.Frame_Rate_Usable = found_rate || own_rate;
    options.Frame_Rate_Kind = program.Settings.Frame_Rate_Usable ? form.Working_Kind : std::int16_t{0};
    if (!found_rate)
        options.Frame_Rate_Value = own_rate ? rate : QString();
    if (!program.Settings.Frame_Rate_Usable)
        options.chk_VideoFrameRate.Value = 0;
    form.Visible = false;
}

void btn_FrameRate_Cancel_Click(Frame_Rate_Form& form)
{
    form.Visible = false;
}
