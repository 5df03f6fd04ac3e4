#include "support/disk_steps.h"

#include "support/file_information_win32.h"
#include "support/long_path.h"
#include "support/paths.h"
#include "support/system_calls_win32.h"

#include <QFileDevice>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <io.h>
#include <windows.h>

using namespace Qt::StringLiterals;

static constexpr int Patience = 1000; ///< milliseconds that a step waits for others to close the file
static constexpr int Turn = 50;

/// Does a step, and does it again for a while where somebody holds the file open without letting others at it: as a
/// rule a virus scanner or an index, which look at each new file. Taking the place of an open file is denied like what
/// nobody may do, so there `even_denied` is waited for. 0 or disk_steps.h's number.
template <typename Step>
static int Patiently(Step step, bool even_denied = false)
{
    for (int waited = 0;; waited += Turn) {
        if (step())
            return 0;
        const DWORD error = ::GetLastError();
        const bool may_pass = error == ERROR_SHARING_VIOLATION || (even_denied && error == ERROR_ACCESS_DENIED);
        if (!may_pass || waited >= Patience)
            return Number_Of_System_Error(error);
        ::Sleep(Turn);
    }
}

/// A link to a file or a folder; what else the system keeps such points for (files in a cloud) is what it looks like.
static bool Is_Link(const WIN32_FIND_DATAW& entry)
{
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (entry.dwReserved0 == IO_REPARSE_TAG_SYMLINK || entry.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

static Entry_Kind Kind_Of(const QString& path, const WIN32_FIND_DATAW& entry)
{
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DEVICE) != 0)
        return Entry_Kind::Other;
    if (Is_Link(entry) && !Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING))
        return Last_System_Error() == ENOENT ? Entry_Kind::Lost : Entry_Kind::Unknown;
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Entry_Kind::Folder : Entry_Kind::File;
}

static bool Is_Folder(const QString& path)
{
    const DWORD attributes = ::GetFileAttributesW(Wide_Path(path));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::vector<Folder_Entry> Read_Entries(const QString& folder, int& error)
{
    std::vector<Folder_Entry> entries;
    WIN32_FIND_DATAW entry = {};
    const QString inside = With_Separator(folder);
    const HANDLE search = ::FindFirstFileExW(Wide_Path(inside + u'*'), FindExInfoBasic, &entry, FindExSearchNameMatch,
                                             nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        const DWORD reason = ::GetLastError();
        const bool is_there = ::GetFileAttributesW(Wide_Path(folder)) != INVALID_FILE_ATTRIBUTES;
        // An empty drive holds not even "." and "..".
        if (reason == ERROR_FILE_NOT_FOUND && Is_Folder(folder))
            error = 0;
        else
            error = is_there && !Is_Folder(folder) ? ENOTDIR : Number_Of_System_Error(reason);
        return entries;
    }
    do {
        const QString name = From_Wide(entry.cFileName);
        if (name != u"."_s && name != u".."_s)
            entries.push_back({name, Kind_Of(inside + name, entry)});
    } while (::FindNextFileW(search, &entry) != 0);
    const DWORD end = ::GetLastError();
    error = end == ERROR_NO_MORE_FILES ? 0 : Number_Of_System_Error(end);
    ::FindClose(search);
    return entries;
}

static HANDLE Handle_Of(std::intptr_t number)
{
    return reinterpret_cast<HANDLE>(number); // NOLINT(performance-no-int-to-ptr): that is what the system's handles are
}

Held_File::~Held_File()
{
    if (handle_ != -1)
        ::CloseHandle(Handle_Of(handle_));
}

int Held_File::Open(const QString& path)
{
    path_ = path;
    const HANDLE handle =
        ::CreateFileW(Wide_Path(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return Last_System_Error();
    handle_ = reinterpret_cast<std::intptr_t>(handle);
    if (!Is_Plain_Handle(handle))
        return Is_Folder(path) ? EISDIR : EINVAL;
    const std::optional<File_Identity> identity = Identity_Of_Handle(handle);
    if (!identity)
        return Last_System_Error();
    identity_ = *identity;
    return 0;
}

bool Held_File::Is_Still_There() const
{
    if (handle_ == -1)
        return false;
    const std::optional<File_Identity> named = Identity_Of(path_);
    const std::optional<File_Identity> held = Identity_Of_Handle(Handle_Of(handle_));
    return named && held && identity_.Is_Unchanged(*held) && identity_.Is_Unchanged(*named);
}

QString Behind_Links(const QString& path)
{
    const System_Handle name = Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
    const System_Handle file = Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (!name || !file || Is_Plain_Handle(name.get()) || !Is_Plain_Handle(file.get()))
        return path;
    constexpr DWORD longest = 32'768;
    const auto target = std::make_unique<wchar_t[]>(longest);
    const DWORD size = ::GetFinalPathNameByHandleW(file.get(), target.get(), longest, FILE_NAME_NORMALIZED);
    return size > 0 && size < longest ? From_Wide(target.get(), static_cast<qsizetype>(size)) : path;
}

std::optional<File_Identity> Identity_Of_Name(const QString& path)
{
    const System_Handle file = Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
    return file ? Identity_Of_Handle(file.get()) : std::nullopt;
}

/// The system's own rename refuses a name that is taken, so the other ways of `ways` are never needed.
Rename_Result Rename_To_Free_Name(const QString& from, const QString& to, Rename_Ways)
{
    const int error =
        Patiently([&] { return ::MoveFileExW(Wide_Path(from), Wide_Path(to), MOVEFILE_WRITE_THROUGH) != 0; });
    return {error, true};
}

int Rename_Onto(const QString& from, const QString& to)
{
    return Patiently([&] {
        return ::MoveFileExW(Wide_Path(from), Wide_Path(to), MOVEFILE_WRITE_THROUGH | MOVEFILE_REPLACE_EXISTING) != 0;
    });
}

/// Gives a file the attributes of another one, and who may do what with it.
static void Take_Rights_Of(const QString& from, const QString& to)
{
    constexpr DWORD kept =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = ::GetFileAttributesW(Wide_Path(from)) & kept;
    ::SetFileAttributesW(Wide_Path(to), attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes);
    DWORD size = 0;
    ::GetFileSecurityW(Wide_Path(from), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> rights(size);
    if (size > 0 && ::GetFileSecurityW(Wide_Path(from), DACL_SECURITY_INFORMATION, rights.data(), size, &size) != 0)
        ::SetFileSecurityW(Wide_Path(to), DACL_SECURITY_INFORMATION, rights.data());
}

/// The rename that takes the place even of an open file, where its readers let others remove it. Systems and disks that
/// don't know it say so.
static bool Rename_Onto_Open_File(const QString& from, const QString& to)
{
    // The compiler's headers lack these.
    struct Rename
    {
        DWORD Flags;
        HANDLE Root;
        DWORD Name_Bytes;
        wchar_t Name[1];
    };

    constexpr auto rename_by_flags = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
    constexpr DWORD replace_even_open = 1U | 2U;
    const System_Handle file =
        Open_Path(from, DELETE | SYNCHRONIZE, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_WRITE_THROUGH);
    if (!file)
        return false;
    const QString name = Long_Path(to);
    const std::size_t bytes = static_cast<std::size_t>(name.size()) * sizeof(wchar_t);
    std::vector<std::max_align_t> memory((sizeof(Rename) + bytes) / sizeof(std::max_align_t) + 1);
    auto* const rename = reinterpret_cast<Rename*>(memory.data());
    rename->Flags = replace_even_open;
    rename->Name_Bytes = static_cast<DWORD>(bytes);
    std::memcpy(rename->Name, name.utf16(), bytes);
    return ::SetFileInformationByHandle(file.get(), rename_by_flags, rename,
                                        static_cast<DWORD>(sizeof(Rename) + bytes)) != 0;
}

/// By renames alone: the system's own call for the exchange of two files takes several steps, and a kill between them
/// leaves no file of that name.
int Take_The_Place_Of(const QString& from, const QString& to)
{
    const auto is_there = [](const QString& path) {
        return ::GetFileAttributesW(Wide_Path(path)) != INVALID_FILE_ATTRIBUTES;
    };
    if (is_there(to))
        Take_Rights_Of(to, from);
    const auto step = [&] {
        constexpr DWORD onto = MOVEFILE_WRITE_THROUGH | MOVEFILE_REPLACE_EXISTING;
        if (Rename_Onto_Open_File(from, to) || ::MoveFileExW(Wide_Path(from), Wide_Path(to), onto) != 0)
            return true;
        // Where another one takes that place at the same time the old file may be gone in between.
        if (::GetLastError() == ERROR_FILE_NOT_FOUND && is_there(from))
            ::SetLastError(ERROR_ACCESS_DENIED);
        return false;
    };
    return Patiently(step, true);
}

int Give_Second_Name(const QString& path, const QString& second)
{
    return ::CreateHardLinkW(Wide_Path(second), Wide_Path(path), nullptr) != 0 ? 0 : Last_System_Error();
}

int Sync_File(const QString& path)
{
    System_Handle file;
    const int error = Patiently([&] {
        file = Open_Path(path, GENERIC_WRITE, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
        return static_cast<bool>(file);
    });
    if (error != 0)
        return error;
    return ::FlushFileBuffers(file.get()) != 0 ? 0 : Last_System_Error();
}

/// Renames are written through, and the file system keeps its folders whole by a journal; so a system that lets nobody
/// flush a folder isn't at fault.
int Sync_Folder(const QString& folder)
{
    if (!Is_Folder(folder))
        return ::GetFileAttributesW(Wide_Path(folder)) == INVALID_FILE_ATTRIBUTES ? Last_System_Error() : ENOTDIR;
    if (const System_Handle open = Open_Path(folder, GENERIC_WRITE, OPEN_EXISTING))
        ::FlushFileBuffers(open.get());
    return 0;
}

int Sync_Open_File(const QFileDevice& file)
{
    const std::intptr_t handle = ::_get_osfhandle(file.handle());
    // Qt gives no number for a file that it opened by the system's own calls.
    if (handle == -1 || Handle_Of(handle) == INVALID_HANDLE_VALUE)
        return Sync_File(file.fileName());
    return ::FlushFileBuffers(Handle_Of(handle)) != 0 ? 0 : Last_System_Error();
}

int Make_Private_Folder(const QString& path)
{
    return ::CreateDirectoryW(Wide_Path(path), nullptr) != 0 ? 0 : Last_System_Error();
}

int Make_Folders(const QString& path)
{
    const QString folder = path.endsWith(Path_Separator) ? path.chopped(1) : path;
    if (::GetFileAttributesW(Wide_Path(folder)) != INVALID_FILE_ATTRIBUTES)
        return Is_Folder(folder) ? 0 : ENOTDIR;
    if (const int error = Last_System_Error(); error != ENOENT || Is_Root(folder))
        return error;
    const QString above = folder.left(folder.lastIndexOf(Path_Separator));
    if (const int error = above.isEmpty() ? ENOENT : Make_Folders(above); error != 0)
        return error;
    const int error = Make_Private_Folder(folder);
    return error == EEXIST ? 0 : error;
}

int Make_Empty_File(const QString& path)
{
    return Open_Path(path, GENERIC_WRITE, CREATE_NEW) ? 0 : Last_System_Error();
}

int Remove_Own_File(const QString& path)
{
    return Patiently([&] { return ::DeleteFileW(Wide_Path(path)) != 0; });
}

int Remove_Own_Folder(const QString& path)
{
    return Patiently([&] { return ::RemoveDirectoryW(Wide_Path(path)) != 0; });
}

/// True for a file that has something and doesn't end in a line feed: its last line was cut by a kill or a full disk.
static bool Is_Torn(HANDLE file)
{
    LARGE_INTEGER size = {};
    if (::GetFileSizeEx(file, &size) == 0 || size.QuadPart == 0)
        return false;
    const auto place = static_cast<std::uint64_t>(size.QuadPart - 1);
    OVERLAPPED at = {};
    at.Offset = static_cast<DWORD>(place);
    at.OffsetHigh = static_cast<DWORD>(place >> 32U);
    char last = '\n';
    DWORD count = 0;
    return ::ReadFile(file, &last, 1, &count, &at) != 0 && count == 1 && last != '\n';
}

int Append_At_Once(const QString& path, const QByteArray& text, bool sync)
{
    // Without the right to write elsewhere the system adds at the end, whoever else adds there.
    const System_Handle file = Open_Path(path, FILE_APPEND_DATA | FILE_READ_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                         OPEN_ALWAYS, FILE_FLAG_OPEN_REPARSE_POINT);
    if (!file)
        return Is_Folder(path) ? EINVAL : Last_System_Error();
    if (!Is_Plain_Handle(file.get()))
        return EINVAL;
    const QByteArray line = (Is_Torn(file.get()) ? "\n" : "") + text;
    OVERLAPPED end = {};
    end.Offset = end.OffsetHigh = 0xFFFFFFFFU;
    DWORD written = 0;
    if (::WriteFile(file.get(), line.constData(), static_cast<DWORD>(line.size()), &written, &end) == 0)
        return Last_System_Error();
    if (static_cast<qsizetype>(written) < line.size())
        return ENOSPC;
    return !sync || ::FlushFileBuffers(file.get()) != 0 ? 0 : Last_System_Error();
}

std::optional<std::uint64_t> Free_Bytes(const QString& folder)
{
    ULARGE_INTEGER free = {};
    if (::GetDiskFreeSpaceExW(Wide_Path(folder), &free, nullptr, nullptr) == 0)
        return {};
    return free.QuadPart;
}

int Longest_Name(const QString& folder)
{
    constexpr DWORD usual = 255;
    constexpr DWORD longest_path = 32'768;
    const auto root = std::make_unique<wchar_t[]>(longest_path);
    DWORD longest = 0;
    const bool known = ::GetVolumePathNameW(Wide_Path(folder), root.get(), longest_path) != 0 &&
                       ::GetVolumeInformationW(root.get(), nullptr, 0, nullptr, &longest, nullptr, nullptr, 0) != 0 &&
                       longest > 0;
    return static_cast<int>(known ? longest : usual);
}

QString System_Words(int error)
{
    if (error >= First_Own_Error)
        return Words_Of_System_Error(static_cast<unsigned long>(error - First_Own_Error));
    return QString::fromLocal8Bit(std::strerror(error));
}

bool Is_Disk_Full(int error)
{
    return error == ENOSPC || error == EFBIG;
}
