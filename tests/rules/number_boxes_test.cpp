#include "rules/number_boxes.h"

#include "common/test_program.h"

/// A program behind its first activation, when the rules of the two boxes have their say.
struct NumberBoxes : testing::Test, Test_Program
{
    NumberBoxes() { Prog.Form.Options_Ready = true; }
};

/// Claims: text, caret and last good text before a change's rule and after it, joined by slashes.
static void Hold(const std::vector<std::pair<QString, QString>>& claims, void (*rule)(Text_Box&, QString&))
{
    for (const auto& [before, after] : claims) {
        Text_Box box{.Text = before.section(u'/', 0, 0), .Caret = before.section(u'/', 1, 1).toInt()};
        QString last_good = before.section(u'/', 2);
        rule(box, last_good);
        EXPECT_EQ(box.Text + u'/' + QString::number(box.Caret) + u'/' + last_good, after) << before.toStdString();
    }
}

TEST_F(NumberBoxes, TheDelayRuleTakesSignedNumbersOfFiveDigits)
{
    // The caret of "x2" stays, as the text is as long as before; the last is no digit of ours.
    Hold(
        {
            {u"/0/5"_s, u"/0/"_s},
            {u"-/1/5"_s, u"-/1/5"_s},
            {u"--/2/5"_s, u"-/1/5"_s},
            {u"-0/2/5"_s, u"-/1/5"_s},
            {u"0/1/5"_s, u"0/1/5"_s},
            {u"00/1/5"_s, u"0/1/5"_s},
            {u"12345/5/1234"_s, u"12345/5/12345"_s},
            {u"123456/6/12345"_s, u"12345/5/12345"_s},
            {u"912345/1/12345"_s, u"91234/1/91234"_s},
            {u"-12345/6/-1234"_s, u"-12345/6/-12345"_s},
            {u"-123456/7/-12345"_s, u"-12345/6/-12345"_s},
            {u"12x34/3/1234"_s, u"1234/2/1234"_s},
            {u"1-2/2/12"_s, u"12/1/12"_s},
            {u"x2/1/12"_s, u"12/1/12"_s},
            {u"x/1/"_s, u"/0/"_s},
            {u"--1/2/-1"_s, u"-1/1/-1"_s},
            {u"1.5/2/15"_s, u"15/1/15"_s},
            {u"٣/1/7"_s, u"7/1/7"_s},
        },
        Apply_Delay_Rule);
}

TEST_F(NumberBoxes, TheSplitRuleTakesNumbersOfThreeDigits)
{
    Hold(
        {
            {u"/0/5"_s, u"/0/5"_s},
            {u"-/1/5"_s, u"-/1/5"_s},
            {u"--/2/5"_s, u"--/2/5"_s},
            {u"---/3/5"_s, u"---/3/5"_s},
            {u"----/4/5"_s, u"5/1/5"_s},
            {u"-0/2/5"_s, u"10/2/5"_s},
            {u"0/1/5"_s, u"1/1/5"_s},
            {u"00/1/5"_s, u"1/1/5"_s},
            {u"999/3/99"_s, u"999/3/999"_s},
            {u"1234/4/123"_s, u"123/3/123"_s},
            {u"-12/3/5"_s, u"-12/3/-12"_s},
            {u"3o/2/3"_s, u"3/1/3"_s},
        },
        Apply_Split_Rule);
}

TEST_F(NumberBoxes, LeavingAnEmptyDelayBoxUnticksTheOption)
{
    for (const QString& text : {u""_s, u"-"_s, u"20"_s}) {
        Prog.Form.Delay_Toggle = true;
        Prog.Options.chk_AudioDelayAdjust.Value = 1;
        Prog.Form.txt_AudioDelayValue.Text = text;
        txt_AudioDelayValue_LostFocus(Prog);
        EXPECT_EQ(Prog.Options.Audio_Delay, text);
        EXPECT_EQ(Prog.Form.Delay_Toggle, !text.isEmpty());
        EXPECT_EQ(Prog.Options.chk_AudioDelayAdjust.Value, text.isEmpty() ? 0 : 1);
    }
}

TEST_F(NumberBoxes, KeysOfTheDelayBoxStoreAndRestore)
{
    Text_Box& box = Prog.Form.txt_AudioDelayValue;
    Prog.Options.Audio_Delay = u"500"_s;
    box.Text = u"7"_s;
    txt_AudioDelayValue_Key(Prog, Number_Key::Escape);
    EXPECT_EQ(box.Text, u"500"_s);
    box.Text = u"50"_s;
    txt_AudioDelayValue_Key(Prog, Number_Key::Backspace);
    EXPECT_EQ(Prog.Options.Audio_Delay, u"50"_s);
    box.Text = u"-80"_s;
    txt_AudioDelayValue_Key(Prog, Number_Key::Enter);
    EXPECT_EQ(Prog.Options.Audio_Delay, u"-80"_s);
    EXPECT_EQ(Prog.Form.Focus, u"btn_NOP"_s);
}

TEST_F(NumberBoxes, TheSplitBoxNeverComesToStandBelowTenMinutes)
{
    Text_Box& box = Prog.Form.txt_SplitVideosValue;
    Prog.Options.Split_Minutes = u"45"_s;
    box.Text = u"45x"_s;
    txt_SplitVideosValue_Change(Prog);
    EXPECT_EQ(box.Text, u"45"_s) << "a bad first key returns to what was loaded";
    for (const QString& text : {u""_s, u"7"_s, u"-"_s, u"-50"_s, u"10"_s, u"999"_s}) {
        const bool is_enough = text.toInt() >= 10;
        box.Text = text;
        txt_SplitVideosValue_Key(Prog, Number_Key::Enter);
        EXPECT_EQ(Prog.Options.Split_Minutes, is_enough ? text : u"10"_s);
        EXPECT_EQ(box.Text, Prog.Options.Split_Minutes);
        box.Text = text;
        txt_SplitVideosValue_LostFocus(Prog);
        EXPECT_EQ(Prog.Options.Split_Minutes, is_enough ? text : u"30"_s);
        EXPECT_EQ(box.Text, Prog.Options.Split_Minutes);
    }
    box.Text = u"4"_s;
    txt_SplitVideosValue_Key(Prog, Number_Key::Backspace);
    EXPECT_EQ(Prog.Options.Split_Minutes, u"4"_s);
    txt_SplitVideosValue_Key(Prog, Number_Key::Escape);
    EXPECT_EQ(box.Text, u"4"_s);
    Prog.Options.Split_Minutes.clear();
    txt_SplitVideosValue_Key(Prog, Number_Key::Escape);
    EXPECT_EQ(box.Text, u"30"_s);
}

TEST_F(NumberBoxes, TheRulesRestBeforeTheFirstActivationAndWhileTheFormCloses)
{
    for (const bool closing : {false, true}) {
        Prog.Form.Options_Ready = closing;
        Prog.Form.Closing = closing;
        Prog.Options.Audio_Delay = u"1"_s;
        Prog.Form.txt_AudioDelayValue = {.Text = u"x"_s, .Caret = 1};
        txt_AudioDelayValue_Change(Prog);
        txt_AudioDelayValue_Key(Prog, Number_Key::Enter);
        EXPECT_EQ(Prog.Form.txt_AudioDelayValue.Text, u"x"_s);
        EXPECT_EQ(Prog.Options.Audio_Delay, u"1"_s);
        Prog.Options.Split_Minutes = u"20"_s;
        Prog.Form.txt_SplitVideosValue = {.Text = u"x"_s, .Caret = 1};
        txt_SplitVideosValue_Change(Prog);
        txt_SplitVideosValue_LostFocus(Prog);
        EXPECT_EQ(Prog.Form.txt_SplitVideosValue.Text, u"x"_s);
        EXPECT_EQ(Prog.Options.Split_Minutes, u"20"_s);
    }
}
