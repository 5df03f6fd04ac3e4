#include "headless/progress_bar.h"

#include <io.h>
#include <windows.h>

static HANDLE Handle_Of(std::FILE* stream)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

/// The mode of the console that a stream writes to; 0 for any other stream.
static DWORD Console_Mode(std::FILE* stream)
{
    DWORD mode = 0;
    return GetConsoleMode(Handle_Of(stream), &mode) != FALSE ? mode : 0;
}

/// A console that knows the sequences that terminals are steered by: Use_UTF8_Locale has asked it to follow them.
static bool Draws_Over(std::FILE* stream)
{
    return (Console_Mode(stream) & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0 && qgetenv("TERM") != "dumb";
}

Progress_Bar::Progress_Bar(std::FILE* stream, bool wanted)
    : stream_(stream), on_(wanted && Console_Mode(stream) != 0), draws_over_(Draws_Over(stream))
{}

int Progress_Bar::Columns() const
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    const bool known = GetConsoleScreenBufferInfo(Handle_Of(stream_), &info) != FALSE;
    return known ? info.srWindow.Right - info.srWindow.Left + 1 : 0;
}
