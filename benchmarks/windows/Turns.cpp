#include "benchmarks/windows/Turns.h"

#include <windows.h>

#include <algorithm>

namespace tavrin::benchmarks {

namespace {

double Nanoseconds() {
    static const double perTick = [] {
        LARGE_INTEGER frequency;
        QueryPerformanceFrequency(&frequency);
        return 1e9 / static_cast<double>(frequency.QuadPart);
    }();
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) * perTick;
}

}  // namespace

std::vector<double> MedianTurns(const std::vector<Turn>& turns, std::size_t rounds) {
    std::vector<std::vector<double>> times(turns.size());
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (std::size_t index = 0; index < turns.size(); ++index) {
            if (turns[index].prepare) {
                turns[index].prepare();
            }
            const double begin = Nanoseconds();
            turns[index].work();
            if (round > 0) {
                times[index].push_back(Nanoseconds() - begin);
            }
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& each : times) {
        std::nth_element(each.begin(), each.begin() + static_cast<std::ptrdiff_t>(each.size() / 2),
                         each.end());
        medians.push_back(each[each.size() / 2]);
    }
    return medians;
}

}  // namespace tavrin::benchmarks
