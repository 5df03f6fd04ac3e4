#include "end_to_end/batch_process.h"

#include "common/stand_in_tool.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>

QList<QJsonObject> Batch_Result::Events() const
{
    QList<QJsonObject> events;
    for (const QString& line : Out.split(u'\n', Qt::SkipEmptyParts)) {
        const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8());
        EXPECT_TRUE(document.isObject()) << line.toStdString();
        EXPECT_TRUE(line.startsWith(u"{\"event\":\""_s)) << line.toStdString();
        events += document.object();
    }
    return events;
}

QList<QJsonObject> Batch_Result::Events(const QString& kind) const
{
    QList<QJsonObject> chosen;
    for (const QJsonObject& event : Events())
        if (event[u"event"_s].toString() == kind)
            chosen += event;
    return chosen;
}

QStringList Batch_Result::Values(const QString& kind, const QString& key) const
{
    QStringList values;
    for (const QJsonObject& event : Events(kind))
        values += event[key].toVariant().toString();
    return values;
}

Batch_Process::Batch_Process()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, Path(u"trash"_s));
    environment.remove(u"VANTORRA_HOME"_s);
    Process.setProcessEnvironment(environment);
}

Batch_Process::~Batch_Process()
{
    if (Process.state() != QProcess::NotRunning) {
        Process.kill();
        Process.waitForFinished();
    }
}

void Batch_Process::Set_Environment(const QString& name, const QString& value)
{
    QProcessEnvironment environment = Process.processEnvironment();
    if (value.isEmpty())
        environment.remove(name);
    else
        environment.insert(name, value);
    Process.setProcessEnvironment(environment);
}

void Batch_Process::Start(const QStringList& more)
{
    Start_With(QStringList{u"--app-folder"_s, Path(u"app"_s), u"--videos"_s, Path(u"videos"_s), u"--target"_s,
                           Path(u"target"_s), u"--set"_s, u"Extensions/Careful Batch=Off"_s} +
               more);
}

void Batch_Process::Start_With(const QStringList& arguments)
{
    out_.clear();
    Process.start(QStringLiteral(VANTORRA_BATCH_PROGRAM), arguments);
    ASSERT_TRUE(Process.waitForStarted());
}

bool Batch_Process::Read_Until(const QByteArray& text)
{
    for (;;) {
        while (Process.canReadLine()) {
            const QByteArray line = Process.readLine();
            out_ += line;
            if (line.contains(text))
                return true;
        }
        if (!Process.waitForReadyRead(60'000))
            return false;
    }
}

Batch_Result Batch_Process::Finish()
{
    EXPECT_TRUE(Process.waitForFinished(240'000)) << "the program hangs";
    Batch_Result result;
    result.Exit = Process.exitStatus() == QProcess::NormalExit ? Process.exitCode() : -Process.exitCode();
    result.Out = QString::fromUtf8(out_ + Process.readAllStandardOutput());
    result.Err = QString::fromUtf8(Process.readAllStandardError());
    return result;
}

Batch_Result Batch_Process::Run(const QStringList& more)
{
    Start(more);
    return Finish();
}

QStringList Batch_Process::Tree() const
{
    QStringList lines;
    QDirIterator walk(Path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QFileInfo entry(walk.next());
        QByteArray content;
        if (QFile file(entry.filePath()); entry.isFile() && file.open(QIODevice::ReadOnly))
            content = QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1).toHex();
        lines += u"%1 %2 %3 %4"_s.arg(entry.filePath(), QString::number(entry.size()),
                                      entry.lastModified().toString(Qt::ISODateWithMs), QString::fromLatin1(content));
    }
    lines.sort();
    return lines;
}

QStringList Batch_Process::Names_In(const QString& folder) const
{
    return QDir(Path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QList<long> Children_Of(long process)
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
