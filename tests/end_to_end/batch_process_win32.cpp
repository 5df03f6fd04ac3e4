#include "end_to_end/batch_process.h"

#include <windows.h>
// It takes what windows.h defines.
#include <tlhelp32.h>

void Prepare_For_Halt(QProcess& process)
{
    // Ctrl-Break goes to a group of processes that share a console.
    if (GetConsoleCP() == 0)
        AllocConsole();
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags |= CREATE_NEW_PROCESS_GROUP;
        arguments->flags &= ~static_cast<unsigned long>(CREATE_NO_WINDOW);
    });
}

void Ask_To_Halt(QProcess& process)
{
    GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, static_cast<DWORD>(process.processId()));
}

QList<long> Children_Of(long process)
{
    QList<long> children;
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(processes, &entry); more; more = Process32NextW(processes, &entry))
        if (entry.th32ParentProcessID == static_cast<DWORD>(process))
            children += static_cast<long>(entry.th32ProcessID);
    CloseHandle(processes);
    return children;
}
