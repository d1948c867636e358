// Times of work that must be prepared: what comes before a turn is not measured.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace tavrin::benchmarks {

struct Turn {
    std::function<void()> prepare;
    std::function<void()> work;
};

// The median time of each piece of work, in nanoseconds. The pieces take turns, so that other load on the
// machine affects all of them alike; a first round warms up and does not count. `rounds` is at least 1.
std::vector<double> MedianTurns(const std::vector<Turn>& turns, std::size_t rounds);

}  // namespace tavrin::benchmarks
