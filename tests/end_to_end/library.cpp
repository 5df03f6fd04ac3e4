#include "end_to_end/library.h"

#include "common/stand_in_tool.h"
#include "rules/option_rules.h"
#include "run/run_driver.h"
#include "settings/filter_modes.h"
#include "support/input.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

QByteArray Bytes_Of_File(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QByteArray Output_Of(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.start(Tool_In_Path(tool), arguments, QIODevice::ReadOnly);
    const bool ended = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    EXPECT_TRUE(ended && process.exitCode() == 0)
        << tool.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

static const QByteArray Srt_Text = "1\n00:00:00,200 --> 00:00:00,600\nHello\n\n2\n00:00:00,700 --> 00:00:00,900\nBye\n";

static const QByteArray Meta_Text = ";FFMETADATA1\ntitle=Source Title\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=500\n"
                                    "title=Eins\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=500\nEND=1000\ntitle=Zwei\n";

/// Two pictures of 2 by 1 pixels, shown from 0.2 s to 0.5 s.
static const QByteArray Sup_Bytes =
    "5047000046500000000016001302d002401000008000000100000000000a000a5047000046500000000017000a0100000a000a0002000150"
    "470000465000000000140007000001eb8080ff5047000046500000000015000f000000c000000800020001010100005047000046500000"
    "000080000050470000afc80000000016000b02d002401000010000000050470000afc80000000017000a0100000a000a00020001504700"
    "00afc800000000800000";

static const QByteArray Idx_Text = "# VobSub index file, v7 (do not modify this line!)\nsize: 720x576\n"
                                   "palette: 000000, ffffff, 808080, 404040, 000000, 000000, 000000, 000000, 000000, "
                                   "000000, 000000, 000000, 000000, 000000, 000000, 000000\nforced subs: OFF\n"
                                   "langidx: 0\n\nid: de, index: 0\ntimestamp: 00:00:00:200, filepos: 000000000\n"
                                   "timestamp: 00:00:00:500, filepos: 000000800\n";

/// One block of a VobSub file: a pack, a subpicture of 2 by 2 pixels and padding up to 2,048 bytes. `time` is the five
/// bytes of its time stamp in hexadecimal.
static QByteArray Sub_Block(const QByteArray& time)
{
    const QByteArray block =
        QByteArray::fromHex("000001ba440004000401000003f8000001bd002d818005" + time +
                            "200024000640400000001e0103321004fff0050000010000010600040005ff0014001e02ff000001be07b9");
    return block.leftJustified(2048, '\xff');
}

/// The bytes of a file that is made by hand, empty for one that ffmpeg makes.
static QByteArray Bytes_Of(const QString& name)
{
    static const std::map<QString, QByteArray> bytes = {
        {u"c.srt"_s, Srt_Text},
        {u"meta.txt"_s, Meta_Text},
        {u"font.ttf"_s, {"no real font \0\xff\n", 16}},
        {u"c.sup"_s, QByteArray::fromHex(Sup_Bytes)},
        {u"c.idx"_s, Idx_Text},
        {u"c.sub"_s, Sub_Block("2100018ca1") + Sub_Block("2100035f91")},
    };
    const auto found = bytes.find(name);
    return found == bytes.end() ? QByteArray() : found->second;
}

/// ffmpeg's arguments for a file of the library. A word that names another of its files becomes that one's path.
static QStringList Recipe(const QString& name)
{
    static const QString picture = u"-f lavfi -i testsrc=d=1:s=64x48:r=25 "_s;
    static const QString sound = u"-f lavfi -i sine=d=1 "_s;
    static const std::map<QString, QString> recipes = {
        {u"plain.mkv"_s, picture + sound + u"-c:v mpeg4 -c:a libmp3lame"_s},
        {u"langs.mkv"_s, picture + sound +
                             u"-i c.srt -i meta.txt -map 0:v -map 1:a -map 1:a -map 1:a -map 2:s -map 2:s"_s +
                             u" -map_metadata 3 -c:v mpeg4 -c:a ac3 -c:s srt -metadata:s:v:0 title=Picture"_s +
                             u" -metadata:s:a:0 language=eng -metadata:s:a:0 title=Main -disposition:a:0 default"_s +
                             u" -metadata:s:a:1 language=ger -metadata:s:a:1 title=English_dub -disposition:a:1 0"_s +
                             u" -disposition:a:2 0 -metadata:s:s:0 language=eng -disposition:s:0 0"_s +
                             u" -metadata:s:s:1 language=ger -metadata:s:s:1 title=Schilder -disposition:s:1 forced"_s +
                             u" -attach font.ttf -metadata:s:t mimetype=font/ttf"_s},
        {u"cover.mkv"_s, picture + sound +
                             u"-c:v mpeg4 -c:a libmp3lame -attach pic.png -metadata:s:t mimetype=image/png"_s +
                             u" -metadata:s:t filename=cover.png"_s},
        {u"film.mp4"_s, u"-f lavfi -i testsrc=d=1:s=64x48:r=24000/1001 "_s + sound +
                            u"-i meta.txt -map_metadata 2 -c:v mpeg4 -c:a aac -metadata:s:a language=ger"_s},
        {u"old.avi"_s, picture + sound + u"-c:v mpeg4 -c:a libmp3lame"_s},
        {u"tv.ts"_s, picture + sound + u"-map 0:v -map 1:a -map 1:a -c:v mpeg2video -c:a mp2"_s +
                         u" -metadata:s:a:0 language=eng -metadata:s:a:1 language=fre"_s},
        {u"titles.mkv"_s, picture + sound + u"-c:v mpeg4 -c:a libmp3lame"_s},
        {u"c.ass"_s, u"-i c.srt"_s},
        {u"c.mks"_s, u"-i c.srt -c:s srt -metadata:s:s language=fre -f matroska"_s},
        {u"c.mka"_s, sound + u"-c:a flac"_s},
        {u"c.ogg"_s, sound + u"-c:a libvorbis"_s},
        {u"pic.png"_s, u"-f lavfi -i testsrc=s=8x8 -frames:v 1"_s},
    };
    const auto recipe = recipes.find(name);
    QStringList arguments = (recipe == recipes.end() ? sound : recipe->second).split(u' ', Qt::SkipEmptyParts);
    for (QString& word : arguments)
        if (recipes.contains(word) || !Bytes_Of(word).isEmpty())
            word = Library_File(word);
    if (name == u"titles.mkv"_s)
        arguments += {u"-metadata:s:v"_s, u"title=\"Quoted\" a: b"_s,
                      u"-metadata:s:a"_s, u"title=A | B"_s,
                      u"-metadata"_s,     u"title=back\\slash 'x' \" --attach-file /etc/passwd \" '$(id)'"_s};
    return arguments + QStringList{u"-t"_s, u"1"_s};
}

QString Library_File(const QString& name)
{
    static const QTemporaryDir by_hand;
    const QByteArray bytes = Bytes_Of(name);
    if (bytes.isEmpty())
        return Media_File(name, Recipe(name));
    QString path = Native(by_hand.filePath(name));
    QFile file(path);
    if (!QFile::exists(path) && (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()))
        qFatal("A file of the library can't be written: %s", qPrintable(path));
    return path;
}

Library_Run::Library_Run()
{
    Use_Real_Tools(*this);
    // The run button looks for ffprobe in the program's folder.
    Put_Tool(*this, u"ffprobe"_s, u"app"_s);
    Load_Language_Table(Prog.Language_Table, u"scrap"_s);
    Prog.Options.Log_Verbosity = 7;
}

bool Library_Run::Run()
{
    Set_Audio_Filter_Mode(Prog.Options);
    Set_Subs_Filter_Mode(Prog.Options);
    return btn_RunVantorra_MouseUp(
               Prog, {.Button = Mouse_Button::Left, .Modifiers = {}, .X = 1, .Y = 1, .Width = 9, .Height = 9}) ==
           Press_Result::Finished;
}

QJsonObject Library_Run::Output(const QString& name) const
{
    return Identify(Path(u"target/"_s + name));
}

QStringList Library_Run::Tracks(const QString& name) const
{
    QStringList tracks;
    for (const QJsonValue track : Output(name)[u"tracks"].toArray()) {
        const QJsonObject properties = track[u"properties"].toObject();
        QStringList words = {track[u"type"].toString(), track[u"codec"].toString(), properties[u"language"].toString()};
        if (properties.contains(u"track_name"))
            words += u'[' + properties[u"track_name"].toString() + u']';
        if (properties[u"default_track"].toBool())
            words += u"default"_s;
        if (properties[u"forced_track"].toBool())
            words += u"forced"_s;
        tracks += words.join(u' ');
    }
    return tracks;
}

QJsonObject Library_Run::Track_Properties(int track) const
{
    return Output()[u"tracks"].toArray()[track][u"properties"].toObject();
}

QString Library_Run::Title() const
{
    return Output()[u"container"][u"properties"][u"title"].toString();
}

QStringList Library_Run::Chapters() const
{
    const QByteArray json = Output_Of(
        u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-of"_s, u"json"_s, u"-show_chapters"_s, Path(u"target/Movie.mkv"_s)});
    QStringList chapters;
    for (const QJsonValue chapter : QJsonDocument::fromJson(json)[u"chapters"].toArray())
        chapters += QString::number(chapter[u"start_time"].toString().toDouble(), 'f', 3) + u' ' +
                    chapter[u"tags"][u"title"].toString();
    return chapters;
}

QStringList Library_Run::Attachments() const
{
    QStringList attachments;
    for (const QJsonValue attachment : Output()[u"attachments"].toArray())
        attachments += attachment[u"file_name"].toString() + u' ' + attachment[u"content_type"].toString();
    attachments.sort();
    return attachments;
}

QByteArray Library_Run::Attachment_Bytes(int number) const
{
    Output_Of(u"mkvextract"_s,
              {Path(u"target/Movie.mkv"_s), u"attachments"_s, QString::number(number) + u':' + Path(u"extracted"_s)});
    return Read(u"extracted"_s);
}

QList<int> Library_Run::First_Times() const
{
    const QByteArray packets =
        Output_Of(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-of"_s, u"csv=p=0"_s, u"-show_entries"_s,
                                 u"packet=stream_index,pts_time"_s, Path(u"target/Movie.mkv"_s)});
    QMap<int, int> first;
    for (const QByteArray& line : packets.split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(',');
        if (fields.size() >= 2 && !first.contains(fields[0].toInt()))
            first[fields[0].toInt()] = qRound(fields[1].toDouble() * 1000);
    }
    return first.values();
}

QString Library_Run::Log() const
{
    return QString::fromUtf8(Read(u"app/Vantorra_Process.log"_s));
}
