#include "devhost/window/DrawingView.h"

#include <windowsx.h>

#include <cmath>

#include "devhost/UserError.h"
#include "devhost/drawing/Snap.h"
#include "devhost/window/WindowProc.h"

namespace devhost {

namespace {

constexpr wchar_t kClassName[] = L"DevHostDrawing";
constexpr int kFitMargin = 30;        // pixels
constexpr int kSnapReach = 10;        // pixels
constexpr double kZoomOfNotch = 1.2;  // of the wheel

void RegisterDrawingClass() {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = WindowProc<CDrawingView>;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass);
}

Point AsPoint(POINT pixel) {
    return {static_cast<double>(pixel.x), static_cast<double>(pixel.y)};
}

POINT PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

CDrawingView::CDrawingView(HWND parent, int id, CDrawing& drawing) : m_drawing(drawing) {
    RegisterDrawingClass();
    CreateWindowExW(0, kClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                    reinterpret_cast<HMENU>(INT_PTR(id)), GetModuleHandleW(nullptr), this);
    if (m_window == nullptr) {
        throw CUserError(L"the drawing area cannot be opened");
    }
    m_drawing.SetListener([this] { RefreshScene(); });
}

CDrawingView::~CDrawingView() {
    m_drawing.SetListener(nullptr);
    if (m_window != nullptr) {
        DestroyWindow(m_window);
    }
}

Point CDrawingView::MousePoint() const {
    return m_snapped ? *m_snapped : m_view.ToDrawing(AsPoint(m_mouse));
}

void CDrawingView::Fit() {
    m_crosses.clear();
    if (const auto extents = m_drawing.Extents()) {
        m_view.Fit(*extents, m_scale(kFitMargin));
    } else {
        m_view = CViewTransform();
        RECT client;
        GetClientRect(m_window, &client);
        m_view.Resize(client.right, client.bottom);
    }
    RefreshScene();
}

void CDrawingView::ClearMarks() {
    m_crosses.clear();
    Invalidate();
}

void CDrawingView::SetSnap(bool snap) {
    m_hasSnap = snap;
    MoveMouse(m_mouse);
}

void CDrawingView::BeginPick(std::optional<Point> base, std::function<void(Point)> onPicked) {
    m_base = base;
    m_onPicked = std::move(onPicked);
    MoveMouse(m_mouse);
}

void CDrawingView::EndPick() {
    m_base.reset();
    m_onPicked = nullptr;
    MoveMouse(m_mouse);
}

void CDrawingView::FocusByKey() {
    SetFocus(m_window);
    m_showsFocus = true;
    Invalidate();
}

LRESULT CDrawingView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            OnSize(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            return 0;
        case WM_MOUSEMOVE:
            OnMouseMove(PointOf(lParam));
            return 0;
        case WM_MOUSELEAVE:
            OnMouseLeave();
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:  // two quick clicks pick two points
            OnLeftButton(PointOf(lParam));
            return 0;
        case WM_MBUTTONDOWN:
            OnMiddleButton(PointOf(lParam));
            return 0;
        case WM_MBUTTONDBLCLK:
            Fit();
            return 0;
        case WM_MBUTTONUP:
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            m_isPanning = false;
            return 0;
        case WM_MOUSEWHEEL:
            OnWheel(PointOf(lParam), GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        case WM_KILLFOCUS:
            m_showsFocus = false;
            Invalidate();
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) != HTCLIENT) {
                break;
            }
            // Otherwise the crosshair is the cursor.
            SetCursor(m_isPanning ? LoadCursorW(nullptr, IDC_SIZEALL) : nullptr);
            return TRUE;
        case WM_ERASEBKGND:
            return TRUE;  // Paint covers everything
        case WM_PAINT:
            Paint();
            return 0;
    }
    return DefWindowProcW(m_window, message, wParam, lParam);
}

void CDrawingView::OnSize(int width, int height) {
    m_view.Resize(width, height);
    RefreshScene();
}

void CDrawingView::OnMouseMove(POINT pixel) {
    if (!m_isMouseInside) {
        TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, m_window, 0};
        TrackMouseEvent(&leave);
        m_isMouseInside = true;
    }
    if (m_isPanning) {
        m_view.PanBy(pixel.x - m_mouse.x, pixel.y - m_mouse.y);
        m_scene.reset();
    }
    MoveMouse(pixel);
}

void CDrawingView::OnMouseLeave() {
    m_isMouseInside = false;
    Invalidate();
}

void CDrawingView::OnLeftButton(POINT pixel) {
    if (!m_onPicked) {
        return;
    }
    MoveMouse(pixel);
    const Point point = MousePoint();
    m_crosses.push_back(point);
    // A copy, since the handler may end the pick.
    const auto onPicked = m_onPicked;
    onPicked(point);
}

void CDrawingView::OnMiddleButton(POINT pixel) {
    SetCapture(m_window);
    m_mouse = pixel;
    m_isPanning = true;
    SetCursor(LoadCursorW(nullptr, IDC_SIZEALL));
}

void CDrawingView::OnWheel(POINT screen, int delta) {
    ScreenToClient(m_window, &screen);
    m_view.ZoomAbout(AsPoint(screen), std::pow(kZoomOfNotch, static_cast<double>(delta) / WHEEL_DELTA));
    RefreshScene();
}

void CDrawingView::MoveMouse(POINT pixel) {
    m_mouse = pixel;
    m_snapped.reset();
    if (m_hasSnap && m_onPicked) {
        m_snapped = NearestEnd(m_drawing, m_view.ToDrawing(AsPoint(pixel)),
                               m_scale(kSnapReach) * m_view.UnitsPerPixel());
    }
    Invalidate();
    if (m_onMove) {
        m_onMove(MousePoint());
    }
}

void CDrawingView::RefreshScene() {
    m_scene.reset();
    MoveMouse(m_mouse);
}

void CDrawingView::Invalidate() {
    // The drawing may change after the window was closed, and InvalidateRect(nullptr) invalidates all
    // windows.
    if (m_window != nullptr) {
        InvalidateRect(m_window, nullptr, FALSE);
    }
}

}  // namespace devhost
