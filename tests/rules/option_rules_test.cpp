#include "rules/option_rules.h"

#include "common/test_program.h"
#include "rules/click_rules.h"
#include "rules/control_states.h"
#include "settings/filter_modes.h"

#include <set>

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

    /// Holds the claims with each of `kinds` in the place of "%1".
    void Hold_For(const QStringList& kinds, const std::vector<Claim>& claims,
                  const std::function<void(Program&)>& prepare = {})
    {
        for (const QString& kind : kinds)
            for (Claim claim : claims) {
                for (QString* text : {&claim.Box, &claim.Before, &claim.Changed})
                    text->replace(u"%1"_s, kind);
                Hold({claim}, prepare);
            }
    }

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
    Hold_For({u"Audio"_s, u"Subs"_s},
             {
                 {u"Custom%1Filter"_s, u"Custom%1Filter=1"_s, u"Eng%1Only- %1Mode=3"_s},
                 {u"Custom%1Filter"_s, u"Eng%1Only-"_s, u"Eng%1Only+"_s},
                 {u"Eng%1Only"_s, u"Eng%1Only=1"_s, u"Custom%1Filter- %1Mode=2"_s},
                 {u"Eng%1Only"_s, u"Custom%1Filter-"_s, u"Custom%1Filter+"_s},
             },
             With_Languages);
}

TEST_F(OptionRules, AFilterWithoutALanguageCanBeNeitherTickedNorReached)
{
    Hold_For({u"Audio"_s, u"Subs"_s},
             {
                 {u"Custom%1Filter"_s, u"Custom%1Filter=1"_s, u"Custom%1Filter=0 Custom%1Filter- Eng%1Only-"_s},
                 {u"Eng%1Only"_s, u"Eng%1Only=1"_s, u"Custom%1Filter- %1Mode=2"_s},
                 {u"Eng%1Only"_s, u"Custom%1Filter=1"_s, u"Custom%1Filter=0 Custom%1Filter-"_s},
             });
}

TEST_F(OptionRules, OptionFilesNeedAddedFilesAndTheirDefaultsNeedOptionFiles)
{
    const auto claims = [](const QString& add, const QString& kind, const QString& diagram) {
        const QString use = u"Use"_s + kind + u"Opts"_s;
        const QString defaults = u"ApplyDefault"_s + kind + u"Opts"_s;
        return std::vector<Claim>{
            {add, add + u"=1 %1- %2-"_s.arg(use, defaults), use + u'+'},
            {add, add + u"=1 %1=1 %1- %2-"_s.arg(use, defaults), u"%1+ %2+ %3+"_s.arg(use, defaults, diagram)},
            {add, u"%1=1 %2+"_s.arg(use, diagram), u"%1- %2- %3-"_s.arg(use, defaults, diagram)},
            {use, u"%1=1 %2-"_s.arg(use, defaults), u"%1+ %2+"_s.arg(defaults, diagram)},
            {use, u"%1=1 %2+"_s.arg(defaults, diagram), u"%1- %2-"_s.arg(defaults, diagram)},
        };
    };
    Hold(claims(u"AddAudio"_s, u"Audio"_s, u"AudioDiagram"_s));
    Hold(claims(u"AddSubs"_s, u"Sub"_s, u"SubsDiagram"_s));
}

TEST_F(OptionRules, RemoveAndCustomTitlesShutOutTheSetTitle)
{
    Hold_For({u"File"_s, u"Video"_s},
             {
                 {u"Set%1Title"_s, u"Set%1Title=1 %1Choice-"_s, u"%1Choice+"_s},
                 {u"Set%1Title"_s, u""_s, u"%1Choice-"_s},
                 {u"Remove%1Title"_s, u"Remove%1Title=1"_s, u"Custom%1Title- Set%1Title- %1Choice-"_s},
                 {u"Remove%1Title"_s, u"Custom%1Title=1 Custom%1Title- Set%1Title- Set%1Title=1 %1Choice-"_s,
                  u"Custom%1Title+"_s},
                 {u"Remove%1Title"_s, u"Custom%1Title- Set%1Title- %1Choice-"_s, u"Custom%1Title+ Set%1Title+"_s},
                 {u"Remove%1Title"_s, u"Custom%1Title- Set%1Title- Set%1Title=1 %1Choice-"_s,
                  u"Custom%1Title+ Set%1Title+ %1Choice+"_s},
                 {u"Custom%1Title"_s, u"Custom%1Title=1"_s, u"Set%1Title- %1Choice-"_s},
                 {u"Custom%1Title"_s, u"Set%1Title- %1Choice-"_s, u"Set%1Title+"_s},
                 {u"Custom%1Title"_s, u"Set%1Title=1 Set%1Title- %1Choice-"_s, u"Set%1Title+ %1Choice+"_s},
             });
    opt_SetFileTitle_Click(Prog, 2);
    opt_SetVideoTitle_Click(Prog, 1);
    EXPECT_EQ(Prog.Options.opt_SetFileTitle.Selected, 2);
    EXPECT_EQ(Prog.Options.opt_SetVideoTitle.Selected, 1);
}

TEST_F(OptionRules, OtherBoxesDriveTheirMirrorsAndPanels)
{
    const std::pair<QString, QString> mirrors[] = {
        {u"DeleteVideoAP"_s, u"DeleteAfter"_s}, {u"AddAttachments"_s, u"AttachmentsOn"_s},
        {u"UseSubfolders"_s, u"Subfolders"_s},  {u"AudioPath"_s, u"AudioPanel"_s},
        {u"SubsPath"_s, u"SubsPanel"_s},        {u"ChaptersPath"_s, u"ChaptersPanel"_s}};
    for (const auto& [box, mirror] : mirrors)
        Hold({{box, box + u"=1 "_s + mirror + u'-', mirror + u'+'}, {box, mirror + u'+', mirror + u'-'}});
    Hold({
        {u"SplitVideos"_s, u"SplitVideos=1 SplitPanel- SplitBox- SplitActive-"_s,
         u"SplitPanel+ SplitBox+ SplitActive+"_s},
        {u"SplitVideos"_s, u""_s, u"SplitPanel- SplitBox- SplitActive-"_s},
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
