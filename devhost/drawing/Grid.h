// The dots behind a drawing that give a feeling for its size.
#pragma once

#include <vector>

// The distance between the dots in drawing units: the smallest of 1, 2, 5, 10, 20, 50 … (and 0.5, 0.2 …)
// that spans at least `leastPixels` at so many drawing units per pixel.
double GridSpacing(double unitsPerPixel, double leastPixels);

// The whole numbers whose multiples of `spacing` lie from `low` to `high`, upwards. None where they are too
// large to be told apart, which close up and very far from the origin they are.
std::vector<double> GridSteps(double low, double high, double spacing);
