#include "life/hand_clicks.h"

#include "life/menu_commands.h"
#include "rules/click_rules.h"
#include "state/program.h"

void Click_By_Hand(Program& program, const Click_Rule& rule)
{
    if (!Click(program, rule) || !program.Form.Options_Ready || (program.Options.*rule.Box).Value != 1)
        return;
    if (rule.Box == &JobOptions::chk_CustomFileTitle && program.Options.Custom_File_Title.isEmpty())
        mnu_CustomFileTitle_Click(program);
    if (rule.Box == &JobOptions::chk_CustomVideoTitle && program.Options.Custom_Video_Title.isEmpty())
        mnu_CustomVideoTitle_Click(program);
}
