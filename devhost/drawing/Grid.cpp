#include "devhost/drawing/Grid.h"

#include <cmath>
#include <initializer_list>

namespace devhost {

double GridSpacing(double unitsPerPixel, double leastPixels) {
    const double least = unitsPerPixel * leastPixels;
    const double decade = std::pow(10, std::floor(std::log10(least)));
    constexpr double kTolerance = 1 - 1e-9;  // a step that is too small only by rounding is accepted
    for (const double step : {1.0, 2.0, 5.0}) {
        if (decade * step >= least * kTolerance) {
            return decade * step;
        }
    }
    return decade * 10;
}

std::vector<double> GridSteps(double low, double high, double spacing) {
    constexpr double kMaxExact = 9e15;  // every integer up to here is exactly representable
    const double first = std::ceil(low / spacing);
    const double last = std::floor(high / spacing);
    std::vector<double> steps;
    if (std::abs(first) <= kMaxExact && std::abs(last) <= kMaxExact) {
        for (double step = first; step <= last; ++step) {
            steps.push_back(step);
        }
    }
    return steps;
}

}  // namespace devhost
