// CWnd: its window's life, and what is asked of it.
#include <algorithm>

#include "afx/AfxHandleMap.h"
#include "afx/AfxWindowHook.h"
#include "afx/afxwin.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace {

using CWndMap = CAfxHandleMap<CWnd, HWND, &CWnd::m_hWnd>;

// One of the special values of SetWindowPos's parameter hWndInsertAfter.
class CInsertAfter : public CWnd {
public:
    explicit CInsertAfter(HWND insertAfter) { m_hWnd = insertAfter; }
    ~CInsertAfter() override { m_hWnd = nullptr; }
};

const CInsertAfter top(HWND_TOP), bottom(HWND_BOTTOM), topMost(HWND_TOPMOST), noTopMost(HWND_NOTOPMOST);

// Moves the rectangle into the other one, to its left and top edges where it is too large.
void MoveInside(CRect& rect, const CRect& area) {
    const int x = std::max<int>(area.left, std::min<int>(rect.left, area.right - rect.Width()));
    const int y = std::max<int>(area.top, std::min<int>(rect.top, area.bottom - rect.Height()));
    rect.MoveToXY(x, y);
}

CRect GetWorkArea(HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

}  // namespace

const CWnd& CWnd::wndTop = top;
const CWnd& CWnd::wndBottom = bottom;
const CWnd& CWnd::wndTopMost = topMost;
const CWnd& CWnd::wndNoTopMost = noTopMost;

CWnd::~CWnd() {
    CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandle(HWND window) {
    return CWndMap::FromHandle(window, [] { return new CWnd; });
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    return CWndMap::FindPermanent(window);
}

BOOL CWnd::Attach(HWND window) {
    ASSERT(m_hWnd == nullptr);
    if (window == nullptr || FromHandlePermanent(window) != nullptr) {
        return FALSE;
    }
    CWndMap::SetPermanent(window, this);
    m_hWnd = window;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND window = m_hWnd;
    if (window != nullptr) {
        CWndMap::RemovePermanent(window);
    }
    m_hWnd = nullptr;
    m_hWndOwner = nullptr;
    m_previousProcedure = nullptr;
    return window;
}

void CWnd::TakeMessages() {
    m_previousProcedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProcedure)));
}

BOOL CWnd::SubclassWindow(HWND window) {
    if (!Attach(window)) {
        return FALSE;
    }
    PreSubclassWindow();
    TakeMessages();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    return SubclassWindow(::GetDlgItem(parent->m_hWnd, static_cast<int>(id)));
}

HWND CWnd::UnsubclassWindow() {
    if (m_previousProcedure != nullptr) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_previousProcedure));
    }
    return Detach();
}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  CCreateContext* context) {
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id, context);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect,
                    CWnd* parent, UINT id, LPVOID parameter) {
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent != nullptr ? parent->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), parameter);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU idOrMenu, LPVOID parameter) {
    CREATESTRUCT create = {};
    create.lpCreateParams = parameter;
    create.hInstance = AfxGetStaticModuleState()->m_hCurrentInstanceHandle;
    create.hMenu = idOrMenu;
    create.hwndParent = parent;
    create.cx = width;
    create.cy = height;
    create.x = x;
    create.y = y;
    create.style = static_cast<LONG>(style);
    create.lpszName = windowName;
    create.lpszClass = className;
    create.dwExStyle = exStyle;
    if (!PreCreateWindow(create)) {
        PostNcDestroy();
        return FALSE;
    }
    const CAfxWindowHook hook(this);
    const HWND window =
        ::CreateWindowEx(create.dwExStyle, create.lpszClass, create.lpszName,
                         static_cast<DWORD>(create.style), create.x, create.y, create.cx, create.cy,
                         create.hwndParent, create.hMenu, create.hInstance, create.lpCreateParams);
    // A window that came into being and failed later has been through WM_NCDESTROY.
    if (!hook.HasAttached()) {
        PostNcDestroy();
    }
    return window != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& create) {
    if (create.lpszClass == nullptr) {
        create.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW),
                                nullptr, ::LoadIcon(nullptr, IDI_APPLICATION));
    }
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    const HWND window = m_hWnd;
    const BOOL destroyed = ::DestroyWindow(window);
    // An object that never got the window's messages did not get WM_NCDESTROY either.
    if (FromHandlePermanent(window) == this) {
        Detach();
    }
    return destroyed;
}

CString AfxTextOf(HWND window) {
    std::wstring text(static_cast<size_t>(::GetWindowTextLength(window)) + 1, L'\0');
    const int length = ::GetWindowText(window, text.data(), static_cast<int>(text.size()));
    return CString(text.data(), length);
}

void CWnd::GetWindowText(CString& text) const {
    text = AfxTextOf(m_hWnd);
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font != nullptr ? font->m_hObject : nullptr),
                MAKELPARAM(redraw, 0));
}

namespace {

BOOL ModifyStyleWord(HWND window, int word, DWORD remove, DWORD add, UINT flags) {
    const auto before = static_cast<DWORD>(::GetWindowLong(window, word));
    const DWORD after = (before & ~remove) | add;
    if (before == after) {
        return FALSE;
    }
    ::SetWindowLong(window, word, static_cast<LONG>(after));
    if (flags != 0) {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags) {
    return ModifyStyleWord(m_hWnd, GWL_STYLE, remove, add, flags);
}

void CWnd::CenterWindow(CWnd* over) {
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND base = over != nullptr ? over->m_hWnd
                : isChild       ? ::GetParent(m_hWnd)
                                : ::GetWindow(m_hWnd, GW_OWNER);
    CRect area;
    if (isChild) {
        ::GetClientRect(base, &area);
        ::MapWindowPoints(base, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&area), 2);
    } else if (base != nullptr && ::IsWindowVisible(base) && !::IsIconic(base)) {
        ::GetWindowRect(base, &area);
    } else {
        area = GetWorkArea(base != nullptr ? base : m_hWnd);
    }
    CRect rect;
    GetWindowRect(&rect);
    rect.MoveToXY(area.CenterPoint().x - rect.Width() / 2, area.CenterPoint().y - rect.Height() / 2);
    if (!isChild) {
        MoveInside(rect, GetWorkArea(base != nullptr ? base : m_hWnd));
    }
    SetWindowPos(nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn*, UINT flags) {
    return ::RedrawWindow(m_hWnd, rect, nullptr, flags);
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask) {
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw) {
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}
