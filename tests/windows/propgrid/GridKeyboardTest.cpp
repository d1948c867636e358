// The grid and the keyboard: how the focus moves, what is collapsed, which keys a dialog leaves to the grid.
#include "tests/windows/propgrid/GridInputFixture.h"

namespace {

class GridKeyboard : public GridInputTest {
protected:
    // Two sections of two items each, with headers.
    GridKeyboard() {
        grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
        second = grid.AddSection(L"Second");
        a = grid.AddStringItem(section, L"a", L"");
        b = grid.AddStringItem(section, L"b", L"");
        c = grid.AddStringItem(second, L"c", L"");
        d = grid.AddStringItem(second, L"d", L"");
    }
    // Where the focus is after each of `count` keys: "S" for the first section, "T" for the second, the
    // item's name, "-" for none.
    std::string Walk(UINT key, int count) {
        std::string walked;
        for (int step = 0; step < count; ++step) {
            PressKey(key);
            walked += Focused();
        }
        return walked;
    }
    std::string Focused() const {
        EXPECT_TRUE(grid.GetFocusedItem() == CPropertyGrid::NO_ID ||
                    grid.GetFocusedSection() == CPropertyGrid::NO_ID);
        if (grid.GetFocusedSection() != CPropertyGrid::NO_ID) {
            return grid.GetFocusedSection() == section ? "S" : "T";
        }
        const std::wstring name = grid.GetItemName(grid.GetFocusedItem());
        return name.empty() ? "-" : std::string(name.begin(), name.end());
    }

    UINT second = 0, a = 0, b = 0, c = 0, d = 0;
};

TEST_F(GridKeyboard, DownGoesThroughAllRowsAndAroundTheEnd) {
    EXPECT_EQ(Walk(VK_DOWN, 8), "SabTcdSa");
}

TEST_F(GridKeyboard, UpGoesBackAndAroundTheStart) {
    grid.SetFocusedItem(b);
    EXPECT_EQ(Walk(VK_UP, 7), "aSdcTba");
}

TEST_F(GridKeyboard, UpHasNowhereToGoFromNoRow) {
    EXPECT_EQ(Walk(VK_UP, 1), "-");
    EXPECT_EQ(Walk(VK_LEFT, 1), "-");
}

TEST_F(GridKeyboard, TheItemsOfACollapsedSectionAreSkipped) {
    grid.SetSectionCollapsed(section, true);
    EXPECT_EQ(Walk(VK_DOWN, 4), "STcd");
    EXPECT_EQ(Walk(VK_UP, 4), "cTSd");
}

TEST_F(GridKeyboard, AFocusedRowInACollapsedSectionCountsAsNone) {
    grid.SetFocusedItem(b);
    grid.SetSectionCollapsed(section, true);
    EXPECT_EQ(Walk(VK_DOWN, 1), "S");
}

TEST_F(GridKeyboard, AFlatListHasNoHeadersAndIgnoresCollapsing) {
    grid.SetSectionCollapsed(section, true);
    for (const UINT mode : {CPropertyGrid::DM_FLAT, CPropertyGrid::DM_SORTED}) {
        grid.SetDisplayMode(mode);
        grid.SetFocusedItem(CPropertyGrid::NO_ID);
        EXPECT_EQ(Walk(VK_DOWN, 5), "abcda");
    }
}

TEST_F(GridKeyboard, TheFocusMovesInSectionOrderInTheSortedListToo) {
    // Sorted: A B a b c d.
    grid.AddStringItem(second, L"A", L"");
    grid.AddStringItem(section, L"B", L"");
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    EXPECT_EQ(Walk(VK_DOWN, 7), "abBcdAa");
    EXPECT_EQ(Walk(VK_UP, 7), "AdcBbaA");
}

TEST_F(GridKeyboard, RowsThatCannotHaveTheFocusAreSkipped) {
    grid.SetItemEditable(b, false);
    grid.SetItemEditable(d, false);
    EXPECT_EQ(Walk(VK_DOWN, 3), "Sab");
    grid.SetFocusNonEditable(false);
    grid.SetFocusedItem(CPropertyGrid::NO_ID);
    EXPECT_EQ(Walk(VK_DOWN, 6), "SaTcSa");
    EXPECT_EQ(Walk(VK_UP, 4), "ScTa");
    grid.SetFocusedItem(b);
    EXPECT_EQ(Walk(VK_DOWN, 1), "T");
}

TEST_F(GridKeyboard, LeftCollapsesAFocusedSectionAndElseGoesUp) {
    grid.SetFocusedSection(second);
    PressKey(VK_LEFT);
    EXPECT_TRUE(grid.IsSectionCollapsed(second));
    EXPECT_EQ(Walk(VK_LEFT, 3), "baS");
    EXPECT_EQ(Walk(VK_LEFT, 1), "S");
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_EQ(Walk(VK_LEFT, 1), "T");
}

TEST_F(GridKeyboard, RightExpandsAFocusedSectionAndElseGoesDown) {
    grid.SetSectionCollapsed(section, true);
    grid.SetFocusedSection(section);
    PressKey(VK_RIGHT);
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
    EXPECT_EQ(Focused(), "S");
    EXPECT_EQ(Walk(VK_RIGHT, 3), "abT");
}

TEST_F(GridKeyboard, CollapsingByKeyRecomputesTheScrollRange) {
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    grid.SetFocusedSection(section);
    PressKey(VK_LEFT);
    EXPECT_FALSE(ScrollBarShows());
    Type(L'+');
    EXPECT_TRUE(ScrollBarShows());
}

TEST_F(GridKeyboard, OtherKeysDoNothing) {
    grid.SetFocusedItem(a);
    for (const UINT key : {VK_RETURN, VK_TAB, VK_ESCAPE, VK_SPACE, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_F2,
                           VK_F4, VK_DELETE}) {
        PressKey(key);
        EXPECT_EQ(Focused(), "a");
        EXPECT_EQ(EditorCount(), 0);
    }
}

TEST_F(GridKeyboard, AStarExpandsAndASlashCollapsesAllSections) {
    Type(L'/');
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_TRUE(grid.IsSectionCollapsed(second));
    Type(L'*');
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
    EXPECT_FALSE(grid.IsSectionCollapsed(second));
}

TEST_F(GridKeyboard, PlusAndMinusGoToTheFocusedSection) {
    grid.SetFocusedSection(second);
    Type(L'-');
    EXPECT_TRUE(grid.IsSectionCollapsed(second));
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
    Type(L'+');
    EXPECT_FALSE(grid.IsSectionCollapsed(second));
    grid.SetFocusedItem(a);
    Type(L'-');
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
}

// A double click collapses and expands without a new layout.
TEST_F(GridKeyboard, PlusAndMinusLayOutASectionThatIsSoAlready) {
    const auto doubleClick = [&] {
        CPoint header = HeaderOf(section);
        header.x = 40;
        DoubleClickOn(header);
    };
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    const int range = ScrollInfo().nMax;
    doubleClick();
    ASSERT_TRUE(grid.IsSectionCollapsed(section));
    ASSERT_TRUE(ScrollBarShows());
    Type(L'-');
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_FALSE(ScrollBarShows());
    doubleClick();
    ASSERT_FALSE(grid.IsSectionCollapsed(section));
    ASSERT_FALSE(ScrollBarShows());
    Type(L'+');
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
    EXPECT_TRUE(ScrollBarShows());
    EXPECT_EQ(ScrollInfo().nMax, range);
}

TEST_F(GridKeyboard, PlusAndMinusWithoutAFocusedSectionLeaveTheLayout) {
    CPoint header = HeaderOf(section);
    header.x = 40;
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    DoubleClickOn(header);
    for (const UINT item : {c, CPropertyGrid::NO_ID}) {
        grid.SetFocusedItem(item);
        Type(L'-');
        Type(L'+');
        EXPECT_TRUE(grid.IsSectionCollapsed(section));
        EXPECT_TRUE(ScrollBarShows());
    }
}

TEST_F(GridKeyboard, AStarAndASlashRecomputeTheScrollRange) {
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    const int range = ScrollInfo().nMax;
    Type(L'/');
    EXPECT_FALSE(ScrollBarShows());
    Type(L'*');
    EXPECT_TRUE(ScrollBarShows());
    EXPECT_EQ(ScrollInfo().nMax, range);
    // Also where every section is so already.
    CPoint header = HeaderOf(section);
    header.x = 40;
    grid.SetSectionCollapsed(second, true);
    DoubleClickOn(header);
    ASSERT_TRUE(ScrollBarShows());
    Type(L'/');
    EXPECT_FALSE(ScrollBarShows());
}

TEST_F(GridKeyboard, OtherCharactersDoNothing) {
    grid.SetFocusedItem(a);
    for (const wchar_t character : std::wstring(L"aZ 1\t\r\x1b")) {
        Type(character);
    }
    EXPECT_EQ(Focused(), "a");
    EXPECT_EQ(EditorCount(), 0);
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
}

TEST_F(GridKeyboard, AGridWithoutRowsTakesAnyKey) {
    grid.ResetContents();
    for (const UINT key : {VK_DOWN, VK_UP, VK_LEFT, VK_RIGHT}) {
        EXPECT_EQ(Walk(key, 1), "-");
    }
    for (const wchar_t character : std::wstring(L"*/+-")) {
        Type(character);
    }
    grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
    grid.AddSection(L"empty");
    EXPECT_EQ(Walk(VK_DOWN, 1), "-");
}

TEST_F(GridKeyboard, OneRowAloneStaysFocused) {
    grid.ResetContents();
    section = grid.AddSection(L"only");
    EXPECT_EQ(Walk(VK_DOWN, 2), "SS");
    EXPECT_EQ(Walk(VK_UP, 2), "SS");
}

TEST_F(GridKeyboard, ADialogLeavesItTheArrowKeysAndCharacters) {
    const auto code = static_cast<UINT>(grid.SendMessage(WM_GETDLGCODE));
    EXPECT_EQ(code & (DLGC_WANTARROWS | DLGC_WANTCHARS), UINT{DLGC_WANTARROWS | DLGC_WANTCHARS});
    EXPECT_EQ(code & (DLGC_WANTTAB | DLGC_WANTALLKEYS), 0U);
}

TEST_F(GridKeyboard, APlaceholderKeepsItsAnswerToADialog) {
    CWnd placeholder;
    placeholder.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 7);
    const HWND window = placeholder.UnsubclassWindow();
    CPropertyGrid other;
    ASSERT_TRUE(other.SubclassWindow(window));
    EXPECT_EQ(other.SendMessage(WM_GETDLGCODE), DLGC_STATIC | DLGC_WANTARROWS | DLGC_WANTCHARS);
    EXPECT_NE(other.GetStyle() & WS_TABSTOP, 0U);
}

// ---- Scrolling to the focused row

class GridReveal : public GridInputTest {
protected:
    void Fill(int rows) {
        for (int row = 0; row < rows; ++row) {
            items.push_back(grid.AddIntegerItem(section, std::to_wstring(row), row));
        }
        grid.UpdateWindow();
    }
    // The first row that does not show in full.
    int Hidden() const { return 200 / RowHeight(); }

    std::vector<UINT> items;
};

TEST_F(GridReveal, ARowThatShowsInFullScrollsNothing) {
    Fill(40);
    grid.SetFocusedItem(items[0]);
    for (int step = 1; step < Hidden(); ++step) {
        PressKey(VK_DOWN);
    }
    EXPECT_EQ(grid.GetFocusedItem(), items[static_cast<size_t>(Hidden() - 1)]);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridReveal, ARowBelowTheWindowScrollsToItsPositionInTheWindow) {
    Fill(40);
    grid.SetFocusedItem(items[static_cast<size_t>(Hidden() - 1)]);
    PressKey(VK_DOWN);
    EXPECT_EQ(ScrollPosition(), Hidden() * RowHeight());
}

TEST_F(GridReveal, TheThumbGoesToTheRowsPositionInTheWindowNotInTheList) {
    Fill(80);
    Scroll(SB_THUMBPOSITION, 30 * RowHeight());
    grid.SetFocusedItem(items[static_cast<size_t>(30 + Hidden() - 1)]);
    PressKey(VK_DOWN);
    EXPECT_EQ(ScrollPosition(), Hidden() * RowHeight());
}

TEST_F(GridReveal, ARowAboveTheWindowScrollsToTheTop) {
    Fill(40);
    Scroll(SB_THUMBPOSITION, 3 * RowHeight());
    grid.SetFocusedItem(items[3]);
    PressKey(VK_UP);
    EXPECT_EQ(grid.GetFocusedItem(), items[2]);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridReveal, NothingScrollsWithoutAScrollBar) {
    Fill(Hidden() - 2);
    ASSERT_FALSE(ScrollBarShows());
    grid.SetFocusedItem(items.back());
    PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusedItem(), items.front());
    // Two rows taller than the window that shows no bar: a smaller window deliberately brings none.
    grid.MoveWindow(0, 0, 300, 2 * RowHeight());
    for (size_t step = 0; step < items.size(); ++step) {
        PressKey(VK_DOWN);
    }
    EXPECT_EQ(grid.GetFocusedItem(), items.front());
}

TEST_F(GridReveal, AHeaderIsRevealedToo) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    Fill(40);
    grid.SetFocusedItem(items.back());
    PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusedSection(), section);
    Scroll(SB_BOTTOM);
    grid.SetFocusedItem(items.back());
    PressKey(VK_DOWN);
    EXPECT_EQ(ScrollPosition(), 0);
}

}  // namespace
