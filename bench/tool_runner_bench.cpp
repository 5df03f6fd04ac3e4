#include "tools/tool_runner.h"

#include "nobody.h"
#include "state/program.h"
#include "support/child_process.h"
#include "support/command_line.h"

#include <QByteArray>
#include <QCoreApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// A child (this program itself) prints a gigabyte that isn't kept, once to the runner and once to a plain loop of
/// read() with a buffer of the same size, in turn. `ratio` is the runner's wall time by the loop's, `busy_ratio` the
/// same of the time that this process was at work; `peak_growth_MB` is what its peak memory grew by.

static constexpr std::size_t Printed_Bytes = 1'000'000'000;
static constexpr std::size_t Buffer_Bytes = 10240;

extern char** environ; // NOLINT(readability-redundant-declaration)

/// The child: prints `line` over and over.
static int Print(const std::string& line)
{
    std::string block;
    while (block.size() < 65536)
        block += line;
    for (std::size_t left = Printed_Bytes; left > 0;) {
        const ssize_t count = ::write(STDOUT_FILENO, block.data(), std::min(left, block.size()));
        if (count <= 0)
            return 1;
        left -= static_cast<std::size_t>(count);
    }
    return 0;
}

static QString Own_Path()
{
    return QCoreApplication::applicationFilePath();
}

/// Reads the child's output by a plain loop; the bytes that came.
static std::size_t Plain_Loop(const std::string& line)
{
    int ends[2];
    if (::pipe(ends) != 0)
        std::abort();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    std::string path = Own_Path().toStdString();
    std::string option = "--print";
    std::string text = line;
    char* arguments[] = {path.data(), option.data(), text.data(), nullptr};
    pid_t child = 0;
    if (::posix_spawn(&child, path.c_str(), &actions, nullptr, arguments, environ) != 0)
        std::abort();
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    char buffer[Buffer_Bytes];
    std::size_t bytes = 0;
    for (ssize_t count; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        bytes += static_cast<std::size_t>(count);
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return bytes;
}

namespace {

/// Seconds on the clock, and seconds that this process was at work.
struct Times
{
    double Wall = 0;
    double Busy = 0;
};

double Busy_Seconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

Times Times_Of(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    const double busy = Busy_Seconds();
    work();
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), Busy_Seconds() - busy};
}

double Peak_Megabytes()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

} // namespace

static void Run_Mkvmerge_Reading(benchmark::State& state, const char* line)
{
    Nobody person;
    Program program(person);
    program.Settings.App_Folder = QStringLiteral("/opt/vantorra/");
    Command_Line command;
    command.Add(QStringLiteral(" --print"), QStringLiteral("--print"));
    command.Add(QStringLiteral(" line"), QString::fromUtf8(line));

    Times plain;
    Times ours;
    const double peak = Peak_Megabytes();
    for ([[maybe_unused]] const auto _ : state) {
        const Times loop = Times_Of([&] { benchmark::DoNotOptimize(Plain_Loop(line)); });
        const Times once = Times_Of([&] { Run_Mkvmerge(program, Own_Path(), command); });
        plain = {plain.Wall + loop.Wall, plain.Busy + loop.Busy};
        ours = {ours.Wall + once.Wall, ours.Busy + once.Busy};
        state.SetIterationTime(once.Wall);
    }
    // A read may deliver a piece of a line, which names nothing.
    if (program.Logs.Log_Console.Length() > 1000000 || program.Run.Exit_Status != 0)
        state.SkipWithError("The child's output was kept, or it failed");
    state.counters["plain_s"] = plain.Wall / static_cast<double>(state.iterations());
    state.counters["ratio"] = ours.Wall / plain.Wall;
    state.counters["busy_ratio"] = ours.Busy / plain.Busy;
    state.counters["peak_growth_MB"] = Peak_Megabytes() - peak;
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(Printed_Bytes));
}

BENCHMARK_CAPTURE(Run_Mkvmerge_Reading, progress_lines, "Progress: 42%\r")->UseManualTime()->Iterations(5);
BENCHMARK_CAPTURE(Run_Mkvmerge_Reading, lines_that_name_our_folder, "Reading '/opt/vantorra/fonts/a.ttf'\n")
    ->UseManualTime()
    ->Iterations(5);

int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--print") == 0)
        return Print(argv[2]);
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
