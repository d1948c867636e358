#include "devhost/drawing/Grid.h"

#include <cmath>
#include <initializer_list>

namespace devhost {

double GridSpacing(double unitsPerPixel, double leastPixels) {
    const double least = unitsPerPixel * leastPixels;
    const double decade = std::pow(10, std::floor(std::log10(least)));
    constexpr double kRounding = 1 - 1e-9;
    for (const double step : {1.0, 2.0, 5.0}) {
        if (decade * step >= least * kRounding) {
            return decade * step;
        }
    }
    return decade * 10;
}

std::vector<double> GridSteps(double low, double high, double spacing) {
    constexpr double kMostExact = 9e15;  // up to here every whole number is a double
    const double first = std::ceil(low / spacing);
    const double last = std::floor(high / spacing);
    std::vector<double> steps;
    if (std::abs(first) <= kMostExact && std::abs(last) <= kMostExact) {
        for (double step = first; step <= last; ++step) {
            steps.push_back(step);
        }
    }
    return steps;
}

}  // namespace devhost
