// What a drawing is made of.
//
// Lengths and coordinates are in drawing units with y upwards, angles in radians, counter-clockwise from the
// x axis.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "devhost/drawing/Point.h"

namespace devhost {

struct LineEntity {
    Point from;
    Point to;
};

struct PolylineEntity {
    std::vector<Point> points;  // two at least
    bool closed = false;        // a line connects the last point with the first
};

struct CircleEntity {
    Point center;
    double radius = 0;  // above zero
};

// The part of a circle from angle `start` counter-clockwise to angle `end`; the whole circle when both are
// the same direction.
struct ArcEntity {
    Point center;
    double radius = 0;  // above zero
    double start = 0;
    double end = 0;
};

// One line of text. `position` is the left end of its base line, `height` that of a capital letter.
struct TextEntity {
    Point position;
    double height = 0;  // above zero
    double angle = 0;   // of the base line
    std::wstring text;
};

using Entity = std::variant<LineEntity, PolylineEntity, CircleEntity, ArcEntity, TextEntity>;

// The angle that the arc spans: above zero, at most a full turn.
double SweepOf(const ArcEntity& arc);
// The point of a circle in the direction `angle`.
Point PointOnCircle(Point center, double radius, double angle);

// The height of a capital letter as a fraction of the font size, for all views.
inline constexpr double kCapitalFraction = 0.72;

// Numbers with a larger absolute value are not drawn: arithmetic on them would lose the drawing's details.
inline constexpr double kLargestNumber = 1e12;

}  // namespace devhost
