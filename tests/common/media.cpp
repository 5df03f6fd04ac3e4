#include "common/media.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>

QString Tool_In_Path(const QString& name)
{
    const QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        qFatal("%s isn't installed: run scripts/setup", qPrintable(name));
    return QDir::toNativeSeparators(path);
}

void Use_Real_Tools(Test_Program& test)
{
    test.Prog.Tools.FFProbe_Path = Tool_In_Path(u"ffprobe"_s);
    test.Prog.Tools.System_MKVMerge_Path = Tool_In_Path(u"mkvmerge"_s);
}

QString Media_File(const QString& name, const QStringList& ffmpeg_arguments)
{
    static const QTemporaryDir folder;
    QString path = QDir::toNativeSeparators(folder.filePath(name));
    if (QFileInfo::exists(path))
        return path;
    QProcess ffmpeg;
    ffmpeg.setStandardInputFile(QProcess::nullDevice());
    ffmpeg.start(Tool_In_Path(u"ffmpeg"_s),
                 QStringList{u"-v"_s, u"error"_s, u"-bitexact"_s} + ffmpeg_arguments + QStringList{path});
    ffmpeg.waitForFinished(-1);
    if (ffmpeg.exitStatus() != QProcess::NormalExit || ffmpeg.exitCode() != 0)
        qFatal("ffmpeg can't make %s: %s", qPrintable(name), ffmpeg.readAllStandardError().constData());
    return path;
}

/// Inputs 0 and 1: pictures and sound, half a second of each.
static QStringList Picture_And_Sound()
{
    return u"-f lavfi -i testsrc=duration=0.5:size=64x48:rate=10 -f lavfi -i sine=frequency=440:duration=0.5"_s.split(
        u' ');
}

QString Short_Video(const QString& extension)
{
    const std::map<QString, QString> others = {{u"webm"_s, u"-c:v libvpx -c:a libvorbis"_s},
                                               {u"ts"_s, u"-c:v mpeg2video -r 25 -c:a mp2"_s},
                                               {u"avi"_s, u"-c:v mpeg4 -c:a mp2"_s}};
    const auto other = others.find(extension);
    const QString codecs = other == others.end() ? u"-c:v mpeg4 -c:a aac"_s : other->second;
    return Media_File(u"short."_s + extension, Picture_And_Sound() + codecs.split(u' '));
}

QString Rich_Video()
{
    static const QTemporaryDir folder;
    const QString subtitles = folder.filePath(u"rich.srt"_s);
    QFile file(subtitles);
    if (!file.open(QIODevice::WriteOnly) || file.write("1\n00:00:00,000 --> 00:00:00,400\nBonjour\n") < 0)
        qFatal("The subtitles of a test can't be written");
    file.close();
    return Media_File(
        u"rich.mkv"_s,
        Picture_And_Sound() +
            QProcess::splitCommand(
                u"-f lavfi -i sine=frequency=880:duration=0.5 -i %1 -map 0 -map 1 -map 2 -map 3 -c:v mpeg4 "
                "-c:a aac -c:s srt -disposition:v:0 default -metadata:s:a:0 language=eng -metadata:s:a:1 "
                "language=ger -metadata:s:s:0 language=fre -metadata \"title=A rich film\" "
                "-metadata:s:v:0 \"title=The picture\" -metadata:s:a:0 \"title=English sound\" "
                "-metadata:s:a:1 \"title=Deutscher Ton\" -metadata:s:s:0 title=Sous-titres"_s.arg(subtitles)));
}

QString Place(const Test_Program& test, const QString& media, const QString& relative)
{
    QString path = test.Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    if (!QFile::copy(media, path))
        qFatal("A test's file can't be copied: %s", qPrintable(path));
    return path;
}

QJsonObject Identify(const QString& path)
{
    QProcess mkvmerge;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    mkvmerge.setProcessEnvironment(environment);
    mkvmerge.start(Tool_In_Path(u"mkvmerge"_s), {u"-J"_s, path});
    mkvmerge.waitForFinished(-1);
    const QJsonObject answer = QJsonDocument::fromJson(mkvmerge.readAllStandardOutput()).object();
    return answer[u"container"_s][u"recognized"_s].toBool() ? answer : QJsonObject();
}

QStringList Tracks_Of(const QString& path)
{
    QStringList lines;
    for (const QJsonValue track : Identify(path)[u"tracks"_s].toArray()) {
        const QJsonValue properties = track[u"properties"_s];
        QString line = QString::number(track[u"id"_s].toInt()) + u' ' + track[u"type"_s].toString() + u' ' +
                       properties[u"language"_s].toString();
        if (properties[u"default_track"_s].toBool())
            line += u" default"_s;
        lines += line;
    }
    return lines;
}
