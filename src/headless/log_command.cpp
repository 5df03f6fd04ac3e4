#include "headless/log_command.h"

#include "logs/log_rotation.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "workbenches/log_viewer.h"

#include <QFile>
#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

/// A file's name in the log may hold what would play with a terminal. UTF-8 passes.
static bool Is_Control(char byte)
{
    return (byte >= 0 && byte < ' ' && byte != '\n' && byte != '\t') || byte == '\x7f';
}

static void Print(std::FILE* out, QByteArray bytes)
{
    std::replace_if(bytes.begin(), bytes.end(), Is_Control, ' ');
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), out);
}

/// Piece by piece: an appended log grows without bound. A CR goes only together with its LF.
static void Print_All(const QString& log, std::FILE* out)
{
    constexpr qint64 piece = 1 << 20;
    QFile file(log);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        Raise_File_Error(u"Opening the process log to print it"_s, log, errno);
    QByteArray bytes;
    QByteArray held_back;
    while (!(bytes = file.read(piece)).isEmpty()) {
        bytes.prepend(held_back);
        held_back = bytes.endsWith('\r') ? "\r" : "";
        bytes.chop(held_back.size());
        Print(out, bytes.replace("\r\n", "\n"));
    }
    if (file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading the process log to print it"_s, log, errno);
    Print(out, held_back);
}

void Print_Log(const QString& app_folder, bool full, std::FILE* out)
{
    constexpr int newest_lines = 500;
    const QString log = Process_Log_Path(app_folder);
    if (!File_Exists(log))
        return;
    if (full)
        Print_All(log, out);
    else
        for (const QString& line : Read_Log_Lines(log, newest_lines - 1))
            Print(out, line.toUtf8() + '\n');
    std::fflush(out);
}
