// What has been drawn: lines, polylines, circles, arcs and texts, in the order in which they came.
//
// Lengths and places are in drawing units with y upwards, angles in radians, counter-clockwise from the
// x axis. Owns the entities. Knows nothing of windows; who shows a drawing listens to its changes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "devhost/drawing/Point.h"

struct SLine {
    SPoint from;
    SPoint to;
};

struct SPolyline {
    std::vector<SPoint> points;  // two at least
    bool closed = false;         // a line leads from the last point to the first
};

struct SCircle {
    SPoint centre;
    double radius = 0;  // above zero
};

// The part of a circle from angle `start` counter-clockwise to angle `end`; the whole circle when both are
// the same direction.
struct SArc {
    SPoint centre;
    double radius = 0;  // above zero
    double start = 0;
    double end = 0;
};

// One line of text. `place` is the left end of its base line, `height` that of a capital letter.
struct SText {
    SPoint place;
    double height = 0;  // above zero
    double angle = 0;   // of the base line
    std::wstring text;
};

using CEntity = std::variant<SLine, SPolyline, SCircle, SArc, SText>;

// How far the arc turns: above zero, at most a full turn.
double SweepOf(const SArc& arc);
// The point of a circle that lies in the direction `angle`.
SPoint PointOnCircle(SPoint centre, double radius, double angle);

// A capital letter's height as a part of the font's size: with it texts come out as high as they say,
// whoever shows them.
inline constexpr double kCapitalPart = 0.72;

// Larger numbers than this, either way, are not drawn: arithmetic on them would lose the drawing's details.
inline constexpr double kLargestNumber = 1e12;

class CDrawing {
public:
    // Adds an entity behind the others. False, with nothing added, when it could not be shown: a number
    // is none or beyond kLargestNumber, or a radius, a height or the count of points is below what its
    // type says.
    bool Add(CEntity entity);
    void Clear();

    const std::vector<CEntity>& Entities() const { return m_entities; }

    // The smallest box around everything; nothing when nothing has been drawn. Of a text the font's own
    // widths are not known here: its length is an estimate that is rather too long.
    std::optional<SBox> Extents() const;

    // Called after each change; an empty function ends it.
    void SetListener(std::function<void()> onChanged) { m_onChanged = std::move(onChanged); }

private:
    void TellChange() const;

    std::vector<CEntity> m_entities;
    std::function<void()> m_onChanged;
};
