#include "devhost/drawing/Outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace devhost {

namespace {

struct OutlineVisitor {
    double tolerance;

    std::vector<Point> operator()(const LineEntity& line) const { return {line.from, line.to}; }
    std::vector<Point> operator()(const PolylineEntity& line) const {
        std::vector<Point> points = line.points;
        if (line.closed) {
            points.push_back(points.front());
        }
        return points;
    }
    std::vector<Point> operator()(const CircleEntity& circle) const {
        std::vector<Point> points = (*this)(ArcEntity{circle.center, circle.radius, 0, 0});
        points.back() = points.front();
        return points;
    }
    std::vector<Point> operator()(const ArcEntity& arc) const {
        constexpr double kMostChords = 5000;
        const double sweep = SweepOf(arc);
        // The middle of a chord over the angle a lies radius * (1 - cos(a / 2)) inside the curve.
        const double part = std::min(tolerance / arc.radius, 0.5);
        const double angle = 2 * std::acos(1 - part);
        const auto chords = static_cast<int>(std::min(std::ceil(sweep / angle), kMostChords));
        std::vector<Point> points;
        for (int i = 0; i <= chords; ++i) {
            points.push_back(PointOnCircle(arc.center, arc.radius, arc.start + sweep * i / chords));
        }
        return points;
    }
    std::vector<Point> operator()(const TextEntity&) const { return {}; }
};

}  // namespace

std::vector<Point> OutlineOf(const Entity& entity, double tolerance) {
    return std::visit(OutlineVisitor{tolerance}, entity);
}

std::optional<LineEntity> Clip(const LineEntity& line, const Box& box) {
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    // The line is from + t * (dx, dy); each side of the box leaves a part of the t between 0 and 1.
    double enter = 0;
    double leave = 1;
    const auto keep = [&](double step, double distance) {
        if (step == 0) {
            return distance >= 0;
        }
        const double t = distance / step;
        if (step > 0) {
            leave = std::min(leave, t);
        } else {
            enter = std::max(enter, t);
        }
        return enter <= leave;
    };
    if (!keep(dx, box.high.x - line.from.x) || !keep(-dx, line.from.x - box.low.x) ||
        !keep(dy, box.high.y - line.from.y) || !keep(-dy, line.from.y - box.low.y)) {
        return std::nullopt;
    }
    // An end that lies inside is kept as it is, without rounding.
    const auto at = [&](double t) { return Point{line.from.x + t * dx, line.from.y + t * dy}; };
    return LineEntity{enter > 0 ? at(enter) : line.from, leave < 1 ? at(leave) : line.to};
}

}  // namespace devhost
