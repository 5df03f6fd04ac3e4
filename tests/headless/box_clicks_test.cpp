#include "common/test_program.h"

#include "headless/bad_usage.h"
#include "headless/box_clicks.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

static Box_Click Tick(const QString& name)
{
    return {.Name = name, .Tick = true};
}

static Box_Click Untick(const QString& name)
{
    return {.Name = name, .Tick = false};
}

TEST(Box_Clicks, AClickBringsItsRuleAlong)
{
    Test_Program test;
    test.Prog.Form.Options_Ready = true;
    Click_Boxes(test.Prog, {Tick(u"chk_StripOrigAudio"_s)});
    EXPECT_EQ(test.Prog.Options.chk_StripOrigAudio.Value, 1);
    EXPECT_FALSE(test.Prog.Options.chk_EngAudioOnly.Enabled);
    EXPECT_EQ(test.Prog.Options.AudioFilterMode, 1);

    Click_Boxes(test.Prog, {Untick(u"chk_StripOrigAudio"_s), Tick(u"chk_EngAudioOnly"_s)});
    EXPECT_EQ(test.Prog.Options.AudioFilterMode, 2);
}

TEST(Box_Clicks, ABoxThatIsSoAlreadyIsLeftAlone)
{
    Test_Program test;
    test.Prog.Form.Options_Ready = true;
    Click_Boxes(test.Prog,
                {Untick(u"chk_StripOrigSubs"_s), Tick(u"chk_RemoveAllTags"_s), Tick(u"chk_RemoveAllTags"_s)});
    EXPECT_EQ(test.Prog.Options.chk_StripOrigSubs.Value, 0);
    EXPECT_EQ(test.Prog.Options.chk_RemoveAllTags.Value, 1);

    test.Prog.Options.chk_AddSubs = {.Value = 1, .Enabled = false, .Caption = {}, .Tag = {}};
    EXPECT_NO_THROW(Click_Boxes(test.Prog, {Tick(u"chk_AddSubs"_s)}));
}

TEST(Box_Clicks, ABoxOfABadWordIsTickedOrUnticked)
{
    for (const bool tick : {true, false}) {
        Test_Program test;
        test.Prog.Form.Options_Ready = true;
        test.Prog.Options.chk_RemoveAllTags.Value = 2;
        Click_Boxes(test.Prog, {{.Name = u"chk_RemoveAllTags"_s, .Tick = tick}});
        EXPECT_EQ(test.Prog.Options.chk_RemoveAllTags.Value, tick ? 1 : 0);
    }
}

TEST(Box_Clicks, UnknownAndDisabledBoxesAreBadUsage)
{
    Test_Program test;
    test.Prog.Form.Options_Ready = true;
    EXPECT_THROW(Check_Box_Names({Tick(u"chk_AddAudio"_s), Untick(u"chk_addaudio"_s)}), Bad_Usage);
    EXPECT_NO_THROW(Check_Box_Names({Tick(u"chk_SplitVideos"_s)}));
    EXPECT_THROW(Click_Boxes(test.Prog, {Tick(u"chk_StripOrigAudio"_s), Tick(u"chk_EngAudioOnly"_s)}), Bad_Usage);
}
