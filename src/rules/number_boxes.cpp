#include "rules/number_boxes.h"

#include "rules/option_rules.h"
#include "state/program.h"
#include "support/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void Enable_Number_Box(Panel& panel, Text_Box& box, bool on)
{
    panel.Enabled = on;
    box.Enabled = on;
    box.Active = on;
}

static void Set_Text_Caret_Last(Text_Box& box, const QString& text)
{
    box.Text = text;
    box.Caret = static_cast<int>(text.size());
}

/// Takes `text` with the caret at `caret`, or as near as it gets.
static void Set_Text_And_Caret(Text_Box& box, const QString& text, int caret)
{
    box.Text = text;
    box.Caret = std::clamp(caret, 0, static_cast<int>(text.size()));
}

static void Take_Good(Text_Box& box, QString& last_good, qsizetype longest)
{
    last_good = box.Text.left(longest);
    Set_Text_And_Caret(box, last_good, box.Caret);
}

static void Return_To_Good(Text_Box& box, const QString& last_good)
{
    const bool same_length = last_good.size() == box.Text.size();
    Set_Text_And_Caret(box, last_good, same_length ? box.Caret : box.Caret - 1);
}

void Apply_Delay_Rule(Text_Box& box, QString& last_good)
{
    const QString& text = box.Text;
    if (text.isEmpty())
        last_good = u""_s; // the box may be empty: a letter that is typed next leaves it so
    if (text.isEmpty() || text == u"-"_s || text == u"0"_s)
        return;
    if (text == u"--"_s || text == u"-0"_s)
        Set_Text_Caret_Last(box, u"-"_s);
    else if (text == u"00"_s)
        Set_Text_Caret_Last(box, u"0"_s);
    else if (Is_Signed_Number(text))
        Take_Good(box, last_good, text.startsWith(u'-') ? 6 : 5);
    else
        Return_To_Good(box, last_good);
}

void Apply_Split_Rule(Text_Box& box, QString& last_good)
{
    const QString& text = box.Text;
    if (text.isEmpty() || text == u"-"_s || text == u"--"_s || text == u"---"_s)
        return;
    if (text == u"-0"_s)
        Set_Text_Caret_Last(box, u"10"_s);
    else if (text == u"0"_s)
        Set_Text_And_Caret(box, u"1"_s, box.Caret);
    else if (text == u"00"_s)
        Set_Text_Caret_Last(box, u"1"_s);
    else if (Is_Signed_Number(text))
        Take_Good(box, last_good, 3);
    else
        Return_To_Good(box, last_good);
}

/// True while the boxes' rules work.
static bool Rules_Work(const Main_Form& form)
{
    return form.Options_Ready && !form.Closing;
}

/// Before anything was typed, what was loaded is the text to return to.
static void Begin_With(QString& last_good, const QString& stored)
{
    if (last_good.isNull())
        last_good = stored;
}

void txt_AudioDelayValue_Change(Program& program)
{
    if (!Rules_Work(program.Form))
        return;
    Begin_With(program.Form.Audio_Delay_Last_Good, program.Options.Audio_Delay);
    Apply_Delay_Rule(program.Form.txt_AudioDelayValue, program.Form.Audio_Delay_Last_Good);
}

void txt_AudioDelayValue_Key(Program& program, Number_Key key)
{
    if (!Rules_Work(program.Form))
        return;
    Text_Box& box = program.Form.txt_AudioDelayValue;
    switch (key) {
    case Number_Key::Escape:
        Set_Text_Caret_Last(box, program.Options.Audio_Delay);
        // A text that is put there is a change like one that is typed: it is what the next bad key returns to.
        Apply_Delay_Rule(box, program.Form.Audio_Delay_Last_Good);
        break;
    case Number_Key::Backspace:
        program.Options.Audio_Delay = box.Text;
        break;
    case Number_Key::Enter:
        Default_Run(program);
        txt_AudioDelayValue_LostFocus(program);
        break;
    }
}

void txt_AudioDelayValue_LostFocus(Program& program)
{
    if (!Rules_Work(program.Form))
        return;
    program.Options.Audio_Delay = program.Form.txt_AudioDelayValue.Text;
    // Deliberate: only the empty text unticks the option, "-" alone stays; the panel isn't disabled with it.
    if (!program.Options.Audio_Delay.isEmpty())
        return;
    program.Form.Delay_Toggle = false;
    program.Options.chk_AudioDelayAdjust.Value = 0;
}

/// Empty and anything below ten minutes is no length for a piece.
static bool Too_Short(const QString& minutes)
{
    return minutes.isEmpty() || Number_Prefix(minutes) < 10;
}

void txt_SplitVideosValue_Change(Program& program)
{
    if (!Rules_Work(program.Form))
        return;
    Begin_With(program.Form.Split_Minutes_Last_Good, program.Options.Split_Minutes);
    Apply_Split_Rule(program.Form.txt_SplitVideosValue, program.Form.Split_Minutes_Last_Good);
}

void txt_SplitVideosValue_Key(Program& program, Number_Key key)
{
    if (!Rules_Work(program.Form))
        return;
    Text_Box& box = program.Form.txt_SplitVideosValue;
    QString& minutes = program.Options.Split_Minutes;
    switch (key) {
    case Number_Key::Escape:
        if (minutes.isEmpty())
            minutes = u"30"_s;
        Set_Text_Caret_Last(box, minutes);
        Apply_Split_Rule(box, program.Form.Split_Minutes_Last_Good);
        break;
    case Number_Key::Backspace:
        minutes = box.Text;
        break;
    case Number_Key::Enter:
        if (Too_Short(box.Text))
            Set_Text_Caret_Last(box, u"10"_s);
        Apply_Split_Rule(box, program.Form.Split_Minutes_Last_Good);
        minutes = box.Text;
        break;
    }
}

void txt_SplitVideosValue_LostFocus(Program& program)
{
    if (!Rules_Work(program.Form))
        return;
    QString& minutes = program.Options.Split_Minutes;
    minutes = program.Form.txt_SplitVideosValue.Text;
    if (!Too_Short(minutes))
        return;
    minutes = u"30"_s; // Deliberate: with Enter it becomes 10.
    Set_Text_Caret_Last(program.Form.txt_SplitVideosValue, minutes);
    Apply_Split_Rule(program.Form.txt_SplitVideosValue, program.Form.Split_Minutes_Last_Good);
}
