#include "options/language_table.h"

#include "common/test_program.h"
#include "support/run_time_error.h"

#include <algorithm>

static const LanguageTable& Table()
{
    static const LanguageTable table = [] {
        Test_Program test;
        EXPECT_TRUE(Load_Language_Table(test.Prog.Language_Table, u"scrap"_s));
        return test.Prog.Language_Table;
    }();
    return table;
}

TEST(LanguageTable, CodeOfATextFollowsItsFirstWordOnly)
{
    // A capital makes a word a name; an unknown code of three letters comes back; "(eng)" begins with a blank once it
    // is cleaned.
    const std::pair<QString, QString> claims[] = {
        {u"de"_s, u"ger"_s},
        {u"ger"_s, u"ger"_s},
        {u"GER"_s, u""_s},
        {u"EN"_s, u""_s},
        {u"German"_s, u"ger"_s},
        {u"Ga (gaa)"_s, u"gaa"_s},
        {u"Norwegian (nor)"_s, u"nob"_s},
        {u"Norwegian Nynorsk (nno)"_s, u"nob"_s},
        {u"Artificial languages (art)"_s, u""_s},
        {u"qqq"_s, u"qqq"_s},
        {u"qq"_s, u""_s},
        {u"(eng)"_s, u""_s},
        {u" eng"_s, u""_s},
        {u"german"_s, u""_s},
        {u"123"_s, u""_s},
    };
    for (const auto& [text, code] : claims)
        EXPECT_EQ(Language_Code_Of(Table(), text), code) << text.toStdString();
    EXPECT_THROW(Language_Code_Of(Table(), u""_s), Run_Time_Error);
    EXPECT_THROW(Language_Code_Of(Table(), u")"_s), Run_Time_Error);
}

TEST(LanguageTable, DisplayComparesWithTheThreeLetterCodeAndTheLastRowWins)
{
    QString display = u"untouched"_s;
    EXPECT_FALSE(Language_Display_Of(Table(), u"en"_s, display));
    EXPECT_EQ(display, u"untouched"_s);
    EXPECT_TRUE(Language_Display_Of(Table(), u"und"_s, display));
    EXPECT_EQ(display, u"Undetermined (und)"_s);
    const LanguageTable twice = Parse_Language_Table("First\\xxx\\\nLast\\xxx\\\n");
    EXPECT_TRUE(Language_Display_Of(twice, u"xxx"_s, display));
    EXPECT_EQ(display, u"Last (xxx)"_s);
}
