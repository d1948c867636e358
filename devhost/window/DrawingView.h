// The drawing area: a child window that shows a drawing and in which the user picks points.
//
// Initially one drawing unit is one pixel, with the origin in the middle of the area's lower left pixel and y
// upwards. The wheel zooms about the mouse, the middle button pans, and a double click with it fits the
// drawing into the area. A crosshair follows the mouse. Picked points are marked by small crosses until Fit
// or ClearMarks.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

#include "devhost/drawing/Drawing.h"
#include "devhost/drawing/ViewTransform.h"
#include "devhost/window/Scale.h"
#include "handles/GdiScopes.h"

namespace devhost {

class CDrawingView {
public:
    // Listens to the drawing, which must outlive the view. Throws CUserError when the window cannot be
    // created.
    CDrawingView(HWND parent, int id, CDrawing& drawing);
    ~CDrawingView();
    CDrawingView(const CDrawingView&) = delete;
    CDrawingView& operator=(const CDrawingView&) = delete;

    HWND Handle() const { return m_window; }

    // Takes the keyboard focus and shows that it has it.
    void FocusByKey();

    // Called with the mouse's position in the drawing when it changes.
    void SetMoveHandler(std::function<void(Point)> onMove) { m_onMove = std::move(onMove); }
    // The mouse's position in the drawing, or the end point that a pick has snapped to.
    Point MousePoint() const;

    // Shows the whole drawing; for an empty one resets the view.
    void Fit();
    void ClearMarks();
    // Whether a pick snaps to an end point near the mouse. Initially on.
    void SetSnap(bool snap);
    bool HasSnap() const { return m_hasSnap; }

    // Length and direction as the text beside the crosshair shows them; without it there is no text. The
    // angle is in radians.
    using MeasureText = std::function<std::wstring(double length, double angle)>;
    void SetMeasureText(MeasureText text) { m_measureText = std::move(text); }

    // Until EndPick, a click of the left button picks a point, which is marked by a cross and passed to
    // `onPicked`; a rubber band leads from `base` to the mouse, where its length and direction are shown. The
    // drawing's placement follows the mouse.
    void BeginPick(std::optional<Point> base, std::function<void(Point)> onPicked);
    void EndPick();

private:
    template <typename TWindow>
    friend LRESULT CALLBACK WindowProc(HWND, UINT, WPARAM, LPARAM) noexcept;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnSize(int width, int height);
    void OnMouseMove(POINT pixel);
    void OnMouseLeave();
    void OnLeftButton(POINT pixel);
    void OnMiddleButton(POINT pixel);
    void OnWheel(POINT screen, int delta);
    void MoveMouse(POINT pixel);
    // To be called after changes of the drawing or the view.
    void RefreshScene();
    void Invalidate();

    // DrawingViewPaint.cpp
    void Paint();
    void PaintScene(HDC dc, const RECT& client);
    void PaintRubberLine(HDC dc, const RECT& client) const;
    void PaintCrosshair(HDC dc) const;
    void PaintPlacement(HDC dc, const RECT& client) const;
    void PaintMeasure(HDC dc, const RECT& client) const;
    void PaintSnapMark(HDC dc) const;
    void PaintCrosses(HDC dc) const;
    void PaintFocus(HDC dc, const RECT& client) const;
    POINT ToPixel(Point point) const;

    CDrawing& m_drawing;
    HWND m_window = nullptr;
    CScale m_scale;
    CViewTransform m_view;
    tavrin::handles::GdiOwner m_scene;  // the painted drawing; empty when it must be repainted

    std::function<void(Point)> m_onMove;
    std::function<void(Point)> m_onPicked;  // empty: not picking
    MeasureText m_measureText;
    std::optional<Point> m_base;
    std::optional<Point> m_snapped;
    std::vector<Point> m_crosses;
    bool m_hasSnap = true;

    POINT m_mouse = {};
    bool m_isMouseInside = false;
    bool m_isPanning = false;
    bool m_showsFocus = false;
};

}  // namespace devhost
