#include "common/media.h"
#include "common/stand_in_tool.h"

#include <QDir>
#include <QFile>
#include <unistd.h>

QString Write_Stand_In(const Test_Program& test, const QString& relative, const QByteArray& body)
{
    QString path = test.Write(relative, "#!/bin/sh\n" + body);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void Put_Tool(const Test_Program& test, const QString& name, const QString& folder)
{
    QFile::link(Tool_In_Path(name), test.Path(folder + u'/' + name));
}

void Spoil(const QString& stand_in)
{
    QFile file(stand_in);
    if (!file.open(QIODevice::WriteOnly) || file.write("#!/nowhere\n") < 0)
        qFatal("A stand-in can't be spoilt: %s", qPrintable(stand_in));
}

QByteArray Path_In_Script(const QString& path)
{
    return QFile::encodeName(path);
}

QByteArray Tool_In_Script(const QString& name)
{
    return QFile::encodeName(Tool_In_Path(name));
}

int Open_Descriptors()
{
    // Links to pipes and sockets point nowhere: only QDir::System lists them.
    return static_cast<int>(QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size());
}

/// State and parent, the fields behind the name in parentheses.
static QList<QByteArray> Process_Fields(const QString& process)
{
    QFile file(u"/proc/"_s + process + u"/stat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray line = file.readAll();
    return line.mid(line.lastIndexOf(')') + 2).split(' ');
}

int Children_Left()
{
    int children = 0;
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        const QList<QByteArray> fields = Process_Fields(process);
        if (fields.size() > 1 && fields[1].toLong() == ::getpid())
            ++children;
    }
    return children;
}

bool Is_Running(long process)
{
    const QList<QByteArray> fields = Process_Fields(QString::number(process));
    return !fields.isEmpty() && fields[0] != "Z" && fields[0] != "X";
}

bool Is_Running_In_Script(long process)
{
    return Is_Running(process);
}
