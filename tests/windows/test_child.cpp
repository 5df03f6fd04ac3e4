// A child for tests that need a Windows program of their own: what its first argument says, it does.

#include <cstddef>
#include <windows.h>

// Arguments are data: the run-time library isn't to look for file names that match them.
extern "C" int _CRT_glob;
int _CRT_glob = 0;

namespace {

void Print(const void* bytes, std::size_t size)
{
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes, static_cast<DWORD>(size), &written, nullptr);
}

/// The arguments as the C run-time has them, each with its zero.
int Echo(int count, wchar_t** texts)
{
    for (int index = 2; index < count; ++index)
        Print(texts[index], (static_cast<std::size_t>(lstrlenW(texts[index])) + 1) * sizeof(wchar_t));
    return 0;
}

} // namespace

int wmain(int count, wchar_t** texts)
{
    const wchar_t act = count > 1 ? texts[1][0] : L' ';
    if (act == L'e')
        return Echo(count, texts);
    // Ends with what a crash leaves; at a real one Wine calls its debugger.
    if (act == L'c')
        TerminateProcess(GetCurrentProcess(), static_cast<UINT>(EXCEPTION_ACCESS_VIOLATION));
    if (act == L's')
        Sleep(INFINITE);
    return 300;
}
