#include "devhost/drawing/Outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

struct SOutline {
    double tolerance;

    std::vector<SPoint> operator()(const SLine& line) const { return {line.from, line.to}; }
    std::vector<SPoint> operator()(const SPolyline& line) const {
        std::vector<SPoint> points = line.points;
        if (line.closed) {
            points.push_back(points.front());
        }
        return points;
    }
    std::vector<SPoint> operator()(const SCircle& circle) const {
        std::vector<SPoint> points = (*this)(SArc{circle.centre, circle.radius, 0, 0});
        points.back() = points.front();
        return points;
    }
    std::vector<SPoint> operator()(const SArc& arc) const {
        constexpr double kMostChords = 5000;
        const double sweep = SweepOf(arc);
        // The middle of a chord over the angle a lies radius * (1 - cos(a / 2)) inside the curve.
        const double part = std::min(tolerance / arc.radius, 0.5);
        const double angle = 2 * std::acos(1 - part);
        const int chords = int(std::min(std::ceil(sweep / angle), kMostChords));
        std::vector<SPoint> points;
        for (int i = 0; i <= chords; ++i) {
            points.push_back(PointOnCircle(arc.centre, arc.radius, arc.start + sweep * i / chords));
        }
        return points;
    }
    std::vector<SPoint> operator()(const SText&) const { return {}; }
};

}  // namespace

std::vector<SPoint> OutlineOf(const CEntity& entity, double tolerance) {
    return std::visit(SOutline{tolerance}, entity);
}

std::optional<SLine> Clip(const SLine& line, const SBox& box) {
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    // The line is from + t * (dx, dy); each side of the box leaves a part of the t between 0 and 1.
    double enter = 0;
    double leave = 1;
    const auto keep = [&](double step, double room) {
        if (step == 0) {
            return room >= 0;
        }
        const double t = room / step;
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
    const auto at = [&](double t) { return SPoint{line.from.x + t * dx, line.from.y + t * dy}; };
    return SLine{enter > 0 ? at(enter) : line.from, leave < 1 ? at(leave) : line.to};
}
