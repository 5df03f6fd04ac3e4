#include "common/test_program.h"
#include "docs/manual_page.h"
#include "inspect/video_names.h"
#include "options/name_facts.h"
#include "rules/click_rules.h"
#include "rules/folders.h"
#include "settings/settings_rows.h"
#include "tools/failure_reports.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <gmock/gmock.h>

namespace {

struct Manual : testing::Test
{
    const QString Page = Source_Text(u"docs/manual.md"_s);
    const std::vector<QStringList> Option_Rows = Table_Rows(Chapter(Page, u"Every option"_s));

    /// "Section/Key" for each key that the tables of options name in their third cells, as in "A / b, c; D and E / f".
    QStringList Named_Keys() const
    {
        std::vector<QStringList> rows = Option_Rows;
        std::ranges::copy(Table_Rows(Chapter(Page, u"Extensions"_s)), std::back_inserter(rows));
        QStringList keys;
        for (const QStringList& cells : rows)
            for (const QString& group : cells.value(2).split(u"; "_s))
                if (const qsizetype slash = group.indexOf(u" / "_s); slash > 0)
                    for (const QString& section : group.left(slash).split(u" and "_s))
                        for (const QString& key : group.mid(slash + 3).split(u", "_s))
                            keys += section + u'/' + key;
        return keys;
    }
};

/// Titles of the messages that `report` shows for the numbers from 1 to 999.
template <typename Report>
QStringList Titles_Of(Report report)
{
    Test_Program test;
    for (int code = 1; code < 1000; ++code)
        report(test.Prog, code);
    QStringList titles;
    for (const Message_Box& message : test.Person.Messages)
        titles += message.Title;
    titles.removeDuplicates();
    return titles;
}

} // namespace

TEST_F(Manual, EachCheckBoxHasAnEntryAndTheNameToTickItBy)
{
    Test_Program test;
    ASSERT_FALSE(Click_Rules().empty());
    for (const Click_Rule& rule : Click_Rules()) {
        const QString stem = Caption_Stem((test.Prog.Options.*rule.Box).Caption);
        EXPECT_TRUE(std::ranges::any_of(Option_Rows,
                                        [&](const QStringList& cells) {
                                            return Caption_Stem(cells[0]) == stem && !cells.value(1).isEmpty() &&
                                                   cells.value(3) == u'`' + rule.Name + u'`';
                                        }))
            << "No entry with its name for the check box: " << stem.toStdString() << " | " << rule.Name.toStdString();
    }
}

TEST_F(Manual, TheKeysItNamesAreThoseOfTheSettingsFile)
{
    QStringList kept;
    for (const Settings_Row& row : Settings_Rows())
        kept += row.Section + u'/' + row.Key.trimmed();
    EXPECT_THAT(Named_Keys(), testing::UnorderedElementsAreArray(kept));
}

TEST_F(Manual, TheNamesThatTellALanguageTellTheOneInItsTable)
{
    LanguageTable table;
    ASSERT_TRUE(Load_Language_Table(table, {}));
    const QString task = Page.section(u"\n### Let the names of the files tell their languages\n"_s, 1);
    const std::vector<QStringList> rows = Table_Rows(task.section(u"\n### "_s, 0, 0));
    EXPECT_GE(rows.size(), 15U);
    for (const QStringList& cells : rows) {
        const Name_Facts facts = Facts_Of_Name(table, cells[0].mid(1).chopped(1), u"Movie"_s);
        QString language;
        Language_Display_Of(table, facts.Language, language);
        QStringList flags;
        for (const auto& [is_set, word] : {std::pair(facts.Default, u"default"_s), std::pair(facts.Forced, u"forced"_s),
                                           std::pair(facts.Hearing_Impaired, u"hearing impaired"_s)})
            if (is_set)
                flags += word;
        EXPECT_EQ(language + u'|' + flags.join(u", "_s), cells[1] + u'|' + cells[2]) << cells[0].toStdString();
    }
}

TEST_F(Manual, EachNumberedReportAndPathErrorIsExplained)
{
    const QString messages = Chapter(Page, u"Messages and what to do"_s);
    QStringList titles = Titles_Of(
        [](Program& program, int code) { Report_Run_Failure(program, code, u"FFProbe"_s, u"/videos/a.mkv"_s); });
    titles += Titles_Of([](Program& program, int code) { Show_Path_Error(program, code); });
    ASSERT_GT(titles.size(), 20);
    for (const QString& title : titles)
        EXPECT_TRUE(messages.contains(title)) << "Not explained: " << title.toStdString();
}

TEST_F(Manual, EachBoxEachLineOfFaultsAndEachPlaceOfAnErrorIsExplained)
{
    // What the sources say literally, up to the first value that is put in: the words are looked for, not the rest.
    const QRegularExpression line(u"u\" *((?:\\*\\*\\*|--) [A-Z][^\"\\\\{]*)"_s);
    const QRegularExpression place(
        u"u\"((?:Reading|Counting|Working out|Looking up|Writing|Locking|Opening|Renaming|Replacing) "
        "[^\"\\\\(]*)"_s);
    const QRegularExpression box(u"Show_Message\\(\\s*\\{[^}]*?\\.Title = u\"([^\"]+)"_s);
    const QString messages = Chapter(Page, u"Messages and what to do"_s);
    int found = 0;
    for (const QString& file : Source_Files()) {
        if (file == u"logs/log_sections.cpp"_s) // what was ticked, in the words of the boxes
            continue;
        const QString source = Source_Text(u"src/"_s + file);
        for (const QRegularExpression& expression : {line, place, box})
            for (const auto& match : expression.globalMatch(source)) {
                ++found;
                QString words = match.captured(1).section(u". "_s, 0, 0).trimmed();
                if (words.endsWith(u" -"_s)) // ahead of a path
                    words.chop(2);
                EXPECT_TRUE(messages.contains(words)) << file.toStdString() << ": " << words.toStdString();
            }
    }
    EXPECT_GT(found, 70);
}

TEST_F(Manual, TheExtensionsOfVideosAreAllListed)
{
    const QString listed =
        Chapter(Page, u"The first batch"_s).section(u"in small letters:"_s, 1).section(u". "_s, 0, 0);
    QStringList patterns = QString(Video_Extensions).split(u';', Qt::SkipEmptyParts);
    for (QString& pattern : patterns)
        pattern.remove(u"*."_s);
    patterns.removeDuplicates();
    EXPECT_THAT(listed.simplified().split(u' '), testing::UnorderedElementsAreArray(patterns));
}

#ifdef VANTORRA_HELP_FILE
TEST(Help_File, StandsAloneAndItsLinksLeadSomewhere)
{
    QFile file(QStringLiteral(VANTORRA_HELP_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    int links = 0;
    for (const auto& match : QRegularExpression(u"href=\"([^\"]*)\""_s).globalMatch(page)) {
        const QString goal = match.captured(1);
        ASSERT_TRUE(goal.startsWith(u'#')) << "Not inside the page: " << goal.toStdString();
        EXPECT_TRUE(page.contains(u" id=\""_s + goal.mid(1) + u'"')) << "Leads nowhere: " << goal.toStdString();
        ++links;
    }
    EXPECT_GT(links, 10);
    for (const auto& match : QRegularExpression(u"src=\"([^\"]*)\""_s).globalMatch(page))
        EXPECT_TRUE(match.captured(1).startsWith(u"data:"_s)) << match.captured(1).toStdString();
}
#endif
