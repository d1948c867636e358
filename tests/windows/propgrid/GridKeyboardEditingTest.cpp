// The grid worked with the keyboard alone, as a dialog's loop hands it the keys.
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/ModalDriver.h"

namespace {

class GridKeyboardEditing : public GridInputTest {
protected:
    GridKeyboardEditing() { grid.SetKeyboardEditing(true); }
    ~GridKeyboardEditing() override { EXPECT_EQ(driver.StepsLeft(), 0U) << "a dialog did not open"; }

    void PressAlt(UINT key) { grid.SendMessage(WM_SYSKEYDOWN, key, kAlt); }
    // Adds a row of each kind in the place of the fixture's section and focuses one of them.
    void FocusKind(EItemType kind) {
        if (kinds == CPropertyGrid::NO_ID) {
            grid.MoveWindow(0, 0, 300, 400);
            kinds = AddAllKinds(L"Kinds");
        }
        ASSERT_TRUE(grid.SetFocusedItem(kinds + static_cast<UINT>(kind)));
    }
    // A key to the editor that has the focus.
    static void PressInEditor(UINT key) { ::SendMessage(::GetFocus(), WM_KEYDOWN, key, 1); }
    CRect EditRect() const {
        CRect rect;
        ::GetWindowRect(Edit(), &rect);
        grid.ScreenToClient(&rect);
        return rect;
    }

    static constexpr LPARAM kAlt = 1 | LPARAM{1} << 29;
    UINT kinds = CPropertyGrid::NO_ID;
    CModalDriver driver;
};

// ---- Opening

TEST_F(GridKeyboardEditing, F2AndItsLikesOpenTheEditWithTheTextOfTheValue) {
    FocusKind(IT_DOUBLE);
    const std::function<void()> openings[] = {[&] { PressKey(VK_F2); }, [&] { PressKey(VK_F4); },
                                              [&] { PressAlt(VK_DOWN); }, [&] { grid.EditFocusedItem(); }};
    for (const std::function<void()>& open : openings) {
        open();
        ASSERT_NE(Edit(), nullptr);
        EXPECT_EQ(::GetFocus(), Edit());
        EXPECT_EQ(TextOf(Edit()), L"12.5");
        TypeInEdit(L"\r");
        ExpectNoEditorLeft();
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    }
    EXPECT_EQ(parent.changedItems.size(), 4U) << "a number that was left as it was is told of as today";
    EXPECT_EQ(Value<double>(grid.GetFocusedItem()), 12.5);
}

TEST_F(GridKeyboardEditing, F2OpensTheEditWhereAClickDoes) {
    FocusKind(IT_STRING);
    PressKey(VK_F2);
    const CRect byKey = EditRect();
    TypeInEdit(L"\x1b");
    ClickOn(ValueOf(kinds + IT_STRING));
    EXPECT_EQ(byKey, EditRect());
}

TEST_F(GridKeyboardEditing, AListIsOpenedAndChosenFromAndTheGridHasTheFocusAgain) {
    FocusKind(IT_COMBO);
    PressAlt(VK_DOWN);
    ASSERT_NE(List(), nullptr);
    EXPECT_EQ(::GetFocus(), List());
    PressInEditor(VK_DOWN);
    PressInEditor(VK_RETURN);
    ExpectNoEditorLeft();
    EXPECT_EQ(Value<int>(kinds + IT_COMBO), 2);
    EXPECT_EQ(parent.changedItems, Ids{kinds + IT_COMBO});
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(GridKeyboardEditing, EscapeInAListGivesTheFocusBack) {
    FocusKind(IT_BOOLEAN);
    PressKey(VK_F4);
    ASSERT_NE(List(), nullptr);
    PressInEditor(VK_ESCAPE);
    EXPECT_EQ(EditorCount(), 0);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridKeyboardEditing, ACalendarIsOpenedAndEndsWithTheFocusOnTheGrid) {
    FocusKind(IT_DATE);
    for (const UINT key : {VK_RETURN, VK_ESCAPE}) {
        PressKey(VK_F2);
        ASSERT_NE(Calendar(), nullptr);
        EXPECT_EQ(::GetFocus(), Calendar());
        PressInEditor(key);
        EXPECT_EQ(EditorCount(), 0);
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    }
    EXPECT_EQ(parent.changedItems, Ids{kinds + IT_DATE});
}

TEST_F(GridKeyboardEditing, ADialogIsOpenedByEveryKeyThatEdits) {
    FocusKind(IT_TEXT);
    const std::function<void()> openings[] = {[&] { PressKey(VK_F2); }, [&] { PressAlt(VK_DOWN); },
                                              [&] { PressAlt(VK_RETURN); }, [&] { grid.EditFocusedItem(); },
                                              [&] { grid.PressFocusedButton(); }};
    for (const std::function<void()>& open : openings) {
        driver.Then([](HWND dialog) { PressButton(dialog, IDCANCEL); });
        open();
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    }
    EXPECT_EQ(EditorCount(), 0);
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridKeyboardEditing, ACustomItemIsAskedByItsEditMode) {
    FocusKind(IT_CUSTOM);
    custom.mode = EM_INPLACE_BUTTON;
    PressAlt(VK_RETURN);
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
    EXPECT_EQ(parent.changedItems, Ids{kinds});
    PressKey(VK_F2);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(TextOf(Edit()), L"custom");
    TypeInEdit(L"\x1b");
    custom.calls.clear();
    custom.mode = EM_DROPDOWN;
    PressKey(VK_F2);
    EXPECT_EQ(custom.calls, std::vector<std::string>{"drop 0 0"});
    custom.mode = EM_CUSTOM;
    PressKey(VK_F2);
    PressAlt(VK_RETURN);
    EXPECT_EQ(custom.calls.size(), 1U) << "it wants the mouse alone";
}

TEST_F(GridKeyboardEditing, ARowThatIsNotEditableAnswersNothing) {
    FocusKind(IT_CUSTOM);
    custom.mode = EM_INPLACE_BUTTON;
    for (UINT item = kinds; item <= kinds + IT_FONT; ++item) {
        grid.SetItemEditable(item, false);
        grid.SetFocusedItem(item);
        for (const UINT key : {VK_F2, VK_F4}) {
            PressKey(key);
        }
        for (const wchar_t character : {L'5', L'-', L' ', L'a'}) {
            Type(character);
        }
        PressAlt(VK_DOWN);
        PressAlt(VK_RETURN);
        grid.EditFocusedItem();
        grid.PressFocusedButton();
        EXPECT_EQ(EditorCount(), 0);
    }
    EXPECT_TRUE(parent.changedItems.empty());
    EXPECT_TRUE(custom.calls.empty());
}

TEST_F(GridKeyboardEditing, AnEditorThatIsOpenEndsFirst) {
    FocusKind(IT_STRING);
    PressKey(VK_F2);
    TypeInEdit(L"new");
    grid.EditFocusedItem();
    EXPECT_EQ(TextOf(Edit()), L"new") << "stored, and opened anew with it";
    EXPECT_EQ(parent.changedItems, Ids{kinds + IT_STRING});
    PressKey(VK_END);
    ExpectNoEditorLeft();
    EXPECT_EQ(grid.GetFocusedItem(), kinds + IT_FONT);
}

TEST_F(GridKeyboardEditing, AnOwnerThatDestroysTheGridMeanwhileEndsTheKey) {
    FocusKind(IT_STRING);
    CListeningOwner owner;
    owner.onChanged = [&](UINT) { grid.DestroyWindow(); };
    grid.SetOwner(&owner);
    PressKey(VK_F2);
    TypeInEdit(L"new");
    grid.EditFocusedItem();
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    grid.EditFocusedItem();
    grid.PressFocusedButton();
}

TEST_F(GridKeyboardEditing, AnOwnerThatLocksTheRowMeanwhileKeepsItClosed) {
    FocusKind(IT_STRING);
    CListeningOwner owner;
    owner.onChanged = [&](UINT item) { grid.SetItemEditable(item, false); };
    grid.SetOwner(&owner);
    PressKey(VK_F2);
    TypeInEdit(L"new");
    grid.EditFocusedItem();
    EXPECT_EQ(EditorCount(), 0);
}

// ---- Characters

TEST_F(GridKeyboardEditing, ACharacterOpensTheEditInPlaceOfTheText) {
    FocusKind(IT_DOUBLE);
    Type(L'-');
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(TextOf(Edit()), L"-");
    ::SendMessage(Edit(), WM_CHAR, L'7', 1);
    EXPECT_EQ(TextOf(Edit()), L"-7") << "the caret stands behind it";
    TypeInEdit(L"\r");
    EXPECT_EQ(Value<double>(kinds + IT_DOUBLE), -7.0);
    EXPECT_EQ(parent.changedItems, Ids{kinds + IT_DOUBLE});
}

TEST_F(GridKeyboardEditing, EscapeBringsTheTextBackThatACharacterReplaced) {
    FocusKind(IT_STRING);
    Type(L'x');
    TypeInEdit(L"\x1b");
    EXPECT_EQ(Value<std::wstring>(kinds + IT_STRING), L"text");
    FocusKind(IT_CUSTOM);
    custom.mode = EM_INPLACE;
    Type(L'x');
    TypeInEdit(L"\x1b");
    EXPECT_EQ(custom.text, L"custom");
}

TEST_F(GridKeyboardEditing, ACharacterThatIsTheWholeTextCountsAsTyped) {
    const UINT item = grid.AddDoubleItem(Section(), L"precise", 5.0000001);
    grid.SetFocusedItem(item);
    Type(L'5');
    TypeInEdit(L"\r");
    EXPECT_EQ(Value<double>(item), 5.0);
}

TEST_F(GridKeyboardEditing, StarAndSlashAndThePlusOfASectionKeepTheirMeaning) {
    grid.SetDisplayMode(DM_CATEGORIZED);
    FocusKind(IT_STRING);
    Type(L'/');
    EXPECT_TRUE(grid.IsSectionCollapsed(Section()));
    Type(L'*');
    EXPECT_FALSE(grid.IsSectionCollapsed(Section()));
    EXPECT_EQ(EditorCount(), 0);
    grid.SetFocusedSection(Section());
    Type(L'-');
    EXPECT_TRUE(grid.IsSectionCollapsed(Section()));
    Type(L'+');
    EXPECT_FALSE(grid.IsSectionCollapsed(Section()));
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridKeyboardEditing, SpaceInvertsABooleanAlone) {
    FocusKind(IT_BOOLEAN);
    Type(L' ');
    EXPECT_FALSE(Value<bool>(kinds + IT_BOOLEAN));
    Type(L' ');
    EXPECT_TRUE(Value<bool>(kinds + IT_BOOLEAN));
    EXPECT_EQ(parent.changedItems, (Ids{kinds + IT_BOOLEAN, kinds + IT_BOOLEAN}));
    FocusKind(IT_STRING);
    Type(L' ');
    EXPECT_EQ(EditorCount(), 0);
}

// ---- What the system does with Alt

// A key with Alt that the system is not told of would leave Alt pressed alone, which opens a menu.
TEST_F(GridKeyboardEditing, ReleasingAltAfterwardsOpensNoMenu) {
    FocusKind(IT_CUSTOM);
    custom.mode = EM_MODAL;
    grid.SendMessage(WM_SYSKEYDOWN, VK_MENU, kAlt);
    PressAlt(VK_RETURN);
    grid.SendMessage(WM_SYSCHAR, VK_RETURN, kAlt);
    grid.SendMessage(WM_SYSKEYUP, VK_MENU, 1);
    EXPECT_FALSE(parent.wasAskedForMenu);
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
}

// ---- Pages and ends

class GridPages : public GridKeyboardEditing {
protected:
    GridPages() {
        for (int row = 0; row < 60; ++row) {
            items.push_back(grid.AddIntegerItem(Section(), std::to_wstring(row), row));
        }
        grid.SetFocusedItem(items[0]);
    }
    // Whether the focused row is in sight in full.
    bool IsInView() {
        const CRect name = RectsOf(grid.GetFocusedItem()).first;
        return name.top >= 0 && name.bottom <= 200 && name.right == grid.GetGutterWidth();
    }
    UINT Page() const { return static_cast<UINT>(200 / RowHeight()); }

    std::vector<UINT> items;
};

TEST_F(GridPages, EndAndHomeBringTheLastAndTheFirstRowIntoView) {
    PressKey(VK_END);
    EXPECT_EQ(grid.GetFocusedItem(), items.back());
    EXPECT_TRUE(IsInView());
    PressKey(VK_HOME);
    EXPECT_EQ(grid.GetFocusedItem(), items.front());
    EXPECT_TRUE(IsInView());
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(GridPages, PagesBringEachRowIntoViewAndStopAtTheEnds) {
    for (UINT row = Page(); row < 60; row += Page()) {
        PressKey(VK_NEXT);
        EXPECT_EQ(grid.GetFocusedItem(), items[row]);
        EXPECT_TRUE(IsInView()) << row;
    }
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.GetFocusedItem(), items.back());
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.GetFocusedItem(), items.back());
    PressKey(VK_PRIOR);
    EXPECT_EQ(grid.GetFocusedItem(), items[59 - Page()]);
    EXPECT_TRUE(IsInView());
}

TEST_F(GridPages, ARowThatWasScrolledAwayIsEditedInView) {
    Turn(-5 * 120);
    ASSERT_GT(ScrollPosition(), 0);
    PressKey(VK_F2);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(ScrollPosition(), 0);
    const CRect value = RectsOf(items[0]).second;
    EXPECT_EQ(EditRect().top, value.top + 2);
    EXPECT_EQ(EditRect().bottom, value.bottom);
}

TEST_F(GridPages, TheListOfARowAtTheLowerEdgeDropsUnderTheRowInView) {
    const UINT combo = grid.AddComboItem(Section(), L"combo", {L"a", L"b"}, 0);
    grid.SetFocusedItem(combo);
    PressKey(VK_F4);
    ASSERT_NE(List(), nullptr);
    CRect list;
    ::GetWindowRect(List(), &list);
    grid.ScreenToClient(&list);
    EXPECT_EQ(list.top, RectsOf(combo).first.bottom);
    EXPECT_LE(list.top, 200);
    PressInEditor(VK_ESCAPE);
}

// ---- The switch

TEST_F(GridKeyboardEditing, TheSwitchCanBeTurnedOffAgain) {
    FocusKind(IT_STRING);
    grid.SetKeyboardEditing(false);
    PressKey(VK_F2);
    PressAlt(VK_DOWN);
    Type(L'5');
    EXPECT_EQ(EditorCount(), 0);
    grid.EditFocusedItem();
    EXPECT_NE(Edit(), nullptr) << "the operation does not depend on it";
}

}  // namespace
