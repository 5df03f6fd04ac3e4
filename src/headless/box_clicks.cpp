#include "headless/box_clicks.h"

#include "headless/bad_usage.h"
#include "headless/nearest_name.h"
#include "rules/click_rules.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

/// What every box's name begins with.
static const QString Box_Prefix = QStringLiteral("chk_");

static QString Option_Name(const Box_Click& click)
{
    return click.Tick ? u"--tick"_s : u"--untick"_s;
}

/// A box goes by its name in any case, with or without what all names begin with.
static bool Is_Named(const Click_Rule& rule, const QString& typed)
{
    const QString name = typed.toLower();
    const QString full = rule.Name.toLower();
    return full == name || full == Box_Prefix + name;
}

static const Click_Rule& Rule_Of(const Box_Click& click)
{
    QStringList names;
    for (const Click_Rule& rule : Click_Rules()) {
        if (Is_Named(rule, click.Name))
            return rule;
        names += rule.Name.mid(Box_Prefix.size());
    }
    const QString typed =
        click.Name.startsWith(Box_Prefix, Qt::CaseInsensitive) ? click.Name.mid(Box_Prefix.size()) : click.Name;
    const QString guess = Did_You_Mean(typed, names);
    throw Bad_Usage{u"%1: there is no check box \"%2\"."_s.arg(Option_Name(click), click.Name) +
                    (guess.isEmpty() ? u" There are: "_s + names.join(u", "_s) : guess)};
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
