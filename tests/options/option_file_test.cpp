#include "options/option_file.h"

#include "common/test_program.h"

struct Option_File : testing::Test, Test_Program
{
    Option_File() { Load_Language_Table(Prog.Language_Table, u"scrap"_s); }

    /// The run's reader over that text, "-" if the file was refused.
    QString Run_Reads(const QByteArray& text)
    {
        const QString path = Write(u"videos/a.mp3.opt"_s, text);
        Option_Values values{u"left"_s, u"over"_s, u"from"_s, u"the"_s, u"last"_s};
        const bool good = Read_Option_File(Prog.Language_Table, path.chopped(4), values);
        return good ? QStringList(values.begin(), values.end()).join(u'|') : u"-"_s + values[0] + values[4];
    }

    OptionRecord Editor_Reads(const QByteArray& text)
    {
        OptionRecord record;
        EXPECT_TRUE(Load_Option_Record(Write(u"videos/a.mp3.opt"_s, text), record));
        return record;
    }
};

TEST_F(Option_File, TheRunTakesKeysInAnyCaseAndRefusesAFileWithOneBadLine)
{
    const std::tuple<QByteArray, QString> claims[] = {
        {"Title=My Film\r\nLanguage=English (eng)\r\nDefault=yes\r\nForced=no\r\nDelay=-200\r\n",
         u"My Film|eng|yes|no|-200"_s},
        {"TITLE=x\ntitle=y\n", u"y||||"_s},
        {"Title=a=b=c\r\n", u"a||||"_s},
        {"Title= kept blanks \r\n", u" kept blanks ||||"_s},
        {"Title =x\r\nNonsense=1\r\nStretch=2\r\n=\r\n", u"||||"_s},
        {"Title=\r\nDefault=YES\r\nDelay=abc\r\n", u"||YES||abc"_s},
        {"# a comment without the sign\r\n# a=b\r\n\r\n   \r\nForced=yes", u"|||yes|"_s},
        {"Title=a\r\n #comment\r\nDelay=5\r\n", u"-"_s},
        {"Title=a\r\nno sign here\r\n", u"-"_s},
        {"\t\r\n", u"-"_s},
        {"", u"||||"_s},
        {"# only\r\n\r\n", u"||||"_s},
        {"Language=de", u"|ger|||"_s},
        {"Language=Klingon", u"||||"_s},
        {"Language=(eng)", u"||||"_s},
        {"Language=Norwegian Nynorsk (nno)", u"|nob|||"_s},
        {"Title=\xc3\x9c\xe6\x97\xa5\r\n", u"Ü日||||"_s},
        {"Title=Fran\xe7ois\r\nDelay=\xc3\x9c\r\n", u"François||||Ü"_s},
        {"\xef\xbb\xbfTitle=marked\r\n", u"marked||||"_s},
        {QByteArray("\xff\xfeT\0i\0t\0l\0e\0=\0w\0\r\0\n\0", 20), u"w||||"_s},
    };
    for (const auto& [text, values] : claims)
        EXPECT_EQ(Run_Reads(text), values) << text.toStdString();
}

TEST_F(Option_File, AMissingFileAndARelativePathGiveNothing)
{
    Option_Values values{u"old"_s};
    EXPECT_FALSE(Read_Option_File(Prog.Language_Table, Path(u"videos/gone.mp3"_s), values));
    EXPECT_EQ(values, Option_Values());
    EXPECT_FALSE(Read_Option_File(Prog.Language_Table, u"a.mp3"_s, values));
}

TEST_F(Option_File, ALanguageLineWithNothingStopsTheRunAndAKeyAloneTheEditorBothNamingTheFile)
{
    for (const char* text : {"Language=\r\n", "Title=a\r\nLANGUAGE=)\r\n", "title\r\n", "Stretch"}) {
        const bool alone = !QByteArray(text).contains('=');
        const Caught_Error error = Error_Of([&] { alone ? (void)Editor_Reads(text) : (void)Run_Reads(text); });
        EXPECT_EQ(error.Number, 9) << text;
        EXPECT_EQ(error.Subject, Path(u"videos/a.mp3.opt"_s)) << text;
    }
}

TEST_F(Option_File, TheEditorTrimsKeepsTheLanguageAndPassesOverBadLines)
{
    const OptionRecord record = Editor_Reads("Title=  My Film \r\n #no comment\r\n#  one \r\nnonsense\r\n\r\n"
                                             "LANGUAGE= German (ger) \r\n#two\r\nStretch=1.5\r\nDefault=\r\n");
    EXPECT_EQ(record.Title, u"My Film"_s);
    EXPECT_EQ(record.Language, u"German (ger)"_s);
    EXPECT_EQ(record.Stretch, u"1.5"_s);
    EXPECT_EQ(record.Comments, QStringList({u"one"_s, u"two"_s}));
    EXPECT_EQ(record.Flags, Title_Flag | Language_Flag | Default_Flag | Stretch_Flag | Comments_Flag);
    EXPECT_EQ(Editor_Reads("# a\r\n\r\n").Flags, Comments_Flag);
    EXPECT_EQ(Editor_Reads("").Flags, 0);
    EXPECT_EQ(Editor_Reads("Language=").Flags, Language_Flag);
}

TEST_F(Option_File, WritingReplacesTheWholeFileAndFiveEmptyValuesTrashIt)
{
    const QString path = Path(u"videos/b.srt.opt"_s);
    clsStringBuilder& faults = Prog.Logs.Log_Faults;
    EXPECT_EQ(Write_Option_File(path, {}, faults), Option_Write_Status::Nothing_To_Write);
    EXPECT_EQ(Write_Option_File(path, {u"A Ü"_s, u"English (eng)"_s, u""_s, u"no"_s, u"-5"_s}, faults),
              Option_Write_Status::Written);
    EXPECT_EQ(Read(u"videos/b.srt.opt"_s), "Title=A Ü\r\nLanguage=English (eng)\r\nForced=no\r\nDelay=-5\r\n");
    EXPECT_EQ(Write_Option_File(path, {u""_s, u""_s, u"yes"_s, u""_s, u""_s}, faults), Option_Write_Status::Written);
    EXPECT_EQ(Read(u"videos/b.srt.opt"_s), "Default=yes\r\n");
    EXPECT_EQ(Write_Option_File(path, {}, faults), Option_Write_Status::Recycled);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(Names_In_Trash().contains(u"b.srt.opt"_s));
    EXPECT_TRUE(Faults().isEmpty());
}

TEST_F(Option_File, MergingKeepsTheOtherKeysAndDropsCommentsAndStretch)
{
    const QString path = Write(u"videos/c.mp3.opt"_s, "Title= a \r\n# note\r\nStretch=1\r\nDelay=7\r\n");
    EXPECT_EQ(Merge_Option_File(path, {}), Option_Write_Status::Left_Alone);
    EXPECT_EQ(Read(u"videos/c.mp3.opt"_s), "Title= a \r\n# note\r\nStretch=1\r\nDelay=7\r\n");
    const Option_Values values = {u""_s, u"German (ger)"_s, u""_s, u""_s, u"9"_s};
    EXPECT_EQ(Merge_Option_File(path, values), Option_Write_Status::Written);
    EXPECT_EQ(Read(u"videos/c.mp3.opt"_s), "Title=a\r\nLanguage=German (ger)\r\nDelay=9\r\n");
    EXPECT_EQ(Merge_Option_File(Path(u"videos/new.mp3.opt"_s), values), Option_Write_Status::Written);
    EXPECT_EQ(Read(u"videos/new.mp3.opt"_s), "Language=German (ger)\r\nDelay=9\r\n");
    // What an 8-bit code page wrote is kept, not made U+FFFD for good.
    const QString old_path = Write(u"videos/old.mp3.opt"_s, "Title=Fran\xe7ois\r\n");
    EXPECT_EQ(Merge_Option_File(old_path, values), Option_Write_Status::Written);
    EXPECT_EQ(Read(u"videos/old.mp3.opt"_s), "Title=Fran\xc3\xa7ois\r\nLanguage=German (ger)\r\nDelay=9\r\n");
}

TEST_F(Option_File, AFolderThatCanNotBeWrittenIsAnErrorThatNamesTheFile)
{
    const QString path = Path(u"gone/d.mp3.opt"_s);
    EXPECT_EQ(Error_Of([&] { Write_Option_File(path, {u"x"_s}, Prog.Logs.Log_Faults); }).Subject, path);
}
