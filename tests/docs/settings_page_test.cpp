#include "common/test_program.h"
#include "docs/manual_page.h"
#include "settings/settings_rows.h"
#include "settings/settings_store.h"

/// A key as docs/formats/vantorra-ini.md tells it.
struct Documented_Key
{
    QString Section, Key, Value, First, Missing;
};

static const QByteArray Main_Place = "[MainWindow]\nLeft=100\nTop=50\nWidth=800\nHeight=600\n";

static std::vector<Documented_Key> Documented_Keys()
{
    std::vector<Documented_Key> keys;
    const auto in_the_file = [](const QString& text) {
        return text == u"empty"_s ? QString() : text == u"main form's place"_s ? u"50:100:800:600:0"_s : text;
    };
    for (const QString& chapter : Source_Text(u"docs/formats/vantorra-ini.md"_s).split(u"\n### "_s).mid(1)) {
        const QStringList sections = chapter.section(u'\n', 0, 0).split(u", "_s);
        for (const QString& section : sections)
            for (const QStringList& cells : Table_Rows(chapter)) {
                // "A; B" is a key for each of two sections, "A, B" are two of one.
                const QString names = cells[0].section(u"; "_s, -1 - (sections.size() - 1 - sections.indexOf(section)));
                for (const QString& key : names.section(u"; "_s, 0, 0).split(u", "_s))
                    keys.push_back({section, key, cells[1], in_the_file(cells[2]),
                                    in_the_file(cells[3].isEmpty() ? cells[2] : cells[3])});
            }
    }
    return keys;
}

/// A program as it is when it starts.
struct Starting_Program : Test_Program
{
    Starting_Program()
    {
        Prog.Options.Path_Videos.clear();
        Prog.Options.Path_Target.clear();
        Prog.Form.Place = {.Left = 100, .Top = 50, .Width = 800, .Height = 600};
        Prog.Now = [] { return QDateTime(QDate(2026, 3, 7), QTime(13, 5, 9)); };
    }
};

/// The settings file after `text` was read and all of it was written again.
static Ini_Document Written_Again(const QByteArray& text)
{
    Starting_Program test;
    Ini_Document document(text);
    Read_Settings_From(test.Prog, document);
    EXPECT_EQ(Write_Settings_To(test.Prog, false, document).Failed_Row, nullptr);
    return document;
}

TEST(Settings_Page, NamesEveryKeyThatIsReadInItsSection)
{
    std::map<QString, QStringList> told, kept;
    for (const Documented_Key& key : Documented_Keys())
        told[key.Section] += key.Key;
    for (const Settings_Row& row : Settings_Rows())
        if (row.Number != 0 && row.Section != u"Vantorra - by Zarnegar"_s)
            kept[row.Section] += row.Key.trimmed();
    for (std::map<QString, QStringList>* keys : {&told, &kept})
        for (auto& [section, names] : *keys)
            names.sort();
    EXPECT_EQ(told, kept);
}

TEST(Settings_Page, TellsWhatTheFirstFileSaysAndWhatAMissingKeyReadsAs)
{
    Starting_Program test;
    Write_Settings(test.Prog, true);
    const Ini_Document first = Load_Ini_File(test.Prog.Settings.Ini_File);
    const Ini_Document missing = Written_Again(Main_Place);
    const Ini_Document back = Written_Again(test.Read(u"app/Vantorra.ini"_s));
    EXPECT_EQ(first.Value(u"Vantorra - by Zarnegar"_s, u"Last Modified Date"_s), u"Mar/07/2026 01:05:09PM local time.");
    EXPECT_EQ(first.Value(u"Vantorra - by Zarnegar"_s, u"Version"_s), u"2.5.5");
    for (const Documented_Key& key : Documented_Keys()) {
        if (key.Section == u"MainWindow"_s && key.Key != u"Save Settings on Exit"_s)
            continue;
        // On in a new installation, and that isn't the rows' doing.
        if (key.Key == u"Careful Batch"_s || key.Key == u"Tell At The End"_s)
            continue;
        SCOPED_TRACE(key.Section.toStdString() + "/" + key.Key.toStdString());
        EXPECT_EQ(first.Value(key.Section, key.Key), key.First);
        if (key.Value.contains(u"no effect"_s)) // and so nothing that a state of the program is written from
            continue;
        const bool needs_a_flag = key.Section.endsWith(u"Option Files"_s) && key.Key == u"Delay"_s;
        EXPECT_EQ(missing.Value(key.Section, key.Key), needs_a_flag ? QString() : key.Missing);
        const bool is_number = key.Key == u"Audio Delay"_s || key.Key.startsWith(u"Split multiple"_s);
        EXPECT_EQ(back.Value(key.Section, key.Key), is_number ? key.Missing : key.First);
    }
}

TEST(Settings_Page, SaysOfWhichKeysTheValuesAreOnAndOffInAnyCase)
{
    int boxes = 0;
    for (const Documented_Key& key : Documented_Keys()) {
        const bool needs_more = key.Value.contains(u';') || key.Key.startsWith(u"Apply custom"_s);
        if (!key.Value.startsWith(u"On, Off"_s) || needs_more)
            continue;
        ++boxes;
        for (const QByteArray word : {"On", "oN", "Off", "OFF"}) {
            const QByteArray line = "[" + key.Section.toUtf8() + "]\n" + key.Key.toUtf8() + "=" + word + "\n";
            EXPECT_EQ(Written_Again(Main_Place + line).Value(key.Section, key.Key),
                      word.toLower() == "on" ? u"On" : u"Off")
                << line.toStdString();
        }
    }
    EXPECT_GT(boxes, 40);
}
