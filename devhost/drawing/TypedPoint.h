// A typed point.
#pragma once

#include <optional>
#include <string_view>

#include "devhost/drawing/Point.h"

namespace devhost {

// The point that `text` describes, in drawing units; nothing when it describes none:
//   120,45    coordinates; each is a length in any of the linear formats
//   @30,-5    relative to `base`
//   55        this distance from `base` in the direction of `mouse`
// The last two need a base, the last one a mouse position that differs from it. Blanks around the parts are
// allowed.
std::optional<Point> ParsePoint(std::wstring_view text, std::optional<Point> base, Point mouse);

}  // namespace devhost
