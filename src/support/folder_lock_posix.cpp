#include "support/folder_lock.h"

#include "support/run_time_error.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Folder_Lock::~Folder_Lock()
{
    if (handle_ >= 0)
        ::close(static_cast<int>(handle_));
}

bool Folder_Lock::Try(const QString& folder)
{
    if (handle_ < 0)
        handle_ = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle_ < 0)
        Raise_File_Error(u"Locking the program's folder"_s, folder, errno);
    while (::flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK)
            return false;
        if (errno != EINTR)
            return true;
    }
    return true;
}
