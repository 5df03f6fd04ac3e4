#include "end_to_end/batch_process.h"

#include <QDir>
#include <QFile>
#include <csignal>

const char* const Kill_It = "kill -9 $PPID; sleep 5";
const char* const Halt_It = "kill -2 $PPID; sleep 5";

void Prepare_For_Start(QProcess&) {}

void Do_As_The_Script_Asks(Batch_Process&) {}

void Ask_To_Halt(QProcess& process)
{
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
}

QList<long> Children_Of(qint64 process)
{
    QList<long> children;
    for (const QString& number : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        QFile file(u"/proc/%1/stat"_s.arg(number));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        // The parent is the second field behind the name in parentheses.
        const QByteArray line = file.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields[1].toLong() == process)
            children += number.toLong();
    }
    return children;
}
