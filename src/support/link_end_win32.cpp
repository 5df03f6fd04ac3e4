#include "support/disk_names.h"
#include "support/link_end.h"
#include "support/long_path.h"

#include <vector>
#include <windows.h>

using namespace Qt::StringLiterals;

/// The path of what an open handle stands for, as people write it; empty if it has none.
static QString Path_Of(HANDLE handle)
{
    std::vector<wchar_t> letters(32768);
    const DWORD length = GetFinalPathNameByHandleW(handle, letters.data(), static_cast<DWORD>(letters.size()), 0);
    QString path = QString::fromWCharArray(letters.data(), static_cast<int>(length < letters.size() ? length : 0));
    if (path.startsWith(u"\\\\?\\UNC\\"_s))
        return u"\\\\"_s + path.sliced(8);
    return path.startsWith(u"\\\\?\\"_s) ? path.sliced(4) : path;
}

static QString Followed(const QString& path)
{
    const HANDLE handle =
        CreateFileW(Native_Path(Long_Path(path)).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    const QString end = Path_Of(handle);
    CloseHandle(handle);
    return end;
}

std::optional<QString> End_Of_Links(const QString& path)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(Native_Path(Long_Path(path)).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return std::nullopt;
    FindClose(search);
    const bool is_link =
        (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && found.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
    return is_link ? std::optional(Followed(path)) : std::nullopt;
}

QString Without_Links(const QString& folder)
{
    return Followed(folder);
}
