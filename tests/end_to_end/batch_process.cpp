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
    // Wine makes the innermost folders only.
    QDir().mkpath(Path(u"trash/Trash"_s));
    environment.insert(u"XDG_DATA_HOME"_s, QFile::decodeName(Path_In_Script(Path(u"trash"_s))));
    environment.remove(u"VANTORRA_HOME"_s);
    Process.setProcessEnvironment(environment);
    Prepare_For_Start(Process);
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

/// Lines end as they do on the platform.
static QString Text_Of(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes).replace(u"\r\n"_s, u"\n"_s);
}

Batch_Result Batch_Process::Finish()
{
    EXPECT_TRUE(Process.state() == QProcess::NotRunning || Process.waitForFinished(240'000)) << "the program hangs";
    Batch_Result result;
    result.Exit = Process.exitStatus() == QProcess::NormalExit ? Process.exitCode() : -Process.exitCode();
    result.Out = Text_Of(out_ + Process.readAllStandardOutput());
    result.Err = Text_Of(Process.readAllStandardError());
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
