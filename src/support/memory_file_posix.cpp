#include "support/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Memory_File::Memory_File(const QByteArray& content) : handle_(::memfd_create("vantorra", MFD_CLOEXEC))
{
    qsizetype done = 0;
    while (handle_ >= 0 && done < content.size()) {
        const ssize_t written =
            ::write(handle_, content.constData() + done, static_cast<std::size_t>(content.size() - done));
        if (written <= 0)
            break;
        done += written;
    }
    path_ = u"/proc/%1/fd/%2"_s.arg(::getpid()).arg(handle_);
}

Memory_File::~Memory_File()
{
    if (handle_ >= 0)
        ::close(handle_);
}

QString Memory_File::Path() const
{
    return path_;
}
