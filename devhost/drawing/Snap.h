// Points of a drawing that the mouse jumps to.
#pragma once

#include <optional>

#include "devhost/drawing/Drawing.h"

// The end point nearest to `place` among those within `reach` (drawing units); nothing when there is none.
// End points are the ends of lines and arcs and the points of polylines; of two that are equally near the
// one drawn later wins, since it lies on top.
std::optional<SPoint> NearestEnd(const CDrawing& drawing, SPoint place, double reach);
