#include "common/test_program.h"
#include "headless/progress_bar.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

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

    const Bar_Facts facts = {
        .Index = 17, .Files = 40, .Percent = 50, .Name = u"a long name of a film, of all of which there is no room"_s};
    const QByteArray kind = qgetenv("TERM");
    qputenv("TERM", "xterm");
    for (const bool wanted : {true, false}) {
        Progress_Bar bar(stream, wanted);
        bar.Show(facts);
        bar.Show(facts);
    }
    qputenv("TERM", "dumb");
    Progress_Bar plain(stream, true);
    for (const int index : {1, 1, 2}) {
        plain.Show({.Index = index, .Files = 2, .Percent = 50, .Name = u"film"_s});
    }
    qputenv("TERM", kind);
    std::fclose(stream);
    // One read may deliver a part only; behind the last one the closed end is told as an error.
    QByteArray drawn;
    char part[1000];
    for (ssize_t size = 0; (size = ::read(terminal, part, sizeof part)) > 0;)
        drawn.append(part, size);
    ::close(terminal);
    EXPECT_EQ(QString::fromUtf8(drawn),
              u"\r\033[K17/40 50% a long name of a film, of all\r\033[K1/2 50% film\r\n2/2 50% film\r\n"_s);
}
