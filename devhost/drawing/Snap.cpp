#include "devhost/drawing/Snap.h"

#include <cmath>

namespace {

class CNearest {
public:
    CNearest(SPoint place, double reach) : m_place(place), m_distance(reach) {}

    const std::optional<SPoint>& Point() const { return m_point; }

    void operator()(const SLine& line) {
        Try(line.from);
        Try(line.to);
    }
    void operator()(const SPolyline& line) {
        for (const SPoint& point : line.points) {
            Try(point);
        }
    }
    void operator()(const SCircle&) {}
    void operator()(const SArc& arc) {
        Try(PointOnCircle(arc.centre, arc.radius, arc.start));
        Try(PointOnCircle(arc.centre, arc.radius, arc.end));
    }
    void operator()(const SText&) {}

private:
    void Try(SPoint point) {
        const double distance = std::hypot(point.x - m_place.x, point.y - m_place.y);
        if (distance > m_distance) {
            return;
        }
        m_distance = distance;
        m_point = point;
    }

    SPoint m_place;
    double m_distance;
    std::optional<SPoint> m_point;
};

}  // namespace

std::optional<SPoint> NearestEnd(const CDrawing& drawing, SPoint place, double reach) {
    CNearest nearest(place, reach);
    for (const CEntity& entity : drawing.Entities()) {
        std::visit(nearest, entity);
    }
    return nearest.Point();
}
