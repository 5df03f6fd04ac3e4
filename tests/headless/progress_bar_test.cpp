#include "common/test_program.h"

#include "headless/memory_stream.h"
#include "headless/progress_bar.h"

static Bar_Facts Facts(int percent, const QString& name)
{
    return {.Index = 17, .Files = 40, .Percent = percent, .Name = name};
}

TEST(Progress_Bar, TextFitsTheColumns)
{
    Bar_Facts facts = Facts(43, u"film"_s);
    EXPECT_EQ(Bar_Text(facts, 59), u"17/40 43% film"_s);
    facts.Bytes_A_Second = 210e6;
    facts.Seconds_Left = 190;
    EXPECT_EQ(Bar_Text(facts, 59), u"17/40 43% 210 MB/s 0:03:10 film"_s);
    EXPECT_EQ(Bar_Text(facts, 60), u"[########            ] 17/40 43% 210 MB/s 0:03:10 film"_s);
    EXPECT_EQ(Bar_Text(facts, 20).size(), 20);
    EXPECT_EQ(Bar_Text(Facts(0, u"漢字漢字"_s), 14).sliced(9), u"漢字"_s) << "each takes two columns";
    EXPECT_EQ(Bar_Text(Facts(0, u"😀😀"_s), 14).sliced(9), u"😀"_s) << "no half of a pair";
    EXPECT_EQ(Bar_Text(Facts(-5, {}), 80).count(u'#'), 0);
    EXPECT_EQ(Bar_Text(Facts(1000, {}), 300).count(u'#'), 60);
}

TEST(Progress_Bar, DrawsNothingWhereNoTerminalIs)
{
    Memory_Stream no_terminal;
    {
        Progress_Bar bar(no_terminal.Stream(), true);
        bar.Show(Facts(50, u"film"_s));
    }
    EXPECT_TRUE(no_terminal.Text().isEmpty());
}
