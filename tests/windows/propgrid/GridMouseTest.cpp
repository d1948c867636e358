// The grid and the mouse: what a press focuses, the edit button, custom items, the divider, double clicks.
#include "tests/windows/propgrid/GridInputFixture.h"

namespace {

class GridMouse : public GridInputTest {};

constexpr int dividerAt = 150;

TEST_F(GridMouse, APressTakesTheKeyboardFocus) {
    parent.SetFocus();
    Press(CPoint(250, 190));
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(GridMouse, APressOnANameFocusesTheItemAndOpensNothing) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(NameOf(item));
    EXPECT_EQ(grid.GetFocusedItem(), item);
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridMouse, APressOnNothingClearsTheFocus) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(item);
    ClickOn(CPoint(20, 190));
    EXPECT_EQ(grid.GetFocusedItem(), CPropertyGrid::NO_ID);
    EXPECT_TRUE(grid.GetEditButtonRect().IsRectEmpty());
}

TEST_F(GridMouse, AnItemThatIsNotEditableIsFocusedUnlessThatIsSwitchedOff) {
    const UINT item = grid.AddStringItem(section, L"name", L"value", false);
    ClickOn(ValueOf(item));
    EXPECT_EQ(grid.GetFocusedItem(), item);
    EXPECT_EQ(EditorCount(), 0);
    grid.SetFocusNonEditable(false);
    ClickOn(ValueOf(item));
    EXPECT_EQ(grid.GetFocusedItem(), CPropertyGrid::NO_ID);
}

TEST_F(GridMouse, AGlyphCollapsesItsSectionAndFocusesIt) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(item);
    ClickOn(GlyphOf(section));
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_EQ(grid.GetFocusedSection(), section);
    EXPECT_EQ(grid.GetFocusedItem(), CPropertyGrid::NO_ID);
    ClickOn(GlyphOf(section));
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
}

TEST_F(GridMouse, AGlyphRecomputesTheScrollRange) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    EXPECT_TRUE(ScrollBarShows());
    ClickOn(GlyphOf(section));
    EXPECT_FALSE(ScrollBarShows());
}

TEST_F(GridMouse, AHeaderFocusesItsSectionAlone) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    const UINT other = grid.AddSection(L"Other");
    CPoint point = HeaderOf(other);
    point.x = 40;
    ClickOn(point);
    EXPECT_EQ(grid.GetFocusedSection(), other);
    EXPECT_FALSE(grid.IsSectionCollapsed(other));
}

TEST_F(GridMouse, HeadersAreNotHitInAFlatList) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(NameOf(item));
    EXPECT_EQ(grid.GetFocusedSection(), CPropertyGrid::NO_ID);
    EXPECT_EQ(grid.GetFocusedItem(), item);
}

TEST_F(GridMouse, TheItemsOfACollapsedSectionAreNotHit) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const CPoint name = NameOf(item);
    grid.SetSectionCollapsed(section, true);
    ClickOn(name);
    EXPECT_EQ(grid.GetFocusedItem(), CPropertyGrid::NO_ID);
}

TEST_F(GridMouse, TheEditButtonIsPushedWhileTheMouseIsOnIt) {
    const UINT item = grid.AddColorItem(section, L"name", RGB(1, 2, 3), true);
    Focus(item);
    const CPoint button = ButtonOf(item);
    const CRect area(button.x - 6, button.y - 6, button.x + 6, button.y + 6);
    const auto isPushed = [&] {
        grid.UpdateWindow();
        const CGridPicture picture(grid);
        // A button that is up has a light left edge.
        return picture.At(300 - RowHeight(), button.y) != ::GetSysColor(COLOR_3DHILIGHT);
    };
    EXPECT_FALSE(isPushed());
    Press(button);
    EXPECT_EQ(::GetCapture(), grid.m_hWnd);
    EXPECT_TRUE(isPushed());
    MoveTo(CPoint(20, 100));
    EXPECT_FALSE(isPushed());
    MoveTo(button);
    EXPECT_TRUE(isPushed());
    MoveTo(CPoint(20, 100));
    Release(CPoint(20, 100));
    EXPECT_FALSE(isPushed());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridMouse, TheButtonOfARowThatIsScrolledAwayIsGone) {
    std::vector<UINT> items;
    for (int row = 0; row < 40; ++row) {
        items.push_back(grid.AddStringItem(section, std::to_wstring(row), L"value"));
    }
    const CPoint value = ValueOf(items[1]);
    Focus(items[1]);
    Turn(-240);
    ClickOn(value);
    EXPECT_EQ(grid.GetFocusedItem(), items[7]);
    EXPECT_EQ(TextOf(Edit()), L"value");
}

TEST_F(GridMouse, TheButtonOfARowInACollapsedSectionIsGone) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(item);
    const CPoint value = ValueOf(item);
    grid.SetSectionCollapsed(section, true);
    ClickOn(value);
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridMouse, TheEditButtonOfTheRowThatHadTheFocusIsNoButtonAnyMore) {
    const UINT string = grid.AddStringItem(section, L"string", L"value");
    const UINT item = grid.AddCustomItem(section, L"custom", &custom);
    Focus(string);
    grid.UpdateWindow();
    PressKey(VK_DOWN);
    ASSERT_EQ(grid.GetFocusedItem(), item);
    ClickOn(ValueOf(string));
    EXPECT_EQ(grid.GetFocusedItem(), string);
    EXPECT_EQ(TextOf(Edit()), L"value");
    EXPECT_EQ(custom.calls.size(), 1U) << "the press, and no release";
}

TEST_F(GridMouse, AnyMoveOfTheFocusEmptiesTheEditButtonUntilTheNextPaint) {
    const UINT string = grid.AddStringItem(section, L"string", L"value");
    const UINT item = grid.AddCustomItem(section, L"custom", &custom);
    const std::vector<std::function<void()>> moves = {
        [&] { PressKey(VK_DOWN); },
        [&] { PressKey(VK_UP); },
        [&] { grid.SetFocusedItem(item); },
        [&] { grid.SetFocusedItem(CPropertyGrid::NO_ID); },
        [&] { grid.SetFocusedSection(section); },
        [&] { Press(CPoint(20, 190)); },
    };
    for (const auto& move : moves) {
        grid.SetFocusedItem(string);
        grid.UpdateWindow();
        ASSERT_FALSE(grid.GetEditButtonRect().IsRectEmpty());
        move();
        EXPECT_TRUE(grid.GetEditButtonRect().IsRectEmpty());
        grid.UpdateWindow();
        EXPECT_TRUE(grid.GetEditButtonRect().IsRectEmpty()) << "no row with an editor is focused";
    }
}

// A press on the value has focused the item, or was not captured: its release does nothing.
TEST_F(GridMouse, ACustomItemThatDoesNotCaptureGetsNoRelease) {
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ValueOf(item));
    EXPECT_TRUE(custom.calls.empty()) << "the press that focuses";
    ClickOn(ValueOf(item));
    ASSERT_EQ(custom.calls.size(), 1U);
    EXPECT_EQ(custom.calls[0].substr(0, 4), "down");
}

TEST_F(GridMouse, ACustomItemMayCaptureTheMouse) {
    custom.capturesMouse = true;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    Focus(item);
    EXPECT_TRUE(custom.calls.empty());
    const CPoint value = ValueOf(item);
    Press(value);
    EXPECT_EQ(::GetCapture(), grid.m_hWnd);
    MoveTo(CPoint(-5, 77));
    bool captureWasGone = false;
    custom.during = [&] { captureWasGone = ::GetCapture() == nullptr; };
    Release(CPoint(1, 2));
    EXPECT_TRUE(captureWasGone);
    EXPECT_EQ(custom.calls,
              (std::vector<std::string>{"down " + std::to_string(value.x) + " " + std::to_string(value.y),
                                        "move -5 77", "up 1 2"}));
    EXPECT_EQ(custom.rect, RectsOf(item).second);
    MoveTo(CPoint(1, 1));
    EXPECT_EQ(custom.calls.size(), 3U);
}

TEST_F(GridMouse, ACustomItemThatDoesNotCaptureLeavesThePressToTheGrid) {
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    const UINT other = grid.AddStringItem(section, L"other", L"value");
    Focus(item);
    ClickOn(NameOf(other));
    EXPECT_EQ(custom.calls.size(), 1U);
    EXPECT_EQ(grid.GetFocusedItem(), other);
}

TEST_F(GridMouse, OnlyCustomItemsWithoutEditorGetTheMouse) {
    custom.mode = EM_MODAL;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    Focus(item);
    ClickOn(NameOf(item));
    EXPECT_TRUE(custom.calls.empty());
}

TEST_F(GridMouse, TheDividerFollowsTheMouse) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(item);
    Press(CPoint(dividerAt + 2, 190));
    EXPECT_EQ(::GetCapture(), grid.m_hWnd);
    MoveTo(CPoint(dividerAt + 12, 20));
    EXPECT_EQ(grid.GetGutterWidth(), dividerAt + 10);
    Release(CPoint(dividerAt + 12, 20));
    EXPECT_EQ(::GetCapture(), nullptr);
    MoveTo(CPoint(dividerAt + 50, 20));
    EXPECT_EQ(grid.GetGutterWidth(), dividerAt + 10);
    EXPECT_EQ(grid.GetFocusedItem(), item) << "a press on the divider leaves the focus";
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridMouse, TheDividerIsHeldWithinLessThanThreePixels) {
    for (const int distance : {-3, 3}) {
        Press(CPoint(dividerAt + distance, 190));
        EXPECT_EQ(::GetCapture(), nullptr);
        Release(CPoint(dividerAt + distance, 190));
    }
    for (const int distance : {-2, 2}) {
        Press(CPoint(dividerAt + distance, 190));
        EXPECT_EQ(::GetCapture(), grid.m_hWnd);
        Release(CPoint(dividerAt + distance, 190));
    }
}

TEST_F(GridMouse, TheDividerStopsAtOneAndAtFourFifths) {
    Press(CPoint(dividerAt, 190));
    MoveTo(CPoint(-500, 190));
    EXPECT_EQ(grid.GetGutterWidth(), 60);
    MoveTo(CPoint(-490, 190));
    EXPECT_EQ(grid.GetGutterWidth(), 70) << "it follows the movement, not the position";
    MoveTo(CPoint(900, 190));
    EXPECT_EQ(grid.GetGutterWidth(), 240);
    Release(CPoint(900, 190));
}

TEST_F(GridMouse, TheLimitsOfTheDividerAreWholePixels) {
    grid.MoveWindow(0, 0, 33, 100);
    Press(CPoint(dividerAt, 190));
    MoveTo(CPoint(-500, 190));
    EXPECT_EQ(grid.GetGutterWidth(), 6);
    MoveTo(CPoint(900, 190));
    EXPECT_EQ(grid.GetGutterWidth(), 26);
    Release(CPoint(0, 0));
}

TEST_F(GridMouse, TheCursorShowsWhereTheDividerIs) {
    const auto cursorAt = [&](int x) {
        MoveTo(CPoint(x, 190));
        return ::GetCursor();
    };
    const HCURSOR size = ::LoadCursor(nullptr, IDC_SIZEWE), arrow = ::LoadCursor(nullptr, IDC_ARROW);
    EXPECT_EQ(cursorAt(dividerAt - 2), size);
    EXPECT_EQ(cursorAt(dividerAt - 3), arrow);
    EXPECT_EQ(cursorAt(dividerAt + 2), size);
    EXPECT_EQ(cursorAt(dividerAt + 3), arrow);
    Press(CPoint(dividerAt, 190));
    EXPECT_EQ(::GetCursor(), size);
    EXPECT_EQ(cursorAt(0), size) << "while it is dragged";
    Release(CPoint(0, 190));
    EXPECT_EQ(::GetCursor(), arrow);
}

TEST_F(GridMouse, TheCursorIsLeftAloneWhileAnEditorIsOpen) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(ValueOf(item));
    ASSERT_NE(Edit(), nullptr);
    ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    MoveTo(CPoint(dividerAt, 190));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
}

TEST_F(GridMouse, AnotherWindowThatTakesTheMouseEndsTheDrag) {
    Press(CPoint(dividerAt, 190));
    parent.SetCapture();
    MoveTo(CPoint(100, 190));
    EXPECT_EQ(grid.GetGutterWidth(), dividerAt);
    EXPECT_EQ(::GetCapture(), parent.m_hWnd) << "the grid leaves the mouse to the other window";
    ::ReleaseCapture();
}

TEST_F(GridMouse, ADoubleClickInvertsABoolean) {
    const UINT item = grid.AddBooleanItem(section, L"name", true);
    Focus(item);
    DoubleClickOn(NameOf(item));
    EXPECT_FALSE(Value<bool>(item));
    EXPECT_EQ(parent.changedItems, Ids{item});
    EXPECT_EQ(parent.changedValues, Texts{L"False"}) << "stored before it is notified";
}

TEST_F(GridMouse, ADoubleClickGoesThroughTheChoicesOfACombo) {
    const UINT item = grid.AddComboItem(section, L"name", {L"a", L"b", L"c"}, 1);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(Value<int>(item), 2);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(Value<int>(item), 0);
    EXPECT_EQ(parent.changedItems, (Ids{item, item}));
    EXPECT_EQ(parent.changedValues, (Texts{L"c", L"a"})) << "stored before it is notified";
}

TEST_F(GridMouse, ADoubleClickBringsAnIndexOutsideBackToTheChoices) {
    const UINT item = grid.AddComboItem(section, L"name", {L"a", L"b", L"c"}, 0);
    for (const auto& [before, after] : {std::pair{-1, 0}, {-3, 1}, {3, 1}, {INT_MAX, 2}}) {
        grid.SetItemValue(item, before);
        DoubleClickOn(NameOf(item));
        EXPECT_EQ(Value<int>(item), after);
    }
}

TEST_F(GridMouse, ADoubleClickOnAComboWithoutChoicesDoesNothing) {
    const UINT item = grid.AddComboItem(section, L"name", {}, 4);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(Value<int>(item), 4);
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridMouse, ADoubleClickChangesValuesThatAreNotEditable) {
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true, false);
    const UINT combo = grid.AddComboItem(section, L"combo", {L"a", L"b"}, 0, false);
    DoubleClickOn(ValueOf(boolean));
    DoubleClickOn(ValueOf(combo));
    EXPECT_FALSE(Value<bool>(boolean));
    EXPECT_EQ(Value<int>(combo), 1);
    EXPECT_EQ(parent.changedItems, (Ids{boolean, combo}));
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridMouse, ADoubleClickLeavesUndefinedValuesUndefined) {
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true, true, true);
    const UINT combo = grid.AddComboItem(section, L"combo", {L"a", L"b"}, 0, true, true);
    DoubleClickOn(NameOf(boolean));
    DoubleClickOn(NameOf(combo));
    EXPECT_TRUE(grid.IsItemUndefined(boolean));
    EXPECT_TRUE(grid.IsItemUndefined(combo));
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridMouse, ADoubleClickOnASectionLeavesTheScrollRangeToTheNextLayout) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    for (int row = 0; row < 40; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    CPoint header = HeaderOf(section);
    header.x = 40;
    const int range = ScrollInfo().nMax;
    DoubleClickOn(header);
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_TRUE(ScrollBarShows());
    EXPECT_EQ(ScrollInfo().nMax, range);
    EXPECT_TRUE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE)) << "it is repainted";
}

TEST_F(GridMouse, ADoubleClickRunsAModalEditorOfAnEditableItem) {
    custom.mode = EM_MODAL;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
    EXPECT_EQ(parent.changedItems, Ids{item});
    grid.SetItemEditable(item, false);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(custom.calls.size(), 1U);
}

TEST_F(GridMouse, ADoubleClickOnOtherKindsDoesNothing) {
    const UINT item = grid.AddIntegerItem(section, L"name", 5);
    DoubleClickOn(NameOf(item));
    EXPECT_EQ(EditorCount(), 0);
    DoubleClickOn(CPoint(20, 190));
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridMouse, AGridWithoutItemsTakesAnyClick) {
    grid.ResetContents();
    for (const CPoint point : {CPoint(5, 5), CPoint(200, 5), CPoint(dividerAt, 5), CPoint(-1, -1)}) {
        DoubleClickOn(point);
    }
    grid.AddSection(L"empty");
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    for (const CPoint point : {CPoint(5, 5), CPoint(200, 5), CPoint(dividerAt, 5), CPoint(5, 100)}) {
        DoubleClickOn(point);
    }
    EXPECT_TRUE(parent.changedItems.empty());
}

}  // namespace
