// The grid of dots behind a drawing.
#pragma once

#include <vector>

namespace devhost {

// The distance between the dots in drawing units: the smallest of …, 0.2, 0.5, 1, 2, 5, 10, … that is at
// least `leastPixels` pixels.
double GridSpacing(double unitsPerPixel, double leastPixels);

// The integers n with low <= n * spacing <= high, ascending. None where they are too large to be exact, which
// happens when zooming in very far from the origin.
std::vector<double> GridSteps(double low, double high, double spacing);

}  // namespace devhost
