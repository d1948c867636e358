#include "Grid.h"

#include <cmath>
#include <initializer_list>

double GridSpacing(double unitsPerPixel, double leastPixels) {
    const double least = unitsPerPixel * leastPixels;
    const double decade = std::pow(10, std::floor(std::log10(least)));
    constexpr double kRounding = 1 - 1e-9;
    for (const double step : {1.0, 2.0, 5.0})
        if (decade * step >= least * kRounding)
            return decade * step;
    return decade * 10;
}
