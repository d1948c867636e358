// Prints the rows of a benchmark program's table, one per line; scripts/bench puts them into the document.
//
// A row compares our figure with another one: a peer's for the same work, a fixed limit, or our own at
// another size. The columns are separated by tabs: area, what was measured, its size, our figure, unit,
// the peer, its figure, the bar. The bar is the highest acceptable ratio of our figure to the peer's; a row
// without one is for information only.
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

// The median time of one run of each piece of work, in nanoseconds. The pieces run in turn, so that other
// load on the machine affects all of them alike; one that is too short for the clock runs many times per
// turn.
std::vector<double> MedianTimes(const std::vector<std::function<void()>>& works);

// Keeps the compiler from removing work whose result is unused.
void Use(std::size_t result);

}  // namespace tavrin::benchmarks
