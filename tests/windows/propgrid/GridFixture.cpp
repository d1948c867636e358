#include "tests/windows/propgrid/GridFixture.h"

#include <algorithm>

std::wstring ShownValue(const CPropertyGrid& grid, UINT item) {
    ICustomItem* custom = nullptr;
    return grid.GetItemValue(item, custom) ? custom->GetStringValue() : grid.GetItemText(item);
}

BEGIN_MESSAGE_MAP(CGridParent, CWnd)
    ON_MESSAGE(WM_GRID_ITEM_CHANGED, &CGridParent::OnGridItemChanged)
    ON_MESSAGE(WM_GETFONT, &CGridParent::OnAskedForFont)
    ON_MESSAGE(WM_SYSCOMMAND, &CGridParent::OnSysCommand)
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
    if (grid != nullptr) {
        changedValues.push_back(ShownValue(*grid, static_cast<UINT>(item)));
    }
    return 0;
}

void CGridParent::ForgetChanges() {
    std::vector<UINT>().swap(changedItems);
    std::vector<std::wstring>().swap(changedValues);
}

LRESULT CGridParent::OnAskedForFont(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(font.GetSafeHandle());
}

LRESULT CGridParent::OnSysCommand(WPARAM command, LPARAM) {
    if ((command & 0xFFF0) == SC_KEYMENU) {
        wasAskedForMenu = true;
        return 0;
    }
    return Default();
}

CGridPicture::CGridPicture(CWnd& window) {
    CRect client;
    window.GetClientRect(&client);
    m_size = client.Size();
    Draw([&](CDC& dc) {
        window.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT);
    });
}

CGridPicture::CGridPicture(CSize size, const std::function<void(CDC&)>& draw) : m_size(size) {
    Draw(draw);
}

void CGridPicture::Draw(const std::function<void(CDC&)>& draw) {
    if (m_size.cx <= 0 || m_size.cy <= 0) {
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
    draw(dc);
    ::GdiFlush();
    const auto* const pixels = static_cast<const unsigned*>(bits);
    m_pixels.assign(pixels,
                    pixels + static_cast<std::size_t>(m_size.cx) * static_cast<std::size_t>(m_size.cy));
    ::SelectObject(dc, previous);
}

CRect CGridPicture::Bounds(const CRect& area, COLORREF color) const {
    CRect bounds(area.right, area.bottom, area.left, area.top);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (At(x, y) == color) {
                bounds.SetRect(std::min<int>(bounds.left, x), std::min<int>(bounds.top, y),
                               std::max<int>(bounds.right, x + 1), std::max<int>(bounds.bottom, y + 1));
            }
        }
    }
    return bounds.left < bounds.right ? bounds : CRect();
}

bool CGridPicture::EndsInAnEllipsis(const CRect& area, COLORREF color) const {
    const CRect all = Bounds(area, color);
    CRect end = all;
    end.left = end.right - 6;  // less than a letter, more than a dot
    const CRect dots = Bounds(end, color);
    return !all.IsRectEmpty() && dots.Height() <= 2 && all.Height() > 6 && dots.bottom == all.bottom;
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
