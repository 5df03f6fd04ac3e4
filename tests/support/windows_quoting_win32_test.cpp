#include "support/windows_quoting.h"

#include "common/test_program.h"
#include "support/child_process.h"
#include "support/system_calls_win32.h"

#include <QCoreApplication>
#include <QDir>
#include <random>
#include <windows.h>
// It takes what windows.h defines.
#include <shellapi.h>

static QString Hostile_Value(std::mt19937& random)
{
    static const QStringList pieces = {
        u"\""_s,  u"\\"_s, u"\\\\\\"_s, u" "_s,  u"\t"_s,   u"\n"_s,    u"\r\n"_s, u"%PATH%"_s, u"^"_s, u"&"_s,
        u"|"_s,   u"*"_s,  u"?"_s,      u"'"_s,  u"\"\""_s, u"\\\""_s,  u"a"_s,    u"Z:\\x"_s,  u"@"_s, u"-"_s,
        u"é漢"_s, u"😀"_s,  u"\u00a0"_s, u"\v"_s, u"(x)"_s,  u"$HOME"_s, u"`"_s,    u"\x7f"_s};
    QString value;
    for (auto left = random() % 9; left > 0; --left)
        value += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
    return value;
}

/// As the system's own function takes a command line apart.
static QStringList By_System(const QString& line)
{
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(Wide(line), &count);
    QStringList values;
    for (int index = 2; index < count; ++index)
        values += From_Wide(words[index]);
    ::LocalFree(words);
    return values;
}

/// As a child's C run-time does.
static QStringList By_Child(const QString& program, const QStringList& arguments)
{
    Child_Process child;
    EXPECT_EQ(child.Start(program, arguments), Child_Process::Started::Yes);
    QByteArray output;
    QByteArray chunk;
    while (child.Read_Chunk(chunk, 65536) != Child_Process::Read::Ended)
        output += chunk;
    const auto* const text = reinterpret_cast<const char16_t*>(output.constData());
    QStringList values = QString::fromUtf16(text, output.size() / 2).split(QChar(u'\0'));
    values.removeLast();
    return values;
}

TEST(Windows_Quoting, TenThousandHostileValuesComeOutAsTheyWereByTheSystemAndByTheRunTime)
{
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u"/test_child.exe"_s);
    std::mt19937 random(18);
    constexpr int values_a_start = 500;
    for (int start = 0; start < 20; ++start) {
        QStringList values;
        for (int value = 0; value < values_a_start; ++value)
            values += Hostile_Value(random);
        const QStringList arguments = QStringList{u"echo"_s} + values;
        const QString line = Windows_Command_Line(program, arguments);
        ASSERT_LE(line.size(), Longest_Windows_Command_Line);
        EXPECT_EQ(By_System(line), values) << start;
        EXPECT_EQ(By_Child(program, arguments), values) << start;
    }
}
