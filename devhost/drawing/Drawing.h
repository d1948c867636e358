// A drawing: lines, polylines, circles, arcs and texts, in the order of their creation.
//
// Lengths and coordinates are in drawing units with y upwards, angles in radians, counter-clockwise from the
// x axis. Owns the entities. A view listens to the changes.
#pragma once

#include <functional>
#include <optional>
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
    Point centre;
    double radius = 0;  // above zero
};

// The part of a circle from angle `start` counter-clockwise to angle `end`; the whole circle when both are
// the same direction.
struct ArcEntity {
    Point centre;
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
Point PointOnCircle(Point centre, double radius, double angle);

// The height of a capital letter as a fraction of the font size, for all views.
inline constexpr double kCapitalFraction = 0.72;

// Numbers with a larger absolute value are not drawn: arithmetic on them would lose the drawing's details.
inline constexpr double kLargestNumber = 1e12;

class CDrawing {
public:
    // Adds an entity. False, with nothing added, when a number is not finite or beyond kLargestNumber, or a
    // radius, a height or the number of points is too small.
    bool Add(Entity entity);
    void Clear();

    const std::vector<Entity>& Entities() const { return m_entities; }

    // The bounding box; nothing for an empty drawing. The length of a text is an upper estimate, since the
    // font is not known here.
    std::optional<Box> Extents() const;

    // Called after each change. An empty function removes the listener.
    void SetListener(std::function<void()> onChanged) { m_onChanged = std::move(onChanged); }

private:
    void NotifyListener() const;

    std::vector<Entity> m_entities;
    std::function<void()> m_onChanged;
};

}  // namespace devhost
