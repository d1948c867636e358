// The scopes of the grid's drawing: whoever selects, saves or opens something in a device context holds
// one of these, and leaving the block undoes it on every way out. Pens, brushes, fonts and bitmaps have
// their owners in the framework's classes (CPen, CBrush, CFont, CBitmap); a raw handle is borrowed.
#pragma once

#include <afxwin.h>

#include <algorithm>

namespace tavrin::propgrid {

// A drawing object while it is selected. An object without a handle (a font that could not be made)
// selects nothing: what was selected before goes on serving.
class CSelectedObject {
public:
    CSelectedObject(CDC& dc, const CGdiObject& object) : m_dc(dc.GetSafeHdc()) {
        if (object.GetSafeHandle() != nullptr) {
            m_previous = ::SelectObject(m_dc, object.GetSafeHandle());
        }
    }
    ~CSelectedObject() {
        if (m_previous != nullptr) {
            ::SelectObject(m_dc, m_previous);
        }
    }
    CSelectedObject(const CSelectedObject&) = delete;
    CSelectedObject& operator=(const CSelectedObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous = nullptr;
};

// The whole state of a device context, restored at the end of the block.
class CSavedDcState {
public:
    explicit CSavedDcState(CDC& dc) : m_dc(dc), m_state(dc.SaveDC()) {}
    ~CSavedDcState() {
        if (m_state != 0) {
            m_dc.RestoreDC(m_state);
        }
    }
    CSavedDcState(const CSavedDcState&) = delete;
    CSavedDcState& operator=(const CSavedDcState&) = delete;

private:
    CDC& m_dc;
    int m_state;
};

// An off-screen picture of `size` pixels with the colours of `target`: draw on Dc(), then CopyTo shows
// it at once, down to `bottom`.
class CMemoryCanvas {
public:
    CMemoryCanvas(CDC& target, CSize size) : m_size(size) {
        m_dc.CreateCompatibleDC(&target);
        // A window may have no area at all; a bitmap may not.
        m_bitmap.CreateCompatibleBitmap(&target, std::max<int>(size.cx, 1), std::max<int>(size.cy, 1));
        ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
        TakeLayout(target);
    }
    CMemoryCanvas(const CMemoryCanvas&) = delete;
    CMemoryCanvas& operator=(const CMemoryCanvas&) = delete;

    // Runs from right to left where the target does. Copied between the two directions the picture, letters
    // included, would be mirrored.
    void TakeLayout(CDC& target) { ::SetLayout(m_dc.GetSafeHdc(), ::GetLayout(target.GetSafeHdc())); }

    CDC& Dc() { return m_dc; }
    CSize Size() const { return m_size; }
    void CopyTo(CDC& target, int bottom) { target.BitBlt(0, 0, m_size.cx, bottom, &m_dc, 0, 0, SRCCOPY); }

private:
    CSize m_size;
    // Outlives the device context: a bitmap that is still selected cannot be deleted.
    CBitmap m_bitmap;
    CDC m_dc;
};

}  // namespace tavrin::propgrid
