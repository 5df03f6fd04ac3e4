#include "support/string_builder.h"

#include <benchmark/benchmark.h>
#include <string>

/// Ten megabytes of text, line by line as a log grows: the builder against the two texts that could take its place.
/// `bytes_per_second` is what compares.

static constexpr char16_t Line[] = u"            -- Processing video file - \"/videos/Some film or other.mkv\"\r\n";
static constexpr std::size_t Line_Length = std::size(Line) - 1;
static constexpr std::size_t Lines = 10'000'000 / sizeof(char16_t) / Line_Length;

static void Count_Bytes(benchmark::State& state)
{
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * Lines * Line_Length * sizeof(char16_t)));
}

static void Builder_Append(benchmark::State& state)
{
    const QStringView line(Line, static_cast<qsizetype>(Line_Length));
    for ([[maybe_unused]] const auto _ : state) {
        clsStringBuilder text;
        for (std::size_t count = 0; count < Lines; ++count)
            text.Append(line);
        benchmark::DoNotOptimize(text.ToStringPtr());
    }
    Count_Bytes(state);
}

static void QString_Append(benchmark::State& state)
{
    const QStringView line(Line, static_cast<qsizetype>(Line_Length));
    for ([[maybe_unused]] const auto _ : state) {
        QString text;
        for (std::size_t count = 0; count < Lines; ++count)
            text.append(line);
        benchmark::DoNotOptimize(text.constData());
    }
    Count_Bytes(state);
}

static void U16string_Append(benchmark::State& state)
{
    for ([[maybe_unused]] const auto _ : state) {
        std::u16string text;
        for (std::size_t count = 0; count < Lines; ++count)
            text.append(Line, Line_Length);
        benchmark::DoNotOptimize(text.data());
    }
    Count_Bytes(state);
}

BENCHMARK(Builder_Append)->Unit(benchmark::kMillisecond);
BENCHMARK(QString_Append)->Unit(benchmark::kMillisecond);
BENCHMARK(U16string_Append)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
