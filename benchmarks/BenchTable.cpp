// Printing rows and taking times.
#include "benchmarks/BenchTable.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>

namespace tavrin::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kTurns = 21;
constexpr double kLeastTurn = 1e6;  // nanoseconds

volatile std::size_t g_used;

double TimeOf(const std::function<void()>& work, std::size_t runs) {
    const Clock::time_point begin = Clock::now();
    for (std::size_t run = 0; run < runs; ++run) {
        work();
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - begin).count();
}

// How often a piece of work runs in one turn. The runs before warm the caches up.
std::size_t RunsPerTurn(const std::function<void()>& work) {
    std::size_t runs = 1;
    while (TimeOf(work, runs) < kLeastTurn) {
        runs *= 2;
    }
    return runs;
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace

void PrintRow(const BenchRow& row) {
    std::printf("%s\t%s\t%s\t%.6g\t%s\t%s\t%.6g\t%g\n", row.area.c_str(), row.what.c_str(), row.size.c_str(),
                row.ours, row.unit.c_str(), row.peer.c_str(), row.theirs, row.bar);
    std::fflush(stdout);
}

std::vector<double> MedianTimes(const std::vector<std::function<void()>>& works) {
    std::vector<std::size_t> runs;
    for (const std::function<void()>& work : works) {
        runs.push_back(RunsPerTurn(work));
    }
    std::vector<std::vector<double>> times(works.size());
    for (std::size_t turn = 0; turn < kTurns; ++turn) {
        for (std::size_t index = 0; index < works.size(); ++index) {
            times[index].push_back(TimeOf(works[index], runs[index]) / static_cast<double>(runs[index]));
        }
    }
    std::vector<double> medians;
    for (const std::vector<double>& each : times) {
        medians.push_back(Median(each));
    }
    return medians;
}

void Use(std::size_t result) {
    g_used = result;
}

}  // namespace tavrin::benchmarks
