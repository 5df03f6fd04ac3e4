#include "end_to_end/batch_process.h"

#include <QFile>
#include <windows.h>
// It takes what windows.h defines.
#include <tlhelp32.h>

void Prepare_For_Start(QProcess& process)
{
    // A console of its own, in which Ctrl-C reaches it alone.
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NO_WINDOW; });
}

const char* const Kill_It = ": > kill_it; sleep 5";
const char* const Halt_It = ": > halt_it; sleep 5";

void Do_As_The_Script_Asks(Batch_Process& batch)
{
    while (batch.Process.state() != QProcess::NotRunning && !batch.Process.waitForFinished(20)) {
        if (QFile::remove(batch.Path(u"kill_it"_s)))
            batch.Process.kill();
        if (QFile::remove(batch.Path(u"halt_it"_s)))
            Ask_To_Halt(batch.Process);
    }
}

void Ask_To_Halt(QProcess& process)
{
    FreeConsole();
    ASSERT_TRUE(AttachConsole(static_cast<DWORD>(process.processId())));
    SetConsoleCtrlHandler(nullptr, TRUE);
    GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    // It is on its way, and would be for us, too.
    process.waitForFinished(300);
    FreeConsole();
    SetConsoleCtrlHandler(nullptr, FALSE);
}

QList<long> Children_Of(qint64 process)
{
    QList<long> children;
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(processes, &entry); more; more = Process32NextW(processes, &entry))
        if (entry.th32ParentProcessID == static_cast<DWORD>(process) && wcscmp(entry.szExeFile, L"conhost.exe") != 0)
            children += static_cast<long>(entry.th32ProcessID);
    CloseHandle(processes);
    return children;
}
