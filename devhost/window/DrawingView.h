// The drawing area: a sheet that shows a drawing, and on which the user shows points. A child window.
//
// At first drawing units map to pixels one to one, with the origin in the middle of the area's lower left
// pixel and y upwards. The wheel zooms about the mouse, the middle button pans, pressed twice it fits the
// drawing into the area. A crosshair follows the mouse. Points that were picked stay marked by small crosses
// until Fit or ClearMarks.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

#include "devhost/drawing/Drawing.h"
#include "devhost/drawing/ViewTransform.h"
#include "devhost/window/GdiScope.h"
#include "devhost/window/Scale.h"

class CDrawingView {
public:
    // Listens to the drawing, which must outlive the view. Throws CUserError when there can be no window.
    CDrawingView(HWND parent, int id, CDrawing& drawing);
    ~CDrawingView();
    CDrawingView(const CDrawingView&) = delete;
    CDrawingView& operator=(const CDrawingView&) = delete;

    HWND Handle() const { return m_window; }

    // Called with the mouse's place in the drawing when that changes.
    void SetMoveHandler(std::function<void(SPoint)> onMove) { m_onMove = std::move(onMove); }
    // The mouse's place in the drawing; while picking that of the end point that it has snapped to.
    SPoint MousePoint() const;

    // Shows the whole drawing; an empty one from the origin as at first.
    void Fit();
    void ClearMarks();
    // Whether a pick jumps to an end point near the mouse. At first it does.
    void SetSnap(bool snap);
    bool HasSnap() const { return m_hasSnap; }

    // From here on a click of the left button picks a point, marked by a cross and told to `onPicked`; a
    // line follows the mouse from `base`. The view goes on until EndPick.
    void BeginPick(std::optional<SPoint> base, std::function<void(SPoint)> onPicked);
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
    // The view shows another part of the drawing, or the drawing has changed.
    void RefreshScene();
    void Invalidate();

    // DrawingViewPaint.cpp
    void Paint();
    void PaintScene(HDC dc, const RECT& client);
    void PaintRubberLine(HDC dc, const RECT& client) const;
    void PaintCrosshair(HDC dc) const;
    void PaintSnapMark(HDC dc) const;
    void PaintCrosses(HDC dc) const;
    POINT ToPixel(SPoint point) const;

    CDrawing& m_drawing;
    HWND m_window = nullptr;
    CScale m_scale;
    CViewTransform m_view;
    CGdiObject m_scene;  // the picture of the drawing alone; empty when it has to be painted anew

    std::function<void(SPoint)> m_onMove;
    std::function<void(SPoint)> m_onPicked;  // empty: no pick is going on
    std::optional<SPoint> m_base;
    std::optional<SPoint> m_snapped;
    std::vector<SPoint> m_crosses;
    bool m_hasSnap = true;

    POINT m_mouse = {};
    bool m_isMouseInside = false;
    bool m_isPanning = false;
};
