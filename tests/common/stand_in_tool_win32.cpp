#include "common/media.h"
#include "common/stand_in_tool.h"

#include "windows/unix_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <windows.h>
// It takes what windows.h defines.
#include <tlhelp32.h>

static const wchar_t* Wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

QString Write_Stand_In(const Test_Program& test, const QString& relative, const QByteArray& body)
{
    test.Write(relative + u".exe.sh"_s, body);
    QString path = test.Path(relative + u".exe"_s);
    const QString forwarder =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u"/tool_forwarder.exe"_s);
    if (!QFile::exists(path) && !QFile::copy(forwarder, path))
        qFatal("A stand-in can't be written: %s", qPrintable(path));
    return path;
}

void Put_Tool(const Test_Program& test, const QString& name, const QString& folder)
{
    const QString path = Native(test.Path(folder + u'/' + name + u".exe"_s));
    const QString tool = Tool_In_Path(name);
    if (!CreateHardLinkW(Wide(path), Wide(tool), nullptr) && !QFile::copy(tool, path))
        qFatal("A tool can't be put there: %s", qPrintable(path));
}

void Spoil(const QString& stand_in)
{
    QFile file(stand_in);
    if (!file.open(QIODevice::WriteOnly) || file.write("#!/nowhere\n") < 0)
        qFatal("A stand-in can't be spoilt: %s", qPrintable(stand_in));
}

QByteArray Path_In_Script(const QString& path)
{
    return QByteArray::fromStdString(Unix_Path(QDir::toNativeSeparators(path).toStdWString()));
}

QByteArray Tool_In_Script(const QString& name)
{
    return name.toUtf8();
}

int Open_Descriptors()
{
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return static_cast<int>(handles);
}

/// One that was ended may still be listed; and an older one had a parent that is gone, whose number is ours now.
static bool Is_Younger_And_Runs(DWORD process)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (!handle)
        return false;
    FILETIME its_start{}, our_start{}, unused{};
    GetProcessTimes(handle, &its_start, &unused, &unused, &unused);
    GetProcessTimes(GetCurrentProcess(), &our_start, &unused, &unused, &unused);
    const bool runs = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    CloseHandle(handle);
    return runs && CompareFileTime(&its_start, &our_start) > 0;
}

/// The desktop of Wine is a child of the program that first shows a window.
static bool Is_Desktop(const PROCESSENTRY32W& entry)
{
    return wcscmp(entry.szExeFile, L"explorer.exe") == 0;
}

int Children_Left()
{
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    int children = 0;
    for (BOOL more = Process32FirstW(processes, &entry); more; more = Process32NextW(processes, &entry))
        if (entry.th32ParentProcessID == GetCurrentProcessId() && !Is_Desktop(entry) &&
            Is_Younger_And_Runs(entry.th32ProcessID))
            ++children;
    CloseHandle(processes);
    return children;
}

bool Is_Running(long process)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    const bool runs = handle && WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    if (handle)
        CloseHandle(handle);
    return runs;
}

bool Is_Running_In_Script(long process)
{
    QFile file(u"Z:/proc/%1/stat"_s.arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readAll();
    const char state = line.mid(line.lastIndexOf(')') + 2).front();
    return state != 'Z' && state != 'X';
}
