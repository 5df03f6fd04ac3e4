#include "headless/progress_bar.h"

#include <sys/ioctl.h>
#include <unistd.h>

static bool Terminal_Draws_Over()
{
    const QByteArray kind = qgetenv("TERM");
    return !kind.isEmpty() && kind != "dumb";
}

Progress_Bar::Progress_Bar(std::FILE* stream, bool wanted)
    : stream_(stream), on_(wanted && isatty(fileno(stream)) == 1), draws_over_(Terminal_Draws_Over())
{}

int Progress_Bar::Columns() const
{
    winsize size = {};
    return ioctl(fileno(stream_), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
