#pragma once

#include <algorithm>
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

/// Runs ours and the yardstick in turns, so that both see the same machine. The time of the line is
/// ours; `yardstick` is the other's in nanoseconds, `times_as_fast` the ratio of the medians.
/// `prepare` is called before each run of ours and not timed.
template <class Ours, class Yardstick, class Prepare>
void SideBySide(benchmark::State& state, Ours ours, Yardstick yardstick, Prepare prepare) {
    std::vector<double> ourTimes, theirTimes;
    for (auto _ : state) {
        prepare();
        const double start = ThreadTime();
        ours();
        const double between = ThreadTime();
        yardstick();
        const double end = ThreadTime();
        ourTimes.push_back(between - start);
        theirTimes.push_back(end - between);
        state.SetIterationTime(between - start);
    }
    const double theirs = Median(theirTimes);
    state.counters["yardstick_ns"] = theirs * 1e9;
    state.counters["times_as_fast"] = theirs / Median(ourTimes);
}

template <class Ours, class Yardstick>
void SideBySide(benchmark::State& state, Ours ours, Yardstick yardstick) {
    SideBySide(state, ours, yardstick, [] {});
}

} // namespace tern7::bench
