// Painting of the drawing area: the cached drawing, and over it the marks that move with the mouse.
#include <algorithm>
#include <cmath>

#include "devhost/drawing/Outline.h"
#include "devhost/window/DrawingView.h"
#include "devhost/window/ScenePaint.h"

namespace devhost {

namespace handles = tavrin::handles;

namespace {

// Pixels.
constexpr int kCrossArm = 5;
constexpr int kCrosshairArm = 18;
constexpr int kSnapArm = 6;
constexpr int kMeasureGap = 12;

constexpr COLORREF kCross = RGB(0, 60, 160);  // and the frame of the focus
constexpr COLORREF kCrosshair = RGB(40, 40, 40);
constexpr COLORREF kIdleCrosshair = RGB(150, 150, 150);
constexpr COLORREF kRubberLine = RGB(120, 120, 120);
constexpr COLORREF kSnapMark = RGB(214, 112, 0);

POINT Rounded(Point pixel) {
    return {static_cast<LONG>(std::lround(pixel.x)), static_cast<LONG>(std::lround(pixel.y))};
}

void DrawLine(HDC dc, POINT from, POINT to) {
    MoveToEx(dc, from.x, from.y, nullptr);
    LineTo(dc, to.x, to.y);
}

void DrawCross(HDC dc, POINT middle, int arm) {
    DrawLine(dc, {middle.x - arm, middle.y}, {middle.x + arm + 1, middle.y});
    DrawLine(dc, {middle.x, middle.y - arm}, {middle.x, middle.y + arm + 1});
}

}  // namespace

void CDrawingView::Paint() {
    const handles::CBufferedPaint paint(m_window);
    PaintScene(paint.Dc(), paint.Client());
    PaintPlacement(paint.Dc(), paint.Client());
    PaintRubberLine(paint.Dc(), paint.Client());
    PaintCrosshair(paint.Dc());
    PaintSnapMark(paint.Dc());
    PaintCrosses(paint.Dc());
    PaintMeasure(paint.Dc(), paint.Client());
    PaintFocus(paint.Dc(), paint.Client());
}

void CDrawingView::PaintScene(HDC dc, const RECT& client) {
    const bool isNew = m_scene == nullptr;
    if (isNew) {
        m_scene.reset(CreateCompatibleBitmap(dc, client.right, client.bottom));
    }
    const handles::CBitmapDc scene(dc, m_scene.get());
    if (isNew) {
        devhost::PaintScene(scene.Get(), client, m_drawing, m_view);
    }
    BitBlt(dc, 0, 0, client.right, client.bottom, scene.Get(), 0, 0, SRCCOPY);
}

void CDrawingView::PaintRubberLine(HDC dc, const RECT& client) const {
    if (!m_base) {
        return;
    }
    const auto line = Clip({m_view.ToPixel(*m_base), m_view.ToPixel(MousePoint())},
                           {{0, 0}, {static_cast<double>(client.right), static_cast<double>(client.bottom)}});
    if (!line) {
        return;
    }
    const handles::GdiOwner pen(CreatePen(PS_DOT, 1, kRubberLine));
    const handles::CSelectedObject selection(dc, pen);
    SetBkMode(dc, TRANSPARENT);
    DrawLine(dc, Rounded(line->from), Rounded(line->to));
}

void CDrawingView::PaintPlacement(HDC dc, const RECT& client) const {
    if (!m_onPicked || !m_isMouseInside || m_drawing.Placement().empty()) {
        return;
    }
    const Point origin = m_view.ToPixel({0, 0});
    const Point mouse = m_view.ToPixel(MousePoint());
    CViewTransform moved = m_view;
    moved.PanBy(mouse.x - origin.x, mouse.y - origin.y);
    devhost::PaintPlacement(dc, client, m_drawing.Placement(), moved);
}

// Below the mouse to the right, or where there is room.
void CDrawingView::PaintMeasure(HDC dc, const RECT& client) const {
    if (!m_base || !m_isMouseInside || !m_measureText) {
        return;
    }
    const Point to = MousePoint();
    const double dx = to.x - m_base->x;
    const double dy = to.y - m_base->y;
    const std::wstring text = L' ' + m_measureText(std::hypot(dx, dy), std::atan2(dy, dx)) + L' ';
    const handles::CSelectedObject selection(dc, GetStockObject(DEFAULT_GUI_FONT));
    SIZE size;
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    const int gap = m_scale(kMeasureGap);
    const LONG left = m_mouse.x + gap + size.cx < client.right ? m_mouse.x + gap : m_mouse.x - gap - size.cx;
    const LONG top = m_mouse.y + gap + size.cy < client.bottom ? m_mouse.y + gap : m_mouse.y - gap - size.cy;
    SetBkMode(dc, OPAQUE);
    SetBkColor(dc, GetSysColor(COLOR_INFOBK));
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    SetTextAlign(dc, TA_LEFT | TA_TOP);
    TextOutW(dc, left, top, text.c_str(), static_cast<int>(text.size()));
}

void CDrawingView::PaintCrosshair(HDC dc) const {
    if (!m_isMouseInside || m_isPanning) {
        return;
    }
    const handles::GdiOwner pen(CreatePen(PS_SOLID, m_scale(1), m_onPicked ? kCrosshair : kIdleCrosshair));
    const handles::CSelectedObject selection(dc, pen);
    DrawCross(dc, m_mouse, m_scale(kCrosshairArm));
}

void CDrawingView::PaintSnapMark(HDC dc) const {
    if (!m_snapped) {
        return;
    }
    const handles::GdiOwner pen(CreatePen(PS_SOLID, m_scale(2), kSnapMark));
    const handles::CSelectedObject penSelection(dc, pen);
    const handles::CSelectedObject brushSelection(dc, GetStockObject(NULL_BRUSH));
    const POINT middle = ToPixel(*m_snapped);
    const int arm = m_scale(kSnapArm);
    Rectangle(dc, middle.x - arm, middle.y - arm, middle.x + arm + 1, middle.y + arm + 1);
}

void CDrawingView::PaintCrosses(HDC dc) const {
    const handles::GdiOwner pen(CreatePen(PS_SOLID, m_scale(1), kCross));
    const handles::CSelectedObject selection(dc, pen);
    for (const Point& cross : m_crosses) {
        DrawCross(dc, ToPixel(cross), m_scale(kCrossArm));
    }
}

void CDrawingView::PaintFocus(HDC dc, const RECT& client) const {
    if (!m_showsFocus) {
        return;
    }
    const handles::GdiOwner brush(CreateSolidBrush(kCross));
    RECT frame = client;
    for (int line = 0; line < m_scale(2); ++line) {
        FrameRect(dc, &frame, static_cast<HBRUSH>(brush.get()));
        InflateRect(&frame, -1, -1);
    }
}

POINT CDrawingView::ToPixel(Point point) const {
    // Clamped: points this far away are invisible, and larger coordinates overflow in GDI.
    constexpr double kFar = 1e6;
    const Point pixel = m_view.ToPixel(point);
    return Rounded({std::clamp(pixel.x, -kFar, kFar), std::clamp(pixel.y, -kFar, kFar)});
}

}  // namespace devhost
