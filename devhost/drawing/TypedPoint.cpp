#include "devhost/drawing/TypedPoint.h"

#include <cmath>

#include "devhost/Libraries.h"
#include "units/LinearUnits.h"

namespace devhost {

namespace {

std::optional<Point> ParseAlong(double length, Point base, Point mouse) {
    const double dx = mouse.x - base.x;
    const double dy = mouse.y - base.y;
    const double distance = std::hypot(dx, dy);
    if (distance == 0) {
        return std::nullopt;
    }
    return Point{base.x + dx / distance * length, base.y + dy / distance * length};
}

}  // namespace

std::optional<Point> ParsePoint(std::wstring_view text, std::optional<Point> base, Point mouse) {
    const std::size_t start = text.find_first_not_of(L" \t");
    const bool relative = start != std::wstring_view::npos && text[start] == L'@';
    if (relative) {
        text.remove_prefix(start + 1);
    }
    const std::size_t comma = text.find(L',');
    const auto first = units::ParseLinear(text.substr(0, comma));
    if (!first || (relative && !base)) {
        return std::nullopt;
    }
    if (comma == std::wstring_view::npos) {
        return base && !relative ? ParseAlong(*first, *base, mouse) : std::nullopt;
    }
    const auto second = units::ParseLinear(text.substr(comma + 1));
    if (!second) {
        return std::nullopt;
    }
    const Point from = relative ? *base : Point();
    return Point{from.x + *first, from.y + *second};
}

}  // namespace devhost
