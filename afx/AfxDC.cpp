// Device contexts.
#include "afx/AfxHandleMap.h"
#include "afx/afxwin.h"

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

namespace {

using CDCMap = CAfxHandleMap<CDC, HDC, &CDC::m_hDC>;

// Attaches a context that is not to be deleted but released in a way of its own, also when attaching fails.
template <class TRelease>
void AttachOrRelease(CDC& dc, HDC handle, TRelease release) {
    if (handle == nullptr) {
        AfxThrowResourceException();
    }
    try {
        dc.Attach(handle);
    } catch (...) {
        dc.Detach();
        release();
        throw;
    }
}

}  // namespace

CDC::~CDC() {
    CDC::DeleteDC();
}

CDC* CDC::FromHandle(HDC handle) {
    return CDCMap::FromHandle(handle, [] { return new CDC; });
}

BOOL CDC::Attach(HDC handle) {
    ASSERT(m_hDC == nullptr);
    if (handle == nullptr) {
        return FALSE;
    }
    m_hDC = handle;
    CDCMap::SetPermanent(handle, this);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC handle = m_hDC;
    if (handle != nullptr) {
        CDCMap::RemovePermanent(handle);
    }
    m_hDC = nullptr;
    return handle;
}

BOOL CDC::DeleteDC() {
    const HDC handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint previous;
    ::MoveToEx(m_hDC, x, y, &previous);
    return previous;
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    const COLORREF previous = ::SetBkColor(m_hDC, color);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, previous);
}

CSize CDC::GetTextExtent(LPCTSTR text, int length) const {
    CSize size;
    ::GetTextExtentPoint32(m_hDC, text, length, &size);
    return size;
}

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->m_hWnd) {
    AttachOrRelease(*this, ::BeginPaint(m_hWnd, &m_ps), [this] { ::EndPaint(m_hWnd, &m_ps); });
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* window) : m_hWnd(window != nullptr ? window->m_hWnd : nullptr) {
    const HDC handle = ::GetDC(m_hWnd);
    AttachOrRelease(*this, handle, [=, this] { ::ReleaseDC(m_hWnd, handle); });
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window != nullptr ? window->m_hWnd : nullptr) {
    const HDC handle = ::GetWindowDC(m_hWnd);
    AttachOrRelease(*this, handle, [=, this] { ::ReleaseDC(m_hWnd, handle); });
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
