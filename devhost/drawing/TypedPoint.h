// A point that was typed instead of shown.
#pragma once

#include <optional>
#include <string_view>

#include "devhost/drawing/Point.h"

// The point that `text` spells, in drawing units; nothing when it spells none:
//   120,45    coordinates; each is a length in any of the linear formats
//   @30,-5    seen from `base`
//   55        so far from `base` in the direction of `mouse`
// The last two need a base, the last one a mouse that is not on it. Blanks around the parts are allowed.
std::optional<SPoint> ParsePoint(std::wstring_view text, std::optional<SPoint> base, SPoint mouse);
