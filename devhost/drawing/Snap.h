// Points of a drawing that the mouse snaps to.
#pragma once

#include <optional>

#include "devhost/drawing/Drawing.h"

namespace devhost {

// The end point nearest to `position` within `reach` (drawing units); nothing when there is none. End points
// are the ends of lines and arcs and the points of polylines; of two at the same distance the one drawn later
// wins.
std::optional<Point> NearestEnd(const CDrawing& drawing, Point position, double reach);

}  // namespace devhost
