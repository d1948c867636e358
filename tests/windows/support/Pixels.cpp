#include "tests/windows/support/Pixels.h"

CClientPixels::CClientPixels(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    m_width = client.right;
    m_height = client.bottom;
    if (m_width <= 0 || m_height <= 0) {
        return;
    }
    m_rows.resize(static_cast<size_t>(m_width) * static_cast<size_t>(m_height));
    const HDC source = GetDC(window);
    const HDC memory = CreateCompatibleDC(source);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, m_width, m_height, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* pixels = static_cast<const unsigned*>(bits);
    m_rows.assign(pixels, pixels + m_rows.size());
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
}

COLORREF CClientPixels::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return CLR_INVALID;
    }
    const unsigned pixel =
        m_rows[static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x)];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

int CClientPixels::Count(const RECT& area, COLORREF color) const {
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            count += At(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

void PumpMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}
