#include "support/inherited_signals.h"

#include <csignal>

void Take_Back_Inherited_Signals()
{
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    std::signal(SIGCHLD, SIG_DFL);
}
