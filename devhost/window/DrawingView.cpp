#include "DrawingView.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

#include "GdiScope.h"
#include "UserError.h"
#include "WindowProc.h"

namespace {

constexpr wchar_t kClassName[] = L"DevHostDrawing";
constexpr int kCrossArm = 5;  // pixels

constexpr COLORREF kSheet = RGB(250, 250, 245);
constexpr COLORREF kCross = RGB(0, 60, 160);
constexpr COLORREF kRubberLine = RGB(120, 120, 120);

void RegisterDrawingClass() {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = WindowProc<CDrawingView>;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass);
}

void DrawLine(HDC dc, POINT from, POINT to) {
    MoveToEx(dc, from.x, from.y, nullptr);
    LineTo(dc, to.x, to.y);
}

void DrawCross(HDC dc, POINT middle) {
    DrawLine(dc, {middle.x - kCrossArm, middle.y}, {middle.x + kCrossArm + 1, middle.y});
    DrawLine(dc, {middle.x, middle.y - kCrossArm}, {middle.x, middle.y + kCrossArm + 1});
}

}  // namespace

CDrawingView::CDrawingView(HWND parent, int id) {
    RegisterDrawingClass();
    CreateWindowExW(WS_EX_CLIENTEDGE, kClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                    reinterpret_cast<HMENU>(INT_PTR(id)), GetModuleHandleW(nullptr), this);
    if (m_window == nullptr)
        throw CUserError(L"the drawing area cannot be opened");
}

CDrawingView::~CDrawingView() {
    if (m_window != nullptr)
        DestroyWindow(m_window);
}

void CDrawingView::BeginPick(std::optional<SPoint> base, std::function<void(SPoint)> onPicked) {
    m_base = base;
    m_onPicked = std::move(onPicked);
    Invalidate();
}

void CDrawingView::EndPick() {
    m_base.reset();
    m_onPicked = nullptr;
    Invalidate();
}

LRESULT CDrawingView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_MOUSEMOVE:
            OnMouseMove({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return 0;
        case WM_LBUTTONDOWN:
            OnLeftButton({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) != HTCLIENT)
                break;
            SetCursor(LoadCursorW(nullptr, m_onPicked ? IDC_CROSS : IDC_ARROW));
            return TRUE;
        case WM_ERASEBKGND:
            return TRUE;  // Paint covers everything
        case WM_PAINT:
            Paint();
            return 0;
    }
    return DefWindowProcW(m_window, message, wParam, lParam);
}

void CDrawingView::OnMouseMove(POINT pixel) {
    m_mouse = pixel;
    if (m_base)
        Invalidate();
    if (m_onMove)
        m_onMove(ToDrawing(pixel));
}

void CDrawingView::OnLeftButton(POINT pixel) {
    if (!m_onPicked)
        return;
    m_mouse = pixel;
    m_crosses.push_back(ToDrawing(pixel));
    Invalidate();
    // A copy, since the handler may end the pick.
    const auto onPicked = m_onPicked;
    onPicked(ToDrawing(pixel));
}

void CDrawingView::Paint() {
    const CBufferedPaint paint(m_window);
    const CGdiObject sheet(CreateSolidBrush(kSheet));
    FillRect(paint.Dc(), &paint.Client(), static_cast<HBRUSH>(sheet.get()));
    if (m_base && m_mouse) {
        const CGdiObject pen(CreatePen(PS_DOT, 1, kRubberLine));
        const CSelection selection(paint.Dc(), pen);
        DrawLine(paint.Dc(), ToPixel(*m_base), *m_mouse);
    }
    const CGdiObject pen(CreatePen(PS_SOLID, 1, kCross));
    const CSelection selection(paint.Dc(), pen);
    for (const SPoint& cross : m_crosses)
        DrawCross(paint.Dc(), ToPixel(cross));
}

void CDrawingView::Invalidate() {
    InvalidateRect(m_window, nullptr, FALSE);
}

int CDrawingView::Height() const {
    RECT client;
    GetClientRect(m_window, &client);
    return client.bottom;
}

SPoint CDrawingView::ToDrawing(POINT pixel) const {
    return {double(pixel.x), double(Height() - 1 - pixel.y)};
}

POINT CDrawingView::ToPixel(SPoint point) const {
    // Nothing that far away is seen, and larger numbers do not fit the system's.
    constexpr double kFar = 1e6;
    return {std::lround(std::clamp(point.x, -kFar, kFar)),
            Height() - 1 - std::lround(std::clamp(point.y, -kFar, kFar))};
}
