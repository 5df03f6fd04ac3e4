#include "headless/stop_signals.h"

#include <atomic>
#include <cstdio>
#include <io.h>
#include <windows.h>

/// The console tells of them on a thread of its own.
static std::atomic<bool> stop_signal_came = false;

static BOOL WINAPI Remember_Stop(DWORD signal)
{
    constexpr DWORD longest_end = 5000; // milliseconds, as the system has it
    stop_signal_came = true;
    // Where the console goes, the process ends with this function: by then the run has to have ended its children.
    if (signal != CTRL_C_EVENT && signal != CTRL_BREAK_EVENT)
        Sleep(longest_end);
    return TRUE;
}

void Watch_For_Stop_Signals()
{
    // Whoever starts a process group has Ctrl-C ignored in it; a batch that is sent one is meant to stop all the same.
    SetConsoleCtrlHandler(nullptr, FALSE);
    SetConsoleCtrlHandler(Remember_Stop, TRUE);
}

/// True once a write to a pipe has failed: nobody reads what comes any more, and no signal tells.
static bool Has_Lost_Its_Reader(std::FILE* stream)
{
    return std::ferror(stream) != 0 &&
           GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)))) == FILE_TYPE_PIPE;
}

bool Stop_Signal_Came()
{
    return stop_signal_came || Has_Lost_Its_Reader(stdout) || Has_Lost_Its_Reader(stderr);
}
