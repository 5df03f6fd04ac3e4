#include "support/command_line.h"

#include "common/test_program.h"

#include <QProcess>

TEST(CommandLine, AShellReadsTheQuotedWordsBackAsTheArguments)
{
    const QStringList arguments =
        u"plain||a b|it's|$(x) `y` \"z\" \\|two\nlines|(|-*|~|#x|é|a=b,c:d%s|\x1b[31m'\t\r\x7f\u009b5%\\"_s.split(u'|');
    const QString words = Shell_Quoted(arguments);
    for (const QChar letter : words)
        EXPECT_TRUE(letter.category() != QChar::Other_Control || letter == u'\n') << int{letter.unicode()};
    QProcess shell;
    shell.start(u"/bin/sh"_s, {u"-c"_s, u"printf '%s\\0' "_s + words});
    ASSERT_TRUE(shell.waitForFinished());
    QStringList read = QString::fromUtf8(shell.readAllStandardOutput()).split(QChar(u'\0'));
    read.removeLast();
    EXPECT_EQ(read, arguments);
}
