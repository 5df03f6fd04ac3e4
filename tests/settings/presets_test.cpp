#include "common/test_program.h"
#include "settings/preset_file.h"
#include "settings/preset_names.h"
#include "settings/settings_store.h"
#include "support/paths.h"

TEST(Presets, NamesNeverLeadOutOfTheirFolderAndAreSaidToBeWrongInWords)
{
    // What a name can't hold on Windows.
    const bool all_letters = Path_Separator == u'/';
    const std::pair<QString, const char*> claims[] = {
        {u"Anime"_s, ""},
        {all_letters ? u"  Tom & Jerry 100% [*] "_s : u"  Tom & Jerry 100% [] "_s, ""},
        {QString(251, u'e'), ""},
        {QString(126, u'\u00e9'), "252 bytes"},
        {u" "_s, "needs a name"},
        {u"../Vantorra"_s, "can't hold \"/\""},
        {u"a\\b"_s, "can't hold \"/\""},
        {u".."_s, "begin with a dot"},
        {u"a\nb"_s, "line breaks"},
        {u"a"_s + QChar(0xDCE9), "line breaks"},
    };
    for (const auto& [name, words] : claims) {
        const QString why = Why_No_Preset_Name(name);
        EXPECT_EQ(why.isEmpty(), QByteArray(words).isEmpty()) << name.toStdString();
        EXPECT_TRUE(why.contains(QLatin1StringView(words))) << why.toStdString();
    }
    const Test_Program test;
    for (const QString& name : {u""_s, u"../Vantorra"_s, u".."_s, u"a/b"_s})
        EXPECT_EQ(Preset_Path(u"/app/"_s, name), u""_s);
    const QString odd = all_letters ? u"&x\n"_s : u"&x"_s;
    for (const QString& file :
         {u"b.INI"_s, u"Anime.ini"_s, odd + u".ini"_s, u".hidden.ini"_s, u"a.txt"_s, u"c.ini/d.ini"_s})
        test.Write(u"app/presets/"_s + file);
    const QString app = test.Path(u"app"_s);
    EXPECT_EQ(Preset_Names(app), (QStringList{odd, u"Anime"_s, u"b"_s}));
    EXPECT_EQ(Preset_Path(app, u"ANIME"_s), test.Path(u"app/presets/Anime.ini"_s));
    EXPECT_EQ(Preset_Path(app, u"b"_s), test.Path(u"app/presets/b.INI"_s));
}

TEST(Presets, HoldEveryRowButFoldersPlacesToolsAndWhatDecidesOverSources)
{
    const Test_Program test;
    Ini_Document preset;
    QStringList lacking;
    EXPECT_EQ(Write_Preset_To(test.Prog, preset), nullptr);
    for (const Settings_Row& row : Settings_Rows())
        if (!preset.Value(row.Section, row.Key) && row.Section != u"Paths"_s && !row.Key.contains(u"Window Size"_s))
            lacking += row.Section + u'/' + row.Key;
    EXPECT_EQ(lacking.join(u' '),
              u"MainWindow/Save Settings on Exit MainWindow/Left MainWindow/Top MainWindow/Width MainWindow/Height "
              "ProcessLog/Set Font Size ProcessLog/Not First Run View Video File Info/Set Font Size "
              "View Video File Info/Not First Run Menu/Delete Processed File Menu/Delete Source Video Sundry Files "
              "Most Recently Used Sources/MRU Sources Most Recently Used Destinations/MRU Targets "
              "Extensions/Careful Batch Extensions/Video List Open Extensions/Video List Height "
              "Extensions/Wrap Log Lines Experimental/Vantorra Run is Default"_s);
}

TEST(Presets, ABrokenOneIsRefusedInWordsThatNameWhatIsWrong)
{
    const Test_Program test;
    const std::tuple<QByteArray, int, QString> claims[] = {
        {"", 75, u"holds no option"_s},
        {QByteArray("\xFF\xFE\0binary[", 10), 75, u"holds no option"_s},
        {"[Menu]\nDelete Processed File=True\n[Paths]\nLast Videos Path=/x/\n", 75, u"holds no option"_s},
        {"[Audio]\nStrip Existing Audio=Perhaps\n", 13, u"[Audio] \"Strip Existing Audio\""_s},
        {"[Audio]\nStrip Existing Audio=\n", 13, u"[Audio]"_s},
        {"[Menu]\nAppend Logs=yes\n", 13, u"\"yes\""_s},
        {"[Other Options]\nSplit multiple video files (minutes)=5\n", 13, u"Split"_s},
        {"[Extensions]\nIf The Output Exists=Ask\n", 13, u"Ask"_s},
        {"[Audio]\nstrip existing audio=ON\n[Future]\nNew=x\n", 0, {}},
        {"[Subtitle Option Files]\nForced=\n", 0, {}},
    };
    for (const auto& [text, number, words] : claims) {
        const QString path = test.Write(u"a b.ini"_s, text);
        const Caught_Error error = Error_Of([&] { Read_Preset(path, test.Prog.Person); });
        EXPECT_EQ(error.Number, number) << text.toStdString();
        EXPECT_TRUE(error.Message.contains(words)) << error.Message.toStdString();
    }
    EXPECT_EQ(Error_Of([&] { Read_Preset(test.Path(u"gone.ini"_s), test.Prog.Person); }).Number, 53);
    EXPECT_EQ(Error_Of([&] { Read_Preset(test.Path(u"app"_s), test.Prog.Person); }).Number, 75);
}
