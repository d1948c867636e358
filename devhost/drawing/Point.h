// Points and boxes of the drawing, in drawing units, y upwards.
#pragma once

struct SPoint {
    double x = 0;
    double y = 0;

    bool operator==(const SPoint&) const = default;
};

// An upright rectangle; `low` is its lower left corner. It may have no width or no height.
struct SBox {
    SPoint low;
    SPoint high;

    double Width() const { return high.x - low.x; }
    double Height() const { return high.y - low.y; }
    SPoint Middle() const { return {low.x + Width() / 2, low.y + Height() / 2}; }
    bool operator==(const SBox&) const = default;
};
