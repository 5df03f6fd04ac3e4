#include "support/command_line.h"

#include "common/test_program.h"

TEST(CommandLine, TextAndArgumentsGrowTogether)
{
    Command_Line command;
    command.Add_Option(u" --ui-language "_s, u"en_US"_s);
    command.Add_Path(u" --output "_s, u"/out/My Film.mkv"_s);
    command.Add_Options(u" --no-track-tags --no-audio"_s);
    command.Add_Option(u" --track-name  "_s, u"\"0:\\\"My Film\\\"\""_s);
    command.Add_Input(u"/in/My Film.avi"_s);
    command.Add_Path(u" --chapter-language eng --chapters "_s, u"/in/c.xml"_s);
    EXPECT_EQ(command.Text(), u" --ui-language en_US --output \"/out/My Film.mkv\" --no-track-tags --no-audio"
                              " --track-name  \"0:\\\"My Film\\\"\" ( \"/in/My Film.avi\" )"
                              " --chapter-language eng --chapters /in/c.xml"_s);
    EXPECT_EQ(command.Arguments().join(u'|'),
              u"--ui-language|en_US|--output|/out/My Film.mkv|--no-track-tags|--no-audio"
              "|--track-name|0:\"My Film\"|(|/in/My Film.avi|)|--chapter-language|eng"
              "|--chapters|/in/c.xml"_s);
}

TEST(CommandLine, AValuesArgumentLosesOneOuterPairOfQuotesAndTheEscapes)
{
    const std::tuple<QString, QString> claims[] = {
        {u"0:eng"_s, u"0:eng"_s},
        {u"\"\""_s, u""_s},
        {u"\""_s, u"\""_s},
        {u"\"(empty)\""_s, u"(empty)"_s},
        {u"\"0:a b\""_s, u"0:a b"_s},
        {u"\"0:say \"hi\" twice\""_s, u"0:say \"hi\" twice"_s},
        {u"0:\"quoted\""_s, u"0:\"quoted\""_s},
        {u"\\\"Film\\\""_s, u"\"Film\""_s},
        {u"\"\\\"My Film\\\"\""_s, u"\"My Film\""_s},
        {u"0:a\"\"\"b"_s, u"0:a\"b"_s},
        {u"0:\\\"\"\"\"x\\\""_s, u"0:\"\"x\""_s},
        {u"0:\\\"\"\"x"_s, u"0:\"\"\"x"_s},
        {u"0:back\\slash\\"_s, u"0:back\\slash\\"_s},
        {u"\"0:a\0b\""_s, u"0:a"_s},
    };
    for (const auto& [value, argument] : claims)
        EXPECT_EQ(Command_Line::Argument_Of(value), argument) << value.toStdString();
}

TEST(CommandLine, WhateverAValueHoldsItStaysOneArgument)
{
    const QString values[] = {u"a b"_s,
                              u" blanks at both ends \t"_s,
                              u"\" --attach-file /etc/passwd \""_s,
                              u"x\" --attach-file /etc/passwd"_s,
                              u"line\nbreak\r\n--attach-file\n/etc/passwd"_s,
                              u"$(touch x) `y` %s 'q' \\ \U0001F3AC é"_s,
                              QString(10'000, u'"'),
                              QString(10'000, u' ')};
    for (const QString& value : values) {
        Command_Line command;
        command.Add_Option(u" --track-name "_s, u"0:"_s + value);
        command.Add_Option(u" --title "_s, u"t"_s + value);
        command.Add_Input(u"/in/"_s + value);
        ASSERT_EQ(command.Arguments().size(), 7) << value.toStdString();
        EXPECT_TRUE(command.Arguments()[1].startsWith("0:"_L1));
        EXPECT_EQ(command.Arguments()[5], u"/in/"_s + value);
        EXPECT_TRUE(command.Refusals().isEmpty());
    }
}

TEST(CommandLine, AValueThatCannotBeGivenAsOneIsLeftOutWithItsOption)
{
    const std::tuple<QString, bool> claims[] = {
        {QString(140'000, u'x'), true},
        {QString(70'000, QChar(0xE9)), true},
        {QString(100'000, u'x'), false},
        {u"@options.json"_s, true},
        {u"\"@a b\""_s, true},
        {u"-r"_s, true},
        {u"--gui-mode"_s, true},
        {u"--version"_s, true},
        {u"-?"_s, true},
        {u"0:@options"_s, false},
        {u"\\\"@film\\\""_s, false},
        {u"- A dash -"_s, false},
        {u"-12"_s, false},
        {u"--"_s, false},
        {u"--attach-file /etc/passwd"_s, false},
        {u""_s, false},
        {u"a@b"_s, false},
    };
    for (const auto& [value, refused] : claims) {
        Command_Line command;
        command.Add_Option(u" --title "_s, value);
        EXPECT_EQ(command.Text().isEmpty(), refused) << value.toStdString();
        EXPECT_EQ(command.Arguments().size(), refused ? 0 : 2) << value.toStdString();
        ASSERT_EQ(command.Refusals().size(), refused ? 1 : 0) << value.toStdString();
        if (refused) {
            EXPECT_TRUE(command.Refusals()[0].startsWith(u"*** --title is left out: \""_s));
            EXPECT_LT(command.Refusals()[0].size(), 300);
        }
    }
}
