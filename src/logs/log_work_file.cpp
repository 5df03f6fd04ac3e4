#include "logs/log_work_file.h"

#include "support/disk_steps.h"
#include "support/last_error.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/text.h"

#include <cerrno>

using namespace Qt::StringLiterals;

static constexpr qint64 Piece_Size = 1 << 20;

/// A short write leaves no number behind: then the disk was full.
[[noreturn]] static void Raise_Write_Error(const QString& path, int error)
{
    Raise_File_Error(u"Writing the process log"_s, path, error != 0 ? error : ENOSPC);
}

Log_Work_File::Log_Work_File(const QString& path, Leftover leftover) : file_(path)
{
    const QString doing = u"Opening the work file of the process log"_s;
    Require_Plain_Or_Nothing(path, doing);
    Forget_Last_Error();
    if (!file_.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        Raise_File_Error(doing, path, Last_Error());
    if (leftover == Leftover::Dropped && !file_.resize(0))
        Raise_Write_Error(path, Last_Error());
    const qint64 size = file_.size();
    if (size == 0)
        return;
    if (file_.seek(size - 1) && file_.read(1) != "\n")
        Append(Line_Break.toUtf8());
}

void Log_Work_File::Append(const QByteArray& bytes)
{
    Forget_Last_Error();
    if (file_.write(bytes) != bytes.size())
        Raise_Write_Error(file_.fileName(), Last_Error());
}

void Log_Work_File::Flush_To_Disk()
{
    Forget_Last_Error();
    if (!file_.flush())
        Raise_Write_Error(file_.fileName(), Last_Error());
    if (const int error = Sync_Open_File(file_); error != 0)
        Raise_Write_Error(file_.fileName(), error);
}

/// The next piece of a log; empty at its end.
static QByteArray Next_Piece(QFile& file, const QString& path)
{
    Forget_Last_Error();
    QByteArray bytes = file.read(Piece_Size);
    if (bytes.isEmpty() && file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading the process log to keep its text"_s, path, Last_Error());
    return bytes;
}

void Log_Work_File::Append_File(const QString& path)
{
    QFile file;
    Open_Plain_File(file, path, u"Opening the process log to keep its text"_s);
    bool ends_a_line = true;
    for (QByteArray bytes; !(bytes = Next_Piece(file, path)).isEmpty();) {
        Append(bytes);
        ends_a_line = bytes.endsWith('\n');
    }
    if (!ends_a_line)
        Append(Line_Break.toUtf8());
}

bool Begins_With_File(const QString& path, const QString& head)
{
    const QString doing = u"Looking whether the process log holds an entry already"_s;
    QFile log;
    QFile beginning;
    Open_Plain_File(log, path, doing);
    Open_Plain_File(beginning, head, doing);
    if (beginning.size() == 0 || beginning.size() > log.size())
        return false;
    for (QByteArray bytes; !(bytes = Next_Piece(beginning, head)).isEmpty();)
        if (log.read(bytes.size()) != bytes)
            return false;
    return true;
}
