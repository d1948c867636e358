// The grid's scroll bar and the mouse wheel.
#include "tests/windows/propgrid/GridInputFixture.h"

namespace {

class GridScroll : public GridInputTest {
protected:
    GridScroll() {
        for (int row = 0; row < 40; ++row) {
            items.push_back(grid.AddIntegerItem(section, L"row " + std::to_wstring(row), row));
        }
        grid.UpdateWindow();
    }
    int Range() const { return 40 * RowHeight(); }
    int Last() const { return Range() - 200; }

    std::vector<UINT> items;
};

TEST_F(GridScroll, ALineIsARow) {
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(ScrollPosition(), RowHeight());
    Scroll(SB_LINEDOWN);
    Scroll(SB_LINEUP);
    EXPECT_EQ(ScrollPosition(), RowHeight());
}

TEST_F(GridScroll, APageIsTheWindow) {
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(ScrollPosition(), 200);
    Scroll(SB_PAGEDOWN);
    Scroll(SB_PAGEUP);
    EXPECT_EQ(ScrollPosition(), 200);
}

TEST_F(GridScroll, LinesAndPagesStopAtBothEnds) {
    Scroll(SB_THUMBPOSITION, 3);
    Scroll(SB_LINEUP);
    EXPECT_EQ(ScrollPosition(), 0);
    Scroll(SB_THUMBPOSITION, 3);
    Scroll(SB_PAGEUP);
    EXPECT_EQ(ScrollPosition(), 0);
    Scroll(SB_THUMBPOSITION, Last() - 3);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(ScrollPosition(), Last());
    Scroll(SB_THUMBPOSITION, Last() - 3);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(ScrollPosition(), Last());
}

TEST_F(GridScroll, TopAndBottomGoToTheEnds) {
    Scroll(SB_BOTTOM);
    EXPECT_EQ(ScrollPosition(), Last());
    Scroll(SB_TOP);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridScroll, TheThumbGoesWhereItIsPut) {
    Scroll(SB_THUMBTRACK, 77);
    EXPECT_EQ(ScrollPosition(), 77);
    Scroll(SB_THUMBPOSITION, 78);
    EXPECT_EQ(ScrollPosition(), 78);
}

TEST_F(GridScroll, TheThumbIsIgnoredWhereItIsAndBeyondTheEnds) {
    const auto repaints = [&](int position) {
        grid.UpdateWindow();
        Scroll(SB_THUMBPOSITION, position);
        return ::GetUpdateRect(grid.m_hWnd, nullptr, FALSE) != FALSE;
    };
    EXPECT_FALSE(repaints(0));
    EXPECT_TRUE(repaints(10));
    EXPECT_FALSE(repaints(10));
    Scroll(SB_BOTTOM);
    EXPECT_FALSE(repaints(Last() + 1));
    EXPECT_EQ(ScrollPosition(), Last());
}

// A scroll bar whose thumb is being dragged at `draggedTo`.
int draggedTo = 0;
WNDPROC barProcedure = nullptr;
LRESULT CALLBACK DraggedBar(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = ::CallWindowProc(barProcedure, window, message, wParam, lParam);
    auto* const info = reinterpret_cast<SCROLLINFO*>(lParam);
    if (message == SBM_GETSCROLLINFO && (info->fMask & SIF_TRACKPOS) != 0) {
        info->nTrackPos = draggedTo;
    }
    return result;
}

TEST_F(GridScroll, TheThumbIsFollowedInAListOfMoreThan65535Pixels) {
    for (int row = 40; row < 6000; ++row) {
        grid.AddIntegerItem(section, L"row " + std::to_wstring(row), row);
    }
    ASSERT_GT(ScrollInfo().nMax, 80000);
    const HWND bar = ScrollBar()->m_hWnd;
    barProcedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DraggedBar)));
    // The message holds the lower half of the position alone.
    draggedTo = 70001;
    Scroll(SB_THUMBTRACK, draggedTo);
    EXPECT_EQ(ScrollPosition(), 70001);
    // A position that the bar knows nothing of is what it says.
    Scroll(SB_THUMBPOSITION, 500);
    EXPECT_EQ(ScrollPosition(), 500);
    ::SetWindowLongPtr(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(barProcedure));
    Scroll(SB_BOTTOM);
    EXPECT_EQ(ScrollPosition(), 6000 * RowHeight() - 200);
}

TEST_F(GridScroll, TheEndOfAScrollIsNoScroll) {
    parent.SetFocus();
    Scroll(SB_ENDSCROLL);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
}

TEST_F(GridScroll, ScrollingTakesTheFocusAndRepaints) {
    parent.SetFocus();
    grid.UpdateWindow();
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_TRUE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
}

TEST_F(GridScroll, OnlyTheGridsOwnBarScrolls) {
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(ScrollPosition(), 0);
    CScrollBar other;
    other.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 10, 100), &grid, 9);
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(other.m_hWnd));
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridScroll, NothingScrollsWhileTheBarIsHidden) {
    const HWND bar = ScrollBar()->m_hWnd;
    grid.ResetContents();
    ASSERT_FALSE(ScrollBarShows());
    parent.SetFocus();
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(bar));
    Turn(-120);
    Turn(120);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
}

TEST_F(GridScroll, ANotchOfTheWheelIsThreeRows) {
    Turn(-120);
    EXPECT_EQ(ScrollPosition(), 3 * RowHeight());
    Turn(-250);
    EXPECT_EQ(ScrollPosition(), 9 * RowHeight());
    Turn(120);
    EXPECT_EQ(ScrollPosition(), 6 * RowHeight());
    Turn(1200);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridScroll, LessThanANotchDoesNothing) {
    Turn(-119);
    EXPECT_EQ(ScrollPosition(), 0);
    Turn(-120);
    Turn(119);
    EXPECT_EQ(ScrollPosition(), 3 * RowHeight());
}

TEST_F(GridScroll, TheWheelStopsAtTheEnd) {
    Turn(-32000);
    EXPECT_EQ(ScrollPosition(), Last());
}

TEST_F(GridScroll, TheWheelAndTheBarEndAnOpenEdit) {
    const std::vector<std::function<void()>> scrolls = {
        [&] { Turn(-120); }, [&] { Turn(120); }, [&] { Scroll(SB_LINEDOWN); }, [&] { Scroll(SB_TOP); },
        // As it comes to the edit, which has the focus and hands it on.
        [&] { ::SendMessage(Edit(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0); },
        [&] { ::SendMessage(Edit(), WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0); }};
    int typed = 100;
    for (const auto& scroll : scrolls) {
        Scroll(SB_THUMBPOSITION, 5);
        parent.ForgetChanges();
        ClickOn(ValueOf(items[4]));
        ASSERT_NE(Edit(), nullptr);
        ::SetWindowText(Edit(), std::to_wstring(++typed).c_str());
        scroll();
        ExpectNoEditorLeft();
        EXPECT_EQ(Value<int>(items[4]), typed);
        EXPECT_EQ(parent.changedItems, Ids{items[4]});
    }
}

}  // namespace
