#pragma once

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <vector>

#include <benchmark/benchmark.h>

namespace tern7::bench {

/// Processor time of this thread in seconds: other programs on the machine count little.
inline double ThreadTime() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

inline double Median(std::vector<double>& times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// Runs ours and the yardstick in turns, so that both see the same machine; the time of the line is
/// that of both. `ours_ns` and `yardstick_ns` are the medians of a run's work divided by `repeats`
/// (work below the clock is repeated), `times_as_fast` their ratio, and `best_of_both` that of the
/// least times, to which a busy machine adds least. `prepare` is called before each run of ours and
/// not timed.
template <class Ours, class Yardstick, class Prepare>
void SideBySide(benchmark::State& state, int64_t repeats, Ours ours, Yardstick yardstick,
                Prepare prepare) {
    std::vector<double> ourTimes, theirTimes;
    for (auto _ : state) {
        prepare();
        const double start = ThreadTime();
        for (int64_t i = 0; i < repeats; ++i)
            ours();
        const double between = ThreadTime();
        for (int64_t i = 0; i < repeats; ++i)
            yardstick();
        const double end = ThreadTime();
        ourTimes.push_back(between - start);
        theirTimes.push_back(end - between);
        state.SetIterationTime(end - start);
    }
    const auto least = [](const std::vector<double>& times) {
        return *std::min_element(times.begin(), times.end());
    };
    const double once = 1e9 / static_cast<double>(repeats);
    const double ourMedian = Median(ourTimes), theirMedian = Median(theirTimes);
    state.counters["ours_ns"] = ourMedian * once;
    state.counters["yardstick_ns"] = theirMedian * once;
    state.counters["times_as_fast"] = theirMedian / ourMedian;
    state.counters["best_of_both"] = least(theirTimes) / least(ourTimes);
}

template <class Ours, class Yardstick>
void SideBySide(benchmark::State& state, int64_t repeats, Ours ours, Yardstick yardstick) {
    SideBySide(state, repeats, ours, yardstick, [] {});
}

} // namespace tern7::bench
