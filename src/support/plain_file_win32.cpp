#include "support/plain_file.h"

#include "support/file_information_win32.h"
#include "support/run_time_error.h"
#include "support/system_calls_win32.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

using namespace Qt::StringLiterals;

[[noreturn]] static void Raise_Not_Plain(const QString& doing, const QString& path)
{
    throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, path, {},
                         u"It is no plain file, but a link, a folder, a pipe or a device. Move it away."_s);
}

void Open_Plain_File(QFile& file, const QString& path, const QString& doing)
{
    const HANDLE handle =
        ::CreateFileW(Wide_Path(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        Raise_File_Error(doing, path, Last_System_Error());
    if (!Is_Plain_Handle(handle)) {
        ::CloseHandle(handle);
        Raise_Not_Plain(doing, path);
    }
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        ::CloseHandle(handle);
        Raise_File_Error(doing, path, errno);
    }
    if (file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return;
    ::_close(descriptor);
    Raise_Not_Plain(doing, path);
}

bool Is_Plain_File(const QString& path)
{
    const System_Handle file = Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
    return file && Is_Plain_Handle(file.get());
}

void Require_Plain_Or_Nothing(const QString& path, const QString& doing)
{
    if (::GetFileAttributesW(Wide_Path(path)) != INVALID_FILE_ATTRIBUTES && !Is_Plain_File(path))
        Raise_Not_Plain(doing, path);
}
