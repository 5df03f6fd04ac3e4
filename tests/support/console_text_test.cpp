#include "support/console_text.h"

#include "common/test_program.h"

TEST(ConsoleText, CharactersAndLineEndsSurviveACutAtAnyPlaceAndSkippedBytesLeaveWhatFollowsAsItIs)
{
    const QByteArray bytes =
        QByteArray("Prog\r 1%\r\rA\nB\r\n\n\r\n") + "é漢😀😀é\n" + "\xff\n\x80\x80\x80\x80\x80\n end\n";
    const QString bad = u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"_s;
    const QString expected = u"Prog\r 1%\r\rA\r\nB\r\n\r\n\r\né漢😀😀é\r\n\uFFFD\r\n"_s + bad + u"\r\n end\r\n"_s;
    for (qsizetype first = 0; first <= bytes.size(); ++first)
        for (qsizetype second = first; second <= bytes.size(); ++second) {
            Console_Text read;
            Console_Text skipped;
            const QString begin = read.Decode(bytes.left(first));
            skipped.Decode(bytes.left(first));
            const QString middle = read.Decode(bytes.mid(first, second - first));
            skipped.Skip(bytes.mid(first, second - first));
            const QString end = read.Decode(bytes.mid(second));
            ASSERT_EQ(begin + middle + end, expected) << first << " " << second;
            ASSERT_EQ(skipped.Decode(bytes.mid(second)), end) << first << " " << second;
        }
}
