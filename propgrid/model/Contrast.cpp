#include "propgrid/model/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tavrin::propgrid {

namespace {

// The light of one channel of an sRGB colour, from 0 to 1.
double GetLight(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double GetLuminance(Color color) {
    return 0.2126 * GetLight(RedOf(color)) + 0.7152 * GetLight(GreenOf(color)) +
           0.0722 * GetLight(BlueOf(color));
}

}  // namespace

double GetContrast(Color a, Color b) {
    const auto [darker, lighter] = std::minmax({GetLuminance(a), GetLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace tavrin::propgrid
