#include "rules/option_rules.h"

#include "common/test_program.h"
#include "rules/click_rules.h"
#include "rules/control_states.h"
#include "settings/filter_modes.h"

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

/// A program after its first activation.
struct OptionRules : testing::Test, Test_Program
{
    OptionRules() { Prog.Form.Options_Ready = true; }

    struct Claim
    {
        QString Box;     ///< whose rule runs
        QString Before;  ///< states put over those of a fresh program, the box's new value among them
        QString Changed; ///< what the rule changes; all else stays
    };

    void Hold(const std::vector<Claim>& claims, const std::function<void(Program&)>& prepare = {})
    {
        for (const Claim& claim : claims) {
            Test_Program test;
            test.Prog.Form.Options_Ready = true;
            if (prepare)
                prepare(test.Prog);
            Put_States(test.Prog, claim.Before);
            const Control_States before = States_Of(test.Prog);
            const Click_Rule* rule = Find_Click_Rule(u"chk_"_s + claim.Box);
            ASSERT_NE(rule, nullptr) << claim.Box.toStdString();
            rule->Rule(test.Prog);
            EXPECT_EQ(Difference(With_States(before, claim.Changed), States_Of(test.Prog)), u""_s)
                << claim.Box.toStdString() << ": " << claim.Before.toStdString();
        }
    }
};

static void With_Languages(Program& program)
{
    program.Options.AudioFilter.Languages = program.Options.SubsFilter.Languages = u"German (ger)"_s;
    program.Options.AudioFilter.Count = program.Options.SubsFilter.Count = 1;
}

TEST_F(OptionRules, StrippingShutsOutWhatItMakesPointless)
{
    Hold({
        {u"StripOrigAudio"_s, u"StripOrigAudio=1"_s,
         u"StripOrigAudioTitle- CustomAudioFilter- EngAudioOnly- AudioDelayAdjust- DelayPanel- DelayActive- AudioMode=1"_s},
        {u"StripOrigAudio"_s, u"StripOrigAudioTitle- CustomAudioFilter- EngAudioOnly- AudioDelayAdjust- DelayPanel-"_s,
         u"StripOrigAudioTitle+ EngAudioOnly+ AudioDelayAdjust+"_s},
        {u"StripOrigAudio"_s, u"AudioDelayAdjust=1 DelayPanel- DelayActive-"_s,
         u"CustomAudioFilter- DelayPanel+ DelayActive+"_s},
        {u"StripOrigAudio"_s, u"EngAudioOnly=1 EngAudioOnly-"_s, u"EngAudioOnly+ CustomAudioFilter- AudioMode=2"_s},
        {u"StripOrigSubs"_s, u"StripOrigSubs=1"_s,
         u"StripOrigSubsTitle- CustomSubsFilter- EngSubsOnly- SubDefaults- SubForces- SubsMode=1"_s},
        {u"StripOrigSubs"_s, u"StripOrigSubsTitle- CustomSubsFilter- EngSubsOnly- SubDefaults- SubForces-"_s,
         u"StripOrigSubsTitle+ EngSubsOnly+ SubDefaults+ SubForces+"_s},
    });
    Hold(
        {
            {u"StripOrigAudio"_s, u"CustomAudioFilter-"_s, u"CustomAudioFilter+"_s},
            {u"StripOrigAudio"_s, u"CustomAudioFilter=1 CustomAudioFilter-"_s,
             u"CustomAudioFilter+ EngAudioOnly- AudioMode=3"_s},
            {u"StripOrigSubs"_s, u"CustomSubsFilter=1 CustomSubsFilter- SubsKeep=1"_s,
             u"CustomSubsFilter+ EngSubsOnly- SubsMode=3 SubsKeep=0"_s},
            {u"StripOrigSubs"_s, u"EngSubsOnly=1 SubsKeep=1"_s, u"CustomSubsFilter- SubsMode=2"_s},
        },
        With_Languages);
}

TEST_F(OptionRules, TheCustomFilterAndEnglishOnlyShutEachOtherOut)
{
    Hold(
        {
            {u"CustomAudioFilter"_s, u"CustomAudioFilter=1"_s, u"EngAudioOnly- AudioMode=3"_s},
            {u"CustomAudioFilter"_s, u"EngAudioOnly-"_s, u"EngAudioOnly+"_s},
            {u"EngAudioOnly"_s, u"EngAudioOnly=1"_s, u"CustomAudioFilter- AudioMode=2"_s},
            {u"EngAudioOnly"_s, u"CustomAudioFilter-"_s, u"CustomAudioFilter+"_s},
            {u"CustomSubsFilter"_s, u"CustomSubsFilter=1"_s, u"EngSubsOnly- SubsMode=3"_s},
            {u"CustomSubsFilter"_s, u"EngSubsOnly-"_s, u"EngSubsOnly+"_s},
            {u"EngSubsOnly"_s, u"EngSubsOnly=1"_s, u"CustomSubsFilter- SubsMode=2"_s},
            {u"EngSubsOnly"_s, u"CustomSubsFilter-"_s, u"CustomSubsFilter+"_s},
        },
        With_Languages);
}

TEST_F(OptionRules, AFilterWithoutALanguageCanBeNeitherTickedNorReached)
{
    Hold({
        {u"CustomAudioFilter"_s, u"CustomAudioFilter=1"_s, u"CustomAudioFilter=0 CustomAudioFilter- EngAudioOnly-"_s},
        {u"EngAudioOnly"_s, u"EngAudioOnly=1"_s, u"CustomAudioFilter- AudioMode=2"_s},
        {u"EngAudioOnly"_s, u"CustomAudioFilter=1"_s, u"CustomAudioFilter=0 CustomAudioFilter-"_s},
        {u"CustomSubsFilter"_s, u"CustomSubsFilter=1"_s, u"CustomSubsFilter=0 CustomSubsFilter- EngSubsOnly-"_s},
        {u"EngSubsOnly"_s, u"CustomSubsFilter=1"_s, u"CustomSubsFilter=0 CustomSubsFilter-"_s},
    });
}

TEST_F(OptionRules, OptionFilesNeedAddedFilesAndTheirDefaultsNeedOptionFiles)
{
    Hold({
        {u"AddAudio"_s, u"AddAudio=1 UseAudioOpts- ApplyDefaultAudioOpts-"_s, u"UseAudioOpts+"_s},
        {u"AddAudio"_s, u"AddAudio=1 UseAudioOpts=1 UseAudioOpts- ApplyDefaultAudioOpts-"_s,
         u"UseAudioOpts+ ApplyDefaultAudioOpts+ AudioDiagram+"_s},
        {u"AddAudio"_s, u"UseAudioOpts=1 AudioDiagram+"_s, u"UseAudioOpts- ApplyDefaultAudioOpts- AudioDiagram-"_s},
        {u"UseAudioOpts"_s, u"UseAudioOpts=1 ApplyDefaultAudioOpts-"_s, u"ApplyDefaultAudioOpts+ AudioDiagram+"_s},
        {u"UseAudioOpts"_s, u"ApplyDefaultAudioOpts=1 AudioDiagram+"_s, u"ApplyDefaultAudioOpts- AudioDiagram-"_s},
        {u"AddSubs"_s, u"AddSubs=1 UseSubOpts- ApplyDefaultSubOpts-"_s, u"UseSubOpts+"_s},
        {u"AddSubs"_s, u"AddSubs=1 UseSubOpts=1 UseSubOpts- ApplyDefaultSubOpts-"_s,
         u"UseSubOpts+ ApplyDefaultSubOpts+ SubsDiagram+"_s},
        {u"AddSubs"_s, u"UseSubOpts=1 SubsDiagram+"_s, u"UseSubOpts- ApplyDefaultSubOpts- SubsDiagram-"_s},
        {u"UseSubOpts"_s, u"UseSubOpts=1 ApplyDefaultSubOpts-"_s, u"ApplyDefaultSubOpts+ SubsDiagram+"_s},
        {u"UseSubOpts"_s, u"SubsDiagram+"_s, u"ApplyDefaultSubOpts- SubsDiagram-"_s},
    });
}

TEST_F(OptionRules, RemoveAndCustomTitlesShutOutTheSetTitle)
{
    for (const QString& kind : {u"File"_s, u"Video"_s}) {
        const auto claim = [&kind](const QString& box, QString before, QString changed) {
            return Claim{QString(box).arg(kind), before.replace(u"%1"_s, kind), changed.replace(u"%1"_s, kind)};
        };
        Hold({
            claim(u"Set%1Title"_s, u"Set%1Title=1 %1Choice-"_s, u"%1Choice+"_s),
            claim(u"Set%1Title"_s, u""_s, u"%1Choice-"_s),
            claim(u"Remove%1Title"_s, u"Remove%1Title=1"_s, u"Custom%1Title- Set%1Title- %1Choice-"_s),
            claim(u"Remove%1Title"_s, u"Custom%1Title=1 Custom%1Title- Set%1Title- Set%1Title=1 %1Choice-"_s,
                  u"Custom%1Title+"_s),
            claim(u"Remove%1Title"_s, u"Custom%1Title- Set%1Title- %1Choice-"_s, u"Custom%1Title+ Set%1Title+"_s),
            claim(u"Remove%1Title"_s, u"Custom%1Title- Set%1Title- Set%1Title=1 %1Choice-"_s,
                  u"Custom%1Title+ Set%1Title+ %1Choice+"_s),
            claim(u"Custom%1Title"_s, u"Custom%1Title=1"_s, u"Set%1Title- %1Choice-"_s),
            claim(u"Custom%1Title"_s, u"Set%1Title- %1Choice-"_s, u"Set%1Title+"_s),
            claim(u"Custom%1Title"_s, u"Set%1Title=1 Set%1Title- %1Choice-"_s, u"Set%1Title+ %1Choice+"_s),
        });
    }
    opt_SetFileTitle_Click(Prog, 2);
    opt_SetVideoTitle_Click(Prog, 1);
    EXPECT_EQ(Prog.Options.opt_SetFileTitle.Selected, 2);
    EXPECT_EQ(Prog.Options.opt_SetVideoTitle.Selected, 1);
}

TEST_F(OptionRules, OtherBoxesDriveTheirMirrorsAndPanels)
{
    Hold({
        {u"DeleteVideoAP"_s, u"DeleteVideoAP=1"_s, u"DeleteAfter+"_s},
        {u"DeleteVideoAP"_s, u"DeleteAfter+"_s, u"DeleteAfter-"_s},
        {u"AddAttachments"_s, u"AddAttachments=1"_s, u"AttachmentsOn+"_s},
        {u"AddAttachments"_s, u"AttachmentsOn+"_s, u"AttachmentsOn-"_s},
        {u"UseSubfolders"_s, u"UseSubfolders=1"_s, u"Subfolders+"_s},
        {u"UseSubfolders"_s, u"Subfolders+"_s, u"Subfolders-"_s},
        {u"SplitVideos"_s, u"SplitVideos=1 SplitPanel- SplitBox- SplitActive-"_s,
         u"SplitPanel+ SplitBox+ SplitActive+"_s},
        {u"SplitVideos"_s, u""_s, u"SplitPanel- SplitBox- SplitActive-"_s},
        {u"AudioPath"_s, u"AudioPath=1"_s, u"AudioPanel+"_s},
        {u"SubsPath"_s, u"SubsPath=1"_s, u"SubsPanel+"_s},
        {u"ChaptersPath"_s, u"ChaptersPanel+"_s, u"ChaptersPanel-"_s},
    });
}

TEST_F(OptionRules, TheRightButtonFlipsTheWordOfDefaultsAndForces)
{
    JobOptions& options = Prog.Options;
    chk_SubDefaults_Right_Click(Prog);
    chk_SubForces_Right_Click(Prog);
    EXPECT_EQ(options.chk_SubDefaults.Caption, u"Set All Subtitles defaults to \"yes\""_s);
    EXPECT_EQ(options.chk_SubDefaults.Tag, u"yes"_s);
    EXPECT_EQ(options.chk_SubForces.Caption, u"Set All Subtitles forces to \"yes\""_s);
    chk_SubDefaults_Right_Click(Prog);
    EXPECT_EQ(options.chk_SubDefaults.Caption, u"Set All Subtitles defaults to \"no\""_s);
    EXPECT_EQ(options.chk_SubDefaults.Value, 0);
}

TEST_F(OptionRules, EveryRuleWaitsForTheFirstActivationAndThenParksTheFocus)
{
    for (const Click_Rule& rule : Click_Rules()) {
        if (rule.Name == u"chk_UseSubfolders"_s) // stands on a form of its own, without that guard
            continue;
        Test_Program test;
        With_Languages(test.Prog);
        (test.Prog.Options.*rule.Box).Value = 1;
        const Control_States before = States_Of(test.Prog);
        rule.Rule(test.Prog);
        EXPECT_EQ(Difference(before, States_Of(test.Prog)), u""_s) << rule.Name.toStdString();
        EXPECT_EQ(test.Prog.Form.Focus, u""_s) << rule.Name.toStdString();
        test.Prog.Form.Options_Ready = true;
        rule.Rule(test.Prog);
        EXPECT_EQ(test.Prog.Form.Focus, u"btn_NOP"_s) << rule.Name.toStdString();
    }
    Prog.Form.Closing = true;
    Prog.Options.chk_SetFileTitle.Value = Prog.Options.chk_SetVideoTitle.Value = 0;
    chk_SetFileTitle_Click(Prog);
    chk_SetVideoTitle_Click(Prog);
    EXPECT_TRUE(Prog.Options.opt_SetFileTitle.Enabled);
    EXPECT_TRUE(Prog.Options.opt_SetVideoTitle.Enabled);
}

TEST_F(OptionRules, AClickFlipsTheBoxAndADisabledBoxIsNotClicked)
{
    const Click_Rule& rule = *Find_Click_Rule(u"chk_DeleteVideoAP"_s);
    for (const int value : {0, 1, 2}) {
        Prog.Options.chk_DeleteVideoAP.Value = value;
        EXPECT_TRUE(Click(Prog, rule));
        EXPECT_EQ(Prog.Options.chk_DeleteVideoAP.Value, value == 0 ? 1 : 0);
        EXPECT_EQ(Prog.Options.Delete_Video_After, value == 0);
    }
    Prog.Options.chk_DeleteVideoAP.Enabled = false;
    EXPECT_FALSE(Click(Prog, rule));
    EXPECT_EQ(Prog.Options.chk_DeleteVideoAP.Value, 0);
    EXPECT_EQ(Find_Click_Rule(u"chk_None"_s), nullptr);
    std::set<QString> names;
    for (const Click_Rule& row : Click_Rules())
        names.insert(row.Name);
    EXPECT_EQ(names.size(), Click_Rules().size());
}
