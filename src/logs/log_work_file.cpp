#include "logs/log_work_file.h"

#include "support/run_time_error.h"
#include "support/text.h"

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// A short write leaves no number behind: then the disk was full.
[[noreturn]] static void Raise_Write_Error(const QString& path)
{
    Raise_File_Error(u"Writing the process log"_s, path, errno != 0 ? errno : ENOSPC);
}

Log_Work_File::Log_Work_File(const QString& path) : file_(path)
{
    errno = 0;
    if (!file_.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        Raise_File_Error(u"Opening the work file of the process log"_s, path, errno);
    const qint64 size = file_.size();
    if (size == 0)
        return;
    if (file_.seek(size - 1) && file_.read(1) != "\n")
        Append(Line_Break.toUtf8());
}

void Log_Work_File::Append(const QByteArray& bytes)
{
    errno = 0;
    if (file_.write(bytes) != bytes.size())
        Raise_Write_Error(file_.fileName());
}

static void Copy_Log(const QString& path, Log_Work_File& work)
{
    constexpr qint64 piece = 1 << 20;
    QFile old(path);
    errno = 0;
    if (!old.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        Raise_File_Error(u"Opening the process log to keep its text"_s, path, errno);
    char last = '\n';
    QByteArray bytes(piece, Qt::Uninitialized);
    for (;;) {
        errno = 0;
        const qint64 count = old.read(bytes.data(), piece);
        if (count < 0 || errno == EISDIR)
            Raise_File_Error(u"Reading the process log to keep its text"_s, path, errno);
        if (count == 0)
            break;
        work.Append(QByteArray::fromRawData(bytes.constData(), count));
        last = bytes.at(count - 1);
    }
    if (last != '\n')
        work.Append(Line_Break.toUtf8());
}

void Log_Work_File::Append_File(const QString& path)
{
    const qint64 before = file_.size();
    try {
        Copy_Log(path, *this);
    } catch (const Run_Time_Error&) {
        file_.resize(before);
        throw;
    }
}

void Log_Work_File::Flush_To_Disk()
{
    errno = 0;
    if (!file_.flush() || (::fsync(file_.handle()) != 0 && errno != EINVAL))
        Raise_Write_Error(file_.fileName());
}
