// Reading all settings and writing them back, against the size of the file. Reading and writing follow the file's size,
// and not keys times size: once the file is larger than what the disk asks for each replacement, the bytes a second
// stay the same. "ratio" is the time of Read_Settings and Write_Settings against that of a raw pass that reads the
// file, looks for the end of each of its lines, and replaces it. The file grows by keys and sections that the program
// doesn't know; half of them stand in a section that it does know.
#include "compare.h"
#include "nobody.h"
#include "settings/settings_store.h"
#include "state/program.h"

#include <QSaveFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static QByteArray Grown_By(QByteArray text, qsizetype bytes)
{
    QByteArray known = "\n[Audio]\n";
    for (int index = 0; known.size() < bytes / 2; ++index)
        known += "Unknown key number " + QByteArray::number(index) + "=some text that is a value\n";
    text.replace("\n[Audio]\n", known);
    for (int index = 0; text.size() < bytes; ++index)
        text += "[Unknown " + QByteArray::number(index / 20) + "]\nKey " + QByteArray::number(index % 20) + "=text\n";
    return text;
}

static QByteArray Content_Of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static void Replace(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    file.commit();
}

static void Read_And_Write(benchmark::State& state)
{
    const QTemporaryDir folder;
    Nobody nobody;
    Program program(nobody);
    program.Settings.Ini_File = folder.filePath(u"Vantorra.ini"_s);
    Write_Settings(program, true);
    const QByteArray grown = Grown_By(Content_Of(program.Settings.Ini_File), state.range(0) * 1024);
    Replace(program.Settings.Ini_File, grown);
    const QString copy = folder.filePath(u"copy"_s);
    Replace(copy, grown);
    Compare(
        state,
        [&] {
            Read_Settings(program);
            Write_Settings(program, false);
        },
        [&] {
            const QByteArray content = Content_Of(copy);
            qsizetype lines = 0;
            for (qsizetype at = content.indexOf('\n'); at >= 0; at = content.indexOf('\n', at + 1))
                ++lines;
            benchmark::DoNotOptimize(lines);
            Replace(copy, content);
        });
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * grown.size());
}

BENCHMARK(Read_And_Write)->UseManualTime()->Unit(benchmark::kMillisecond)->RangeMultiplier(8)->Range(8, 32768);
BENCHMARK_MAIN();
