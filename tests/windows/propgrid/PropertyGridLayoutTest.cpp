#include <string>

#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/Pixels.h"

namespace {

class PropertyGridLayout : public GridTest {
protected:
    // A flat grid of `rows` rows, exactly as high as `height` of them.
    void Fill(int rows, int height) {
        grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
        grid.MoveWindow(0, 0, 300, height * RowHeight());
        const UINT section = grid.AddSection(L"Section");
        AddRows(section, rows);
    }
    void AddRows(UINT section, int rows) {
        for (int row = 0; row < rows; ++row) {
            grid.AddIntegerItem(section, L"row " + std::to_wstring(grid.GetItemCount()), row);
        }
    }
    void ScrollTo(int position) { ::SetScrollPos(ScrollBar()->m_hWnd, SB_CTL, position, TRUE); }
    int Total() const { return static_cast<int>(grid.GetItemCount()) * RowHeight(); }
};

TEST_F(PropertyGridLayout, MeasuresARowByTheFontOfTheParent) {
    CClientDC dc(&grid);
    const HGDIOBJ previous = ::SelectObject(dc, parent.font.GetSafeHandle());
    const int height = dc.GetTextExtent(L"Gg", 2).cy;
    ::SelectObject(dc, previous);
    EXPECT_EQ(grid.GetRowHeight(), height + 4);
}

TEST_F(PropertyGridLayout, PutsTheDividerInTheMiddleOfTheClientArea) {
    EXPECT_EQ(grid.GetGutterWidth(), 150);
    CTestGrid odd;
    ASSERT_TRUE(
        odd.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_BORDER, CRect(0, 0, 103, 50), &parent, 1));
    EXPECT_EQ(odd.GetGutterWidth(), 50);
}

TEST_F(PropertyGridLayout, ClipsItsChildren) {
    EXPECT_NE(grid.GetStyle() & WS_CLIPCHILDREN, 0U);
}

TEST_F(PropertyGridLayout, ShowsNoScrollBarWhileTheRowsAreLowerThanTheWindow) {
    Fill(4, 5);
    EXPECT_EQ(ScrollBar(), nullptr);
}

TEST_F(PropertyGridLayout, ShowsTheScrollBarWhenTheRowsFillTheWindowExactly) {
    Fill(5, 5);
    ASSERT_TRUE(ScrollBarShows());
    EXPECT_TRUE(ScrollBar()->IsWindowEnabled());
    const SCROLLINFO info = ScrollInfo();
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 5 * RowHeight());
    EXPECT_EQ(info.nPage, static_cast<UINT>(5 * RowHeight()));
    EXPECT_EQ(info.nPos, 0);
}

TEST_F(PropertyGridLayout, TheBarKnowsTheRowsThatWereAddedOnceTheGridHandlesAMessage) {
    Fill(5, 5);
    const HWND bar = ScrollBar()->m_hWnd;
    for (const int rows : {1, 7, 100}) {
        AddRows(0, rows);
        grid.SendMessage(WM_GETDLGCODE);
        int first = 0, last = 0;
        ::GetScrollRange(bar, SB_CTL, &first, &last);
        EXPECT_EQ(last, Total());
    }
}

TEST_F(PropertyGridLayout, RowsAddedWithoutAMessageBetweenAreAllPainted) {
    Fill(0, 5);
    PumpMessages();
    AddRows(0, 3);
    PumpMessages();
    CRect name, value;
    ASSERT_TRUE(grid.GetItemRects(2, name, value));
    EXPECT_EQ(value.top, 2 * RowHeight());
    EXPECT_FALSE(value.IsRectEmpty());
}

TEST_F(PropertyGridLayout, PutsTheScrollBarAtTheRightEdge) {
    Fill(9, 5);
    CRect bar;
    ScrollBar()->GetWindowRect(&bar);
    grid.ScreenToClient(&bar);
    EXPECT_EQ(bar, CRect(300 - ::GetSystemMetrics(SM_CXVSCROLL), 0, 300, 5 * RowHeight()));
    EXPECT_NE(ScrollBar()->GetStyle() & SBS_VERT, 0U);
    EXPECT_NE(ScrollBar()->GetStyle() & WS_CHILD, 0U);
}

TEST_F(PropertyGridLayout, KeepsThePositionWhenRowsAreAdded) {
    Fill(9, 5);
    ScrollTo(7);
    AddRows(0, 3);
    EXPECT_EQ(ScrollInfo().nMax, 12 * RowHeight());
    EXPECT_EQ(ScrollInfo().nPos, 7);
}

TEST_F(PropertyGridLayout, BringsThePositionBackIntoTheRowsThatAreLeft) {
    Fill(0, 5);
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    AddRows(0, 8);
    const UINT last = grid.AddSection(L"Last");
    AddRows(last, 8);
    ScrollTo(ScrollInfo().nMax);
    grid.SetSectionCollapsed(last, true);
    // Two headers and eight items; the system keeps the last page in view.
    EXPECT_EQ(ScrollInfo().nMax, 10 * RowHeight());
    EXPECT_EQ(ScrollInfo().nPos, 10 * RowHeight() - 5 * RowHeight() + 1);
}

TEST_F(PropertyGridLayout, HidesAndDisablesTheScrollBarWhenTheRowsGo) {
    Fill(9, 5);
    ScrollTo(20);
    grid.ResetContents();
    ASSERT_NE(ScrollBar(), nullptr);
    EXPECT_FALSE(ScrollBarShows());
    EXPECT_FALSE(ScrollBar()->IsWindowEnabled());
}

TEST_F(PropertyGridLayout, StartsAtTheTopWhenTheScrollBarComesBack) {
    Fill(9, 5);
    ScrollTo(20);
    grid.ResetContents();
    AddRows(grid.AddSection(L"Section"), 9);
    EXPECT_TRUE(ScrollBarShows());
    EXPECT_TRUE(ScrollBar()->IsWindowEnabled());
    EXPECT_EQ(ScrollInfo().nPos, 0);
}

TEST_F(PropertyGridLayout, CountsHeadersInTheCategorisedDisplayOnly) {
    Fill(5, 5);
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    EXPECT_EQ(ScrollInfo().nMax, 6 * RowHeight());
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    EXPECT_EQ(ScrollInfo().nMax, 5 * RowHeight());
}

TEST_F(PropertyGridLayout, IgnoresCollapsedSectionsInTheFlatDisplays) {
    Fill(7, 5);
    grid.SetSectionCollapsed(0, true);
    EXPECT_EQ(ScrollInfo().nMax, 7 * RowHeight());
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    EXPECT_FALSE(ScrollBarShows());
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    EXPECT_EQ(ScrollInfo().nMax, 7 * RowHeight());
}

TEST_F(PropertyGridLayout, FollowsTheWindowWithTheScrollBar) {
    Fill(9, 5);
    ScrollTo(10);
    grid.MoveWindow(0, 0, 260, 7 * RowHeight());
    CRect bar;
    ScrollBar()->GetWindowRect(&bar);
    grid.ScreenToClient(&bar);
    EXPECT_EQ(bar, CRect(260 - ::GetSystemMetrics(SM_CXVSCROLL), 0, 260, 7 * RowHeight()));
    EXPECT_EQ(ScrollInfo().nPage, static_cast<UINT>(7 * RowHeight()));
    EXPECT_EQ(ScrollInfo().nPos, 10);
    grid.MoveWindow(0, 0, 260, 10 * RowHeight());
    EXPECT_FALSE(ScrollBarShows());
    grid.MoveWindow(0, 0, 260, 9 * RowHeight());
    EXPECT_TRUE(ScrollBarShows());
}

TEST_F(PropertyGridLayout, DoesNothingOnAResizeWithoutAScrollBar) {
    Fill(4, 5);
    const int gutter = grid.GetGutterWidth();
    grid.MoveWindow(0, 0, 200, 2 * RowHeight());
    EXPECT_EQ(ScrollBar(), nullptr);
    EXPECT_EQ(grid.GetGutterWidth(), gutter);
    // The next change of the rows lays them out.
    AddRows(0, 1);
    EXPECT_TRUE(ScrollBarShows());
}

TEST_F(PropertyGridLayout, SurvivesAWindowWithoutArea) {
    Fill(3, 5);
    grid.MoveWindow(0, 0, 0, 0);
    AddRows(0, 1);
    EXPECT_EQ(ScrollInfo().nPage, 0U);
    grid.MoveWindow(0, 0, 300, 10 * RowHeight());
    EXPECT_FALSE(ScrollBarShows());
}

TEST_F(PropertyGridLayout, LaysOutRowsThatWereAddedBeforeTheWindow) {
    CTestGrid early;
    early.AddSection(L"Section");
    for (int row = 0; row < 30; ++row) {
        early.AddIntegerItem(0, std::to_wstring(row), row);
    }
    ASSERT_TRUE(
        early.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &parent, 1));
    ASSERT_NE(early.GetDlgItem(1000), nullptr);
    EXPECT_TRUE(early.GetDlgItem(1000)->IsWindowVisible());
}

// A start before the window has its size would have no space for the row.
TEST_F(PropertyGridLayout, StartsOnceAndNotBeforeTheWindowHasItsSize) {
    CTestGrid early;
    early.AddSection(L"Section");
    ASSERT_TRUE(
        early.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &parent, 1));
    EXPECT_EQ(early.GetDlgItem(1000), nullptr);
}

TEST_F(PropertyGridLayout, HasTheWholeWidthInANewWindow) {
    grid.SetEmptyListText(L"nothing");
    const CGridPicture first(grid);
    Fill(9, 5);
    ASSERT_TRUE(ScrollBarShows());
    grid.DestroyWindow();
    grid.ResetContents();
    CreateGrid(300, 200);
    const CGridPicture again(grid);
    EXPECT_TRUE(again.Has({100, 0, 200, 200}, text));
    for (int x = 0; x < 300; ++x) {
        EXPECT_EQ(again.Count({x, 0, x + 1, 200}, text), first.Count({x, 0, x + 1, 200}, text)) << x;
    }
}

TEST_F(PropertyGridLayout, AsksForARepaintAfterEveryChange) {
    const auto repaints = [this](auto change) {
        grid.UpdateWindow();
        EXPECT_FALSE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
        change();
        CRect dirty;
        CRect client;
        grid.GetClientRect(&client);
        ::GetUpdateRect(grid.m_hWnd, &dirty, FALSE);
        return dirty == client;
    };
    EXPECT_TRUE(repaints([this] { grid.AddSection(L"Section"); }));
    EXPECT_TRUE(repaints([this] { grid.AddIntegerItem(0, L"a", 1); }));
    EXPECT_FALSE(repaints([this] { grid.AddIntegerItem(0, L"a", 1); }));
    EXPECT_TRUE(repaints([this] { grid.SetItemValue(0, 2); }));
    EXPECT_TRUE(repaints([this] { grid.AcceptValues(); }));
    EXPECT_TRUE(repaints([this] { grid.SetItemEditable(0, false); }));
    EXPECT_TRUE(repaints([this] { grid.SetItemEditable(0, true); }));
    EXPECT_TRUE(repaints([this] { grid.SetGutterWidth(99); }));
    EXPECT_TRUE(repaints([this] { grid.SetBackColor(1); }));
    EXPECT_TRUE(repaints([this] { grid.SetDisplayMode(1); }));
    EXPECT_TRUE(repaints([this] { grid.SetSectionCollapsed(0, true); }));
    EXPECT_TRUE(repaints([this] { grid.SetFocusedItem(0); }));
    EXPECT_TRUE(repaints([this] { grid.SetBooleanTexts(L"y", L"n"); }));
    EXPECT_TRUE(repaints([this] { grid.ResetContents(); }));
}

}  // namespace
