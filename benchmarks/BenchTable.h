// What a benchmark program says: rows of one table, one per line, which scripts/bench puts into the document.
//
// A row compares our figure with another one: a peer's for the same work, a fixed limit, or our own at
// another size. The columns are separated by tabs: area, what was measured, its size, our figure, unit,
// beside whom, their figure, the bar. The bar is the greatest ratio of our figure to theirs that is
// acceptable; a row without one informs.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tavrin::benchmarks {

struct BenchRow {
    std::string area;
    std::string what;
    std::string size;
    double ours = 0.0;
    std::string unit;
    std::string peer;
    double theirs = 0.0;
    double bar = 0.0;  // 0: none
};

void PrintRow(const BenchRow& row);

// The median time of one run of each piece of work, in nanoseconds. They take turns, so that what else the
// machine does meets all of them alike; a piece that is too short for the clock runs many times in a turn.
std::vector<double> MedianTimes(const std::vector<std::function<void()>>& works);

// Keeps the compiler from removing work whose result is unused.
void Use(std::size_t result);

}  // namespace tavrin::benchmarks
