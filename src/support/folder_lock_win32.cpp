#include "support/folder_lock.h"

#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/system_calls_win32.h"

#include <cerrno>
#include <windows.h>

using namespace Qt::StringLiterals;

Folder_Lock::~Folder_Lock()
{
    if (handle_ != -1)
        ::CloseHandle(reinterpret_cast<HANDLE>(handle_)); // NOLINT(performance-no-int-to-ptr)
}

/// How long a former holder's file may take to go.
static constexpr int Longest_Removal = 200;

bool Folder_Lock::Try(const QString& folder)
{
    if (handle_ != -1)
        return true;
    // Shared with nobody, so that a second holder is refused.
    const QString file = With_Separator(folder) + u".vantorra-lock"_s;
    DWORD error = ERROR_SUCCESS;
    for (int waited = 0;; waited += 20) {
        const HANDLE handle =
            ::CreateFileW(Wide_Path(file), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (handle != INVALID_HANDLE_VALUE) {
            handle_ = reinterpret_cast<std::intptr_t>(handle);
            return true;
        }
        error = ::GetLastError();
        // A file that is just being removed is refused like one that nobody may write.
        if (error != ERROR_ACCESS_DENIED || waited >= Longest_Removal)
            break;
        ::Sleep(20);
    }
    if (error == ERROR_SHARING_VIOLATION)
        return false;
    if (!Folder_Exists(folder))
        Raise_File_Error(u"Locking the program's folder"_s, folder, ENOENT);
    return true;
}
