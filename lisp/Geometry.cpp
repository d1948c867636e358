// Points: lists of two or three numbers in drawing units; angles in radians from the x axis,
// counter-clockwise.
#include <cmath>
#include <numbers>

#include "lisp/Builtins.h"

namespace {

// The point at an angle and a distance from another, in the plane of the drawing; a third coordinate stays.
CLispResult Polar(const CArguments& arguments) {
    const SLispPoint from = arguments.Point(0);
    const double angle = arguments.Number(1);
    const double distance = arguments.Number(2);
    const CValue coordinates[] = {CValue::Real(from.x + distance * std::cos(angle)),
                                  CValue::Real(from.y + distance * std::sin(angle)), CValue::Real(from.z)};
    const bool flat = arguments[0].Cdr().Cdr().IsNil();
    return CValue::List({coordinates, flat ? 2u : 3u});
}

// Of the line from the first point to the second, from 0 up to a full turn.
CLispResult Angle(const CArguments& arguments) {
    const SLispPoint from = arguments.Point(0);
    const SLispPoint to = arguments.Point(1);
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    return CValue::Real(angle < 0 ? angle + 2 * std::numbers::pi : angle + 0.0);
}

CLispResult Distance(const CArguments& arguments) {
    const SLispPoint from = arguments.Point(0);
    const SLispPoint to = arguments.Point(1);
    return CValue::Real(std::hypot(to.x - from.x, to.y - from.y, to.z - from.z));
}

constexpr SBuiltin kFunctions[] = {
    {L"POLAR", 3, 3, Polar},
    {L"ANGLE", 2, 2, Angle},
    {L"DISTANCE", 2, 2, Distance},
};

}  // namespace

std::span<const SBuiltin> GeometryFunctions() {
    return kFunctions;
}
