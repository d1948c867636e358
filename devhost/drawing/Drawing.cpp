#include "devhost/drawing/Drawing.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
// Of the font's size: wider than the mean letter of the common fonts.
constexpr double kLetterPart = 0.6;

bool AreNumbers(std::initializer_list<double> numbers) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::abs(number) <= kLargestNumber; });
}

bool IsPlace(SPoint point) {
    return AreNumbers({point.x, point.y});
}

struct SCheck {
    bool operator()(const SLine& line) const { return IsPlace(line.from) && IsPlace(line.to); }
    bool operator()(const SPolyline& line) const {
        return line.points.size() >= 2 && std::all_of(line.points.begin(), line.points.end(), IsPlace);
    }
    bool operator()(const SCircle& circle) const {
        return IsPlace(circle.centre) && AreNumbers({circle.radius}) && circle.radius > 0;
    }
    bool operator()(const SArc& arc) const {
        return IsPlace(arc.centre) && AreNumbers({arc.radius, arc.start, arc.end}) && arc.radius > 0;
    }
    bool operator()(const SText& text) const {
        return IsPlace(text.place) && AreNumbers({text.height, text.angle}) && text.height > 0;
    }
};

// Grows a box over the entities that it visits.
class CBounds {
public:
    const std::optional<SBox>& Box() const { return m_box; }

    void operator()(const SLine& line) {
        Take(line.from);
        Take(line.to);
    }
    void operator()(const SPolyline& line) {
        for (const SPoint& point : line.points) {
            Take(point);
        }
    }
    void operator()(const SCircle& circle) {
        Take({circle.centre.x - circle.radius, circle.centre.y - circle.radius});
        Take({circle.centre.x + circle.radius, circle.centre.y + circle.radius});
    }
    void operator()(const SArc& arc) {
        const double sweep = SweepOf(arc);
        Take(PointOnCircle(arc.centre, arc.radius, arc.start));
        Take(PointOnCircle(arc.centre, arc.radius, arc.start + sweep));
        // Between its ends an arc reaches farthest where it crosses a direction of the axes.
        constexpr double kQuarter = kTurn / 4;
        for (double angle = std::ceil(arc.start / kQuarter) * kQuarter; angle < arc.start + sweep;
             angle += kQuarter) {
            Take(PointOnCircle(arc.centre, arc.radius, angle));
        }
    }
    void operator()(const SText& text) {
        const double length = double(text.text.size()) * kLetterPart / kCapitalPart * text.height;
        const double right[] = {std::cos(text.angle), std::sin(text.angle)};
        for (const double along : {0.0, length}) {
            for (const double up : {0.0, text.height}) {
                Take({text.place.x + along * right[0] - up * right[1],
                      text.place.y + along * right[1] + up * right[0]});
            }
        }
    }

private:
    void Take(SPoint point) {
        if (!m_box) {
            m_box = SBox{point, point};
        }
        m_box->low = {std::min(m_box->low.x, point.x), std::min(m_box->low.y, point.y)};
        m_box->high = {std::max(m_box->high.x, point.x), std::max(m_box->high.y, point.y)};
    }

    std::optional<SBox> m_box;
};

}  // namespace

double SweepOf(const SArc& arc) {
    const double sweep = std::fmod(arc.end - arc.start, kTurn);
    return sweep > 0 ? sweep : sweep + kTurn;
}

SPoint PointOnCircle(SPoint centre, double radius, double angle) {
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

bool CDrawing::Add(CEntity entity) {
    if (!std::visit(SCheck(), entity)) {
        return false;
    }
    m_entities.push_back(std::move(entity));
    TellChange();
    return true;
}

void CDrawing::Clear() {
    m_entities.clear();
    TellChange();
}

std::optional<SBox> CDrawing::Extents() const {
    CBounds bounds;
    for (const CEntity& entity : m_entities) {
        std::visit(bounds, entity);
    }
    return bounds.Box();
}

void CDrawing::TellChange() const {
    if (m_onChanged) {
        m_onChanged();
    }
}
