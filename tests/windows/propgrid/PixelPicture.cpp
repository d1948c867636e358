#include "tests/windows/propgrid/PixelPicture.h"

#include <cstring>
#include <fstream>
#include <vector>

#include "tests/windows/support/Bitmap.h"

namespace tests {

CPixelPicture::CPixelPicture(CSize size) : m_size(size) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    m_pixels = static_cast<const unsigned*>(bits);
    m_dc.CreateCompatibleDC(nullptr);
    ::SelectObject(m_dc, m_bitmap.GetSafeHandle());
}

void CPixelPicture::CopyFrom(CWnd& window) {
    CClientDC source(&window);
    m_dc.BitBlt(0, 0, m_size.cx, m_size.cy, &source, 0, 0, SRCCOPY);
    ::GdiFlush();
}

const unsigned* CPixelPicture::Row(int y) const {
    return m_pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.cx);
}

bool CPixelPicture::SameRow(const CPixelPicture& other, int y) const {
    return std::memcmp(Row(y), other.Row(y), static_cast<std::size_t>(m_size.cx) * sizeof(unsigned)) == 0;
}

unsigned CPixelPicture::At(CPoint point) const {
    return Row(point.y)[point.x] & 0xFFFFFFU;
}

std::optional<CPoint> CPixelPicture::FindDifference(const CPixelPicture& other, const CRect& area) const {
    const CRect inside = Inside(area);
    for (int y = inside.top; y < inside.bottom; ++y) {
        // Whole rows are compared at once where they are equal in the unused bits too, which is quicker.
        for (int x = SameRow(other, y) ? inside.right : inside.left; x < inside.right; ++x) {
            if (At({x, y}) != other.At({x, y})) {
                return CPoint(x, y);
            }
        }
    }
    return std::nullopt;
}

int CPixelPicture::CountDifferences(const CPixelPicture& other, const CRect& area) const {
    const CRect inside = Inside(area);
    int count = 0;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            count += At({x, y}) != other.At({x, y}) ? 1 : 0;
        }
    }
    return count;
}

void CPixelPicture::WriteBitmapFile(const std::wstring& path) const {
    std::vector<unsigned> pixels;
    for (int y = 0; y < m_size.cy; ++y) {
        for (int x = 0; x < m_size.cx; ++x) {
            pixels.push_back(At({x, y}));
        }
    }
    const std::string bytes = BitmapFile(m_size.cx, m_size.cy, pixels);
    std::ofstream(path.c_str(), std::ios::binary) << bytes;
}

}  // namespace tests
