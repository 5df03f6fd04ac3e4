// Finding the companions of one video in folders of 100, 1,000 and 10,000 files, and putting external files on the
// command line. "ratio" is the time of the pass against that of a raw loop, measured in turn: for the search, one that
// lists the folder as often and looks for the name in each entry; for the command, one that appends the finished text.
// "per_file" must not grow with the folder.
#include "command/companion_files.h"
#include "command/external_audio.h"
#include "command/external_subtitles.h"
#include "compare.h"

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <string>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

static QString Episode(int number, const QString& extension)
{
    return u"Some Show - Episode %1 (1080p)."_s.arg(number, 5, 10, QChar(u'0')) + extension;
}

/// Of each three files one is a sound and one a subtitle. They are links to one file, which is quicker made.
static void Fill_Folder(const QString& folder, int files)
{
    const fs::path first = fs::path(folder.toStdString()) / "first";
    std::ofstream(first) << "x";
    const QString extensions[] = {u"mkv"_s, u"mp3"_s, u"srt"_s};
    for (int i = 0; i < files; ++i)
        fs::create_hard_link(first, first.parent_path() / Episode(i / 3, extensions[i % 3]).toStdString());
}

static void Find(benchmark::State& state)
{
    const auto files = static_cast<int>(state.range(0));
    const QTemporaryDir folder;
    Fill_Folder(folder.path(), files);
    const QString masks[] = {Audio_File_Masks, Subtitle_File_Masks, Idx_File_Mask};
    const QString base = Episode(7, u""_s).chopped(1);
    const std::string raw_base = base.toStdString();
    clsStringBuilder faults;
    Compare(
        state,
        [&] {
            for (const QString& mask : masks)
                benchmark::DoNotOptimize(Find_Companions(folder.path() + u'/', base, mask, faults));
        },
        [&] {
            for ([[maybe_unused]] const QString& mask : masks)
                for (const auto& entry : fs::directory_iterator(folder.path().toStdString()))
                    benchmark::DoNotOptimize(entry.path().filename().string().find(raw_base));
        });
    state.counters["per_file"] = benchmark::Counter(static_cast<double>(state.iterations()) * files,
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

static void Append(benchmark::State& state)
{
    const auto files = static_cast<int>(state.range(0));
    JobOptions options;
    options.chk_AddAudio.Value = 1;
    options.chk_AddSubs.Value = 1;
    ExternalTrackList lists[2] = {ExternalTrackList(1), ExternalTrackList(1)};
    for (int i = 0; i < files; ++i) {
        ExternalTrack& track = Add_Track(lists[i % 2]);
        track.FileName = Episode(i, i % 2 == 0 ? u"mp3"_s : u"srt"_s);
        track.Folder = u"/in/"_s;
        track.Title = u"A title"_s;
        track.Language = u"eng"_s;
        track.FileIndex = static_cast<std::int16_t>(i / 2);
    }
    const auto append = [&] {
        Command_Line command;
        QString order_default;
        QString order_audio;
        QString order_subtitles;
        std::int16_t next = 1;
        Append_External_Audio_Arguments(command, lists[0], options, true, order_default, order_audio, next);
        Append_External_Subtitle_Arguments(command, lists[1], options, next, order_subtitles);
        return command;
    };
    const Command_Line finished = append();
    const QString text = finished.Text();
    Compare(
        state, [&] { benchmark::DoNotOptimize(append()); },
        [&] {
            QString copy;
            for (const QString& word : text.split(u' '))
                copy += word + u' ';
            benchmark::DoNotOptimize(copy);
        });
    state.counters["per_file"] = benchmark::Counter(static_cast<double>(state.iterations()) * files,
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(Find)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Append)->Arg(50)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
