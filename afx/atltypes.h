// Points, sizes and rectangles, in whatever unit their user means: mostly pixels.
#pragma once

#include "afx/AfxBase.h"

class CSize : public tagSIZE {
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) : tagSIZE{initCX, initCY} {}
    CSize(SIZE size) : tagSIZE(size) {}

    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
};

class CPoint : public tagPOINT {
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) : tagPOINT{initX, initY} {}
    CPoint(POINT point) : tagPOINT(point) {}
    // From a message's parameter: two signed 16-bit numbers.
    explicit CPoint(LPARAM point)
        : tagPOINT{static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))} {}

    CPoint operator+(POINT by) const { return CPoint(x + by.x, y + by.y); }
    CPoint operator+(SIZE by) const { return CPoint(x + by.cx, y + by.cy); }
    CPoint operator-(SIZE by) const { return CPoint(x - by.cx, y - by.cy); }
    CSize operator-(POINT from) const { return CSize(x - from.x, y - from.y); }
    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
};

// right and bottom lie just outside. Width, height and intersections want left <= right, top <= bottom.
class CRect : public tagRECT {
public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(LPCRECT rect) : tagRECT(*rect) {}
    CRect(POINT point, SIZE size) : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    // The corner itself: a point is laid out as the beginning of a rectangle.
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(this); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(this); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRectEmpty() { *this = CRect(); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
    void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
    void DeflateRect(int l, int t, int r, int b) { *this = CRect(left + l, top + t, right - r, bottom - b); }
    void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
    void OffsetRect(POINT by) { OffsetRect(by.x, by.y); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }

    // FALSE, and an empty rectangle, when the result is empty.
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }

    BOOL operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const { return !::EqualRect(this, &rect); }
    CRect operator+(POINT by) const { return CRect(left + by.x, top + by.y, right + by.x, bottom + by.y); }
    CRect operator&(const RECT& rect) const;
};

inline CRect CRect::operator&(const RECT& rect) const {
    CRect common;
    common.IntersectRect(this, &rect);
    return common;
}
