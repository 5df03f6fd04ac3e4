#include "rules/option_rules.h"

#include "rules/number_boxes.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

void Default_Run(Program& program)
{
    program.Form.Focus = u"btn_NOP"_s;
}

void Keep_On_Top(Program& program, bool on)
{
    program.Person.Set_Topmost(on);
}

void Show_Dialog(Program& program, const QString& form)
{
    if (program.Form.Topmost_On)
        Keep_On_Top(program, false);
    program.Person.Show_Modal(form);
    if (program.Form.Topmost_On)
        Keep_On_Top(program, true);
}

void chk_ReplaceChapters_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    JobOptions& options = program.Options;
    const bool ticked = options.chk_ReplaceChapters.Value == 1;
    options.chk_ConvertTXT.Enabled = ticked;
    options.lbl_ChapsFormat.Enabled = ticked && options.chk_ConvertTXT.Value == 1;
    Default_Run(program);
}

void chk_ConvertTXT_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    program.Options.lbl_ChapsFormat.Enabled = program.Options.chk_ConvertTXT.Value != 0;
    Default_Run(program);
}

void lbl_ChapsFormat_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    QString& caption = program.Options.lbl_ChapsFormat.Caption;
    const bool hundredths = caption == u"HH:MM:SS.ff"_s;
    caption = hundredths ? u"HH:MM:SS.hh(h)"_s : u"HH:MM:SS.ff"_s;
    program.Options.Chapter_Format_Index = hundredths ? 1 : 0;
    Default_Run(program);
}

void chk_AddAttachments_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    program.Options.Add_Attachments_On = program.Options.chk_AddAttachments.Value > 0;
    Default_Run(program);
}

void chk_DeleteVideoAP_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    program.Options.Delete_Video_After = program.Options.chk_DeleteVideoAP.Value > 0;
    Default_Run(program);
}

void chk_SplitVideos_Click(Program& program)
{
    if (!program.Form.Options_Ready)
        return;
    Enable_Number_Box(program.Form.pic_SplitVideosValue, program.Form.txt_SplitVideosValue,
                      program.Options.chk_SplitVideos.Value == 1);
    Default_Run(program);
}

void Only_The_Tick(Program& program)
{
    if (program.Form.Options_Ready)
        Default_Run(program);
}
