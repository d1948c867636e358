// The off-screen picture of the grid.
#pragma once

#include <afxwin.h>

#include <algorithm>

namespace tavrin::propgrid {

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
