#include "support/windows_quoting.h"

#include "common/test_program.h"
#include "support/long_path.h"

TEST(Windows_Quoting, BackslashesAreDoubledAheadOfQuotesOnly)
{
    const std::tuple<QString, QString> claims[] = {
        {u"plain\\path"_s, u"plain\\path"_s},
        {u""_s, u"\"\""_s},
        {u"a b"_s, u"\"a b\""_s},
        {u"C:\\My Films\\"_s, u"\"C:\\My Films\\\\\""_s},
        {u"C:\\Films\\"_s, u"C:\\Films\\"_s},
        {u"say \"hi\""_s, u"\"say \\\"hi\\\"\""_s},
        {u"\\\\\"\\"_s, u"\"\\\\\\\\\\\"\\\\\""_s},
        {u"*.mkv"_s, u"\"*.mkv\""_s},
        {u"100%"_s, u"100%"_s},
        {u"two\nlines"_s, u"\"two\nlines\""_s},
        {u"cut\0here"_s, u"cut"_s},
    };
    for (const auto& [argument, text] : claims)
        EXPECT_EQ(Windows_Command_Line(u"C:\\t.exe"_s, {argument, u"-"_s}), u"\"C:\\t.exe\" "_s + text + u" -"_s);
}

TEST(Long_Path, DrivesAndSharesGetTheirPrefixAndNothingElseIsTouched)
{
    const std::pair<QString, QString> claims[] = {
        {u"C:\\a\\b"_s, u"\\\\?\\C:\\a\\b"_s},
        {u"c:/a/.\\\\b/../c\\"_s, u"\\\\?\\c:\\a\\c"_s},
        {u"C:\\"_s, u"\\\\?\\C:\\"_s},
        {u"C:\\..\\..\\a. "_s, u"\\\\?\\C:\\a. "_s},
        {u"\\\\nas\\films\\..\\..\\a"_s, u"\\\\?\\UNC\\nas\\films\\a"_s},
        {u"//nas/films"_s, u"\\\\?\\UNC\\nas\\films"_s},
        {u"\\\\?\\C:\\a\\..\\b"_s, u"\\\\?\\C:\\a\\..\\b"_s},
        {u"\\\\.\\pipe\\x"_s, u"\\\\.\\pipe\\x"_s},
        {u"C:a"_s, u"C:a"_s},
        {u"a\\b"_s, u"a\\b"_s},
        {u"\\a"_s, u"\\a"_s},
        {u""_s, u""_s},
    };
    for (const auto& [path, result] : claims)
        EXPECT_EQ(Long_Path(path), result);
}

TEST(Long_Path, ANameThatWouldBecomeAnotherIsRefusedInWords)
{
    const QStringList refused = {u"a."_s,       u"a "_s,        u"a:b"_s,        u"a<b"_s,      u"a\"b"_s,
                                 u"a|b"_s,      u"a?b"_s,       u"a*b"_s,        u"a\tb"_s,     u"a/b"_s,
                                 u"con"_s,      u"CON.mkv"_s,   u"Nul.tar.gz"_s, u"aux .mkv"_s, u"com1"_s,
                                 u"LPT9.txt"_s, u"com\u00b2"_s, u"conout$"_s,    u"prn.mkv"_s};
    for (const QString& name : refused)
        EXPECT_NE(Why_Windows_Refuses(name), QString()) << name.toStdString();
    for (const QString& name :
         {u" a"_s, u".a"_s, u"a.b.c"_s, u"console.mkv"_s, u"com.mkv"_s, u"com10"_s, u"a;b%c'd"_s, u"名前"_s})
        EXPECT_EQ(Why_Windows_Refuses(name), QString()) << name.toStdString();
    EXPECT_EQ(Why_Windows_Refuses(u"Part 1: The Hobbit.mkv"_s), u"holds :, which Windows takes in no name"_s);
    EXPECT_EQ(Why_Windows_Refuses(u"a."_s), u"ends in a dot, which Windows takes away"_s);
}
