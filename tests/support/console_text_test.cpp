#include "support/console_text.h"

#include "common/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ConsoleText, CharactersAndLineEndsSurviveACutAtAnyPlace)
{
    const QByteArray bytes = QByteArray("Prog\r 1%\r\rA\nB\r\n\n\r\n") + "é漢😀\n" + "\xff end\n";
    const QString expected = u"Prog\r 1%\r\rA\r\nB\r\n\r\n\r\né漢😀\r\n\uFFFD end\r\n"_s;
    for (qsizetype first = 0; first <= bytes.size(); ++first)
        for (qsizetype second = first; second <= bytes.size(); ++second) {
            Console_Text text;
            QString whole = text.Decode(bytes.left(first));
            whole += text.Decode(bytes.mid(first, second - first));
            whole += text.Decode(bytes.mid(second));
            ASSERT_EQ(whole, expected) << first << " " << second;
        }
}

TEST(ConsoleText, WhatFollowsSkippedBytesIsTheSameAsIfTheyHadBeenRead)
{
    const QByteArray bytes = QByteArray("many bytes\r\n\r") + "\né漢😀😀é\r\n\xff\n\x80\x80\x80\x80\x80\n end";
    for (qsizetype first = 0; first <= bytes.size(); ++first)
        for (qsizetype second = first; second <= bytes.size(); ++second) {
            Console_Text read;
            Console_Text skipped;
            read.Decode(bytes.left(first));
            skipped.Decode(bytes.left(first));
            read.Decode(bytes.mid(first, second - first));
            skipped.Skip(bytes.mid(first, second - first));
            ASSERT_EQ(skipped.Decode(bytes.mid(second)), read.Decode(bytes.mid(second))) << first << " " << second;
        }
}
