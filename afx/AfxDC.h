// Device contexts. Coordinates are the context's logical ones (pixels, for every context of the module).
#pragma once

#include "afx/AfxGdi.h"

class CWnd;

// Owns its device context and deletes it, unless a derived class releases it in its own way.
class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

    CDC() = default;
    ~CDC() override;

    // The object that owns the handle, or one that lives until the current message or command ends.
    static CDC* PASCAL FromHandle(HDC handle);

    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL Attach(HDC handle);
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* dc) {
        return Attach(::CreateCompatibleDC(dc != nullptr ? dc->m_hDC : nullptr));
    }
    virtual BOOL DeleteDC();

    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }
    virtual int SaveDC() { return ::SaveDC(m_hDC); }
    virtual BOOL RestoreDC(int savedDC) { return ::RestoreDC(m_hDC, savedDC); }
    CWnd* GetWindow() const;

    // Each returns the previously selected object, null on failure.
    CPen* SelectObject(CPen* pen) { return CPen::FromHandle((HPEN)Select(pen)); }
    CBrush* SelectObject(CBrush* brush) { return CBrush::FromHandle((HBRUSH)Select(brush)); }
    virtual CFont* SelectObject(CFont* font) { return CFont::FromHandle((HFONT)Select(font)); }
    CBitmap* SelectObject(CBitmap* bitmap) { return CBitmap::FromHandle((HBITMAP)Select(bitmap)); }
    CGdiObject* SelectObject(CGdiObject* object) { return CGdiObject::FromHandle(Select(object)); }

    virtual COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    virtual COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Rectangle(int left, int top, int right, int bottom) {
        return ::Rectangle(m_hDC, left, top, right, bottom);
    }
    BOOL Rectangle(LPCRECT rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color) {
        FillSolidRect(CRect(x, y, x + width, y + height), color);
    }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) {
        return ::DrawFrameControl(m_hDC, rect, type, state);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

    // Returns the text's height.
    virtual int DrawText(LPCTSTR text, int length, LPRECT rect, UINT format) {
        return ::DrawText(m_hDC, text, length, rect, format);
    }
    int DrawText(const CString& text, LPRECT rect, UINT format) {
        return DrawText(text, text.GetLength(), rect, format);
    }
    CSize GetTextExtent(LPCTSTR text, int length) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }

    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation) {
        return ::BitBlt(m_hDC, x, y, width, height, source != nullptr ? source->m_hDC : nullptr, sourceX,
                        sourceY, operation);
    }

    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }
    virtual int ExcludeClipRect(LPCRECT rect) {
        return ::ExcludeClipRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom);
    }

    HDC m_hDC = nullptr;

private:
    HGDIOBJ Select(const CGdiObject* object) {
        return ::SelectObject(m_hDC, object != nullptr ? object->m_hObject : nullptr);
    }
};

// The device context of a WM_PAINT message: the constructor begins painting, the destructor ends it.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
    explicit CPaintDC(CWnd* window);  // throws CResourceException* on failure
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

private:
    HWND m_hWnd;
};

// The client area of a window, or of the screen for null.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
    explicit CClientDC(CWnd* window);  // throws CResourceException* on failure
    ~CClientDC() override;

private:
    HWND m_hWnd;
};

// The whole area of a window, or of the screen for null.
class CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
    explicit CWindowDC(CWnd* window);  // throws CResourceException* on failure
    ~CWindowDC() override;

private:
    HWND m_hWnd;
};
