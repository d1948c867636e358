// What the grid's window, its list and its edit tell assistive technology, and what it can do with them.
#include "propgrid/editors/ListAccess.h"
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/AccessibleClient.h"
#include "tests/windows/support/HandleCount.h"

namespace {

using Events = std::vector<std::string>;

constexpr unsigned canHaveFocus = STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;

// A grid of 300 x 200 pixels that has the focus, in insertion order unless a test says otherwise.
class GridAccess : public GridInputTest {
protected:
    // The events since the last call, those of the paint that is due included.
    static Events TakeFrom(CAccessibleEvents& events, CWnd& window) {
        window.UpdateWindow();
        return events.Take();
    }
    void FillRows(int count) {
        for (int row = 0; row < count; ++row) {
            grid.AddIntegerItem(section, L"row " + std::to_wstring(row), row);
        }
    }
    // Has a window carry out what was requested of it, and handles no other message: the window manager may
    // report the focus late, and the focus of another window ends an open editor.
    static void CarryOut(HWND window, UINT request) {
        MSG message;
        ASSERT_TRUE(::PeekMessage(&message, window, request, request, PM_REMOVE));
        ::DispatchMessage(&message);
    }
    void CarryOut() { CarryOut(grid, WM_GRID_ACCESS_REQUEST); }
    CRect OnScreen(CRect rect) const {
        grid.ClientToScreen(&rect);
        return rect;
    }
    static CRect Location(const CAccessibleClient& client, long child) {
        const RECT location = client.LocationOf(child);
        return {location.left, location.top, location.right, location.bottom};
    }
};

TEST_F(GridAccess, TellsEachRow) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    grid.AddIntegerItem(section, L"Width", 80);
    grid.AddStringItem(section, L"Maker", L"", true, true);
    grid.SetUndefinedText(L"(not given)");
    grid.AddCustomItem(section, L"Length", &custom);
    grid.AddStringItem(section, L"Article", L"D-4711", false);
    const CAccessibleClient client(grid);
    ASSERT_TRUE(client.IsConnected());
    EXPECT_EQ(client.Names(), L"Section Width Maker Length Article ");
    EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_OUTLINE);
    EXPECT_EQ(client.RoleOf(1), ROLE_SYSTEM_OUTLINEITEM);
    EXPECT_EQ(client.ValueOf(1), L"(none)");
    EXPECT_EQ(client.ValueOf(2), L"80");
    EXPECT_EQ(client.ValueOf(3), L"(not given)");
    EXPECT_EQ(client.ValueOf(4), L"custom");
    EXPECT_EQ(client.ActionOf(1), L"Collapse");
    EXPECT_EQ(client.ActionOf(2), L"Edit");
    EXPECT_EQ(client.ActionOf(5), L"(none)");
    EXPECT_EQ(client.StateOf(1), canHaveFocus | STATE_SYSTEM_EXPANDED);
    EXPECT_EQ(client.StateOf(2), canHaveFocus);
    EXPECT_EQ(client.StateOf(5), canHaveFocus | STATE_SYSTEM_READONLY);
}

TEST_F(GridAccess, IsAListWithoutHeaders) {
    grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.Names(), L"Width ");
    EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_LIST);
    EXPECT_EQ(client.RoleOf(1), ROLE_SYSTEM_LISTITEM);
}

TEST_F(GridAccess, IsCalledAsItsClientSaysOrByItsText) {
    const CAccessibleClient client(grid);
    grid.SetWindowText(L"text");
    EXPECT_EQ(client.NameOf(0), L"text");
    grid.SetAccessibleName(L"Door");
    EXPECT_EQ(client.NameOf(0), L"Door");
}

TEST_F(GridAccess, TellsWhereTheRowsAreShown) {
    const UINT first = grid.AddIntegerItem(section, L"first", 1);
    const UINT second = grid.AddIntegerItem(section, L"second", 2);
    const CAccessibleClient client(grid);
    const CRect row = RectsOf(first).first;
    EXPECT_EQ(Location(client, 1), OnScreen(CRect(0, row.top, 300, row.bottom)));
    EXPECT_EQ(client.HitTest(OnScreen(RectsOf(second).second).CenterPoint()), 2);
    EXPECT_EQ(Location(client, 0), OnScreen(CRect(0, 0, 300, 200)));
}

TEST_F(GridAccess, KnowsRowsAndScrollingBeforeTheyArePainted) {
    FillRows(40);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.CountChildren(), 40);
    EXPECT_EQ(client.StateOf(1) & STATE_SYSTEM_OFFSCREEN, 0U);
    EXPECT_EQ(client.StateOf(40) & STATE_SYSTEM_OFFSCREEN, unsigned{STATE_SYSTEM_OFFSCREEN});
    ASSERT_TRUE(ScrollBarShows());
    Scroll(SB_BOTTOM);
    EXPECT_EQ(client.StateOf(1) & STATE_SYSTEM_OFFSCREEN, unsigned{STATE_SYSTEM_OFFSCREEN});
    EXPECT_EQ(client.StateOf(40) & STATE_SYSTEM_OFFSCREEN, 0U);
    EXPECT_EQ(Location(client, 40).bottom, OnScreen(CRect(0, 0, 300, 200)).bottom);
    EXPECT_EQ(client.HitTest(OnScreen(CRect(0, 190, 20, 200)).CenterPoint()), 40);
}

TEST_F(GridAccess, TellsItsWindowsState) {
    grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    grid.EnableWindow(FALSE);
    EXPECT_EQ(client.StateOf(1), unsigned{STATE_SYSTEM_UNAVAILABLE});
    EXPECT_EQ(client.Select(1), S_FALSE);
    grid.EnableWindow(TRUE);
    grid.ShowWindow(SW_HIDE);
    EXPECT_EQ(client.StateOf(1), canHaveFocus | STATE_SYSTEM_INVISIBLE);
}

TEST_F(GridAccess, HasTheFocusAndTheSelectionOnTheFocusedRow) {
    grid.AddIntegerItem(section, L"first", 1);
    const UINT second = grid.AddIntegerItem(section, L"second", 2);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.SelectedChild(), -1);
    grid.SetFocusedItem(second);
    EXPECT_EQ(client.SelectedChild(), 2);
    EXPECT_EQ(client.FocusedChild(), 2);
    EXPECT_EQ(client.StateOf(2), canHaveFocus | STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
    ::SetFocus(nullptr);
    EXPECT_EQ(client.FocusedChild(), -1);
    EXPECT_EQ(client.StateOf(2), canHaveFocus | STATE_SYSTEM_SELECTED);
}

TEST_F(GridAccess, GivesARowTheFocusWhenAsked) {
    grid.AddIntegerItem(section, L"first", 1);
    const UINT second = grid.AddIntegerItem(section, L"second", 2);
    ::SetFocus(nullptr);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.Select(2), S_OK);
    CarryOut();
    EXPECT_EQ(grid.GetFocusedItem(), second);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(GridAccess, EditsARowWhenAsked) {
    const UINT width = grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.DoDefaultAction(1), S_OK);
    CarryOut();
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(TextOf(Edit()), L"80");
    EXPECT_EQ(grid.GetFocusedItem(), width);
    Enter(L"90");
    EXPECT_EQ(client.ValueOf(1), L"90");
}

TEST_F(GridAccess, EditsARowThatIsScrolledOutOfSight) {
    FillRows(40);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.DoDefaultAction(40), S_OK);
    CarryOut();
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(TextOf(Edit()), L"39");
    EXPECT_EQ(client.StateOf(40) & STATE_SYSTEM_OFFSCREEN, 0U);
}

TEST_F(GridAccess, EndsAnotherEditFirst) {
    const UINT first = grid.AddIntegerItem(section, L"first", 1);
    grid.AddIntegerItem(section, L"second", 2);
    const CAccessibleClient client(grid);
    ClickOn(ValueOf(first));
    ::SetWindowText(Edit(), L"17");
    EXPECT_EQ(client.DoDefaultAction(2), S_OK);
    CarryOut();
    EXPECT_EQ(grid.GetFocusedItem(), 1U);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(Value<int>(first), 17);
    EXPECT_EQ(TextOf(Edit()), L"2");
}

TEST_F(GridAccess, CollapsesAndExpandsASectionWhenAsked) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.DoDefaultAction(1), S_OK);
    CarryOut();
    EXPECT_TRUE(grid.IsSectionCollapsed(section));
    EXPECT_EQ(client.Names(), L"Section ");
    EXPECT_EQ(client.ActionOf(1), L"Expand");
    EXPECT_EQ(client.DoDefaultAction(1), S_OK);
    CarryOut();
    EXPECT_FALSE(grid.IsSectionCollapsed(section));
}

TEST_F(GridAccess, DoesNothingWithRowsThatWereRemovedMeanwhile) {
    grid.AddIntegerItem(section, L"old", 80);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.DoDefaultAction(1), S_OK);
    grid.ResetContents();
    section = grid.AddSection(L"Section");
    grid.AddIntegerItem(section, L"new", 1);
    CarryOut();
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(grid.GetFocusedItem(), CPropertyGrid::NO_ID);
}

TEST_F(GridAccess, DoesNothingOnceItIsDisabled) {
    grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    EXPECT_EQ(client.DoDefaultAction(1), S_OK);
    grid.EnableWindow(FALSE);
    CarryOut();
    EXPECT_EQ(Edit(), nullptr);
}

TEST_F(GridAccess, AnswersThatItIsGone) {
    grid.AddIntegerItem(section, L"Width", 80);
    const CAccessibleClient client(grid);
    grid.DestroyWindow();
    LONG count = 0;
    EXPECT_EQ(client.Object().get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(client.DoDefaultAction(1), CO_E_OBJNOTCONNECTED);
}

TEST_F(GridAccess, ReportsAMovedFocus) {
    grid.AddIntegerItem(section, L"first", 1);
    grid.AddIntegerItem(section, L"second", 2);
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    PressKey(VK_DOWN);
    EXPECT_EQ(TakeFrom(events, grid), (Events{"selection 1", "focus 1"}));
    PressKey(VK_DOWN);
    EXPECT_EQ(TakeFrom(events, grid), (Events{"selection 2", "focus 2"}));
    PressKey(VK_NUMLOCK);
    EXPECT_EQ(TakeFrom(events, grid), Events());
}

TEST_F(GridAccess, ReportsTheFocusedRowWhenItGetsTheFocus) {
    grid.SetFocusedItem(grid.AddIntegerItem(section, L"first", 1));
    ::SetFocus(nullptr);
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    grid.SetFocus();
    const Events reported = TakeFrom(events, grid);
    ASSERT_FALSE(reported.empty());
    EXPECT_EQ(reported.back(), "focus 1") << "after the window's own";
}

TEST_F(GridAccess, ReportsValuesAndStates) {
    const UINT first = grid.AddIntegerItem(section, L"first", 1);
    const UINT second = grid.AddBooleanItem(section, L"second", true);
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    grid.SetItemValue(first, 7);
    EXPECT_EQ(TakeFrom(events, grid), Events{"value 1"});
    grid.SetItemUndefined(second, true);
    EXPECT_EQ(TakeFrom(events, grid), Events{"value 2"});
    grid.SetItemEditable(second, false);
    EXPECT_EQ(TakeFrom(events, grid), Events{"state 2"});
    grid.NotifyChanged(first);
    grid.Invalidate();
    EXPECT_EQ(TakeFrom(events, grid), Events{"value 1"});
}

TEST_F(GridAccess, ReportsWhatTheUserChanged) {
    const UINT choice = grid.AddBooleanItem(section, L"choice", true);
    Focus(choice);
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    DoubleClickOn(NameOf(choice));
    EXPECT_EQ(TakeFrom(events, grid), Events{"value 1"});
}

TEST_F(GridAccess, ReportsRowsThatComeAndGo) {
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    FillRows(20);
    EXPECT_EQ(TakeFrom(events, grid), Events{"reorder 0"});
    grid.ResetContents();
    EXPECT_EQ(TakeFrom(events, grid), Events{"reorder 0"});
}

TEST_F(GridAccess, ReportsACollapsedSection) {
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    grid.AddIntegerItem(section, L"Width", 80);
    CAccessibleEvents events(grid);
    TakeFrom(events, grid);
    grid.SetSectionCollapsed(section, true);
    EXPECT_EQ(TakeFrom(events, grid), (Events{"reorder 0", "state 1"}));
}

// ---- The list and the edit

class ListAccess : public GridAccess {
protected:
    ListAccess() {
        swing = grid.AddComboItem(section, L"Swing", {L"Left", L"Right", L"Both"}, 1);
        ClickOn(ValueOf(swing));
    }
    UINT swing = 0;
};

TEST_F(ListAccess, TellsItsStrings) {
    const CAccessibleClient client(List());
    ASSERT_TRUE(client.IsConnected());
    EXPECT_EQ(client.NameOf(0), L"Swing");
    EXPECT_EQ(client.ValueOf(0), L"Right");
    EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_LIST);
    EXPECT_EQ(client.RoleOf(1), ROLE_SYSTEM_LISTITEM);
    EXPECT_EQ(client.Names(), L"Left Right Both ");
    EXPECT_EQ(client.StateOf(1), canHaveFocus);
    EXPECT_EQ(client.StateOf(2), canHaveFocus | STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
    EXPECT_EQ(client.FocusedChild(), 2);
    EXPECT_EQ(client.ActionOf(1), L"Select");
    EXPECT_EQ(client.ShortcutOf(2), L"Enter");
}

TEST_F(ListAccess, TellsWhereItsStringsAre) {
    const CAccessibleClient client(List());
    const CRect all = Location(client, 0);
    EXPECT_EQ(Location(client, 1).top, all.top + 1);
    EXPECT_EQ(Location(client, 3).bottom, all.bottom - 1);
    for (int child = 1; child <= 3; ++child) {
        EXPECT_EQ(client.HitTest(Location(client, child).CenterPoint()), child);
    }
}

TEST_F(ListAccess, ReportsTheSelection) {
    CAccessibleEvents events(List());
    ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(events.Take(), (Events{"selection 3", "focus 3"}));
}

TEST_F(ListAccess, SelectsWithoutChoosing) {
    const CAccessibleClient client(List());
    EXPECT_EQ(client.Select(1), S_OK);
    CarryOut(List(), WM_LIST_ACCESS_REQUEST);
    EXPECT_EQ(client.SelectedChild(), 1);
    EXPECT_EQ(Value<int>(swing), 1);
    EXPECT_EQ(client.Select(0), S_FALSE);
}

TEST_F(ListAccess, ChoosesAndIsGone) {
    const CAccessibleClient client(List());
    EXPECT_EQ(client.DoDefaultAction(3), S_OK);
    CarryOut(List(), WM_LIST_ACCESS_REQUEST);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Value<int>(swing), 2);
    EXPECT_EQ(client.DoDefaultAction(3), CO_E_OBJNOTCONNECTED);
}

TEST_F(GridAccess, NamesTheEditAfterItsRow) {
    const UINT width = grid.AddIntegerItem(section, L"Width & height", 80);
    ClickOn(ValueOf(width));
    const CAccessibleClient client(Edit());
    ASSERT_TRUE(client.IsConnected());
    EXPECT_EQ(client.NameOf(0), L"Width & height");
    EXPECT_EQ(client.ValueOf(0), L"80");
    EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_TEXT);
}

TEST_F(GridAccess, LeavesNothingBehind) {
    grid.AddIntegerItem(section, L"Width", 80);
    const UINT choice = grid.AddComboItem(section, L"Swing", {L"Left", L"Right"}, 1);
    const auto round = [&] {
        const CAccessibleClient client(grid);
        client.DoDefaultAction(1);
        CarryOut();
        EXPECT_NE(Edit(), nullptr);
        { const CAccessibleClient edit(Edit()); }
        Enter(L"80");
        ClickOn(ValueOf(choice));
        {
            const CAccessibleClient list(List());
            list.DoDefaultAction(2);
            CarryOut(List(), WM_LIST_ACCESS_REQUEST);
            EXPECT_EQ(List(), nullptr);
        }
        parent.ForgetChanges();
    };
    round();  // what the system makes once
    const ProcessHoldings before = CountHoldings();
    round();
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
