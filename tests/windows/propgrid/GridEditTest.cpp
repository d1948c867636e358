// The grid's in-place edit: when and where it opens, with which text, each of its endings, what becomes of
// the text. All runs on the checking allocator: what touches a freed editor ends the program.
#include <clocale>
#include <optional>

#include "tests/windows/propgrid/EditorFixture.h"
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"

namespace {

class GridEdit : public GridInputTest {
protected:
    // The edit's rectangle in client coordinates of the grid.
    CRect EditRect() {
        CRect rect;
        ::GetWindowRect(Edit(), &rect);
        grid.ScreenToClient(&rect);
        return rect;
    }
    // The row's value from the divider to the right edge.
    CRect CellOf(UINT item) {
        const CRect name = RectsOf(item).first;
        return {grid.GetGutterWidth(), name.top, 300, name.bottom};
    }
};

// ---- Opening

TEST_F(GridEdit, OpensWhenTheButtonIsReleasedOverTheValue) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const CPoint value = ValueOf(item);
    Press(value);
    EXPECT_EQ(EditorCount(), 0);
    Release(value);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_TRUE(::IsWindowVisible(Edit()));
    EXPECT_EQ(::GetFocus(), Edit());
    EXPECT_EQ(TextOf(Edit()), L"value");
    EXPECT_EQ(::GetDlgCtrlID(Edit()), 1000);
}

TEST_F(GridEdit, DoesNotOpenWhenTheButtonIsReleasedElsewhere) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Press(ValueOf(item));
    Release(CPoint(200, 180));
    EXPECT_EQ(EditorCount(), 0);
    Press(NameOf(item));
    Release(ValueOf(item));
    EXPECT_EQ(EditorCount(), 0) << "the press on the value was another one";
}

TEST_F(GridEdit, OpensOnAFocusedRowTooIfPressAndReleaseAreOnTheValue) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(item);
    Press(ValueOf(item));
    Release(CPoint(200, 180));
    EXPECT_EQ(EditorCount(), 0);
    ClickOn(ButtonOf(item));
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(GridEdit, OpensWithoutAPaintBetweenPressAndRelease) {
    const UINT first = grid.AddStringItem(section, L"first", L"1");
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    Focus(first);
    ClickOn(ValueOf(item));
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(EditRect(), CRect(151, CellOf(item).top + 2, 300, CellOf(item).bottom));
}

TEST_F(GridEdit, NeverOpensOnAnItemThatIsNotEditable) {
    const UINT item = grid.AddStringItem(section, L"name", L"value", false);
    ClickOn(ValueOf(item));
    ClickOn(ButtonOf(item));
    EXPECT_EQ(EditorCount(), 0);
}

TEST_F(GridEdit, LiesOverTheCellAOnePixelIn) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(ValueOf(item));
    const CRect cell = CellOf(item);
    EXPECT_EQ(EditRect(), CRect(cell.left + 1, cell.top + 2, cell.right, cell.bottom));
}

TEST_F(GridEdit, LeavesRoomForTheButtonOfAnItemThatHasOne) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ValueOf(item));
    const CRect cell = CellOf(item);
    EXPECT_EQ(EditRect(), CRect(cell.left + 2, cell.top + 2, cell.right - RowHeight(), cell.bottom));
}

TEST_F(GridEdit, HasTheGridsColoursAndFont) {
    const UINT item = grid.AddStringItem(section, L"name", L"HHHH");
    ClickOn(ValueOf(item));
    ::UpdateWindow(Edit());
    const CClientPixels pixels(Edit());
    const RECT all = {0, 0, pixels.Width(), pixels.Height()};
    EXPECT_GT(pixels.Count(all, back), pixels.Width() * pixels.Height() / 2);
    EXPECT_GT(pixels.Count(all, text), 10);
    LOGFONT font = {};
    ::GetObject(reinterpret_cast<HFONT>(::SendMessage(Edit(), WM_GETFONT, 0, 0)), sizeof(font), &font);
    EXPECT_EQ(font.lfHeight, -12);
    EXPECT_LT(font.lfWeight, FW_BOLD) << "the font of the headers";
}

TEST_F(GridEdit, ShowsNumbersInAFormatOfItsOwn) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", -7, L"<%05d>");
    const UINT real = grid.AddDoubleItem(section, L"real", 1234567.0, L"<%.9f>");
    ClickOn(ValueOf(integer));
    EXPECT_EQ(TextOf(Edit()), L"-7");
    ClickOn(ValueOf(real));
    EXPECT_EQ(TextOf(Edit()), L"1.23457e+06");
}

TEST_F(GridEdit, IsEmptyForANumberThatIsUndefined) {
    grid.SetUndefinedText(L"?");
    const UINT integer = grid.AddIntegerItem(section, L"integer", 7, L"%d", true, true);
    const UINT real = grid.AddDoubleItem(section, L"real", 7, L"%g", true, true);
    const UINT string = grid.AddStringItem(section, L"string", L"value", true, true);
    ClickOn(ValueOf(integer));
    EXPECT_EQ(TextOf(Edit()), L"");
    ClickOn(ValueOf(real));
    EXPECT_EQ(TextOf(Edit()), L"");
    ClickOn(ValueOf(string));
    EXPECT_EQ(TextOf(Edit()), L"value");
}

TEST_F(GridEdit, TakesATextOf100000Characters) {
    const std::wstring longText(100000, L'x');
    const UINT item = grid.AddStringItem(section, L"name", longText);
    ClickOn(ValueOf(item));
    EXPECT_EQ(TextOf(Edit()), longText);
    Enter(longText + L"y");
    EXPECT_EQ(Value<std::wstring>(item), longText + L"y");
}

// ---- Endings

TEST_F(GridEdit, EachEndingStoresTheTextAndNotifiesOnce) {
    CWnd sibling;
    sibling.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(310, 0, 350, 50), &parent, 101);
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const UINT other = grid.AddStringItem(section, L"other", L"");
    const auto sendKey = [&](UINT message, UINT key) { ::SendMessage(Edit(), message, key, 1); };
    const auto navigate = [&](UINT key) {
        const CKeyHeldDown control(VK_CONTROL);
        sendKey(WM_KEYDOWN, key);
    };
    const std::vector<std::function<void()>> endings = {
        [&] { sendKey(WM_CHAR, VK_RETURN); }, [&] { sendKey(WM_CHAR, VK_TAB); },
        [&] { Press(NameOf(other)); },        [&] { Press(CPoint(20, 190)); },
        [&] { Press(ValueOf(other)); },       [&] { navigate(VK_UP); },
        [&] { navigate(VK_NEXT); },           [&] { sibling.SetFocus(); },
        [&] { parent.SetFocus(); },           [&] { grid.EndEditing(); },
    };
    int number = 0;
    for (const auto& end : endings) {
        ClickOn(ValueOf(item));
        const std::wstring typed = L"typed " + std::to_wstring(++number);
        ::SetWindowText(Edit(), typed.c_str());
        end();
        ExpectNoEditorLeft();
        EXPECT_EQ(Value<std::wstring>(item), typed);
        EXPECT_EQ(parent.changedItems, Ids{item}) << number;
        EXPECT_EQ(parent.changedValues, Texts{typed}) << "stored before it is notified";
        parent.ForgetChanges();
        Release(CPoint(20, 190));
    }
}

TEST_F(GridEdit, EscapeKeepsTheValue) {
    const UINT string = grid.AddStringItem(section, L"string", L"value");
    const UINT real = grid.AddDoubleItem(section, L"real", 1.23456789012);
    for (const UINT item : {string, real}) {
        ClickOn(ValueOf(item));
        ::SetWindowText(Edit(), L"99");
        ::SendMessage(Edit(), WM_CHAR, VK_ESCAPE, 1);
        ExpectNoEditorLeft();
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    }
    EXPECT_EQ(Value<std::wstring>(string), L"value");
    EXPECT_EQ(Value<double>(real), 1.23456789012);
    EXPECT_EQ(parent.changedItems, (Ids{string, real}));
}

TEST_F(GridEdit, LeavingANumberUntouchedKeepsAllItsDigits) {
    const UINT real = grid.AddDoubleItem(section, L"real", 1.23456789012);
    ClickOn(ValueOf(real));
    ::SendMessage(Edit(), WM_CHAR, VK_RETURN, 1);
    EXPECT_EQ(Value<double>(real), 1.23456789012);
    EXPECT_FALSE(grid.IsItemModified(real));
    ClickOn(ValueOf(real));
    TypeInEdit(L"9");
    ::SendMessage(Edit(), WM_CHAR, VK_ESCAPE, 1);
    EXPECT_EQ(Value<double>(real), 1.23456789012) << "Escape puts the text back";
    ClickOn(ValueOf(real));
    Enter(L"1.234567");
    EXPECT_EQ(Value<double>(real), 1.234567) << "a text that was set from outside is another one";
}

TEST_F(GridEdit, LeavingAStringUntouchedKeepsWhatTheEditDoesNotShow) {
    const std::wstring twoLines = L"one\r\ntwo", withNul(L"one\0two", 7);
    const UINT lines = grid.AddStringItem(section, L"lines", twoLines);
    const UINT nul = grid.AddStringItem(section, L"nul", withNul);
    for (const std::wstring typed : {L"\r", L"\x1b", L"x\x1b"}) {
        for (const UINT item : {lines, nul}) {
            ClickOn(ValueOf(item));
            TypeInEdit(typed);
            EXPECT_FALSE(grid.IsItemModified(item));
        }
    }
    EXPECT_EQ(Value<std::wstring>(lines), twoLines);
    EXPECT_EQ(Value<std::wstring>(nul), withNul);
    ClickOn(ValueOf(nul));
    TypeInEdit(L"one\r");
    EXPECT_EQ(Value<std::wstring>(nul), L"one");
}

TEST_F(GridEdit, ANumberTypedExactlyAsItIsShownIsATypedNumber) {
    const UINT real = grid.AddDoubleItem(section, L"real", 80.123456789);
    ClickOn(ValueOf(real));
    ASSERT_EQ(TextOf(Edit()), L"80.1235");
    TypeInEdit(L"80.1235\r");
    ExpectNoEditorLeft();
    EXPECT_EQ(Value<double>(real), 80.1235);
    EXPECT_TRUE(grid.IsItemModified(real));
    EXPECT_EQ(parent.changedItems, Ids{real});
}

TEST_F(GridEdit, AWholeNumberTypedExactlyAsItIsShownIsTakenAndNotified) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", 42, L"<%d>");
    ClickOn(ValueOf(integer));
    TypeInEdit(L"42\r");
    EXPECT_EQ(Value<int>(integer), 42);
    EXPECT_FALSE(grid.IsItemModified(integer));
    EXPECT_EQ(parent.changedItems, Ids{integer});
}

// One character and back again: the user has seen the number and wants it as it is shown.
TEST_F(GridEdit, ANumberThatWasChangedAndChangedBackIsATypedNumber) {
    const UINT real = grid.AddDoubleItem(section, L"real", 80.123456789);
    ClickOn(ValueOf(real));
    ::SendMessage(Edit(), WM_CHAR, L'7', 1);
    ::SendMessage(Edit(), WM_CHAR, VK_BACK, 1);
    ASSERT_EQ(TextOf(Edit()), L"80.1235");
    ::SendMessage(Edit(), WM_CHAR, VK_RETURN, 1);
    EXPECT_EQ(Value<double>(real), 80.1235);
}

TEST_F(GridEdit, ACustomItemLearnsWhetherTheTextWasTouched) {
    custom.mode = EM_INPLACE;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    std::string touched;
    custom.during = [&] { touched += grid.IsEditUntouched() ? 'u' : 't'; };
    for (const std::wstring typed : {L"\r", L"custom\r", L"x\x1b", L"x\r", L"\t"}) {
        custom.text = L"custom";
        ClickOn(ValueOf(item));
        TypeInEdit(typed);
    }
    EXPECT_EQ(touched, "ututu");
    EXPECT_FALSE(grid.IsEditUntouched());
}

TEST_F(GridEdit, AfterEnterTheGridHasTheFocusAndTheKeysMoveOn) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const UINT other = grid.AddStringItem(section, L"other", L"");
    ClickOn(ValueOf(item));
    Enter(L"x");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusedItem(), other);
}

TEST_F(GridEdit, AKeyThatReachesTheGridEndsTheEditBeforeTheFocusMovesOn) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const UINT other = grid.AddStringItem(section, L"other", L"old");
    ClickOn(ValueOf(item));
    ::SetWindowText(Edit(), L"new");
    PressKey(VK_DOWN);
    EXPECT_EQ(EditorCount(), 0);
    EXPECT_EQ(Value<std::wstring>(item), L"new");
    EXPECT_EQ(Value<std::wstring>(other), L"old");
    EXPECT_EQ(grid.GetFocusedItem(), other);
}

TEST_F(GridEdit, OneValueAfterTheOtherIsEditedWithoutAnotherClick) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    const UINT other = grid.AddStringItem(section, L"other", L"old");
    ClickOn(ValueOf(item));
    ::SetWindowText(Edit(), L"new");
    ClickOn(ValueOf(other));
    EXPECT_EQ(Value<std::wstring>(item), L"new");
    EXPECT_EQ(TextOf(Edit()), L"old");
    EXPECT_EQ(EditorCount(), 1);
}

TEST_F(GridEdit, TheEndOfTheGridStoresTheTextAndFreesTheEdit) {
    const long long blocks = HeapBlockCount();
    {
        CTestGrid other;
        other.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(310, 0, 600, 100), &parent, 5);
        other.SetDisplayMode(CPropertyGrid::DM_FLAT);
        const UINT item = other.AddIntegerItem(other.AddSection(L""), L"name", 1);
        other.UpdateWindow();
        const LPARAM point = MAKELPARAM(200, RowHeight() / 2);
        other.SendMessage(WM_LBUTTONDOWN, 0, point);
        other.SendMessage(WM_LBUTTONUP, 0, point);
        ASSERT_TRUE(other.IsEditing());
        ::SetWindowText(::FindWindowEx(other.m_hWnd, nullptr, L"Edit", nullptr), L"23");
        other.DestroyWindow();
        EXPECT_FALSE(other.IsEditing());
        int value = 0;
        EXPECT_TRUE(other.GetItemValue(item, value));
        EXPECT_EQ(value, 23);
        EXPECT_EQ(parent.changedItems, Ids{item});
        parent.ForgetChanges();
    }
    EXPECT_EQ(HeapBlockCount(), blocks);
}

// ---- Values

TEST_F(GridEdit, AnIntegerTakesTheLeadingNumber) {
    const UINT item = grid.AddIntegerItem(section, L"name", 7);
    const std::pair<const wchar_t*, int> cases[] = {{L"12abc", 12}, {L"-3", -3}, {L"abc", 0}, {L" 8 ", 8}};
    for (const auto& [typed, value] : cases) {
        ClickOn(ValueOf(item));
        Enter(typed);
        EXPECT_EQ(Value<int>(item), value);
    }
    EXPECT_EQ(parent.changedItems.size(), 4U);
}

TEST_F(GridEdit, ADoubleTakesTheLeadingNumber) {
    const UINT item = grid.AddDoubleItem(section, L"name", 7);
    const std::pair<const wchar_t*, double> cases[] = {
        {L"12.5abc", 12.5}, {L"-3e2", -300}, {L"abc", 0}, {L".5", 0.5}};
    for (const auto& [typed, value] : cases) {
        ClickOn(ValueOf(item));
        Enter(typed);
        EXPECT_EQ(Value<double>(item), value);
    }
    EXPECT_EQ(parent.changedItems.size(), 4U);
}

TEST_F(GridEdit, NothingTypedForANumberKeepsItAndSendsNoNotification) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", 7);
    const UINT real = grid.AddDoubleItem(section, L"real", 7.5);
    const UINT undefined = grid.AddIntegerItem(section, L"undefined", 7, L"%d", true, true);
    for (const UINT item : {integer, real, undefined}) {
        ClickOn(ValueOf(item));
        Enter(L"");
        ExpectNoEditorLeft();
    }
    EXPECT_EQ(Value<int>(integer), 7);
    EXPECT_EQ(Value<double>(real), 7.5);
    EXPECT_TRUE(grid.IsItemUndefined(undefined));
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridEdit, AStringMayBecomeEmpty) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(ValueOf(item));
    Enter(L"");
    EXPECT_EQ(Value<std::wstring>(item), L"");
    EXPECT_EQ(parent.changedItems, Ids{item});
}

TEST_F(GridEdit, WhatWasTypedIsDefined) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", 7, L"%d", true, true);
    const UINT real = grid.AddDoubleItem(section, L"real", 7, L"%g", true, true);
    const UINT string = grid.AddStringItem(section, L"string", L"7", true, true);
    for (const UINT item : {integer, real, string}) {
        ClickOn(ValueOf(item));
        Enter(L"8");
        EXPECT_FALSE(grid.IsItemUndefined(item));
    }
    EXPECT_EQ(Value<int>(integer), 8);
    EXPECT_EQ(Value<double>(real), 8);
}

TEST_F(GridEdit, ANumberIsReadBackAsItShowsInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const UINT item = grid.AddDoubleItem(section, L"name", 12.5);
    ASSERT_NE(std::setlocale(LC_ALL, "German"), nullptr);
    ClickOn(ValueOf(item));
    Enter(TextOf(Edit()) + L"0");
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(Value<double>(item), 12.5);
}

// ---- Custom items

TEST_F(GridEdit, ACustomItemGivesAndTakesTheText) {
    for (const int mode : {EM_INPLACE, EM_INPLACE_BUTTON}) {
        parent.ForgetChanges();
        custom.calls.clear();
        custom.text = L"old";
        custom.mode = mode;
        grid.ResetContents();
        const UINT item = grid.AddCustomItem(grid.AddSection(L""), L"name", &custom);
        ClickOn(ValueOf(item));
        EXPECT_EQ(TextOf(Edit()), L"old");
        Enter(L"new");
        EXPECT_EQ(custom.calls, std::vector<std::string>{"text new"});
        EXPECT_EQ(parent.changedItems, Ids{item});
        ExpectNoEditorLeft();
    }
}

TEST_F(GridEdit, ACustomItemThatDidNotChangeSendsNoNotification) {
    custom.mode = EM_INPLACE;
    custom.takesText = false;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ValueOf(item));
    Enter(L"new");
    EXPECT_EQ(custom.calls.size(), 1U);
    EXPECT_TRUE(parent.changedItems.empty());
    ExpectNoEditorLeft();
}

TEST_F(GridEdit, TheReleaseOfTheFocusingPressOnTheButtonOpensTheEdit) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ButtonOf(item));
    EXPECT_NE(Edit(), nullptr);
    EXPECT_TRUE(custom.calls.empty());
    Enter(L"new");
    custom.calls.clear();
    ClickOn(ButtonOf(item));
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
}

TEST_F(GridEdit, AClickOnTheButtonOfAFocusedItemIsTheButtons) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    Focus(item);
    ClickOn(ButtonOf(item));
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
    EXPECT_EQ(parent.changedItems, Ids{item});
    ClickOn(ValueOf(item));
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(GridEdit, TheButtonOfAnItemThatTheKeyboardFocusedAfterAnotherWasEditedFirstOpensTheEdit) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT other = grid.AddStringItem(section, L"other", L"value");
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    ClickOn(ValueOf(other));
    Enter(L"x");
    PressKey(VK_DOWN);
    ClickOn(ButtonOf(item));
    EXPECT_NE(Edit(), nullptr);
    Enter(L"x");
    custom.calls.clear();
    ClickOn(ButtonOf(item));
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
}

// Whether the press that focuses counts as one on the button, too.
TEST_F(GridEdit, TheTextPartOfTheFocusingPressEndsARowsHeightFromTheRight) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    const CPoint edge(300 - RowHeight(), ButtonOf(item).y);
    Press(edge);
    Release(edge);
    EXPECT_NE(Edit(), nullptr);
    EXPECT_TRUE(custom.calls.empty());
    ClickOn(CPoint(20, 190));
    custom.calls.clear();
    Press(CPoint(edge.x - 1, edge.y));
    Release(edge);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(custom.calls, std::vector<std::string>{"button"});
}

TEST_F(GridEdit, TheEdgeOfTheButtonIsARowsHeightFromTheRight) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    Focus(item);
    ClickOn(CPoint(300 - RowHeight(), ButtonOf(item).y));
    EXPECT_EQ(custom.calls.size(), 1U);
    ClickOn(CPoint(300 - RowHeight() - 1, ButtonOf(item).y));
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(GridEdit, AMessageBoxThatEndsTheEditEndsThePressToo) {
    custom.mode = EM_INPLACE_BUTTON;
    custom.takesText = false;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    const UINT other = grid.AddStringItem(section, L"other", L"value");
    const int divider = grid.GetGutterWidth();
    for (const CPoint point :
         {ValueOf(other), NameOf(other), ButtonOf(item), ValueOf(item), CPoint(divider, 190)}) {
        CModalDriver driver;
        driver.ThenPressOk();
        custom.during = [] { ::MessageBox(nullptr, L"invalid", L"Invalid value", MB_OK); };
        ClickOn(ValueOf(item));
        custom.calls.clear();
        Press(point);
        custom.during = nullptr;
        EXPECT_EQ(driver.messages.size(), 1U);
        EXPECT_EQ(custom.calls.size(), 1U) << "the text, and no button";
        ExpectNoEditorLeft();
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(grid.GetFocusedItem(), item);
        // No button is held: the mouse moves nothing, and what is released is not the grid's.
        MoveTo(CPoint(divider + 30, 190));
        EXPECT_EQ(grid.GetGutterWidth(), divider);
        Release(point);
        ExpectNoEditorLeft();
        // The next click is a click.
        ClickOn(NameOf(other));
        EXPECT_EQ(grid.GetFocusedItem(), other);
    }
}

TEST_F(GridEdit, APressWhoseButtonWentUpWhileTheEditEndedEndsThere) {
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    for (const CPoint point : {ButtonOf(item), CPoint(grid.GetGutterWidth(), 190)}) {
        ClickOn(ValueOf(item));
        ASSERT_NE(Edit(), nullptr);
        {
            std::optional<CKeyHeldDown> button(VK_LBUTTON);
            custom.during = [&] { button.reset(); };
            Press(point);
        }
        ExpectNoEditorLeft();
        EXPECT_EQ(::GetCapture(), nullptr);
        custom.during = nullptr;
    }
}

TEST_F(GridEdit, APressWhoseButtonStaysDownGoesOn) {
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(ValueOf(item));
    const CKeyHeldDown button(VK_LBUTTON);
    Press(CPoint(grid.GetGutterWidth(), 190));
    EXPECT_EQ(::GetCapture(), grid.m_hWnd);
    Release(CPoint(grid.GetGutterWidth(), 190));
}

TEST_F(GridEdit, ACustomItemWhoseButtonWentUpMeanwhileCapturesNothing) {
    custom.mode = EM_CUSTOM;
    custom.capturesMouse = true;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    Focus(item);
    std::optional<CKeyHeldDown> button(VK_LBUTTON);
    custom.during = [&] { button.reset(); };
    Press(ValueOf(item));
    EXPECT_EQ(custom.calls.size(), 1U);
    EXPECT_EQ(::GetCapture(), nullptr);
    custom.during = nullptr;
}

// A message that waits is no message loop that ran.
TEST_F(GridEdit, APressLeavesTheQueueAsItIs) {
    constexpr UINT waiting = WM_APP + 1;
    grid.PostMessage(waiting, 7);
    const UINT item = grid.AddStringItem(section, L"name", L"value");
    ClickOn(ValueOf(item));
    EXPECT_NE(Edit(), nullptr);
    MSG message = {};
    EXPECT_TRUE(::PeekMessage(&message, grid.m_hWnd, WM_USER, 0xFFFF, PM_REMOVE));
    EXPECT_EQ(message.message, waiting);
    EXPECT_FALSE(::PeekMessage(&message, grid.m_hWnd, WM_USER, 0xFFFF, PM_REMOVE));
}

TEST_F(GridEdit, AnEditThatOpensDuringTheEndOfAnotherStaysOpen) {
    custom.mode = EM_INPLACE;
    const UINT item = grid.AddCustomItem(section, L"name", &custom);
    const UINT other = grid.AddStringItem(section, L"other", L"value");
    custom.during = [&] {
        custom.during = nullptr;
        ClickOn(ValueOf(other));
    };
    ClickOn(ValueOf(item));
    Enter(L"x");
    ASSERT_EQ(EditorCount(), 1);
    EXPECT_EQ(TextOf(Edit()), L"value");
    EXPECT_TRUE(grid.IsEditing());
    Press(CPoint(20, 190));
    ExpectNoEditorLeft();
}

// ---- The owner's handler of a change, which may re-enter

TEST_F(GridEdit, TheOwnerMayRemoveTheRowsWhenNotifiedOfTheChange) {
    CListeningOwner owner;
    grid.SetOwner(&owner);
    for (const EItemType kind : {IT_STRING, IT_INTEGER, IT_DOUBLE, IT_CUSTOM}) {
        custom.mode = EM_INPLACE;
        int notifications = 0;
        owner.onChanged = [&](UINT) {
            ++notifications;
            grid.ResetContents();
        };
        const UINT s = grid.AddSection(L"");
        const UINT item = kind == IT_STRING    ? grid.AddStringItem(s, L"a", L"b")
                          : kind == IT_INTEGER ? grid.AddIntegerItem(s, L"a", 1)
                          : kind == IT_DOUBLE  ? grid.AddDoubleItem(s, L"a", 1)
                                               : grid.AddCustomItem(s, L"a", &custom);
        ClickOn(ValueOf(item));
        Enter(L"2");
        EXPECT_EQ(notifications, 1);
        EXPECT_EQ(grid.GetItemCount(), 0U);
        ExpectNoEditorLeft();
    }
    grid.SetOwner(nullptr);
}

TEST_F(GridEdit, TheOwnerMayDestroyTheGridWhenNotifiedOfTheChange) {
    CListeningOwner owner;
    grid.SetOwner(&owner);
    owner.onChanged = [&](UINT) { grid.DestroyWindow(); };
    const UINT item = grid.AddStringItem(section, L"a", L"b");
    ClickOn(ValueOf(item));
    ::SetWindowText(Edit(), L"c");
    Press(CPoint(20, 190));
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(Value<std::wstring>(item), L"c");
}

TEST_F(GridEdit, ATextForAnotherKindIsIgnored) {
    const UINT first = AddAllKinds(L"kinds");
    for (const EItemType kind :
         {IT_TEXT, IT_COMBO, IT_BOOLEAN, IT_DATE, IT_DATETIME, IT_FILE, IT_FOLDER, IT_COLOR, IT_FONT}) {
        grid.SetFocusedItem(first + kind);
        const std::wstring before = grid.GetItemText(first + kind);
        grid.SendMessage(WM_GRID_EDIT_DONE, reinterpret_cast<WPARAM>(L"1"));
        EXPECT_EQ(grid.GetItemText(first + kind), before);
    }
    grid.SetFocusedItem(CPropertyGrid::NO_ID);
    grid.SendMessage(WM_GRID_EDIT_DONE, reinterpret_cast<WPARAM>(L"1"));
    EXPECT_TRUE(parent.changedItems.empty());
}

// Nor does it end the editor that is open.
TEST_F(GridEdit, ATextForAnItemWithAListLeavesTheList) {
    const UINT item = grid.AddComboItem(section, L"combo", {L"a", L"b"}, 0);
    ClickOn(ValueOf(item));
    const HWND list = List();
    ASSERT_NE(list, nullptr);
    grid.SendMessage(WM_GRID_EDIT_DONE, reinterpret_cast<WPARAM>(L"1"));
    EXPECT_EQ(List(), list);
    EXPECT_EQ(Value<int>(item), 0);
}

TEST_F(GridEdit, ATextWithoutAnEditIsTakenTheSame) {
    const UINT item = grid.AddIntegerItem(section, L"a", 1);
    grid.SetFocusedItem(item);
    grid.SendMessage(WM_GRID_EDIT_DONE, reinterpret_cast<WPARAM>(L"12"));
    EXPECT_EQ(Value<int>(item), 12);
}

TEST_F(GridEdit, LeavesNothingBehind) {
    const UINT item = grid.AddIntegerItem(section, L"a", 1);
    const auto cycle = [&](int number) {
        ClickOn(ValueOf(item));
        Enter(std::to_wstring(number));
        ClickOn(ValueOf(item));
        ::SendMessage(Edit(), WM_CHAR, VK_ESCAPE, 1);
        parent.ForgetChanges();
        PumpMessages();
    };
    for (int number = 0; number < 3; ++number) {
        cycle(number);
    }
    const ProcessHoldings before = CountHoldings();
    for (int number = 0; number < 100; ++number) {
        cycle(number);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
