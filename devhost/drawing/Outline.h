// Entities as lines, and clipping.
#pragma once

#include <optional>
#include <vector>

#include "devhost/drawing/Drawing.h"

namespace devhost {

// The polyline of an entity, in drawing units; a closed one ends where it begins. Circles and arcs become
// chords within `tolerance` (drawing units, above zero) of the curve, up to some thousand chords. Empty for a
// text.
std::vector<Point> OutlineOf(const Entity& entity, double tolerance);

// The part of the line within the box; nothing when there is none.
std::optional<LineEntity> Clip(const LineEntity& line, const Box& box);

}  // namespace devhost
