// The list of the option files editor with 10,000 subtitle files that have an option file each, as it is seen: opened,
// narrowed down by the filter field, ordered by a name and by a value, a value typed into one row and filled down into
// all others. Each time is that of the rule and of the whole picture behind it. Read is the first order by a value,
// which reads every option file.
#include "forms/option_editor_view.h"
#include "forms/slot_guard.h"
#include "nobody.h"
#include "state/program.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_list.h"
#include "workbenches/option_marks.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <numeric>

using namespace Qt::StringLiterals;

static constexpr int Rows = 10'000;
static constexpr int First_Title = First_Value_Column + static_cast<int>(Title_Slot);

/// The editor in a window of its own, painted.
struct Seen_Editor
{
    Nobody Person;
    Program Prog{Person};
    Slot_Guard Guard{Prog};
    QTemporaryDir Folder;
    std::unique_ptr<Option_Editor_View> View;

    Seen_Editor()
    {
        for (int i = 0; i < Rows; ++i) {
            const QString name =
                Folder.filePath(u"Harbour Lights - S%1E%2.%3.srt"_s.arg(i / 200, 3, 10, QLatin1Char('0'))
                                    .arg(i / 2 % 100, 2, 10, QLatin1Char('0'))
                                    .arg(i % 2 == 0 ? u"en"_s : u"de"_s));
            QFile(name).open(QIODevice::WriteOnly);
            QFile options(name + u".opt"_s);
            options.open(QIODevice::WriteOnly);
            options.write("Title=" + QByteArray::number((i * 7919) % Rows) + "\r\nLanguage=English (eng)\r\n");
        }
        Prog.Options.Path_Videos = Folder.path() + u'/';
        Open_Subtitle_Option_Editor(Prog, u"NOP"_s);
        View = std::make_unique<Option_Editor_View>(Prog, Guard, nullptr);
        View->Open();
        View->resize(1200, 800);
        View->show();
        Picture();
    }

    Option_Editor& Editor() { return Prog.Option_Files; }

    void Picture()
    {
        View->Render();
        QCoreApplication::processEvents();
        View->repaint();
    }
};

static void Open(benchmark::State& state, Seen_Editor& seen)
{
    for ([[maybe_unused]] auto _ : state) {
        Scan_Option_Folder(seen.Prog);
        seen.Picture();
    }
}

static void Read(benchmark::State& state, Seen_Editor& seen)
{
    for ([[maybe_unused]] auto _ : state) {
        for (Option_Cells& cells : seen.Editor().Cells)
            cells.Read = false;
        Sort_Option_List(seen.Editor(), First_Title, false);
        seen.Picture();
    }
}

static void Filter(benchmark::State& state, Seen_Editor& seen)
{
    const QString typed[] = {u"s"_s, u"s0"_s, u"s01"_s, u"*.en.srt"_s, {}};
    int key = 0;
    for ([[maybe_unused]] auto _ : state) {
        Set_Option_Filter(seen.Prog, typed[key++ % 5]);
        seen.Picture();
    }
    Set_Option_Filter(seen.Prog, {});
}

static void Sort(benchmark::State& state, Seen_Editor& seen)
{
    const int heads[] = {First_Title, File_Column, Option_File_Column};
    int click = 0;
    for ([[maybe_unused]] auto _ : state) {
        Sort_Option_List(seen.Editor(), heads[click % 3], click % 2 == 0);
        ++click;
        seen.Picture();
    }
    Sort_Option_List(seen.Editor(), File_Column, false);
}

static void Type(benchmark::State& state, Seen_Editor& seen)
{
    int title = 0;
    for ([[maybe_unused]] auto _ : state) {
        Type_Into_Cell(seen.Editor(), 3, Title_Slot, QString::number(++title));
        seen.Picture();
    }
}

static void Fill_All(benchmark::State& state, Seen_Editor& seen)
{
    seen.Editor().Selection.resize(Rows);
    std::iota(seen.Editor().Selection.begin(), seen.Editor().Selection.end(), 0);
    int title = 0;
    for ([[maybe_unused]] auto _ : state) {
        Type_Into_Cell(seen.Editor(), 0, Title_Slot, u"t"_s + QString::number(++title));
        Fill_Down(seen.Editor(), 0, Title_Slot);
        seen.Picture();
    }
    if (Count_Marked(seen.Editor()) != Rows)
        state.SkipWithError("not all rows were filled");
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Seen_Editor seen;
    const std::pair<const char*, void (*)(benchmark::State&, Seen_Editor&)> all[] = {
        {"Open", Open}, {"Read", Read}, {"Filter", Filter}, {"Sort", Sort}, {"Type", Type}, {"Fill_All", Fill_All}};
    for (const auto& [name, work] : all)
        benchmark::RegisterBenchmark(name, [&seen, work = work](benchmark::State& state) {
            work(state, seen);
        })->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
