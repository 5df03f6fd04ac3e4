#include "support/death_words.h"

#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;

QString What_Ended(int exit_status)
{
    const int signal_number = -exit_status;
    static constexpr std::pair<int, const char*> names[] = {
        {SIGHUP, "SIGHUP"},   {SIGINT, "SIGINT"},   {SIGQUIT, "SIGQUIT"}, {SIGILL, "SIGILL"},   {SIGTRAP, "SIGTRAP"},
        {SIGABRT, "SIGABRT"}, {SIGBUS, "SIGBUS"},   {SIGFPE, "SIGFPE"},   {SIGKILL, "SIGKILL"}, {SIGUSR1, "SIGUSR1"},
        {SIGSEGV, "SIGSEGV"}, {SIGUSR2, "SIGUSR2"}, {SIGPIPE, "SIGPIPE"}, {SIGALRM, "SIGALRM"}, {SIGTERM, "SIGTERM"},
        {SIGXCPU, "SIGXCPU"}, {SIGXFSZ, "SIGXFSZ"}, {SIGSYS, "SIGSYS"},
    };
    for (const auto& [number, name] : names)
        if (number == signal_number)
            return u"the signal %1 (%2)"_s.arg(QLatin1StringView(name)).arg(number);
    return u"the signal "_s + QString::number(signal_number);
}
