#pragma once

// Work and its baseline in turns, so that both see the same machine: the time reported is the work's, and a
// counter named after the baseline says how many times the baseline's it is.

#include <benchmark/benchmark.h>

#include <chrono>

namespace bench {

template <class Work>
double secondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// To be registered with UseManualTime().
template <class Work, class Baseline>
void sideBySide(benchmark::State& state, const char* counter, Work work, Baseline baseline)
{
    double own = 0;
    double base = 0;
    for (auto _ : state) {
        const double seconds = secondsOf(work);
        state.SetIterationTime(seconds);
        own += seconds;
        base += secondsOf(baseline);
    }
    state.counters[counter] = own / base;
}

} // namespace bench
