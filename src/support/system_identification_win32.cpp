#include "support/system_identification.h"

#include "support/system_calls_win32.h"

#include <windows.h>

using namespace Qt::StringLiterals;

/// A function of a system library; looked up by name, as not every compiler's libraries list it.
template <typename Function>
static Function* Look_Up(const wchar_t* library, const char* name)
{
    const HMODULE module = ::GetModuleHandleW(library);
    return module == nullptr ? nullptr
                             : reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

QString Get_OS_Version_Text()
{
    // The plain call tells a program only of the versions that its manifest names.
    auto* const get_version = Look_Up<LONG WINAPI(OSVERSIONINFOEXW*)>(L"ntdll", "RtlGetVersion");
    OSVERSIONINFOEXW system = {};
    system.dwOSVersionInfoSize = sizeof(system);
    if (get_version == nullptr || get_version(&system) != 0)
        return u"Failed to retrieve Windows version"_s;
    const Os_Version_Info info{.Major = static_cast<int>(system.dwMajorVersion),
                               .Minor = static_cast<int>(system.dwMinorVersion),
                               .Build = static_cast<int>(system.dwBuildNumber),
                               .Service_Pack_Major = system.wServicePackMajor,
                               .Service_Pack_Minor = system.wServicePackMinor,
                               .Suite_Mask = system.wSuiteMask,
                               .Product_Type = system.wProductType};
    return OS_Version_Line(Get_OS_Name(info), Service_Pack(info), Version_Numbers(info));
}

bool Get_Bitness(int& bitness)
{
    auto* const is_emulated = Look_Up<BOOL WINAPI(HANDLE, USHORT*, USHORT*)>(L"kernel32", "IsWow64Process2");
    USHORT process = IMAGE_FILE_MACHINE_UNKNOWN;
    USHORT system = IMAGE_FILE_MACHINE_UNKNOWN;
    bitness = sizeof(void*) == 8 ? 64 : 32;
    // A 32-bit process on a 64-bit system is named with the system's own kind beside it.
    if (is_emulated != nullptr && is_emulated(::GetCurrentProcess(), &process, &system) != 0 &&
        process != IMAGE_FILE_MACHINE_UNKNOWN && system != IMAGE_FILE_MACHINE_I386)
        bitness = 64;
    return true;
}

std::optional<QString> System_Error_Words(int code, No_Words& why)
{
    constexpr DWORD longest = 160;
    constexpr DWORD how = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    wchar_t words[longest];
    // In English, as all else is; where a system came without it, in the system's language.
    for (const DWORD language : {static_cast<DWORD>(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)), DWORD{0}}) {
        const DWORD size = ::FormatMessageW(how, nullptr, static_cast<DWORD>(code), language, words, longest, nullptr);
        if (size > 0)
            return From_Wide(words, static_cast<qsizetype>(size));
    }
    if (const DWORD error = ::GetLastError(); error != ERROR_SUCCESS)
        why.Last_Error = static_cast<int>(error);
    return std::nullopt;
}
