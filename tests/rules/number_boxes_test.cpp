#include "rules/number_boxes.h"

#include "common/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// A program behind its first activation, when the rules of the two boxes have their say.
struct NumberBoxes : testing::Test, Test_Program
{
    NumberBoxes() { Prog.Form.Options_Ready = true; }
};

/// What one change of the text comes to.
struct Change_Claim
{
    QString Text;
    int Caret;
    QString Last_Good;
    QString Text_After;
    int Caret_After;
    QString Last_Good_After;
};

static void Hold(const std::vector<Change_Claim>& claims, void (*rule)(Text_Box&, QString&))
{
    for (const Change_Claim& claim : claims) {
        Text_Box box{.Text = claim.Text, .Caret = claim.Caret};
        QString last_good = claim.Last_Good;
        rule(box, last_good);
        EXPECT_EQ(box.Text, claim.Text_After) << claim.Text.toStdString();
        EXPECT_EQ(box.Caret, claim.Caret_After) << claim.Text.toStdString();
        EXPECT_EQ(last_good, claim.Last_Good_After) << claim.Text.toStdString();
    }
}

TEST_F(NumberBoxes, TheDelayRuleTakesSignedNumbersOfFiveDigits)
{
    Hold(
        {
            {u""_s, 0, u"5"_s, u""_s, 0, u""_s},
            {u"-"_s, 1, u"5"_s, u"-"_s, 1, u"5"_s},
            {u"--"_s, 2, u"5"_s, u"-"_s, 1, u"5"_s},
            {u"-0"_s, 2, u"5"_s, u"-"_s, 1, u"5"_s},
            {u"0"_s, 1, u"5"_s, u"0"_s, 1, u"5"_s},
            {u"00"_s, 1, u"5"_s, u"0"_s, 1, u"5"_s},
            {u"12345"_s, 5, u"1234"_s, u"12345"_s, 5, u"12345"_s},
            {u"123456"_s, 6, u"12345"_s, u"12345"_s, 5, u"12345"_s},
            {u"912345"_s, 1, u"12345"_s, u"91234"_s, 1, u"91234"_s},
            {u"-12345"_s, 6, u"-1234"_s, u"-12345"_s, 6, u"-12345"_s},
            {u"-123456"_s, 7, u"-12345"_s, u"-12345"_s, 6, u"-12345"_s},
            {u"12x34"_s, 3, u"1234"_s, u"1234"_s, 2, u"1234"_s},
            {u"1-2"_s, 2, u"12"_s, u"12"_s, 1, u"12"_s},
            {u"x2"_s, 1, u"12"_s, u"12"_s, 1, u"12"_s}, // as long as before: the caret stays
            {u"x"_s, 1, u""_s, u""_s, 0, u""_s},
            {u"--1"_s, 2, u"-1"_s, u"-1"_s, 1, u"-1"_s},
            {u"1.5"_s, 2, u"15"_s, u"15"_s, 1, u"15"_s},
            {u"٣"_s, 1, u"7"_s, u"7"_s, 1, u"7"_s}, // no digit of ours
        },
        Apply_Delay_Rule);
}

TEST_F(NumberBoxes, TheSplitRuleTakesNumbersOfThreeDigits)
{
    Hold(
        {
            {u""_s, 0, u"5"_s, u""_s, 0, u"5"_s},
            {u"-"_s, 1, u"5"_s, u"-"_s, 1, u"5"_s},
            {u"--"_s, 2, u"5"_s, u"--"_s, 2, u"5"_s},
            {u"---"_s, 3, u"5"_s, u"---"_s, 3, u"5"_s},
            {u"----"_s, 4, u"5"_s, u"5"_s, 1, u"5"_s},
            {u"-0"_s, 2, u"5"_s, u"10"_s, 2, u"5"_s},
            {u"0"_s, 1, u"5"_s, u"1"_s, 1, u"5"_s},
            {u"00"_s, 1, u"5"_s, u"1"_s, 1, u"5"_s},
            {u"999"_s, 3, u"99"_s, u"999"_s, 3, u"999"_s},
            {u"1234"_s, 4, u"123"_s, u"123"_s, 3, u"123"_s},
            {u"-12"_s, 3, u"5"_s, u"-12"_s, 3, u"-12"_s},
            {u"3o"_s, 2, u"3"_s, u"3"_s, 1, u"3"_s},
        },
        Apply_Split_Rule);
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
    struct Claim
    {
        QString Text, After_Enter, After_Leaving;
    };

    for (const Claim& claim : {Claim{u""_s, u"10"_s, u"30"_s},
                               {u"7"_s, u"10"_s, u"30"_s},
                               {u"-"_s, u"10"_s, u"30"_s},
                               {u"-50"_s, u"10"_s, u"30"_s},
                               {u"10"_s, u"10"_s, u"10"_s},
                               {u"999"_s, u"999"_s, u"999"_s}}) {
        Text_Box& box = Prog.Form.txt_SplitVideosValue;
        box.Text = claim.Text;
        txt_SplitVideosValue_Key(Prog, Number_Key::Enter);
        EXPECT_EQ(Prog.Options.Split_Minutes, claim.After_Enter);
        EXPECT_EQ(box.Text, claim.After_Enter);
        box.Text = claim.Text;
        txt_SplitVideosValue_LostFocus(Prog);
        EXPECT_EQ(Prog.Options.Split_Minutes, claim.After_Leaving);
        EXPECT_EQ(box.Text, claim.After_Leaving);
    }
    Prog.Form.txt_SplitVideosValue.Text = u"4"_s;
    txt_SplitVideosValue_Key(Prog, Number_Key::Backspace);
    EXPECT_EQ(Prog.Options.Split_Minutes, u"4"_s);
    txt_SplitVideosValue_Key(Prog, Number_Key::Escape);
    EXPECT_EQ(Prog.Form.txt_SplitVideosValue.Text, u"4"_s);
    Prog.Options.Split_Minutes.clear();
    txt_SplitVideosValue_Key(Prog, Number_Key::Escape);
    EXPECT_EQ(Prog.Form.txt_SplitVideosValue.Text, u"30"_s);
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
