// The window's workbenches where they have much to show. "ratio" is the time against that of a raw loop, measured in
// turn: scan and sort of a folder with 20,000 rows against listing it, opening the log viewer on 32,767 lines against a
// QPlainTextEdit that loads the same text. Identify_And_Show runs the real mkvmerge; its "ours_ms" is what it takes
// beside a bare start of mkvmerge that prints the same.
#include "compare.h"
#include "forms/drop_text.h"
#include "forms/text_lines_view.h"
#include "inspect/identification.h"
#include "nobody.h"
#include "state/program.h"
#include "support/files.h"
#include "workbenches/log_viewer.h"
#include "workbenches/option_editor.h"
#include "workbenches/video_info_viewer.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static void Write_File(const QString& path, const QByteArray& content)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

static void Scan_And_Sort(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (int i = 0; i < 20'000; ++i)
        Write_File(folder.filePath(u"%1.mp3"_s.arg((i * 7919) % 20'000)), {});
    Nobody nobody;
    Program program(nobody);
    program.Options.Path_Videos = folder.path() + u'/';
    Open_Audio_Option_Editor(program, u"NOP"_s);
    Compare(
        state, [&] { Scan_Option_Folder(program); },
        [&] { benchmark::DoNotOptimize(List_Files(program.Options.Path_Videos)); });
    if (program.Option_Files.lvw_Files.size() != 20'000)
        state.SkipWithError("not all rows were listed");
}

static void Open_Log_Viewer(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(u"Vantorra_Process.log"_s);
    Write_File(
        log,
        QByteArray("            ~~ Alternate Audio File Path - Path= /some/folder/of/sounds/\r\n").repeated(32'767));
    // Each is shown as its window shows it: laid out, painted once.
    Compare(
        state,
        [&] {
            Text_Lines_View view;
            view.resize(900, 600);
            view.Show_Lines(Read_Log_Lines(log, 32'767));
            view.Select_Row(0);
            view.show();
            view.grab();
        },
        [&] {
            QPlainTextEdit view;
            view.setLineWrapMode(QPlainTextEdit::NoWrap);
            view.setFont(Text_Lines_View().font());
            view.resize(900, 600);
            QFile file(log);
            file.open(QIODevice::ReadOnly);
            view.setPlainText(QString::fromUtf8(file.readAll()));
            view.show();
            view.grab();
        });
}

static void Identify_And_Show(benchmark::State& state)
{
    const QString tool = QStandardPaths::findExecutable(u"mkvmerge"_s);
    const QTemporaryDir folder;
    const QString film = folder.filePath(u"film.mkv"_s);
    QProcess::execute(u"ffmpeg"_s, {u"-nostdin"_s, u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                                    u"testsrc=d=1:s=320x180"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=d=1"_s, film});
    if (tool.isEmpty() || !QFile::exists(film)) {
        state.SkipWithError("mkvmerge or ffmpeg is missing");
        return;
    }
    Nobody nobody;
    Program program(nobody);
    program.Tools.System_MKVMerge_Path = tool;
    program.Options.Path_Videos = folder.path() + u'/';
    frm_ViewVFI form;
    form.lst_VideoFiles = {u"film.mkv"_s};
    Drop_Text text;
    text.resize(900, 600);
    text.show();
    double ours = 0;
    double raw = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = Seconds_Of([&] {
            Identify_File(program, film);
            text.setPlainText(Video_Info_Text(program.Media.Video_Info_Lines));
            text.grab();
        });
        state.SetIterationTime(seconds);
        ours += seconds;
        raw += Seconds_Of([&] {
            QProcess bare;
            bare.start(tool, {u"--identify"_s, u"--identification-format"_s, u"json"_s, film});
            bare.waitForFinished();
        });
    }
    if (!text.toPlainText().contains(u"film.mkv"_s))
        state.SkipWithError("nothing was identified");
    state.counters["ours_ms"] = (ours - raw) * 1000 / static_cast<double>(state.iterations());
}

BENCHMARK(Scan_And_Sort)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Open_Log_Viewer)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Identify_And_Show)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
