// A drawing as an SVG picture.
#pragma once

#include <string>

#include "devhost/drawing/Drawing.h"

namespace devhost {

// An SVG file (UTF-8) that shows the whole drawing with a small margin, y upwards, its longer side 1000
// pixels. One unit of its coordinates is one drawing unit; the line width does not scale. The output is
// deterministic and does not depend on the locale. An empty drawing gives an empty picture.
std::string ToSvg(const CDrawing& drawing);

}  // namespace devhost
