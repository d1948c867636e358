#include "devhost/drawing/Drawing.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace devhost {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
// Estimated width of a letter as a fraction of the font size; more than the average of common fonts.
constexpr double kLetterFraction = 0.6;

bool AreNumbers(std::initializer_list<double> numbers) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::abs(number) <= kLargestNumber; });
}

bool IsDrawable(Point point) {
    return AreNumbers({point.x, point.y});
}

struct DrawableVisitor {
    bool operator()(const LineEntity& line) const { return IsDrawable(line.from) && IsDrawable(line.to); }
    bool operator()(const PolylineEntity& line) const {
        return line.points.size() >= 2 && std::all_of(line.points.begin(), line.points.end(), IsDrawable);
    }
    bool operator()(const CircleEntity& circle) const {
        return IsDrawable(circle.center) && AreNumbers({circle.radius}) && circle.radius > 0;
    }
    bool operator()(const ArcEntity& arc) const {
        return IsDrawable(arc.center) && AreNumbers({arc.radius, arc.start, arc.end}) && arc.radius > 0;
    }
    bool operator()(const TextEntity& text) const {
        return IsDrawable(text.position) && AreNumbers({text.height, text.angle}) && text.height > 0;
    }
};

// Computes the bounding box of the entities that it visits.
class CBounds {
public:
    const std::optional<Box>& Result() const { return m_box; }

    void operator()(const LineEntity& line) {
        Take(line.from);
        Take(line.to);
    }
    void operator()(const PolylineEntity& line) {
        for (const Point& point : line.points) {
            Take(point);
        }
    }
    void operator()(const CircleEntity& circle) {
        Take({circle.center.x - circle.radius, circle.center.y - circle.radius});
        Take({circle.center.x + circle.radius, circle.center.y + circle.radius});
    }
    void operator()(const ArcEntity& arc) {
        const double sweep = SweepOf(arc);
        Take(PointOnCircle(arc.center, arc.radius, arc.start));
        Take(PointOnCircle(arc.center, arc.radius, arc.start + sweep));
        // Between its ends, the extreme points of an arc are in the directions of the axes.
        constexpr double kQuarter = kTurn / 4;
        for (double angle = std::ceil(arc.start / kQuarter) * kQuarter; angle < arc.start + sweep;
             angle += kQuarter) {
            Take(PointOnCircle(arc.center, arc.radius, angle));
        }
    }
    void operator()(const TextEntity& text) {
        const double length =
            static_cast<double>(text.text.size()) * kLetterFraction / kCapitalFraction * text.height;
        const double right[] = {std::cos(text.angle), std::sin(text.angle)};
        for (const double along : {0.0, length}) {
            for (const double up : {0.0, text.height}) {
                Take({text.position.x + along * right[0] - up * right[1],
                      text.position.y + along * right[1] + up * right[0]});
            }
        }
    }

private:
    void Take(Point point) {
        if (!m_box) {
            m_box = Box{point, point};
        }
        m_box->low = {std::min(m_box->low.x, point.x), std::min(m_box->low.y, point.y)};
        m_box->high = {std::max(m_box->high.x, point.x), std::max(m_box->high.y, point.y)};
    }

    std::optional<Box> m_box;
};

}  // namespace

double SweepOf(const ArcEntity& arc) {
    const double sweep = std::fmod(arc.end - arc.start, kTurn);
    return sweep > 0 ? sweep : sweep + kTurn;
}

Point PointOnCircle(Point center, double radius, double angle) {
    return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
}

bool CDrawing::Add(Entity entity) {
    if (!std::visit(DrawableVisitor(), entity)) {
        return false;
    }
    if (m_isPlacing) {
        m_placement.push_back(std::move(entity));
        return true;
    }
    m_entities.push_back(std::move(entity));
    m_history.NoteAdded();
    NotifyListener();
    return true;
}

void CDrawing::Clear() {
    if (m_isPlacing || m_entities.empty()) {
        return;
    }
    m_history.NoteCleared(std::exchange(m_entities, {}));
    NotifyListener();
}

void CDrawing::RevertCommand() {
    m_history.RevertCommand(m_entities);
    NotifyListener();
}

void CDrawing::Undo() {
    m_history.Undo(m_entities);
    NotifyListener();
}

void CDrawing::Redo() {
    m_history.Redo(m_entities);
    NotifyListener();
}

void CDrawing::BeginPlacement() {
    m_placement.clear();
    m_isPlacing = true;
}

std::optional<Box> CDrawing::Extents() const {
    CBounds bounds;
    for (const Entity& entity : m_entities) {
        std::visit(bounds, entity);
    }
    return bounds.Result();
}

void CDrawing::NotifyListener() const {
    if (m_onChanged) {
        m_onChanged();
    }
}

}  // namespace devhost
