// The drawing area: a light, empty sheet on which the user shows points. A child window.
//
// Drawing units map to pixels one to one, with the origin in the middle of the area's lower left pixel and
// y upwards. Points that were picked stay as small crosses.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

#include "Point.h"

class CDrawingView {
public:
    // Throws CUserError when there can be no window.
    CDrawingView(HWND parent, int id);
    ~CDrawingView();
    CDrawingView(const CDrawingView&) = delete;
    CDrawingView& operator=(const CDrawingView&) = delete;

    HWND Handle() const { return m_window; }

    // Called for each move of the mouse over the area.
    void SetMoveHandler(std::function<void(SPoint)> onMove) { m_onMove = std::move(onMove); }

    // From here on a click of the left button picks a point, marked by a cross and told to `onPicked`; a
    // line follows the mouse from `base`. The view goes on until EndPick.
    void BeginPick(std::optional<SPoint> base, std::function<void(SPoint)> onPicked);
    void EndPick();

private:
    template <typename TWindow>
    friend LRESULT CALLBACK WindowProc(HWND, UINT, WPARAM, LPARAM) noexcept;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnMouseMove(POINT pixel);
    void OnLeftButton(POINT pixel);
    void Paint();
    void Invalidate();
    int Height() const;
    SPoint ToDrawing(POINT pixel) const;
    POINT ToPixel(SPoint point) const;

    HWND m_window = nullptr;
    std::function<void(SPoint)> m_onMove;
    std::function<void(SPoint)> m_onPicked;  // empty: no pick is going on
    std::optional<SPoint> m_base;
    std::optional<POINT> m_mouse;
    std::vector<SPoint> m_crosses;
};
