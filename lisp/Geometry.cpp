// Functions on points: lists of two or three numbers in drawing units. Angles are in radians,
// counter-clockwise from the x axis.
#include <cmath>
#include <numbers>

#include "lisp/Builtins.h"

namespace tavrin::lisp {

namespace {

// The point at an angle and a distance from another, in the plane of the drawing; a third coordinate stays.
LispResult Polar(const CArguments& arguments) {
    const LispPoint from = arguments.Point(0);
    const double angle = arguments.Number(1);
    const double distance = arguments.Number(2);
    const CValue coordinates[] = {CValue::Real(from.x + distance * std::cos(angle)),
                                  CValue::Real(from.y + distance * std::sin(angle)), CValue::Real(from.z)};
    const bool flat = arguments[0].Cdr().Cdr().IsNil();
    return CValue::List({coordinates, flat ? 2u : 3u});
}

// Of the line from the first point to the second, from 0 up to a full turn.
LispResult Angle(const CArguments& arguments) {
    const LispPoint from = arguments.Point(0);
    const LispPoint to = arguments.Point(1);
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    return CValue::Real(angle < 0 ? angle + 2 * std::numbers::pi : angle + 0.0);
}

LispResult Distance(const CArguments& arguments) {
    const LispPoint from = arguments.Point(0);
    const LispPoint to = arguments.Point(1);
    return CValue::Real(std::hypot(to.x - from.x, to.y - from.y, to.z - from.z));
}

constexpr Builtin kFunctions[] = {
    {L"POLAR", 3, 3, Polar},
    {L"ANGLE", 2, 2, Angle},
    {L"DISTANCE", 2, 2, Distance},
};

}  // namespace

std::span<const Builtin> GeometryFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
