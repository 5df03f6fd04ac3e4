// The process log and the identification text where they are large. "ratio" is the time against that of a raw loop,
// measured in turn: carrying an old log along against copying the file, the full load of the log viewer against reading
// the same lines with QTextStream, JSON identification to shown text against visiting each character of the JSON once.
// "grown_mb" is what the process's peak memory grew by: it must not follow the log's size.
#include "compare.h"
#include "inspect/identification.h"
#include "inspect/identification_json.h"
#include "logs/log_work_file.h"
#include "workbenches/log_viewer.h"
#include "workbenches/video_info_viewer.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

static void Write_File(const QString& path, const QByteArray& line, int lines)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    for (int i = 0; i < lines; ++i)
        file.write(line);
}

static double Peak_Memory_MB()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

static void Carry_Old_Log_Along(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString old = folder.filePath(u"old"_s);
    const QByteArray line =
        "            -- Processing video file - \"/videos/some film or other.mkv\" and so on ....\r\n";
    const auto megabytes = static_cast<int>(state.range(0));
    Write_File(old, line, static_cast<int>((qint64{megabytes} << 20) / line.size()));
    const double before = Peak_Memory_MB();
    Compare(
        state,
        [&] {
            QFile::remove(folder.filePath(u"work"_s));
            Log_Work_File work(folder.filePath(u"work"_s), Log_Work_File::Leftover::Dropped);
            work.Append("entry\r\n\r\n");
            work.Append_File(old);
            work.Flush_To_Disk();
        },
        [&] {
            QFile::remove(folder.filePath(u"copy"_s));
            QFile from(old);
            QFile to(folder.filePath(u"copy"_s));
            from.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            to.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            QByteArray bytes;
            while (!(bytes = from.read(1 << 20)).isEmpty())
                to.write(bytes);
            ::fsync(to.handle());
        });
    state.counters["grown_mb"] = Peak_Memory_MB() - before;
}

static void Load_Full_Log(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(u"log"_s);
    Write_File(log, "            ~~ Alternate Audio File Path - Path= /some/folder/of/sounds/\r\n", 32767);
    Compare(
        state, [&] { benchmark::DoNotOptimize(Read_Log_Lines(log, 32767)); },
        [&] {
            QFile file(log);
            file.open(QIODevice::ReadOnly);
            QTextStream stream(&file);
            QStringList lines;
            while (!stream.atEnd())
                lines += stream.readLine();
            benchmark::DoNotOptimize(lines);
        });
}

/// 100 tracks, the first of them with a codec-private value of 1 MB.
static QString Large_Identification()
{
    QStringList tracks;
    for (int track = 0; track < 100; ++track)
        tracks += u"{\"codec\":\"AAC\",\"id\":%1,\"type\":\"audio\",\"properties\":{\"codec_private_data\":\"%2\","
                  "\"codec_private_length\":5,\"language\":\"eng\",\"track_name\":\"a name: with blanks\","
                  "\"uid\":18446744073709551615}}"_s.arg(track)
                      .arg(QString(track == 0 ? 1 << 20 : 10, u'a'));
    return u"{\"container\":{\"recognized\":true,\"supported\":true,\"type\":\"Matroska\"},\"tracks\":["_s +
           tracks.join(u',') + u"]}"_s;
}

static void Identification_To_Text(benchmark::State& state)
{
    const QString json = Large_Identification();
    Compare(
        state,
        [&] {
            const QString text = Verbose_Text_Of_Json(json, u"/videos/a film.mkv"_s);
            benchmark::DoNotOptimize(Video_Info_Text(Identification_Lines(text, state.range(0) != 0)));
        },
        [&] {
            QString copy;
            copy.reserve(json.size());
            for (const QChar letter : json)
                copy += letter;
            benchmark::DoNotOptimize(copy);
        });
}

BENCHMARK(Carry_Old_Log_Along)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Load_Full_Log)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Identification_To_Text)->ArgName("private")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
