// Points, sizes and rectangles in pixels of the grid's client area. A rectangle holds its left and top edges
// and not its right and bottom ones.
#pragma once

#include <algorithm>

namespace tavrin::propgrid {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const Rect&) const = default;

    int GetWidth() const { return right - left; }
    int GetHeight() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool Contains(Point point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
};

inline Rect Intersect(const Rect& a, const Rect& b) {
    const Rect common = {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                         std::min(a.bottom, b.bottom)};
    return common.IsEmpty() ? Rect() : common;
}

}  // namespace tavrin::propgrid
