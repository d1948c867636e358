// A picture in memory, with 32 bits a pixel, that can be drawn into and compared pixel by pixel.
#pragma once

#include <afxwin.h>

#include <optional>
#include <string>

namespace tests {

class CPixelPicture {
public:
    explicit CPixelPicture(CSize size);
    CPixelPicture(const CPixelPicture&) = delete;
    CPixelPicture& operator=(const CPixelPicture&) = delete;

    CSize GetSize() const { return m_size; }
    // To draw into the picture.
    CDC& GetDC() { return m_dc; }

    // Takes over what the client area of a window shows.
    void CopyFrom(CWnd& window);

    // 0x00RRGGBB.
    unsigned At(CPoint point) const;
    // The first pixel, row by row, in which two pictures of one size differ inside `area`.
    std::optional<CPoint> FindDifference(const CPixelPicture& other, const CRect& area) const;
    int CountDifferences(const CPixelPicture& other, const CRect& area) const;

    void WriteBitmapFile(const std::wstring& path) const;

private:
    const unsigned* Row(int y) const;
    bool SameRow(const CPixelPicture& other, int y) const;
    CRect Inside(const CRect& area) const { return area & CRect(CPoint(), m_size); }

    CSize m_size;
    CBitmap m_bitmap;
    CDC m_dc;                            // ends before the bitmap that is selected into it
    const unsigned* m_pixels = nullptr;  // top down, owned by the bitmap
};

}  // namespace tests
