#include "headless/box_clicks.h"

#include "headless/bad_usage.h"
#include "rules/click_rules.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

static QString Option_Name(const Box_Click& click)
{
    return click.Tick ? u"--tick"_s : u"--untick"_s;
}

static const Click_Rule& Rule_Of(const Box_Click& click)
{
    if (const Click_Rule* const rule = Find_Click_Rule(click.Name))
        return *rule;
    QStringList names;
    for (const Click_Rule& rule : Click_Rules())
        names += rule.Name;
    throw Bad_Usage{
        u"%1: there is no check box \"%2\". There are: %3"_s.arg(Option_Name(click), click.Name, names.join(u", "_s))};
}

void Check_Box_Names(const std::vector<Box_Click>& clicks)
{
    for (const Box_Click& click : clicks)
        Rule_Of(click);
}

void Click_Boxes(Program& program, const std::vector<Box_Click>& clicks)
{
    for (const Box_Click& click : clicks) {
        const Click_Rule& rule = Rule_Of(click);
        const Check_Box& box = program.Options.*rule.Box;
        // A box that a bad word in the settings left neither ticked nor unticked takes two clicks to be ticked.
        for (int clicked = 0; clicked < 2 && box.Value != (click.Tick ? 1 : 0); ++clicked)
            if (!Click(program, rule))
                throw Bad_Usage{u"%1: the check box %2 (%3) is disabled by the other options."_s.arg(
                    Option_Name(click), click.Name, box.Caption)};
    }
}
