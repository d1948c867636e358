// The grid's list and calendar: when and where they open, with what, each of their endings, what becomes of
// the choice.
#include <cmath>

#include "propgrid/editors/PropertyGridCombo.h"
#include "propgrid/editors/PropertyGridMonthCalCtrl.h"
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/HandleCount.h"

namespace {

class GridDropDown : public GridInputTest {
protected:
    UINT AddCombo(int value = 1, bool undefined = false) {
        return grid.AddComboItem(section, L"combo", {L"a", L"b", L"c"}, value, true, undefined);
    }
    UINT AddDate(bool undefined = false) {
        return grid.AddDateItem(section, L"date", COleDateTime(2024, 2, 14, 0, 0, 0), L"%Y-%m-%d", true,
                                undefined);
    }
    static CPropertyGridCombo& ListObject() {
        return *static_cast<CPropertyGridCombo*>(CWnd::FromHandlePermanent(List()));
    }
    static CPropertyGridMonthCalCtrl& CalendarObject() {
        return *static_cast<CPropertyGridMonthCalCtrl*>(CWnd::FromHandlePermanent(Calendar()));
    }
    void Choose(int index) { grid.SendMessage(WM_GRID_CHOICE_MADE, static_cast<WPARAM>(INT_PTR{index})); }
};

// ---- The list

TEST_F(GridDropDown, AListOpensWhenTheButtonIsReleasedOverTheValue) {
    const UINT item = AddCombo();
    Press(ValueOf(item));
    EXPECT_EQ(EditorCount(), 0);
    Release(ValueOf(item));
    ASSERT_NE(List(), nullptr);
    EXPECT_TRUE(::IsWindowVisible(List()));
    EXPECT_EQ(::GetFocus(), List());
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GridDropDown, AListOpensOverTheButtonToo) {
    const UINT item = AddCombo();
    const CPoint button = ButtonOf(item);
    ClickOn(button);
    EXPECT_NE(List(), nullptr);
    Press(CPoint(20, 190));
    Release(CPoint(20, 190));
    Focus(item);
    ClickOn(button);
    EXPECT_NE(List(), nullptr);
}

TEST_F(GridDropDown, AListStaysClosedWhenTheButtonIsReleasedElsewhere) {
    const UINT item = AddCombo();
    Press(ValueOf(item));
    Release(CPoint(200, 190));
    Press(ButtonOf(item));
    Release(CPoint(200, 190));
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridDropDown, AListLiesUnderTheRowFromTheDividerOn) {
    const UINT item = AddCombo();
    ClickOn(ValueOf(item));
    CRect list;
    ::GetWindowRect(List(), &list);
    grid.ScreenToClient(&list);
    const CRect name = RectsOf(item).first;
    EXPECT_EQ(list.TopLeft(), CPoint(150, name.bottom));
    EXPECT_EQ(list.right, 300);
    EXPECT_EQ(list.Height(), 3 * RowHeight() + 2);
}

TEST_F(GridDropDown, AListHasTheGridsColours) {
    const UINT item = AddCombo();
    ClickOn(ValueOf(item));
    ::UpdateWindow(List());
    const CClientPixels pixels(List());
    EXPECT_EQ(pixels.At(0, 0), text);
    EXPECT_EQ(pixels.At(140, 4), back);
    EXPECT_EQ(pixels.At(140, RowHeight() + 4), focus);
    EXPECT_GT(pixels.Count({2, RowHeight() + 3, 30, 2 * RowHeight()}, focusText), 3);
}

TEST_F(GridDropDown, AListHasTheItemsIndexSelected) {
    const UINT combo = AddCombo(2);
    const UINT yes = grid.AddBooleanItem(section, L"yes", true);
    const UINT no = grid.AddBooleanItem(section, L"no", false);
    ClickOn(ValueOf(combo));
    EXPECT_EQ(ListObject().GetCurSel(), 2);
    ClickOn(ValueOf(yes));
    EXPECT_EQ(ListObject().GetCurSel(), 0);
    ClickOn(ValueOf(no));
    EXPECT_EQ(ListObject().GetCurSel(), 1);
}

TEST_F(GridDropDown, AListOfAnUndefinedItemHasNothingSelected) {
    const UINT item = AddCombo(2, true);
    ClickOn(ValueOf(item));
    EXPECT_EQ(ListObject().GetCurSel(), -1);
    ::UpdateWindow(List());  // pumping messages could bring late news of another window and close the list
    EXPECT_EQ(ListObject().GetCurSel(), 0) << "until it has painted";
    ::SendMessage(List(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(Value<int>(item), 0);
}

TEST_F(GridDropDown, ABooleanOffersItsTwoTexts) {
    grid.SetBooleanTexts(L"On", L"Off");
    const UINT item = grid.AddBooleanItem(section, L"bool", true);
    ClickOn(ValueOf(item));
    CRect list;
    ::GetWindowRect(List(), &list);
    EXPECT_EQ(list.Height(), 2 * RowHeight() + 2);
    ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
    ::SendMessage(List(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_FALSE(Value<bool>(item));
    EXPECT_EQ(grid.GetItemText(item), L"Off");
    EXPECT_EQ(parent.changedItems, Ids{item});
    EXPECT_EQ(parent.changedValues, Texts{L"Off"}) << "stored before it is notified";
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, AChoiceByKeyStoresAndNotifiesOnce) {
    const UINT item = AddCombo(0);
    ClickOn(ValueOf(item));
    ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
    ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_TRUE(parent.changedItems.empty());
    ::SendMessage(List(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(Value<int>(item), 2);
    EXPECT_EQ(parent.changedItems, Ids{item});
    EXPECT_EQ(parent.changedValues, Texts{L"c"}) << "stored before it is notified";
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, AChoiceByMouseStoresAndNotifiesOnce) {
    const UINT item = AddCombo(0);
    ClickOn(ValueOf(item));
    const LPARAM point = MAKELPARAM(10, 2 * RowHeight() + 4);
    ::SendMessage(List(), WM_LBUTTONDOWN, 0, point);
    ::SendMessage(List(), WM_LBUTTONUP, 0, point);
    EXPECT_EQ(Value<int>(item), 2);
    EXPECT_EQ(parent.changedItems, Ids{item});
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, AClickBelowTheLastChoiceStoresAnIndexWithoutChoice) {
    const UINT item = AddCombo(0);
    ClickOn(ValueOf(item));
    const LPARAM point = MAKELPARAM(10, 3 * RowHeight() + 1);
    ::SendMessage(List(), WM_LBUTTONDOWN, 0, point);
    ::SendMessage(List(), WM_LBUTTONUP, 0, point);
    EXPECT_EQ(Value<int>(item), 3);
    EXPECT_EQ(grid.GetItemText(item), L"");
}

TEST_F(GridDropDown, AnyIndexIsStoredAsItComes) {
    const UINT combo = AddCombo(0);
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true);
    for (const int index : {3, 1000, -1, INT_MIN, INT_MAX}) {
        grid.SetFocusedItem(combo);
        Choose(index);
        EXPECT_EQ(Value<int>(combo), index);
        grid.SetFocusedItem(boolean);
        Choose(index);
        EXPECT_FALSE(Value<bool>(boolean));
        Choose(0);
        EXPECT_TRUE(Value<bool>(boolean));
        grid.UpdateWindow();
    }
}

TEST_F(GridDropDown, AChoiceIsDefined) {
    const UINT combo = AddCombo(0, true);
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true, true, true);
    for (const UINT item : {combo, boolean}) {
        grid.SetFocusedItem(item);
        Choose(1);
        EXPECT_FALSE(grid.IsItemUndefined(item));
    }
}

TEST_F(GridDropDown, EscapeAndLosingTheFocusCloseAListWithoutAChoice) {
    const UINT item = AddCombo();
    const std::vector<std::function<void()>> endings = {
        [&] { ::SendMessage(List(), WM_KEYDOWN, VK_ESCAPE, 1); }, [&] { parent.SetFocus(); },
        [&] { Press(CPoint(20, 190)); }, [&] { grid.EndEditing(); }};
    for (const auto& end : endings) {
        ClickOn(ValueOf(item));
        ASSERT_NE(List(), nullptr);
        ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
        end();
        ExpectNoEditorLeft();
        EXPECT_EQ(Value<int>(item), 1);
        EXPECT_TRUE(parent.changedItems.empty());
        Release(CPoint(20, 190));
    }
}

TEST_F(GridDropDown, AListThatClosedItselfIsFreedByTheNextPress) {
    const UINT item = AddCombo();
    const auto cycle = [&] {
        ClickOn(ValueOf(item));
        ::SendMessage(List(), WM_KEYDOWN, VK_ESCAPE, 1);
        Press(CPoint(20, 190));
        Release(CPoint(20, 190));
        PumpMessages();
    };
    cycle();
    const long long blocks = HeapBlockCount();
    cycle();
    EXPECT_EQ(HeapBlockCount(), blocks);
}

TEST_F(GridDropDown, AListWithoutChoicesIsHarmless) {
    const UINT item = grid.AddComboItem(section, L"combo", {}, 0);
    ClickOn(ValueOf(item));
    ASSERT_NE(List(), nullptr);
    ::UpdateWindow(List());
    for (const UINT key : {VK_DOWN, VK_UP, VK_RETURN}) {
        ::SendMessage(List(), WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(grid.GetItemText(item), L"");
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, AChoiceForAnotherKindIsIgnored) {
    const UINT item = AddCombo();
    const UINT integer = grid.AddIntegerItem(section, L"integer", 7);
    for (const UINT focused : {integer, CPropertyGrid::NO_ID}) {
        grid.SetFocusedItem(focused);
        Choose(2);
    }
    // Nor does it end the editor that is open.
    ClickOn(ValueOf(integer));
    const HWND edit = Edit();
    ASSERT_NE(edit, nullptr);
    Choose(2);
    EXPECT_EQ(Edit(), edit);
    EXPECT_EQ(Value<int>(integer), 7);
    EXPECT_EQ(Value<int>(item), 1);
    EXPECT_TRUE(parent.changedItems.empty());
}

// The client is notified of the choice while the list still exists, so it may look at the list.
TEST_F(GridDropDown, AListIsDestroyedAfterTheNotificationOfItsChoice) {
    const UINT combo = AddCombo(0);
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true);
    const UINT date = AddDate();
    CListeningOwner owner;
    grid.SetOwner(&owner);
    for (const UINT item : {combo, boolean, date}) {
        ClickOn(ValueOf(item));
        const HWND editor = List() != nullptr ? List() : Calendar();
        ASSERT_NE(editor, nullptr);
        bool wasThere = false;
        owner.onChanged = [&](UINT) { wasThere = ::IsWindow(editor) != FALSE; };
        ::SendMessage(editor, WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(wasThere);
        EXPECT_FALSE(::IsWindow(editor));
        ExpectNoEditorLeft();
    }
    grid.SetOwner(nullptr);
}

TEST_F(GridDropDown, AClickOnAnotherValueClosesTheListAndOpensTheNext) {
    const UINT item = AddCombo();
    const UINT other = grid.AddBooleanItem(section, L"bool", true);
    ClickOn(ValueOf(item));
    const HWND list = List();
    ClickOn(ValueOf(other));
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(EditorCount(), 1);
}

TEST_F(GridDropDown, TheOwnerMayRemoveTheRowsWhenNotifiedOfTheChoice) {
    CListeningOwner owner;
    grid.SetOwner(&owner);
    owner.onChanged = [&](UINT) { grid.ResetContents(); };
    const UINT item = AddCombo();
    ClickOn(ValueOf(item));
    ::SendMessage(List(), WM_KEYDOWN, VK_RETURN, 1);
    ExpectNoEditorLeft();
    EXPECT_EQ(grid.GetItemCount(), 0U);
    grid.SetOwner(nullptr);
}

TEST_F(GridDropDown, TheEndOfTheGridClosesWhatIsDroppedDown) {
    const UINT combo = AddCombo();
    ClickOn(ValueOf(combo));
    grid.DestroyWindow();
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, TheEndOfTheParentClosesWhatIsDroppedDown) {
    const UINT date = AddDate();
    ClickOn(ValueOf(date));
    ASSERT_NE(Calendar(), nullptr);
    parent.DestroyWindow();
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, ACustomItemDropsItsOwn) {
    custom.mode = EM_DROPDOWN;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ValueOf(item));
    EXPECT_EQ(custom.calls, std::vector<std::string>{"drop 0 0"});
    const CRect name = RectsOf(item).first;
    EXPECT_EQ(custom.rect, CRect(150, name.top, 300, name.bottom));
    EXPECT_EQ(EditorCount(), 0);
}

// ---- The calendar

TEST_F(GridDropDown, ACalendarOpensUnderADateWithTheDateSelected) {
    const UINT item = AddDate();
    ClickOn(ValueOf(item));
    ASSERT_NE(Calendar(), nullptr);
    EXPECT_TRUE(::IsWindowVisible(Calendar()));
    EXPECT_TRUE(grid.IsEditing());
    COleDateTime date;
    EXPECT_TRUE(CalendarObject().GetCurSel(date));
    EXPECT_EQ(date.Format(L"%Y-%m-%d"), L"2024-02-14");
    CRect calendar, smallest;
    ::GetWindowRect(Calendar(), &calendar);
    EXPECT_TRUE(CalendarObject().GetMinReqRect(&smallest));
    EXPECT_EQ(calendar.Size(), smallest.Size());
    grid.ScreenToClient(&calendar);
    EXPECT_EQ(calendar.right, 300);
    EXPECT_EQ(calendar.top, RectsOf(item).first.bottom);
    EXPECT_EQ(::GetWindowLong(Calendar(), GWL_STYLE) & static_cast<LONG>(WS_POPUP | WS_BORDER | WS_CHILD),
              static_cast<LONG>(WS_POPUP | WS_BORDER));
    EXPECT_EQ(::GetWindow(Calendar(), GW_OWNER), parent.m_hWnd);
}

TEST_F(GridDropDown, EnterTakesTheCalendarsDate) {
    const UINT item = AddDate(true);
    ClickOn(ValueOf(item));
    CalendarObject().SetCurSel(COleDateTime(2023, 11, 5, 0, 0, 0));
    ::SendMessage(Calendar(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(grid.GetItemText(item), L"2023-11-05");
    EXPECT_FALSE(grid.IsItemUndefined(item));
    EXPECT_EQ(parent.changedValues, Texts{L"2023-11-05"}) << "stored before it is notified";
    EXPECT_EQ(parent.changedItems, Ids{item});
    ExpectNoEditorLeft();
}

TEST_F(GridDropDown, TheSameDateChosenAgainIsNoModification) {
    const UINT item = AddDate();
    ClickOn(ValueOf(item));
    ::SendMessage(Calendar(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_FALSE(grid.IsItemModified(item));
}

TEST_F(GridDropDown, EscapeAndLosingTheFocusCloseACalendarWithoutADate) {
    const UINT item = AddDate();
    const std::vector<std::function<void()>> endings = {
        [&] { ::SendMessage(Calendar(), WM_KEYDOWN, VK_ESCAPE, 1); }, [&] { Press(CPoint(20, 190)); },
        [&] { grid.EndEditing(); }};
    for (const auto& end : endings) {
        ClickOn(ValueOf(item));
        ASSERT_NE(Calendar(), nullptr);
        end();
        ExpectNoEditorLeft();
        EXPECT_EQ(grid.GetItemText(item), L"2024-02-14");
        EXPECT_TRUE(parent.changedItems.empty());
        Release(CPoint(20, 190));
    }
}

TEST_F(GridDropDown, ADateThatIsNoneOpensTheCalendarOnToday) {
    COleDateTime none;
    for (const COleDateTime::DateTimeStatus status : {COleDateTime::null, COleDateTime::invalid}) {
        none.SetStatus(status);
        const UINT item = grid.AddDateItem(section, std::to_wstring(status), none, L"%Y");
        ClickOn(ValueOf(item));
        ASSERT_NE(Calendar(), nullptr);
        ::SendMessage(Calendar(), WM_KEYDOWN, VK_RETURN, 1);
        SYSTEMTIME now;
        ::GetLocalTime(&now);
        EXPECT_EQ(grid.GetItemText(item), std::to_wstring(now.wYear));
    }
}

TEST_F(GridDropDown, ADateChosenFromANullDateHoldsADay) {
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    const UINT item = grid.AddDateItem(section, L"date", none);
    ClickOn(ValueOf(item));
    ASSERT_NE(Calendar(), nullptr);
    ::SendMessage(Calendar(), WM_KEYDOWN, VK_RETURN, 1);
    const COleDateTime date = Value<COleDateTime>(item);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.m_dt, std::floor(date.m_dt));
}

TEST_F(GridDropDown, ADateChosenForAnotherKindIsIgnored) {
    AddDate();
    const UINT dateTime = grid.AddDateTimeItem(section, L"other", COleDateTime(2000, 1, 1, 0, 0, 0), L"%Y");
    const UINT string = grid.AddStringItem(section, L"string", L"value");
    for (const UINT focused : {dateTime, CPropertyGrid::NO_ID}) {
        grid.SetFocusedItem(focused);
        grid.SendMessage(WM_GRID_DATE_CHOSEN);
    }
    // Nor does it end the editor that is open.
    ClickOn(ValueOf(string));
    const HWND edit = Edit();
    ASSERT_NE(edit, nullptr);
    grid.SendMessage(WM_GRID_DATE_CHOSEN);
    EXPECT_EQ(Edit(), edit);
    EXPECT_EQ(grid.GetItemText(dateTime), L"2000");
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridDropDown, ADateChosenWithoutACalendarIsIgnored) {
    const UINT item = AddDate();
    grid.SetFocusedItem(item);
    grid.SendMessage(WM_GRID_DATE_CHOSEN);
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridDropDown, LeavesNothingBehind) {
    const UINT combo = AddCombo();
    const UINT date = AddDate();
    const auto cycle = [&](UINT key) {
        for (const UINT item : {combo, date}) {
            ClickOn(ValueOf(item));
            const HWND editor = List() != nullptr ? List() : Calendar();
            ::UpdateWindow(editor);
            ::SendMessage(editor, WM_KEYDOWN, key, 1);
        }
        Press(CPoint(20, 190));
        Release(CPoint(20, 190));
        parent.ForgetChanges();
        PumpMessages();
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp) {
        cycle(VK_RETURN);
    }
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 40; ++round) {
        cycle(round % 2 == 0 ? VK_RETURN : VK_ESCAPE);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
