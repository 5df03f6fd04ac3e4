#include "common/test_program.h"

#include "headless/memory_stream.h"
#include "headless/progress_bar.h"

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(Progress_Bar, TextFitsTheColumns)
{
    EXPECT_EQ(Bar_Text(50, u"film"_s, 80), u"[###############               ]  50% film"_s);
    EXPECT_EQ(Bar_Text(100, u"film"_s, 20).size(), 20);
    EXPECT_EQ(Bar_Text(0, u"漢字漢字"_s, 43).sliced(38), u"漢字"_s) << "each takes two columns";
    EXPECT_EQ(Bar_Text(0, u"😀😀"_s, 43).sliced(38), u"😀"_s) << "no half of a pair";
    EXPECT_EQ(Bar_Text(-5, {}, 80).count(u'#'), 0);
    EXPECT_EQ(Bar_Text(1000, {}, 80).count(u'#'), 30);
}

TEST(Progress_Bar, DrawsOnATerminalOnlyAndOnlyWhatChanged)
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(::grantpt(terminal), 0);
    ASSERT_EQ(::unlockpt(terminal), 0);
    // Never as the test's own terminal: closing that would end a test that leads a session, as in a container.
    std::FILE* const stream = ::fdopen(::open(::ptsname(terminal), O_WRONLY | O_NOCTTY), "w");
    ASSERT_NE(stream, nullptr);
    const winsize columns{.ws_row = 24, .ws_col = 40, .ws_xpixel = 0, .ws_ypixel = 0};
    ASSERT_EQ(::ioctl(terminal, TIOCSWINSZ, &columns), 0);

    for (const bool wanted : {true, false}) {
        Progress_Bar bar(stream, wanted);
        bar.Show(50, u"a long name of a film"_s);
        bar.Show(50, u"a long name of a film"_s);
    }
    std::fclose(stream);
    // One read may deliver a part only; behind the last one the closed end is told as an error.
    QByteArray drawn;
    char part[1000];
    for (ssize_t size = 0; (size = ::read(terminal, part, sizeof part)) > 0;)
        drawn.append(part, size);
    ::close(terminal);
    EXPECT_EQ(QString::fromUtf8(drawn), u"\r\033[K[###############               ]  50% a\r\033[K"_s);

    Memory_Stream no_terminal;
    {
        Progress_Bar bar(no_terminal.Stream(), true);
        bar.Show(50, u"film"_s);
    }
    EXPECT_TRUE(no_terminal.Text().isEmpty());
}
