// GDI objects: pens, brushes, fonts, bitmaps. Each owns its handle and deletes it in its destructor.
//
// FromHandle returns the object that owns the handle, or a temporary one that owns nothing and is deleted
// when the current message or command ends.
#pragma once

#include "afx/AfxObject.h"
#include "afx/AfxString.h"
#include "afx/atltypes.h"

class CDC;

class CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)

    CGdiObject() = default;
    ~CGdiObject() override;

    static CGdiObject* PASCAL FromHandle(HGDIOBJ handle);

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    // Takes ownership of the handle. FALSE when it is null.
    BOOL Attach(HGDIOBJ handle);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int count, LPVOID object) const { return ::GetObject(m_hObject, count, object); }

    HGDIOBJ m_hObject = nullptr;
};

class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

    CPen() = default;
    CPen(int style, int width, COLORREF color);  // throws CResourceException* on failure
    static CPen* PASCAL FromHandle(HPEN handle) {
        return dynamic_cast<CPen*>(CGdiObject::FromHandle(handle));
    }
    BOOL CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
};

class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

    CBrush() = default;
    CBrush(COLORREF color);  // throws CResourceException* on failure
    static CBrush* PASCAL FromHandle(HBRUSH handle) {
        return dynamic_cast<CBrush*>(CGdiObject::FromHandle(handle));
    }
    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
};

class CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

    CFont() = default;
    static CFont* PASCAL FromHandle(HFONT handle) {
        return dynamic_cast<CFont*>(CGdiObject::FromHandle(handle));
    }
    BOOL CreateFontIndirect(const LOGFONT* font) { return Attach(::CreateFontIndirect(font)); }
    // The size is in tenths of a point, for the given device context or for the screen.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc = nullptr);
    int GetLogFont(LOGFONT* font) { return GetObject(sizeof *font, font); }
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
};

class CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

    CBitmap() = default;
    static CBitmap* PASCAL FromHandle(HBITMAP handle) {
        return dynamic_cast<CBitmap*>(CGdiObject::FromHandle(handle));
    }
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
};
