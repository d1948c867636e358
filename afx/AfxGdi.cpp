// GDI objects.
#include "afx/AfxDC.h"
#include "afx/AfxException.h"
#include "afx/AfxHandleMap.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

namespace {

using CGdiMap = CAfxHandleMap<CGdiObject, HGDIOBJ, &CGdiObject::m_hObject>;

CGdiObject* MakeObjectFor(HGDIOBJ handle) {
    switch (::GetObjectType(handle)) {
        case OBJ_PEN:
        case OBJ_EXTPEN:
            return new CPen;
        case OBJ_BRUSH:
            return new CBrush;
        case OBJ_FONT:
            return new CFont;
        case OBJ_BITMAP:
            return new CBitmap;
        default:
            return new CGdiObject;
    }
}

}  // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) {
    return CGdiMap::FromHandle(handle, [handle] { return MakeObjectFor(handle); });
}

BOOL CGdiObject::Attach(HGDIOBJ handle) {
    ASSERT(m_hObject == nullptr);
    if (handle == nullptr) {
        return FALSE;
    }
    m_hObject = handle;
    CGdiMap::SetPermanent(handle, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ handle = m_hObject;
    if (handle != nullptr) {
        CGdiMap::RemovePermanent(handle);
    }
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ handle = Detach();
    return handle != nullptr && ::DeleteObject(handle);
}

CPen::CPen(int style, int width, COLORREF color) {
    if (!CreatePen(style, width, color)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(COLORREF color) {
    if (!CreateSolidBrush(color)) {
        AfxThrowResourceException();
    }
}

BOOL CFont::CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc) {
    const HDC screen = dc == nullptr ? ::GetDC(nullptr) : nullptr;
    const int pixelsPerInch = ::GetDeviceCaps(dc != nullptr ? dc->m_hDC : screen, LOGPIXELSY);
    if (screen != nullptr) {
        ::ReleaseDC(nullptr, screen);
    }
    LOGFONT font = {};
    font.lfHeight = -::MulDiv(pointSize, pixelsPerInch, 720);
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, faceName, LF_FACESIZE);
    return CreateFontIndirect(&font);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}
