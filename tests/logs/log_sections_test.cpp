#include "logs/log_sections.h"

#include "common/test_program.h"
#include "rules/click_rules.h"

namespace {

/// Everything that has a line is on, as far as lines don't exclude each other.
void Turn_All_On(Program& program)
{
    JobOptions& o = program.Options;
    o.Log_Verbosity = 5;
    for (const Click_Rule& rule : Click_Rules())
        (o.*rule.Box).Value = 1;
    for (Check_Box* box : {&o.chk_StripOrigAudio, &o.chk_StripOrigSubs, &o.chk_RemoveFileTitle, &o.chk_CustomFileTitle,
                           &o.chk_RemoveVideoTitle, &o.chk_CustomVideoTitle})
        box->Value = 0;
    o.Delete_Video_After = true;
    o.Add_Attachments_On = true;
    o.AudioFilter.Languages = u"English (eng):French (fre)"_s;
    o.SubsFilter.Languages = u"German (ger)"_s;
    o.SubsFilter.KeepOrCut = 1;
    o.chk_SubForces.Tag = u"yes"_s;
    o.Frame_Rate_Value = u"25p"_s;
    o.Video_Format_Kind = 1;
    o.Video_Format_Value = u"16/9"_s;
    o.opt_SetFileTitle.Selected = 1;
    o.opt_SetVideoTitle.Selected = 2;
    o.Path_Videos = u"/v/"_s;
    o.Path_Target = u"/t/"_s;
    o.Path_Subtitles = u"/s/"_s;
    program.Form.txt_AudioDelayValue.Text = u"-250"_s;
    program.Form.ulbl_AudioPath.Caption = u"/label/a/"_s;
    program.Form.ulbl_SubsPath.Caption = u"/label/s/"_s;
    program.Form.ulbl_ChaptersPath.Caption = u"/label/c/"_s;
}

TEST(Log_Sections, ABoxSilencesTheLinesItRulesOut)
{
    // A change to the state in which everything is on; the lines that go and the lines that come.
    const std::tuple<const char*, void (*)(Program&), QStringList, QStringList> changes[] = {
        {"stripped audio",
         [](Program& p) { p.Options.chk_StripOrigAudio.Value = 1; },
         {u"            ~~ Strip Existing Audio Title"_s, u"            ~~ Filter out NON-English Audio"_s},
         {u"            ~~ Strip Existing Audio"_s}},
        {"no added subtitles",
         [](Program& p) { p.Options.chk_AddSubs.Value = 0; },
         {u"            ~~ Add Subtitles"_s, u"              ~~ Use Subtitle '.opt' (options) files"_s,
          u"                ~~ Apply Default Subtitle options"_s},
         {}},
        {"level 4",
         [](Program& p) { p.Options.Log_Verbosity = 4; },
         {u"               ~~ Original Audio Languages to Cut - English (eng):French (fre)"_s,
          u"               ~~ Original Subtitle Languages to Keep - German (ger)"_s},
         {}},
        {"converted chapters that replace nothing",
         [](Program& p) { p.Options.chk_ReplaceChapters.Value = 0; },
         {u"            ++ Install/Replace Chapters With New XML File"_s,
          u"            ++ Convert TXT to XML Chapters HH:MM:SS.ff"_s},
         {}},
        {"disabled boxes: only these two are asked",
         [](Program& p) {
             p.Options.chk_VideoFrameRate.Enabled = p.Options.chk_VideoFormatOptions.Enabled = false;
             p.Options.chk_RemoveAllTags.Enabled = p.Options.chk_AddAudio.Enabled = false;
         },
         {u"            -- Set Video Frame Rate  - \"25p\""_s,
          u"            -- Use Video Format Options  - \"16/9 Aspect Ratio\""_s},
         {}},
        {"a removed file title ahead of both",
         [](Program& p) { p.Options.chk_RemoveFileTitle.Value = p.Options.chk_CustomFileTitle.Value = 1; },
         {u"            -- Set File Title (If Empty)"_s},
         {u"            -- Remove File Title"_s}},
        {"attachments from subfolders",
         [](Program& p) { p.Options.Use_Attachment_Subfolders = true; },
         {u"            -- Add Attachments in Videos Path."_s},
         {u"            -- Add Attachments using Titled Subfolders Path."_s}},
        {"a box that is neither on nor off counts as off",
         [](Program& p) { p.Options.chk_RemoveAllTags.Value = 2; },
         {u"            -- Remove All Original Tags"_s},
         {}},
    };
    for (const auto& [what, change, gone, come] : changes) {
        Test_Program test;
        Turn_All_On(test.Prog);
        const QStringList before = Active_Checkbox_Lines(test.Prog);
        change(test.Prog);
        const QStringList after = Active_Checkbox_Lines(test.Prog);
        const auto only_in = [](QStringList lines, const QStringList& others) {
            lines.removeIf([&others](const QString& line) { return others.contains(line); });
            return lines;
        };
        EXPECT_EQ(only_in(before, after), gone) << what;
        EXPECT_EQ(only_in(after, before), come) << what;
    }
}

} // namespace
