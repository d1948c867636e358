// Owners of GDI handles and scopes of their use: each gives back in its destructor what it took, on every way
// out. A raw handle is borrowed. The framework's objects convert to the handles that these take.
#pragma once

#include <windows.h>

#include <algorithm>
#include <memory>

namespace tavrin::handles {

struct GdiDeleter {
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

// A pen, brush, font or bitmap that is owned.
using GdiOwner = std::unique_ptr<HGDIOBJ, GdiDeleter>;

// An object while it is selected into a device context. A null object (a font that could not be created)
// selects nothing: the object selected before stays in use.
class CSelectedObject {
public:
    CSelectedObject(HDC dc, HGDIOBJ object)
        : m_dc(dc), m_previous(object != nullptr ? SelectObject(dc, object) : nullptr) {}
    CSelectedObject(HDC dc, const GdiOwner& object) : CSelectedObject(dc, object.get()) {}
    ~CSelectedObject() {
        if (m_previous != nullptr) {
            SelectObject(m_dc, m_previous);
        }
    }
    CSelectedObject(const CSelectedObject&) = delete;
    CSelectedObject& operator=(const CSelectedObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

// The whole state of a device context, restored at the end of the scope.
class CSavedDcState {
public:
    explicit CSavedDcState(HDC dc) : m_dc(dc), m_state(SaveDC(dc)) {}
    ~CSavedDcState() {
        if (m_state != 0) {
            RestoreDC(m_dc, m_state);
        }
    }
    CSavedDcState(const CSavedDcState&) = delete;
    CSavedDcState& operator=(const CSavedDcState&) = delete;

private:
    HDC m_dc;
    int m_state;
};

// The device context of a window's client area, or of the screen for null.
class CClientDc {
public:
    explicit CClientDc(HWND window) : m_window(window), m_dc(GetDC(window)) {}
    ~CClientDc() { ReleaseDC(m_window, m_dc); }
    CClientDc(const CClientDc&) = delete;
    CClientDc& operator=(const CClientDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// A memory device context compatible with another one, with a bitmap selected.
class CBitmapDc {
public:
    CBitmapDc(HDC like, HGDIOBJ bitmap)
        : m_dc(CreateCompatibleDC(like)), m_previous(SelectObject(m_dc, bitmap)) {}
    ~CBitmapDc() {
        SelectObject(m_dc, m_previous);
        DeleteDC(m_dc);
    }
    CBitmapDc(const CBitmapDc&) = delete;
    CBitmapDc& operator=(const CBitmapDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

// An off-screen bitmap with the colors of `target` and its device context.
class CMemoryCanvas {
public:
    // A window may have an empty client area; a bitmap may not.
    CMemoryCanvas(HDC target, SIZE size)
        : m_size(size),
          m_bitmap(CreateCompatibleBitmap(target, std::max<int>(size.cx, 1), std::max<int>(size.cy, 1))),
          m_dc(target, m_bitmap.get()) {
        TakeLayout(target);
    }

    // Runs from right to left where the target does. Copied between the two directions the picture, letters
    // included, would be mirrored.
    void TakeLayout(HDC target) const { SetLayout(m_dc.Get(), GetLayout(target)); }

    HDC Dc() const { return m_dc.Get(); }
    SIZE Size() const { return m_size; }

    // Copies the rows above `bottom` to the target's origin.
    void CopyTo(HDC target, int bottom) const {
        BitBlt(target, 0, 0, m_size.cx, bottom, m_dc.Get(), 0, 0, SRCCOPY);
    }

private:
    SIZE m_size;
    GdiOwner m_bitmap;  // outlives the device context: a selected bitmap cannot be deleted
    CBitmapDc m_dc;
};

// Handles WM_PAINT through a canvas, so that the window never shows a partly painted picture: what is drawn
// on Dc() appears at the end of the scope.
class CBufferedPaint {
public:
    explicit CBufferedPaint(HWND window)
        : m_window(window),
          m_target(BeginPaint(window, &m_paint)),
          m_client(ClientOf(window)),
          m_canvas(m_target, {m_client.right, m_client.bottom}) {}
    ~CBufferedPaint() {
        m_canvas.CopyTo(m_target, m_client.bottom);
        EndPaint(m_window, &m_paint);
    }
    CBufferedPaint(const CBufferedPaint&) = delete;
    CBufferedPaint& operator=(const CBufferedPaint&) = delete;

    HDC Dc() const { return m_canvas.Dc(); }
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
    CMemoryCanvas m_canvas;
};

}  // namespace tavrin::handles
