#include "settings/ini_file.h"

#include "common/test_program.h"
#include "support/files.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"

#include <QFile>
#include <thread>

TEST(IniFile, ValuesAreFoundTheWayThePlatformFindsThem)
{
    const Ini_Document document("\xEF\xBB\xBF; a comment=1\r\n"
                                "[Menu]\r\n"
                                "Log Verbosity = 3 \r\n"
                                "log verbosity=4\r\n"
                                "  Quoted=\" two blanks  \"\r\n"
                                "Single='it'\n"
                                "Half=\"open\n"
                                "Nested=\"\"a\"\"\n"
                                "Broken=one\rtwo\n"
                                "Empty=\n"
                                ";Hidden=1\n"
                                "No equals sign\n"
                                "=no name\n"
                                "Equals=a=b\n"
                                " [ Umlaut ] ; behind\n"
                                "N\xC3\xA4me=\xC3\xBC\xFF\n"
                                "[MENU]\n"
                                "Second=1\n"
                                "[Cut\n"
                                "Last=no line end");

    const QString menu = u"Menu"_s;
    const std::tuple<QString, QString, std::optional<QString>> claims[] = {
        {menu, u"Log Verbosity"_s, u"3"_s},
        {u"mENU"_s, u" LOG verbosity  "_s, u"3"_s},
        {menu, u"Quoted"_s, u" two blanks  "_s},
        {menu, u"Single"_s, u"it"_s},
        {menu, u"Half"_s, u"\"open"_s},
        {menu, u"Nested"_s, u"\"a\""_s},
        {menu, u"Broken"_s, u"one two"_s},
        {menu, u"Empty"_s, u""_s},
        {menu, u"Missing"_s, std::nullopt},
        {menu, u"Hidden"_s, std::nullopt},
        {menu, u"No equals sign"_s, std::nullopt},
        {menu, u"Equals"_s, u"a=b"_s},
        {menu, u"Second"_s, std::nullopt},
        {u"Umlaut"_s, u"N\u00E4me"_s, u"\u00C3\u00BC\u00FF"_s},
        {u"Cut"_s, u"Last"_s, std::nullopt},
        {u"Nowhere"_s, u"Last"_s, std::nullopt},
    };
    for (const auto& [section, key, value] : claims)
        EXPECT_EQ(document.Value(section, key), value) << section.toStdString() << "/" << key.toStdString();
}

TEST(IniFile, ALongValueIsCutAndNeverInTheMiddleOfACharacter)
{
    const QString longest(Longest_Value, u'x');
    Ini_Document document;
    document.Set_Value(u"A"_s, u"fits"_s, longest);
    document.Set_Value(u"A"_s, u"long"_s, longest + u'y');
    document.Set_Value(u"A"_s, u"pair"_s, longest.chopped(1) + u"\U0001F600"_s);
    const Ini_Document read(document.Content());
    EXPECT_EQ(read.Value(u"A"_s, u"fits"_s), longest);
    EXPECT_EQ(read.Value(u"A"_s, u"long"_s), longest);
    EXPECT_EQ(read.Value(u"A"_s, u"pair"_s), longest.chopped(1));
}

TEST(IniFile, AChangeTouchesOnlyWhatItIsAbout)
{
    Ini_Document document("stray line\r\r\n"
                          "; head\r\n"
                          "[First]\r\n"
                          "Key = old\r\n"
                          "Unknown=\xFF\xFE\r\n"
                          "\r\n"
                          "; about the second\r\n"
                          "[Second]\r\n"
                          "Other=2");
    document.Set_Value(u"first"_s, u"KEY"_s, u"new"_s);
    document.Set_Value(u"First"_s, u"Added "_s, u"1"_s);
    document.Set_Value(u"First"_s, u"added"_s, u"2"_s);
    document.Set_Value(u"Second"_s, u"Third"_s, u""_s);
    document.Set_Value(u"New"_s, u"Break"_s, u"a\r\nb\rc\nd"_s + QChar(u'\0') + u"e"_s);
    EXPECT_EQ(document.Content(), QByteArray("stray line\n"
                                             "; head\n"
                                             "[First]\n"
                                             "Key =new\n"
                                             "Unknown=\xFF\xFE\n"
                                             "Added =2\n"
                                             "\n"
                                             "; about the second\n"
                                             "[Second]\n"
                                             "Other=2\n"
                                             "Third=\n"
                                             "[New]\n"
                                             "Break=a b c d\n"));
    EXPECT_EQ(document.Value(u"First"_s, u"Added"_s), u"2"_s);
}

TEST(IniFile, ADeletedSectionComesBackInItsPlaceAndKeepsItsComments)
{
    const QByteArray text = "[A]\nx=1\n; stays\nx=2\n[B]\ny=1\n";
    Ini_Document gone(text);
    gone.Delete_Section(u"a"_s);
    EXPECT_EQ(gone.Value(u"A"_s, u"x"_s), std::nullopt);
    EXPECT_EQ(gone.Content(), QByteArray("; stays\n[B]\ny=1\n"));

    Ini_Document back(text);
    back.Delete_Section(u"A"_s);
    back.Set_Value(u"A"_s, u"z"_s, u"3"_s);
    EXPECT_EQ(back.Content(), QByteArray("[A]\n; stays\nz=3\n[B]\ny=1\n"));

    Ini_Document fresh;
    fresh.Set_Value(u"A"_s, u"z"_s, u"3"_s);
    fresh.Delete_Section(u"A"_s);
    EXPECT_EQ(fresh.Content(), QByteArray());
}

TEST(IniFile, BinaryDataPassesThroughUnchanged)
{
    QByteArray noise;
    for (int index = 0; index < 200000; ++index)
        noise += static_cast<char>((index * 7919 + index / 251) & 0xFF);
    noise.replace('\r', ' ');
    noise.replace('[', ' ');
    if (!noise.endsWith('\n'))
        noise += '\n';
    Ini_Document document(noise);
    EXPECT_EQ(document.Content(), noise);
    document.Set_Value(u"A"_s, u"x"_s, u"1"_s);
    EXPECT_EQ(document.Content(), noise + "[A]\nx=1\n");
}

TEST(IniFile, FiftyMegabytesAreTakenAndKept)
{
    QByteArray big = "[Menu]\n";
    for (int index = 0; big.size() < qsizetype{50} * 1024 * 1024; ++index)
        big += "Key " + QByteArray::number(index) + "=" + QByteArray(4000, 'v') + "\n";
    big += "[Paths]\nSet or read=here\n";
    Ini_Document document(big);
    EXPECT_EQ(document.Value(u"Paths"_s, u"Set or read"_s), u"here"_s);
    document.Set_Value(u"Menu"_s, u"Key 0"_s, u"x"_s);
    EXPECT_EQ(document.Content().size(), big.size() - 3999);
}

TEST(IniFile, AFolderOrATooLargeFileIsAnErrorThatNamesIt)
{
    const Test_Program test;
    EXPECT_EQ(Load_Ini_File(test.Path(u"app/none.ini"_s)).Content(), QByteArray());
    const QString large = test.Write(u"app/large"_s, "[a]");
    ASSERT_TRUE(QFile::resize(large, Longest_Side_File + 1));
    for (const QString& path : {test.Path(u"app"_s), large}) {
        EXPECT_EQ(Error_Of([&] { Load_Ini_File(path); }).Subject, path);
        EXPECT_THROW(Read_Lines(path), Run_Time_Error) << path.toStdString();
    }
}

TEST(IniFile, OfTwoWritersOneWholeFileStands)
{
    const Test_Program test;
    const QString path = test.Path(u"app/Vantorra.ini"_s);
    const auto document_of = [](QChar letter) {
        Ini_Document document;
        for (int key = 0; key < 2000; ++key)
            document.Set_Value(u"S"_s, QString::number(key), QString(100, letter));
        return document;
    };
    const Ini_Document one = document_of(u'1');
    const Ini_Document two = document_of(u'2');
    const auto write = [&](const Ini_Document& document) {
        for (int round = 0; round < 20; ++round)
            Save_Ini_File(path, document);
    };
    std::thread other(write, std::cref(two));
    write(one);
    const auto read = [&] { return test.Read(u"app/Vantorra.ini"_s).replace("\r\n", "\n"); };
    const QByteArray between = read();
    other.join();
    const QByteArray after = read();
    EXPECT_TRUE(between == one.Content() || between == two.Content());
    EXPECT_TRUE(after == one.Content() || after == two.Content());
}
