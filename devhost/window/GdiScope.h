// Owners of GDI objects and scopes of their use.
#pragma once

#include <windows.h>

#include <memory>

namespace devhost {

struct GdiDeleter {
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using GdiObject = std::unique_ptr<HGDIOBJ, GdiDeleter>;

// An object selected into a device context.
class CSelection {
public:
    CSelection(HDC dc, HGDIOBJ object) : m_dc(dc), m_before(SelectObject(dc, object)) {}
    CSelection(HDC dc, const GdiObject& object) : CSelection(dc, object.get()) {}
    ~CSelection() { SelectObject(m_dc, m_before); }
    CSelection(const CSelection&) = delete;
    CSelection& operator=(const CSelection&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_before;
};

// The device context of a window, or of the screen for null.
class CWindowDc {
public:
    explicit CWindowDc(HWND window) : m_window(window), m_dc(GetDC(window)) {}
    ~CWindowDc() { ReleaseDC(m_window, m_dc); }
    CWindowDc(const CWindowDc&) = delete;
    CWindowDc& operator=(const CWindowDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// A device context in memory that draws into a bitmap.
class CBitmapDc {
public:
    CBitmapDc(HDC like, HGDIOBJ bitmap)
        : m_dc(CreateCompatibleDC(like)), m_before(SelectObject(m_dc, bitmap)) {}
    ~CBitmapDc() {
        SelectObject(m_dc, m_before);
        DeleteDC(m_dc);
    }
    CBitmapDc(const CBitmapDc&) = delete;
    CBitmapDc& operator=(const CBitmapDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
    HGDIOBJ m_before;
};

// Handles WM_PAINT with double buffering: what is drawn on Dc() appears when the scope ends.
class CBufferedPaint {
public:
    explicit CBufferedPaint(HWND window)
        : m_window(window),
          m_target(BeginPaint(window, &m_paint)),
          m_client(ClientOf(window)),
          m_bitmap(CreateCompatibleBitmap(m_target, m_client.right, m_client.bottom)),
          m_dc(m_target, m_bitmap.get()) {}
    ~CBufferedPaint() {
        BitBlt(m_target, 0, 0, m_client.right, m_client.bottom, m_dc.Get(), 0, 0, SRCCOPY);
        EndPaint(m_window, &m_paint);
    }
    CBufferedPaint(const CBufferedPaint&) = delete;
    CBufferedPaint& operator=(const CBufferedPaint&) = delete;

    HDC Dc() const { return m_dc.Get(); }
    const RECT& Client() const { return m_client; }

private:
    static RECT ClientOf(HWND window) {
        RECT client;
        GetClientRect(window, &client);
        return client;
    }

    HWND m_window;
    PAINTSTRUCT m_paint;
    HDC m_target;
    RECT m_client;
    GdiObject m_bitmap;
    CBitmapDc m_dc;
};

}  // namespace devhost
