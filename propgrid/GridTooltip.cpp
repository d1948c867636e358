#include "propgrid/GridTooltip.h"

#include <commctrl.h>

#include <algorithm>

#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

namespace {

// A longer text would fill the screen; the control itself may cut off what is longer than INFOTIPSIZE.
constexpr std::size_t kLongestTooltip = INFOTIPSIZE - 1;

CPoint PointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

// The one tool of the tooltip: the grid's window. It is shown and placed by the grid.
TOOLINFO DescribeTool(CWnd& grid, wchar_t* text) {
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;  // the older controls refuse a larger one
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_IDISHWND | TTF_TRANSPARENT;
    tool.hwnd = grid.m_hWnd;
    tool.uId = reinterpret_cast<UINT_PTR>(grid.m_hWnd);
    tool.lpszText = text;
    return tool;
}

}  // namespace

void CGridTooltip::Watch(UINT message, LPARAM lParam, bool editing) {
    switch (message) {
        case WM_MOUSEMOVE:
            Follow(PointOf(lParam));
            break;
        case WM_MOUSEHOVER:
            if (!editing && ::GetCapture() == nullptr) {
                ShowAt(PointOf(lParam));
            }
            break;
        case WM_SETFOCUS:
            EndWait();
            ::GetCursorPos(&m_mouse);
            m_grid.ScreenToClient(&m_mouse);
            break;
        case WM_MOUSELEAVE:
        case WM_LBUTTONDOWN:
        case WM_MOUSEWHEEL:
        case WM_VSCROLL:
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_CHAR:
        case WM_KILLFOCUS:
        case WM_SIZE:
        case WM_MOVE:
        case WM_SHOWWINDOW:
        case WM_ENABLE:
            EndWait();
            Hide();
            break;
        case WM_DESTROY:
            m_cell.SetRectEmpty();
            m_window.DestroyWindow();
            break;
        default:
            break;
    }
}

// Every move asks for the hover anew, which begins when the mouse rests. The system reports a move of a mouse
// that rests when an editor below it closes: a tooltip would cover the value that was just entered.
void CGridTooltip::Follow(CPoint mouse) {
    if (mouse == m_mouse) {
        return;
    }
    m_mouse = mouse;
    if (m_cell.PtInRect(mouse)) {
        return;
    }
    Hide();
    TRACKMOUSEEVENT hover = {sizeof(hover), TME_HOVER | TME_LEAVE, m_grid.m_hWnd, HOVER_DEFAULT};
    ::TrackMouseEvent(&hover);
}

// The user who acts does not wait for a tooltip. A value may be clicked, typed and entered within the hover
// time: a hover that was asked for before would cover it.
void CGridTooltip::EndWait() {
    TRACKMOUSEEVENT hover = {sizeof(hover), TME_CANCEL | TME_HOVER, m_grid.m_hWnd, 0};
    ::TrackMouseEvent(&hover);
}

void CGridTooltip::Hide() {
    if (m_cell.IsRectEmpty()) {
        return;
    }
    m_cell.SetRectEmpty();
    TOOLINFO tool = DescribeTool(m_grid, nullptr);
    m_window.SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
}

void CGridTooltip::ShowAt(CPoint mouse) {
    Hide();
    const CellText text = FindText(ToPoint(mouse));
    CClientDC dc(&m_grid);
    if (text.text.empty() || text.area.IsEmpty() || FitsItsArea(text, dc) || !Create()) {
        return;
    }
    m_shown = text.text.substr(0, kLongestTooltip);
    Place(text);
    m_cell = ToCRect(text.area);
}

CellText CGridTooltip::FindText(Point point) const {
    const GridItem* const item = m_layout.FindItemAt(point);
    if (item == nullptr) {
        return {};
    }
    const Rect name = m_layout.GetNameRect(*item);
    if (name.Contains(point)) {
        return m_texts.GetName(*item, name);
    }
    const Rect value = m_layout.GetValueRect(*item);
    const CClientDC dc(&m_grid);
    return value.Contains(point) ? m_texts.GetValue(*item, value, dc.GetDeviceCaps(LOGPIXELSY)) : CellText();
}

bool CGridTooltip::Create() {
    if (m_window.GetSafeHwnd() != nullptr) {
        return true;
    }
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    if (!m_window.CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                           CRect(0, 0, 0, 0), &m_grid, 0)) {
        return false;
    }
    wchar_t none[] = L"";
    TOOLINFO tool = DescribeTool(m_grid, none);
    m_window.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    return true;
}

// The text of the tooltip stands where the cell's begins, further left where the monitor ends. Lines that are
// wider than half of the screen are wrapped.
void CGridTooltip::Place(const CellText& text) {
    m_window.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(text.font->GetSafeHandle()), FALSE);
    m_window.SendMessage(TTM_SETMAXTIPWIDTH, 0, ::GetSystemMetrics(SM_CXSCREEN) / 2);
    TOOLINFO tool = DescribeTool(m_grid, m_shown.data());
    m_window.SendMessage(TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&tool));
    CRect over = ToCRect(text.area);
    m_grid.ClientToScreen(&over);
    m_window.SendMessage(TTM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&over));
    m_window.SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(over.left, over.top));
    m_window.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromWindow(m_grid.m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    CRect size;
    m_window.GetWindowRect(&size);
    const LONG left = std::max(monitor.rcWork.left, std::min(over.left, monitor.rcWork.right - size.Width()));
    m_window.SetWindowPos(nullptr, left, over.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tavrin::propgrid
