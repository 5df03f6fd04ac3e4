#include "support/system_calls_win32.h"

#include "support/disk_steps.h"
#include "support/long_path.h"

#include <cerrno>
#include <utility>
#include <windows.h>

Wide_Path::Wide_Path(const QString& path) : text_(Long_Path(path)) {}

System_Handle::System_Handle(void* handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}

void System_Handle::Closer::operator()(void* handle) const
{
    ::CloseHandle(handle);
}

System_Handle Open_Path(const QString& path, unsigned long access, unsigned long creation, unsigned long flags)
{
    return System_Handle(::CreateFileW(Wide_Path(path), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                       nullptr, creation, flags | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

int Number_Of_System_Error(unsigned long code)
{
    constexpr unsigned long disk_quota_exceeded = 1295; // the compiler's headers lack it
    static constexpr std::pair<unsigned long, int> numbers[] = {
        {ERROR_SUCCESS, 0},
        {ERROR_FILE_NOT_FOUND, ENOENT},
        {ERROR_PATH_NOT_FOUND, ENOENT},
        {ERROR_INVALID_DRIVE, ENOENT},
        {ERROR_BAD_NETPATH, ENOENT},
        {ERROR_BAD_NET_NAME, ENOENT},
        {ERROR_ALREADY_EXISTS, EEXIST},
        {ERROR_FILE_EXISTS, EEXIST},
        {ERROR_ACCESS_DENIED, EACCES},
        {ERROR_WRITE_PROTECT, EROFS},
        {ERROR_DISK_FULL, ENOSPC},
        {ERROR_HANDLE_DISK_FULL, ENOSPC},
        {disk_quota_exceeded, ENOSPC},
        {ERROR_FILE_TOO_LARGE, EFBIG},
        {ERROR_DIRECTORY, ENOTDIR},
        {ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
        {ERROR_INVALID_PARAMETER, EINVAL},
        {ERROR_INVALID_NAME, EINVAL},
        {ERROR_BAD_PATHNAME, EINVAL},
        {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
        {ERROR_NOT_SAME_DEVICE, EXDEV},
        {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
        {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
        {ERROR_OUTOFMEMORY, ENOMEM},
        {ERROR_CRC, EIO},
        {ERROR_IO_DEVICE, EIO},
    };
    for (const auto& [system, number] : numbers)
        if (system == code)
            return number;
    return First_Own_Error + static_cast<int>(code);
}

int Last_System_Error()
{
    return Number_Of_System_Error(::GetLastError());
}

QString Words_Of_System_Error(unsigned long code)
{
    constexpr DWORD longest = 1024;
    constexpr DWORD how = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    wchar_t words[longest];
    DWORD size =
        ::FormatMessageW(how, nullptr, code, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), words, longest, nullptr);
    // A system in another language may have come without English.
    if (size == 0)
        size = ::FormatMessageW(how, nullptr, code, 0, words, longest, nullptr);
    QString text = From_Wide(words, static_cast<qsizetype>(size)).trimmed();
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}
