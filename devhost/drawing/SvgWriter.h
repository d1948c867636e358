// A drawing as an SVG picture.
#pragma once

#include <string>

#include "devhost/drawing/Drawing.h"

// The text of an SVG file (UTF-8) that shows the whole drawing with a small margin, y upwards, its longer
// side 1000 pixels. One unit of its coordinates is one drawing unit; lines keep their width however the
// picture is scaled. The same drawing gives the same bytes, whatever the locale. An empty drawing gives an
// empty picture.
std::string ToSvg(const CDrawing& drawing);
