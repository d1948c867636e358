#include "devhost/drawing/Snap.h"

#include <cmath>

namespace devhost {

namespace {

class CNearest {
public:
    CNearest(Point position, double reach) : m_position(position), m_distance(reach) {}

    const std::optional<Point>& Result() const { return m_point; }

    void operator()(const LineEntity& line) {
        Try(line.from);
        Try(line.to);
    }
    void operator()(const PolylineEntity& line) {
        for (const Point& point : line.points) {
            Try(point);
        }
    }
    void operator()(const CircleEntity&) {}
    void operator()(const ArcEntity& arc) {
        Try(PointOnCircle(arc.center, arc.radius, arc.start));
        Try(PointOnCircle(arc.center, arc.radius, arc.end));
    }
    void operator()(const TextEntity&) {}

private:
    void Try(Point point) {
        const double distance = std::hypot(point.x - m_position.x, point.y - m_position.y);
        if (distance > m_distance) {
            return;
        }
        m_distance = distance;
        m_point = point;
    }

    Point m_position;
    double m_distance;
    std::optional<Point> m_point;
};

}  // namespace

std::optional<Point> NearestEnd(const CDrawing& drawing, Point position, double reach) {
    CNearest nearest(position, reach);
    for (const Entity& entity : drawing.Entities()) {
        std::visit(nearest, entity);
    }
    return nearest.Result();
}

}  // namespace devhost
