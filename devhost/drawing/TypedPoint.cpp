#include "devhost/drawing/TypedPoint.h"

#include <cmath>

#include "units/LinearUnits.h"

namespace {

std::optional<SPoint> ParseAlong(double length, SPoint base, SPoint mouse) {
    const double dx = mouse.x - base.x;
    const double dy = mouse.y - base.y;
    const double distance = std::hypot(dx, dy);
    if (distance == 0) {
        return std::nullopt;
    }
    return SPoint{base.x + dx / distance * length, base.y + dy / distance * length};
}

}  // namespace

std::optional<SPoint> ParsePoint(std::wstring_view text, std::optional<SPoint> base, SPoint mouse) {
    const std::size_t start = text.find_first_not_of(L" \t");
    const bool relative = start != std::wstring_view::npos && text[start] == L'@';
    if (relative) {
        text.remove_prefix(start + 1);
    }
    const std::size_t comma = text.find(L',');
    const auto first = ParseLinear(text.substr(0, comma));
    if (!first || (relative && !base)) {
        return std::nullopt;
    }
    if (comma == std::wstring_view::npos) {
        return base && !relative ? ParseAlong(*first, *base, mouse) : std::nullopt;
    }
    const auto second = ParseLinear(text.substr(comma + 1));
    if (!second) {
        return std::nullopt;
    }
    const SPoint from = relative ? *base : SPoint();
    return SPoint{from.x + *first, from.y + *second};
}
