// The list of the videos with 10,000 rows, half of them with a result, as it is seen: filled from a folder, ordered,
// narrowed down by a chip and by the filter field, scrolled, and one row changed as a run does sixty times a second.
// Each time is that of the rule and of the whole picture behind it.
#include "forms/slot_guard.h"
#include "forms/video_list_view.h"
#include "nobody.h"
#include "rules/video_list.h"
#include "rules/video_order.h"
#include "state/program.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

static constexpr int Rows = 10'000;

/// The list in a window of its own, painted.
struct Seen_List
{
    Nobody Person;
    Program Prog{Person};
    Slot_Guard Guard{Prog};
    QTemporaryDir Folder;
    std::unique_ptr<Video_List_View> View;

    Seen_List()
    {
        for (int i = 0; i < Rows; ++i)
            QFile(Folder.filePath(u"Harbour Lights - S%1E%2.mkv"_s.arg(i / 100, 3, 10, QLatin1Char('0'))
                                      .arg(i % 100, 2, 10, QLatin1Char('0'))))
                .open(QIODevice::WriteOnly);
        Prog.Settings.Extensions.Careful_Batch = true;
        Prog.Options.Path_Videos = Folder.path() + u'/';
        View = std::make_unique<Video_List_View>(Prog, Guard, nullptr);
        View->Set_Looks();
        View->Set_Open(true);
        View->resize(1200, 500);
        View->show();
    }

    void Give_Results()
    {
        for (int i = 0; i < Rows; i += 2) {
            Video_Row& row = Prog.Videos.Rows[static_cast<std::size_t>(i)];
            row.State = i % 20 == 0 ? Video_State::Failed : Video_State::Done;
            row.Reason = i % 20 == 0 ? u"mkvmerge says: no space left on device"_s : QString();
            row.Bytes = (i * 7919) % Rows;
            row.Length = i;
            row.Keeps = u"2 audio, 1 subtitle"_s;
            Touch(Prog.Videos, i);
        }
        Picture();
    }

    void Picture()
    {
        View->Render();
        QCoreApplication::processEvents();
        View->repaint();
    }
};

static void Fill(benchmark::State& state, Seen_List& list)
{
    for ([[maybe_unused]] auto _ : state) {
        list.Prog.Videos.Folder.clear();
        Follow_Videos_Folder(list.Prog);
        list.Picture();
    }
    list.Give_Results();
}

static void Sort(benchmark::State& state, Seen_List& list)
{
    int click = 0;
    constexpr Video_Column heads[] = {Video_Column::Size, Video_Column::Result, Video_Column::State};
    for ([[maybe_unused]] auto _ : state) {
        Sort_Videos(list.Prog.Videos, heads[click++ % 3]);
        list.Picture();
    }
}

static void Filter(benchmark::State& state, Seen_List& list)
{
    const QString typed[] = {u"s"_s, u"s0"_s, u"s01"_s, u"space"_s, {}};
    int key = 0;
    for ([[maybe_unused]] auto _ : state) {
        Set_Filter(list.Prog.Videos, typed[key++ % 5]);
        list.Picture();
    }
}

static void Chip(benchmark::State& state, Seen_List& list)
{
    int click = 0;
    for ([[maybe_unused]] auto _ : state) {
        Choose_Chip(list.Prog.Videos, ++click % 2 == 0 ? Video_Chip::All : Video_Chip::Failed);
        list.Picture();
    }
}

static void Scroll(benchmark::State& state, Seen_List& list)
{
    QScrollBar& bar = *list.View->findChild<QTableView*>()->verticalScrollBar();
    for ([[maybe_unused]] auto _ : state) {
        bar.setValue((bar.value() + 7) % bar.maximum());
        list.Picture();
    }
}

static void Row_At_Work(benchmark::State& state, Seen_List& list)
{
    list.Prog.Videos.In_Work = 3;
    int percent = 0;
    for ([[maybe_unused]] auto _ : state) {
        Set_Percent(list.Prog.Videos, 3, percent++ % 100);
        list.Picture();
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Seen_List list;
    const std::pair<const char*, void (*)(benchmark::State&, Seen_List&)> all[] = {
        {"Fill", Fill}, {"Sort", Sort},     {"Filter", Filter},
        {"Chip", Chip}, {"Scroll", Scroll}, {"Row_At_Work", Row_At_Work}};
    for (const auto& [name, work] : all)
        benchmark::RegisterBenchmark(name, [&list, work = work](benchmark::State& state) {
            work(state, list);
        })->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
