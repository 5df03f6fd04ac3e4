#include "command/chapters.h"

#include "command/chapter_text.h"
#include "command/companion_fixture.h"
#include "common/test_trash.h"
#include "support/command_line.h"

#include <QRegularExpression>

struct Chapters : Companion_Test
{
    Chapters()
    {
        Prog.Options.chk_ReplaceChapters.Value = 1;
        Prog.Options.chk_ConvertTXT.Value = 1;
        Prog.Media.Video_Duration = u"01:30:00.5"_s;
    }

    QString Find() { return Find_Chapter_File(Prog, Videos(), u"Movie"_s).remove(Videos()); }

    QString Xml() const { return QString::fromUtf8(Read(u"videos/Movie_Chapters.xml"_s)); }

    /// "uid|start|end|name" of each chapter in the XML.
    QStringList Atoms() const
    {
        static const QRegularExpression atom(
            u"<ChapterUID>(.*)</ChapterUID>\\s*<ChapterTimeStart>(.*)</ChapterTimeStart>\\s*"
            "<ChapterTimeEnd>(.*)</ChapterTimeEnd>[^@]*?<ChapterString>(.*)</ChapterString>"_s);
        QStringList atoms;
        for (auto match = atom.globalMatch(Xml()); match.hasNext();)
            atoms += match.next().capturedTexts().mid(1).join(u'|');
        return atoms;
    }
};

TEST(Chapter_Text, TheXmlIsWrittenToTheLetter)
{
    const Chapter_Lists chapters{{u"00:00:00.000"_s, u"00:10:00"_s}, {u"1"_s, u"12"_s}, {u"Tom & <Jerry>"_s, u""_s}};
    const auto atom = [](const QString& uid, const QString& start, const QString& end, const QString& name) {
        return u"    <ChapterAtom>\r\n      <ChapterUID>"_s + uid + u"</ChapterUID>\r\n      <ChapterTimeStart>"_s +
               start + u"</ChapterTimeStart>\r\n      <ChapterTimeEnd>"_s + end +
               u"</ChapterTimeEnd>\r\n      <ChapterFlagHidden>0</ChapterFlagHidden>\r\n"
               "      <ChapterFlagEnabled>1</ChapterFlagEnabled>\r\n      <ChapterDisplay>\r\n"
               "        <ChapterString>"_s +
               name +
               u"</ChapterString>\r\n"
               "        <ChapterLanguage>eng</ChapterLanguage>\r\n        <ChapLanguageIETF>eng</ChapLanguageIETF>\r\n"
               "      </ChapterDisplay>\r\n    </ChapterAtom>\r\n"_s;
    };
    EXPECT_EQ(Chapter_Xml(chapters, u"123456789012"_s, u"01:30:00.5"_s),
              u"<?xml version=\"1.0\"?>\r\n<!-- <!DOCTYPE Chapters SYSTEM \"matroskachapters.dtd\"> -->\r\n"
              "<Chapters>\r\n  <EditionEntry>\r\n    <EditionUID>123456789012</EditionUID>\r\n"
              "    <EditionFlagDefault>1</EditionFlagDefault>\r\n    <EditionFlagHidden>0</EditionFlagHidden>\r\n"
              "    <EditionFlagOrdered>0</EditionFlagOrdered>\r\n"_s +
                  atom(u"1"_s, u"00:00:00.000"_s, u"00:10:00"_s, u"Tom & <Jerry>"_s) +
                  atom(u"12"_s, u"00:10:00"_s, u"01:30:00.5"_s, u"Chapter 2"_s) +
                  u"  </EditionEntry>\r\n</Chapters>\r\n"_s);
    EXPECT_EQ(Chapter_Xml(chapters, u"1"_s, {}).count(u"<ChapterTimeEnd>"_s), chapters.Times.size() - 1)
        << "a video whose duration isn't known doesn't end its last chapter";
}

TEST(Chapter_Text, AnEditionNumberHasTwelveDigitsFromEndToEndOfTheRange)
{
    EXPECT_EQ(Edition_Number(0.0F), u"100000000000"_s);
    EXPECT_EQ(Edition_Number(0.5F), u"257000000000"_s);
    EXPECT_EQ(Edition_Number(0.99999994F).size(), 12);
    EXPECT_EQ(Digits_Of(u"CHAPTER0x1٣NAME2"_s), u"012"_s);
}

TEST_F(Chapters, TextIsReadInItsOwnStyle)
{
    const QByteArray ogg = "CHAPTER01=00:00:00.000\r\nCHAPTER01NAME=Intro\r\n\r\n"
                           "chapter12=00:10:00.000\nCHAPTER12NAME=\nCHAPTER13=00:20:00.000\nX=a=b\n";
    const std::tuple<QString, QByteArray, QStringList> claims[] = {
        {u"ogg"_s,
         ogg,
         {u"1|00:00:00.000|00:10:00.000|Intro"_s, u"12|00:10:00.000|00:20:00.000|Chapter 2"_s,
          u"13|00:20:00.000|01:30:00.5|a"_s}},
        // An entry without a time is overwritten by the next; the empty line at the end is passed over.
        {u"ogm"_s, "CHAPTER01=\nN=lost\nCHAPTER02=5\nN=kept\n\n", {u"2|5|01:30:00.5|kept"_s}},
        {u"ogg"_s, "00:00:00 not Ogg style\n", {u"||01:30:00.5|Chapter 1"_s}},
        {u"ogg"_s, "", {u"||01:30:00.5|Chapter 1"_s}},
        // Numbers beyond 32 bits, and beyond 64.
        {u"ogg"_s, "CHAPTER9999999999=0\nN=a\n", {u"9999999999|0|01:30:00.5|a"_s}},
        {u"ogg"_s, "CHAPTER7700000000000000000012=0\nN=a\n", {u"12|0|01:30:00.5|a"_s}},
        {u"txt"_s,
         "00:00:00.000 Act One\n\n   \n00:05:00.000 Act  Two\n00:09:00.000\n\n",
         {u"1|00:00:00.000|00:05:00.000| Act One"_s, u"2|00:05:00.000|00:09:00.000| Act  Two"_s,
          u"3|00:09:00.000|01:30:00.5|Chapter 3"_s}},
        {u"txt"_s,
         "CHAPTER01=0:0:1\nCHAPTER01NAME=In tro\n",
         {u"1|CHAPTER01=0:0:1|CHAPTER01NAME=In|Chapter 1"_s, u"2|CHAPTER01NAME=In|01:30:00.5| tro"_s}},
        {u"txt"_s, " 1 no time\n2 b\n", {u"2|2|01:30:00.5| b"_s}},
        {u"txt"_s,
         "\xef\xbb\xbf"
         "1 \xc3\x9c \"&<\r2 x",
         {u"1|1|2| Ü \"&<"_s, u"2|2|01:30:00.5| x"_s}},
    };
    for (const auto& [suffix, text, atoms] : claims) {
        const QString path = Write(u"videos/Movie_Chapters."_s + suffix, text);
        EXPECT_EQ(Find(), u"Movie_Chapters.xml"_s);
        EXPECT_EQ(Atoms(), atoms) << text.toStdString();
        QFile::remove(path);
    }
}

TEST_F(Chapters, BadTextIsAnErrorThatNamesTheFileAndKeepsTheOldXml)
{
    const std::tuple<QString, QByteArray, int> claims[] = {
        {u"ogg"_s, "CHAPTER01=0\nCHAPTER01NAME=a\nCHAPTER02=1\n", 9},
        {u"ogm"_s, "CHAPTER01=0\nno sign\n", 9},
        {u"ogg"_s, "CHAPTER01=0\nN=a\nno sign\nN=b\n", 9},
        {u"ogg"_s, "CHAPTER=0\nN=a\n", 13},
        {u"txt"_s, "", 9},
        {u"txt"_s, "\r\n   \r\n\r\n", 9},
        {u"txt"_s, "CHAPTER01=0\nN=a\nCHAPTER02=1\n", 9},
    };
    Write(u"videos/Movie_Chapters.xml"_s, "old");
    for (const auto& [suffix, text, number] : claims) {
        const QString path = Write(u"videos/Movie_Chapters."_s + suffix, text);
        const Caught_Error error = Error_Of([&] { Find(); });
        EXPECT_EQ(error.Number, number) << text.toStdString();
        EXPECT_TRUE(error.Message.contains(path));
        EXPECT_EQ(Xml(), u"old"_s);
        QFile::remove(path);
    }
}

TEST_F(Chapters, TheFirstCandidateWinsAndTheResultIsInTheBits)
{
    const QString stem = Videos() + u"Movie"_s;
    QString out = u"old"_s;
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 162);
    EXPECT_EQ(out, u""_s);
    Write(u"videos/Movie_Chapters.xml"_s, "mine");
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 40);
    EXPECT_EQ(out, stem + u"_Chapters.xml"_s);
    EXPECT_EQ(Xml(), u"mine"_s);

    Write(u"videos/Movie_Chapters.txt"_s, "1 text\n");
    EXPECT_EQ(Convert_Chapters(Prog, stem, false, out), Not_Converted);
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 128);
    EXPECT_EQ(Atoms(), QStringList{u"1|1|01:30:00.5| text"_s});
    EXPECT_TRUE(Names_In_Trash().contains(u"Movie_Chapters.xml"_s));
    Write(u"videos/Movie_Chapters.txt"_s, "CHAPTER01=1\nX=1\n");
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 144);

    Write(u"videos/Movie_Chapters.ogm"_s, "CHAPTER01=2\nX=ogm\n");
    EXPECT_EQ(Convert_Chapters(Prog, stem, false, out), Ogg_Style | Not_Converted);
    EXPECT_EQ(out, stem + u"_Chapters.ogm"_s);
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 144);
    EXPECT_EQ(Atoms(), QStringList{u"1|2|01:30:00.5|ogm"_s});
    Write(u"videos/Movie_Chapters.ogg"_s, "CHAPTER01=3\nX=ogg\n");
    EXPECT_EQ(Convert_Chapters(Prog, stem, true, out), 144);
    EXPECT_EQ(Atoms(), QStringList{u"1|3|01:30:00.5|ogg"_s});
    EXPECT_EQ(out, stem + u"_Chapters.xml"_s);
}

TEST_F(Chapters, ADryRunNamesTheFileStillToBeMadeAndTouchesNothing)
{
    Prog.Run.Dry_Run = true;
    Write(u"videos/Movie_Chapters.txt"_s, "1 text\n");
    EXPECT_EQ(Find(), u"Movie_Chapters.xml"_s);
    EXPECT_FALSE(QFile::exists(Path(u"videos/Movie_Chapters.xml"_s)));
    Write(u"videos/Movie_Chapters.xml"_s, "old");
    EXPECT_EQ(Find(), u"Movie_Chapters.xml"_s);
    EXPECT_EQ(Xml(), u"old"_s);
}

TEST_F(Chapters, AnOldXmlThatCanNotGoToTheTrashIsNeverOverwritten)
{
    Write(u"videos/Movie_Chapters.txt"_s, "1 text\n");
    const QString xml = Write(u"videos/Movie_Chapters.xml"_s, "old");
    const Refused_By_Trash refused(xml);
    EXPECT_EQ(Error_Of([&] { Find(); }).Subject, xml);
    EXPECT_EQ(Xml(), u"old"_s);
    EXPECT_EQ(Faults(), QStringList{u"-- Could not be moved to the trash - \""_s + xml + u'"'});
}
