#include "support/this_process.h"

#include "support/system_calls_win32.h"

#include <QRegularExpression>
#include <QSysInfo>
#include <optional>
#include <windows.h>

using namespace Qt::StringLiterals;

QString Host_Name()
{
    static const QRegularExpression unusual(u"[^A-Za-z0-9._-]"_s);
    QString host = QSysInfo::machineHostName();
    return host.isEmpty() ? u"localhost"_s : host.replace(unusual, u"_"_s);
}

struct Process_Times
{
    std::int64_t Started = 0;
    std::int64_t Ended = 0;
};

static std::optional<Process_Times> Times_Of(HANDLE process)
{
    FILETIME started = {};
    FILETIME ended = {};
    FILETIME kernel = {};
    FILETIME user = {};
    if (::GetProcessTimes(process, &started, &ended, &kernel, &user) == 0)
        return {};
    const auto wide = [](const FILETIME& time) {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32U | time.dwLowDateTime);
    };
    return Process_Times{.Started = wide(started), .Ended = wide(ended)};
}

/// The start is a date and time, so that no start of the machine has to be told apart.
Process_Identity This_Process()
{
    return {.Host = Host_Name(),
            .Boot = {},
            .Number = ::GetCurrentProcessId(),
            .Started = Times_Of(::GetCurrentProcess()).value_or(Process_Times{}).Started};
}

Process_Life Life_Of(const Process_Identity& process)
{
    if (process.Host != Host_Name())
        return Process_Life::Unknown;
    const System_Handle open(
        ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(process.Number)));
    // Somebody else's process says nothing of itself; a number that nobody has is a bad one.
    if (!open)
        return ::GetLastError() == ERROR_INVALID_PARAMETER ? Process_Life::Gone : Process_Life::Unknown;
    const std::optional<Process_Times> times = Times_Of(open.get());
    if (!times)
        return Process_Life::Unknown;
    // An ended process keeps its number while somebody holds it open.
    return times->Started == process.Started && times->Ended == 0 ? Process_Life::Goes_On : Process_Life::Gone;
}
