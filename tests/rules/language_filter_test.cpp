#include "rules/language_filter.h"

#include "common/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct LanguageFilter : testing::Test, Test_Program
{
    LanguageFilter()
    {
        Load_Language_Table(Prog.Language_Table, u"scrap"_s);
        Filter.Kind = 1;
    }

    FilterSettings& Filter = Prog.Settings.WorkingFilter;
    Language_Filter_Form& Form = Prog.Language_Filter;

    int Line(const QString& line) const { return static_cast<int>(Form.lst_LanguageList.indexOf(line)); }
};

TEST_F(LanguageFilter, TheKindGivesTheFormItsWords)
{
    for (const auto& [kind, tracks] : {std::pair{1, u"Audio"_s}, {2, u"Subtitle"_s}, {3, u"Subtitle"_s}}) {
        Filter.Kind = static_cast<std::int16_t>(kind);
        Open_Language_Filter(Prog);
        EXPECT_EQ(Form.Caption, u"Choose %1 Language(s) to Filter"_s.arg(tracks));
        EXPECT_EQ(Form.opt_CustomFilter_Captions[0], u"Filter Out these %1 languages"_s.arg(tracks));
        EXPECT_EQ(Form.opt_CustomFilter_Captions[1], u"Keep Only these %1 languages"_s.arg(tracks));
    }
}

TEST_F(LanguageFilter, OpensWithTheSelectionAndAllOtherRowsOfTheTable)
{
    Filter.Languages = u"German (ger):Elvish (elv):Bini; Edo (bin)"_s;
    Filter.KeepOrCut = 1;
    Open_Language_Filter(Prog);
    EXPECT_EQ(Form.lst_LanguageSelection, (QStringList{u"German (ger)"_s, u"Elvish (elv)"_s, u"Bini; Edo (bin)"_s}));
    EXPECT_EQ(Form.lst_LanguageList.size(), 399);
    EXPECT_EQ(Line(u"German (ger)"_s), -1);
    EXPECT_EQ(Form.opt_CustomFilter, 1);
    EXPECT_EQ(Form.lbl_SelLanguages.Caption, u"Selected Languages  =  3"_s);
    EXPECT_EQ(Form.lbl_List1Count.Caption, u"399"_s);
    EXPECT_FALSE(Form.Has_Place);
    Filter.Languages.clear();
    Open_Language_Filter(Prog);
    EXPECT_TRUE(Form.lst_LanguageSelection.isEmpty());
    EXPECT_EQ(Form.lst_LanguageList.size(), 401);
    EXPECT_EQ(Form.lbl_SelLanguages.Caption, u"Selected Languages  =  0"_s);
}

TEST_F(LanguageFilter, TheEleventhClickLeavesTheLineWhereItIs)
{
    Open_Language_Filter(Prog);
    for (int i = 0; i < 10; ++i)
        lst_LanguageList_Click(Prog, 0);
    EXPECT_EQ(Form.lst_LanguageSelection.size(), 10);
    const QStringList before = Form.lst_LanguageList;
    lst_LanguageList_Click(Prog, 0);
    EXPECT_EQ(Form.lst_LanguageList, before);
    EXPECT_EQ(Form.lbl_SelLanguages.Caption, u"Selected Languages  =  10"_s);
    for (const int outside : {-1, 391})
        lst_LanguageList_Click(Prog, outside);
    lst_LanguageSelection_Click(Prog, 10);
    EXPECT_EQ(Form.lst_LanguageSelection.size(), 10);
}

TEST_F(LanguageFilter, LinesGoBackToTheirPlaceInTheTable)
{
    Open_Language_Filter(Prog);
    const QStringList all = Form.lst_LanguageList;
    for (const QString& line : {u"Zuni (zun)"_s, u"German (ger)"_s, u"Abkhazian (abk)"_s})
        lst_LanguageList_Click(Prog, Line(line));
    lst_LanguageSelection_Click(Prog, 1);
    EXPECT_EQ(Form.lst_LanguageSelection, (QStringList{u"Zuni (zun)"_s, u"Abkhazian (abk)"_s}));
    EXPECT_EQ(Form.lbl_List1Count.Caption, u"399"_s);
    btn_CustomClear_Click(Prog);
    EXPECT_EQ(Form.lst_LanguageList, all);
    EXPECT_TRUE(Form.lst_LanguageSelection.isEmpty());

    Filter.Languages = u"Elvish (elv)"_s;
    Open_Language_Filter(Prog);
    lst_LanguageSelection_Click(Prog, 0);
    EXPECT_EQ(Form.lst_LanguageList.constLast(), u"Elvish (elv)"_s);
}

TEST_F(LanguageFilter, DoneTakesTheSelectionAndThePlace)
{
    Open_Language_Filter(Prog);
    lst_LanguageList_Click(Prog, Line(u"German (ger)"_s));
    lst_LanguageList_Click(Prog, Line(u"English (eng)"_s));
    opt_CustomFilter_Click(Prog, 1);
    Form.Place = {.Left = 10, .Top = 20, .Width = 300, .Height = 400};
    btn_CustomFilter_Done_Click(Prog);
    EXPECT_EQ(Filter.Languages, u"German (ger):English (eng)"_s);
    EXPECT_EQ(Filter.Count, 2);
    EXPECT_EQ(Filter.KeepOrCut, 1);
    EXPECT_FALSE(Form.Visible);
    Open_Language_Filter(Prog);
    EXPECT_TRUE(Form.Has_Place);
    EXPECT_EQ(Form.Place.Left, 10);
    EXPECT_EQ(Form.Place.Top, 20);
    EXPECT_EQ(Form.Place.Width, 300);
    EXPECT_EQ(Form.Place.Height, 400);
}

TEST_F(LanguageFilter, CancelKeepsTheLanguagesButNotTheCountNorTheChoice)
{
    Filter.Languages = u"German (ger)"_s;
    Filter.Count = 1;
    Open_Language_Filter(Prog);
    lst_LanguageList_Click(Prog, 0);
    lst_LanguageList_Click(Prog, 0);
    opt_CustomFilter_Click(Prog, 1);
    btn_CustomFilter_Cancel_Click(Prog);
    EXPECT_EQ(Filter.Languages, u"German (ger)"_s);
    EXPECT_EQ(Filter.Count, 3);
    EXPECT_EQ(Filter.KeepOrCut, 1);
    EXPECT_TRUE(Filter.HasBox);
}
