// What the grid's tests share: a parent window that records the grid's notifications, and a picture of what a
// grid paints.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "propgrid/PropertyGrid.h"

using namespace tavrin::propgrid;

// The text that an item shows, a custom item's included.
std::wstring ShownValue(const CPropertyGrid& grid, UINT item);

// A top-level window that keeps the notifications of its grid and has a font without grey edges, so that
// the colour of a text can be read from its pixels.
class CGridParent : public CWnd {
public:
    CGridParent();
    ~CGridParent() override;

    // Drops the notifications, and the memory that they took.
    void ForgetChanges();

    std::vector<UINT> changedItems;  // of WM_GRID_ITEM_CHANGED, in order
    // What the items of `grid` showed at the moment of each: a notification comes after the value is stored.
    std::vector<std::wstring> changedValues;
    const CPropertyGrid* grid = nullptr;
    bool wasAskedForMenu = false;  // by Alt alone, or Alt with a letter
    CFont font;                    // answered to WM_GETFONT; none when it has no handle

protected:
    afx_msg LRESULT OnGridItemChanged(WPARAM item, LPARAM zero);
    afx_msg LRESULT OnAskedForFont(WPARAM, LPARAM);
    afx_msg LRESULT OnSysCommand(WPARAM command, LPARAM);
    DECLARE_MESSAGE_MAP()
};

using CTestGrid = CPropertyGrid;

// What a window paints into a device context that it is given: the client area's pixels.
class CGridPicture {
public:
    explicit CGridPicture(CWnd& window);
    // What `draw` draws, on black at the start.
    CGridPicture(CSize size, const std::function<void(CDC&)>& draw);

    // The colour at a point in client coordinates; CLR_INVALID outside.
    COLORREF At(int x, int y) const;
    int Count(const CRect& area, COLORREF color) const;
    bool Has(const CRect& area, COLORREF color) const { return Count(area, color) > 0; }
    // Whether every pixel of the area has the colour.
    bool Is(const CRect& area, COLORREF color) const {
        return Count(area, color) == area.Width() * area.Height();
    }

    // The smallest rectangle that holds all pixels of the area that have the colour.
    CRect Bounds(const CRect& area, COLORREF color) const;
    // Whether the text of this colour at the end of the area is dots on the base line alone. The text before
    // them must have tall letters, such as H.
    bool EndsInAnEllipsis(const CRect& area, COLORREF color) const;

private:
    void Draw(const std::function<void(CDC&)>& draw);

    CSize m_size;
    std::vector<unsigned> m_pixels;  // 0x00RRGGBB, top down
};

// A custom item that records what the grid does with it.
class CRecordingItem : public ICustomItem {
public:
    int mode = EM_CUSTOM;
    int accepted = 0;
    CPropertyGrid* gridWhenAccepted = nullptr;
    struct Drawing {
        CRect rect;
        bool focused;
        COLORREF textColor;
        int backMode;
    };
    std::vector<Drawing> drawings;
    std::function<void()> whileDrawing;

    int GetEditMode() override { return mode; }
    void DrawItem(CDC& dc, CRect rect, bool focused) override;
    void AcceptValue() override;
    bool OnLButtonDown(CRect, CPoint) override { return false; }
    void OnMouseMove(CRect, CPoint) override {}
    void OnLButtonUp(CRect, CPoint) override {}
    std::wstring GetStringValue() override { return {}; }
    bool SetStringValue(std::wstring) override { return false; }
    void ShowDropDown(CRect) override {}
    bool OnButtonClicked() override { return false; }
};

// A grid of 300 x 200 pixels in a parent, with a colour of its own for every role.
class GridTest : public testing::Test {
protected:
    static constexpr COLORREF text = RGB(10, 0, 0);
    static constexpr COLORREF title = RGB(0, 120, 0);
    static constexpr COLORREF back = RGB(240, 250, 255);
    static constexpr COLORREF shade = RGB(180, 190, 200);
    static constexpr COLORREF focus = RGB(0, 0, 160);
    static constexpr COLORREF focusText = RGB(255, 230, 220);
    static constexpr COLORREF editable = RGB(150, 0, 150);
    static constexpr COLORREF nonEditable = RGB(120, 110, 0);
    static constexpr COLORREF modified = 0x0050FFFF;

    GridTest() {
        CreateGrid(300, 200);
        parent.grid = &grid;
    }

    void CreateGrid(int width, int height);
    int RowHeight() const { return grid.GetRowHeight(); }
    // The value column of row number `row` from the top of the window.
    CRect ValueOfRow(int row) const {
        return {grid.GetGutterWidth() + 1, row * RowHeight(), 300, (row + 1) * RowHeight()};
    }
    SCROLLINFO ScrollInfo() const;
    // The grid shows its bar by the time that it handles a message.
    CWnd* ScrollBar() const {
        ::SendMessage(grid.GetSafeHwnd(), WM_NULL, 0, 0);
        return grid.GetDlgItem(1000);
    }
    bool ScrollBarShows() const { return ScrollBar() != nullptr && ScrollBar()->IsWindowVisible(); }

    CGridParent parent;
    CTestGrid grid;
};

// With names for the parts of the picture, and questions for what the grid recorded.
class GridPaintTest : public GridTest {
protected:
    void Flat() { grid.SetDisplayMode(CPropertyGrid::DM_FLAT); }
    // Without lines and shading, so that a cell holds its own colours alone.
    void Plain() {
        Flat();
        grid.SetShadeHeaders(false);
        grid.SetDrawLines(false);
        grid.SetDrawDivider(false);
    }
    CRect Row(int row) const { return {0, row * RowHeight(), 300, (row + 1) * RowHeight()}; }
    CRect NameOfRow(int row) const {
        return {18, row * RowHeight(), grid.GetGutterWidth() - 1, (row + 1) * RowHeight()};
    }
    CRect NameRect(UINT item) const {
        CRect name;
        CRect value;
        EXPECT_TRUE(grid.GetItemRects(item, name, value));
        return name;
    }
    CRect ValueRect(UINT item) const {
        CRect name;
        CRect value;
        EXPECT_TRUE(grid.GetItemRects(item, name, value));
        return value;
    }
    CRect GlyphRect(UINT section) const {
        CRect glyph;
        CRect header;
        EXPECT_TRUE(grid.GetSectionRects(section, glyph, header));
        return glyph;
    }
    CRect HeaderRect(UINT section) const {
        CRect glyph;
        CRect header;
        EXPECT_TRUE(grid.GetSectionRects(section, glyph, header));
        return header;
    }
    // The grid's bold font, made as the grid makes it.
    HFONT MakeBoldFont() {
        LOGFONT description = {};
        parent.font.GetLogFont(&description);
        description.lfWeight = FW_BOLD;
        return ::CreateFontIndirect(&description);
    }
    static CSize ExtentOf(const std::wstring& measured, HFONT font) {
        const HDC dc = ::GetDC(nullptr);
        const HGDIOBJ previous = ::SelectObject(dc, font);
        SIZE size = {};
        ::GetTextExtentPoint32(dc, measured.c_str(), static_cast<int>(measured.size()), &size);
        ::SelectObject(dc, previous);
        ::ReleaseDC(nullptr, dc);
        return size;
    }
    // Pixels that are not the background.
    static int Ink(const CGridPicture& picture, const CRect& area) {
        return area.Width() * area.Height() - picture.Count(area, back);
    }
    // Whether two rows look alike from x = `left` on.
    bool SameRows(const CGridPicture& picture, int left, int a, int b) const {
        for (int y = 0; y < RowHeight(); ++y) {
            for (int x = left; x < 300; ++x) {
                if (picture.At(x, a * RowHeight() + y) != picture.At(x, b * RowHeight() + y)) {
                    return false;
                }
            }
        }
        return true;
    }
    void FillWindow(UINT section) {
        for (int row = 0; row < 40; ++row) {
            grid.AddIntegerItem(section, L"row " + std::to_wstring(row), row);
        }
    }
    void ScrollTo(int position) { ::SetScrollPos(ScrollBar()->m_hWnd, SB_CTL, position, FALSE); }
};
