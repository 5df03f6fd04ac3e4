#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

/// What every benchmark here shares: our own way of doing something against a raw loop, measured in turn.

template <typename Work>
double Seconds_Of(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Runs both in turn and reports the first one's time and its ratio to the second's. For a benchmark with
/// UseManualTime.
template <typename Ours, typename Raw>
void Compare(benchmark::State& state, Ours ours, Raw raw)
{
    double our_time = 0;
    double raw_time = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = Seconds_Of(ours);
        state.SetIterationTime(seconds);
        our_time += seconds;
        raw_time += Seconds_Of(raw);
    }
    state.counters["ratio"] = our_time / raw_time;
}
