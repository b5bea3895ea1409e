#pragma once

// Work and its baselines in turns, so that all see the same machine: the time reported is the work's, and a
// counter named after each baseline says how many times the baseline's it is.
//
//     sideBySide(state, "x reader", work, baseline);
//     sideBySide(state, work, bench::Against{"idle", idle}, bench::Against{"copying", copying});
//
// What gives a number gives the seconds that it took itself, in another process say.

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <type_traits>

namespace bench {

template <class Work>
double secondsOf(Work& work)
{
    if constexpr (std::is_same_v<std::invoke_result_t<Work&>, double>) {
        return work();
    } else {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
}

template <class Baseline>
struct Against
{
    const char* counter;
    Baseline run;
};

template <class Baseline>
Against(const char*, Baseline) -> Against<Baseline>;

// To be registered with UseManualTime().
template <class Work, class... Baselines>
void sideBySide(benchmark::State& state, Work work, Against<Baselines>... baselines)
{
    double own = 0;
    std::array<double, sizeof...(Baselines)> base{};
    for (auto _ : state) {
        const double seconds = secondsOf(work);
        state.SetIterationTime(seconds);
        own += seconds;
        auto sum = base.begin();
        ((*sum++ += secondsOf(baselines.run)), ...);
    }
    auto sum = base.cbegin();
    ((state.counters[baselines.counter] = own / *sum++), ...);
}

template <class Work, class Baseline>
void sideBySide(benchmark::State& state, const char* counter, Work work, Baseline baseline)
{
    sideBySide(state, work, Against{counter, baseline});
}

} // namespace bench
