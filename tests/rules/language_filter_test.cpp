#include "rules/language_filter.h"

#include "common/test_program.h"

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

TEST_F(LanguageFilter, TheLanguagesOfTheVideosAreCountedAsTheirTracksHaveThem)
{
    const QList<QStringList> videos = {{u"ger"_s, u"eng"_s}, {u"eng"_s}, {u"deu"_s, u"a:b"_s}, {}, {}};
    for (const QStringList& languages : videos) {
        Video_Row& row = Prog.Videos.Rows.emplace_back();
        row.Languages_Known = true;
        row.Audio_Languages = languages;
    }
    Prog.Videos.Rows.back() = {};
    Open_Language_Filter(Prog);
    QStringList lines;
    for (int i = 0; i < static_cast<int>(Form.lst_Found.size()); ++i)
        lines += Found_Text(Form, i);
    EXPECT_EQ(lines.join(u'|'),
              u"English (eng) - 2 of 4|German (deu) - 1 of 4|German (ger) - 1 of 4|a:b (a:b) - 1 of 4");
    EXPECT_EQ(Form.lbl_FoundCount.Caption, u"4 of 5 videos checked");
    for (const int index : {3, 1, 2, 0, 2, 7, -1})
        lst_Found_Click(Prog, index);
    EXPECT_EQ(Form.lst_LanguageSelection, (QStringList{u"German (deu)"_s, u"English (eng)"_s}));
    EXPECT_EQ(Line(u"English (eng)"_s), -1);

    for (int i = 0; i < 9; ++i)
        lst_LanguageList_Click(Prog, 0);
    lst_Found_Click(Prog, 2);
    EXPECT_EQ(Form.lst_LanguageSelection.size(), 10);
    EXPECT_NE(Line(u"German (ger)"_s), -1);
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
    EXPECT_FALSE(Form.Visible);
}
