// How well a text stands out from its background, as the accessibility guidelines for web content (WCAG 2)
// measure it.
#pragma once

#include "propgrid/model/Value.h"

namespace tavrin::propgrid {

// The least contrast of text that counts as readable.
inline constexpr double kReadableContrast = 4.5;

// The contrast ratio of two colours: 1 for the same, 21 for black and white.
double GetContrast(Color a, Color b);

}  // namespace tavrin::propgrid
