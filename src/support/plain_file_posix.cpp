#include "support/plain_file.h"

#include "support/disk_names.h"
#include "support/run_time_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

[[noreturn]] static void Raise_Not_Plain(const QString& doing, const QString& path)
{
    throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, path, {},
                         u"It is no plain file, but a link, a folder, a pipe or a device. Move it away."_s);
}

void Open_Plain_File(QFile& file, const QString& path, const QString& doing)
{
    const QByteArray name = Bytes_Of_Name(path);
    struct stat what = {};
    if (::stat(name.constData(), &what) != 0)
        Raise_File_Error(doing, path, errno);
    // Opening a device may do something to it, so it is looked at first, and again once it can't be exchanged.
    if (!S_ISREG(what.st_mode))
        Raise_Not_Plain(doing, path);
    const int handle = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle < 0)
        Raise_File_Error(doing, path, errno);
    const bool plain = ::fstat(handle, &what) == 0 && S_ISREG(what.st_mode);
    if (plain && file.open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return;
    ::close(handle);
    Raise_Not_Plain(doing, path);
}

bool Is_Plain_File(const QString& path)
{
    struct stat what = {};
    return ::lstat(Bytes_Of_Name(path).constData(), &what) == 0 && S_ISREG(what.st_mode);
}

void Require_Plain_Or_Nothing(const QString& path, const QString& doing)
{
    struct stat what = {};
    if (::lstat(Bytes_Of_Name(path).constData(), &what) == 0 && !S_ISREG(what.st_mode))
        Raise_Not_Plain(doing, path);
}
