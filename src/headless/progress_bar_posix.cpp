#include "headless/progress_bar.h"

#include "headless/print.h"

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

void Progress_Bar::Show(const Bar_Facts& facts)
{
    if (!on_)
        return;
    if (!draws_over_) {
        Show_Line(facts);
        return;
    }
    winsize size = {};
    const bool known = ioctl(fileno(stream_), TIOCGWINSZ, &size) == 0 && size.ws_col > 1;
    const QString text = Bar_Text(facts, known ? size.ws_col - 1 : 79);
    if (text == shown_)
        return;
    Print_Text(stream_, Wiped_Line + text);
    shown_ = text;
}
