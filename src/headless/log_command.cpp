#include "headless/log_command.h"

#include "headless/print.h"
#include "logs/log_rotation.h"
#include "support/disk_steps.h"
#include "support/last_error.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "workbenches/log_viewer.h"

#include <QFile>
#include <QStringDecoder>
#include <cerrno>

using namespace Qt::StringLiterals;

/// A file's name in the log may hold what would play with a terminal.
static void Print_Lines(std::FILE* out, const QString& text)
{
    QStringList lines = text.split(u'\n');
    for (QString& line : lines)
        line = Printable(line);
    Print_Text(out, lines.join(u'\n'));
}

/// Piece by piece: an appended log grows without bound. A CR goes only together with its LF.
static void Print_All(const QString& log, std::FILE* out)
{
    constexpr qint64 piece = 1 << 20;
    QFile file;
    Open_Plain_File(file, log, u"Opening the process log to print it"_s);
    Forget_Last_Error();
    QStringDecoder decoder(QStringDecoder::Utf8);
    QByteArray bytes;
    QString held_back;
    while (!(bytes = file.read(piece)).isEmpty()) {
        QString text = held_back + QString(decoder(bytes));
        held_back = text.endsWith(u'\r') ? u"\r"_s : QString();
        text.chop(held_back.size());
        Print_Lines(out, text.replace(Line_Break, u"\n"_s));
    }
    if (file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading the process log to print it"_s, log, Last_Error());
    Print_Lines(out, held_back);
}

bool Print_Log(const QString& app_folder, bool full, std::FILE* out)
{
    constexpr int newest_lines = 500;
    const QString log = Process_Log_Path(app_folder);
    if (!File_Exists(log)) {
        // A folder that can't be entered isn't one without a log.
        const int error = Held_File().Open(log);
        if (error == EACCES || error == ELOOP)
            Raise_File_Error(u"Opening the process log to print it"_s, log, error);
        return false;
    }
    if (full)
        Print_All(log, out);
    else
        for (const QString& line : Read_Log_Lines(log, newest_lines - 1))
            Print_Lines(out, line + u'\n');
    return true;
}
