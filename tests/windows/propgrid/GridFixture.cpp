#include "tests/windows/propgrid/GridFixture.h"

BEGIN_MESSAGE_MAP(CGridParent, CWnd)
    ON_MESSAGE(WM_GRID_ITEM_CHANGED, &CGridParent::OnGridItemChanged)
    ON_MESSAGE(WM_GETFONT, &CGridParent::OnAskedForFont)
END_MESSAGE_MAP()

CGridParent::CGridParent() {
    LOGFONT description = {};
    description.lfHeight = -12;
    description.lfQuality = NONANTIALIASED_QUALITY;
    wcscpy(description.lfFaceName, L"Tahoma");
    font.CreateFontIndirect(&description);
    CreateEx(0, AfxRegisterWndClass(0), L"grid parent", WS_POPUP | WS_VISIBLE, CRect(40, 40, 640, 440),
             nullptr, 0);
}

CGridParent::~CGridParent() {
    DestroyWindow();
}

LRESULT CGridParent::OnGridItemChanged(WPARAM item, LPARAM zero) {
    EXPECT_EQ(zero, 0);
    changedItems.push_back(static_cast<UINT>(item));
    return 0;
}

LRESULT CGridParent::OnAskedForFont(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(font.GetSafeHandle());
}

CGridPicture::CGridPicture(CWnd& window) {
    CRect client;
    window.GetClientRect(&client);
    m_size = client.Size();
    if (client.IsRectEmpty()) {
        return;
    }
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = m_size.cx;
    info.bmiHeader.biHeight = -m_size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc, bitmap.GetSafeHandle());
    window.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT);
    ::GdiFlush();
    const auto* const pixels = static_cast<const unsigned*>(bits);
    m_pixels.assign(pixels,
                    pixels + static_cast<std::size_t>(m_size.cx) * static_cast<std::size_t>(m_size.cy));
    ::SelectObject(dc, previous);
}

COLORREF CGridPicture::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_size.cx || y >= m_size.cy) {
        return CLR_INVALID;
    }
    const unsigned pixel = m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.cx) +
                                    static_cast<std::size_t>(x)];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

int CGridPicture::Count(const CRect& area, COLORREF color) const {
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            count += At(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

// Leaves the device context in a state that would spoil every later row.
void CRecordingItem::DrawItem(CDC& dc, CRect rect, bool focused) {
    drawings.push_back({rect, focused, dc.GetTextColor(), ::GetBkMode(dc)});
    if (whileDrawing) {
        whileDrawing();
    }
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(RGB(255, 0, 0));
    dc.SetTextColor(RGB(255, 0, 0));
    ::SelectObject(dc, ::GetStockObject(SYSTEM_FIXED_FONT));
}

void CRecordingItem::AcceptValue() {
    ++accepted;
    gridWhenAccepted = m_pGrid;
}

void GridTest::CreateGrid(int width, int height) {
    ASSERT_TRUE(grid.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height),
                            &parent, 100));
    grid.SetTextColor(text);
    grid.SetTitleColor(title);
    grid.SetBackColor(back);
    grid.SetShadeColor(shade);
    grid.SetFocusColor(focus);
    grid.SetFocusTextColor(focusText);
    grid.SetEditableColor(editable);
    grid.SetNonEditableColor(nonEditable);
}

SCROLLINFO GridTest::ScrollInfo() const {
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    if (ScrollBar() != nullptr) {
        ::GetScrollInfo(ScrollBar()->m_hWnd, SB_CTL, &info);
    }
    return info;
}
