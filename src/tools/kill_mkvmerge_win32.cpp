#include "tools/kill_mkvmerge.h"

#include "support/paths.h"
#include "support/platform_names.h"

#include <windows.h>
// Behind windows.h, which it takes its types from.
#include <tlhelp32.h>

using namespace Qt::StringLiterals;

/// The session that a process belongs to; nothing for one that can't be asked.
static bool Is_Of_Session(DWORD process, DWORD session)
{
    DWORD own = 0;
    return ProcessIdToSessionId(process, &own) != FALSE && own == session;
}

static void Kill(DWORD process)
{
    // Not 1, with which mkvmerge tells of warnings: whoever waits for it must not take its output for whole.
    constexpr UINT ended_by_control_c = 0xC000013A;
    const HANDLE handle = OpenProcess(PROCESS_TERMINATE, FALSE, process);
    if (handle == nullptr)
        return;
    TerminateProcess(handle, ended_by_control_c);
    CloseHandle(handle);
}

void Kill_By_Executable_Name(const QString& executable)
{
    const QString file_name = File_Name_Of(executable);
    const QString wanted = file_name.isEmpty() ? Executable_Name(u"mkvmerge"_s) : file_name;
    DWORD session = 0;
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (processes == INVALID_HANDLE_VALUE)
        return;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    if (ProcessIdToSessionId(GetCurrentProcessId(), &session) != FALSE)
        for (BOOL more = Process32FirstW(processes, &entry); more != FALSE; more = Process32NextW(processes, &entry))
            if (entry.th32ProcessID != GetCurrentProcessId() &&
                QString::fromWCharArray(entry.szExeFile).compare(wanted, Qt::CaseInsensitive) == 0 &&
                Is_Of_Session(entry.th32ProcessID, session))
                Kill(entry.th32ProcessID);
    CloseHandle(processes);
}
