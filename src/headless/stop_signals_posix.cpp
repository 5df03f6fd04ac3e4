#include "headless/stop_signals.h"

#include <atomic>
#include <csignal>

/// All that a signal's handler may touch; any thread may be the one that it interrupts.
static std::atomic<bool> stop_signal_came = false;
static_assert(std::atomic<bool>::is_always_lock_free);

static void Remember_Stop(int)
{
    stop_signal_came = true;
}

static void Watch(int signal_number)
{
    // A handler, not SIG_IGN: what is ignored stays ignored in the children, what is handled doesn't.
    struct sigaction action = {};
    action.sa_handler = Remember_Stop;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal_number, &action, nullptr);
}

void Watch_For_Stop_Signals()
{
    // A shell starts its background jobs with SIGINT ignored; a batch that is sent one is meant to stop all the same.
    Watch(SIGINT);
    Watch(SIGTERM);
    Watch(SIGQUIT);
    Watch(SIGUSR1);
    // Deliberate: nobody reads what comes any more, so the run ends as by Ctrl-C instead of dying on the spot.
    Watch(SIGPIPE);

    struct sigaction present = {};
    sigaction(SIGHUP, nullptr, &present);
    if (present.sa_handler != SIG_IGN)
        Watch(SIGHUP);
}

bool Stop_Signal_Came()
{
    return stop_signal_came;
}
