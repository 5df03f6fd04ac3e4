#include "support/this_process.h"

#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

static QByteArray Small_File(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

/// When a process began, 0 if there is none of that number. The 22nd field; the second, the name in parentheses, may
/// hold anything.
static std::int64_t Start_Of(std::int64_t number)
{
    const QByteArray line = Small_File(u"/proc/%1/stat"_s.arg(number));
    constexpr qsizetype place = 19;
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(place).toLongLong();
}

QString Host_Name()
{
    static const QRegularExpression unusual(u"[^A-Za-z0-9._-]"_s);
    QString host = QSysInfo::machineHostName();
    return host.isEmpty() ? u"localhost"_s : host.replace(unusual, u"_"_s);
}

Process_Identity This_Process()
{
    const std::int64_t number = ::getpid();
    return {.Host = Host_Name(),
            .Boot = QString::fromLatin1(Small_File(u"/proc/sys/kernel/random/boot_id"_s)),
            .Number = number,
            .Started = Start_Of(number)};
}

Process_Life Life_Of(const Process_Identity& process)
{
    if (process.Host != Host_Name())
        return Process_Life::Unknown;
    if (process.Boot != QString::fromLatin1(Small_File(u"/proc/sys/kernel/random/boot_id"_s)))
        return Process_Life::Gone;
    return Start_Of(process.Number) == process.Started ? Process_Life::Goes_On : Process_Life::Gone;
}
