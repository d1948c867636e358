// Points and boxes of the drawing, in drawing units, y upwards.
#pragma once

namespace devhost {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

// An upright rectangle; `low` is its lower left corner. Width and height may be zero.
struct Box {
    Point low;
    Point high;

    double Width() const { return high.x - low.x; }
    double Height() const { return high.y - low.y; }
    Point Middle() const { return {low.x + Width() / 2, low.y + Height() / 2}; }
    bool operator==(const Box&) const = default;
};

}  // namespace devhost
