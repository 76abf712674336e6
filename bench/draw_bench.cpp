// What a draw costs in the longest list that the chain can walk: the slowest of a whole cycle, whose last draws hit
// barred rows almost always.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "playlist/draw_table.h"

namespace sonarelle {
namespace {

constexpr int longest_list = 32767;

/// The processor's time of this thread, milliseconds.
double processor_ms() {
    std::timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

void cycle(benchmark::State& state) {
    double slowest = 0;
    std::uint64_t seed = 0;
    for (auto each : state) {
        Random random{++seed};
        DrawTable table{random};
        int row = 1;
        for (int turn = 1; turn < longest_list; ++turn) {
            const double begin = processor_ms();
            table.bar(row, longest_list);
            row = table.draw({1, longest_list}).number.value_or(1);
            slowest = std::max(slowest, processor_ms() - begin);
        }
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(cycle)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace sonarelle
