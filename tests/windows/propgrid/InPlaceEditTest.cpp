// The in-place edit: how it opens, what its keys do, each of its endings, and that nothing of it is touched
// after its message to the grid.
#include "propgrid/editors/PropertyGridInPlaceEdit.h"

#include <ostream>

#include "tests/windows/propgrid/EditorFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/Pixels.h"

namespace {

constexpr COLORREF back = RGB(0xE1, 0xE1, 0xE1);
constexpr COLORREF textColor = RGB(0, 0, 140);

Report Done(const std::wstring& text) {
    return {WM_GRID_EDIT_DONE, 0, text};
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLength(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowText(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Type(HWND window, const std::wstring& text) {
    for (const wchar_t character : text) {
        ::SendMessage(window, WM_CHAR, character, 1);
    }
}

// Opens an edit in the grid as the grid does for a value.
CPropertyGridInPlaceEdit& OpenEdit(CEditorGrid& grid, const std::wstring& text, CRect rect, CFont* font) {
    auto edit = std::make_unique<CPropertyGridInPlaceEdit>(&grid, rect, WS_CHILD, 1000, text);
    edit->SetColors(back, textColor);
    edit->SetFont(font);
    edit->ShowWindow(SW_SHOW);
    CPropertyGridInPlaceEdit& opened = *edit;
    grid.editor = std::move(edit);
    return opened;
}

class InPlaceEdit : public EditorTest {
protected:
    CPropertyGridInPlaceEdit& Open(const std::wstring& text) {
        return OpenEdit(grid, text, Cell(), &parent.font);
    }
    // The selection's start and end; both are the caret's position when nothing is selected.
    static CPoint Selection(HWND edit) {
        DWORD start = 0;
        DWORD end = 0;
        ::SendMessage(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return {static_cast<int>(start), static_cast<int>(end)};
    }
};

TEST_F(InPlaceEdit, IsAHiddenChildOfTheGridInTheGivenRectangle) {
    CPropertyGridInPlaceEdit edit(&grid, CRect(11, 22, 133, 44), 0, 1000, L"x");
    ASSERT_NE(edit.m_hWnd, nullptr);
    EXPECT_EQ(::GetParent(edit.m_hWnd), grid.m_hWnd);
    EXPECT_EQ(edit.GetDlgCtrlID(), 1000);
    EXPECT_EQ(edit.GetStyle(), static_cast<DWORD>(WS_CHILD | ES_AUTOHSCROLL));
    CRect rect;
    edit.GetWindowRect(&rect);
    grid.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(11, 22, 133, 44));
    EXPECT_EQ(edit.GetPosition(), CRect(11, 22, 133, 44));
}

TEST_F(InPlaceEdit, HasTheStyleGivenToo) {
    CPropertyGridInPlaceEdit edit(&grid, Cell(), WS_TABSTOP | WS_VISIBLE, 1, L"x");
    EXPECT_EQ(edit.GetStyle(), static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL));
}

TEST_F(InPlaceEdit, OpensWithTheCaretBehindTheTextAndNothingSelected) {
    const HWND edit = Open(L"12.5").m_hWnd;
    EXPECT_EQ(TextOf(edit), L"12.5");
    EXPECT_EQ(Selection(edit), CPoint(4, 4));
    Type(edit, L"7");
    EXPECT_EQ(TextOf(edit), L"12.57");
}

TEST_F(InPlaceEdit, ScrollsTheEndOfALongTextIntoView) {
    grid.font = &parent.font;
    const HWND edit = Open(std::wstring(200, L'm')).m_hWnd;
    const auto first = static_cast<int>(::SendMessage(edit, EM_CHARFROMPOS, 0, MAKELPARAM(1, 5)));
    const auto end = static_cast<short>(LOWORD(::SendMessage(edit, EM_POSFROMCHAR, 199, 0)));
    EXPECT_GT(LOWORD(first), 100);
    EXPECT_GT(end, 0);
    EXPECT_LT(end, Cell().Width());
}

TEST_F(InPlaceEdit, HasTheFocusAndReportsNothingWhenItOpens) {
    const HWND edit = Open(L"x").m_hWnd;
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(grid.reports.empty());
    EXPECT_TRUE(::IsWindowVisible(edit));
}

TEST_F(InPlaceEdit, HasTheFontThatTheGridAnswers) {
    grid.font = &parent.font;
    CPropertyGridInPlaceEdit edit(&grid, Cell(), 0, 1000, L"x");
    EXPECT_EQ(edit.SendMessage(WM_GETFONT), reinterpret_cast<LRESULT>(parent.font.GetSafeHandle()));
}

TEST_F(InPlaceEdit, HasTheSystemsFontWhenTheGridHasNone) {
    CPropertyGridInPlaceEdit edit(&grid, Cell(), 0, 1000, L"x");
    EXPECT_EQ(edit.SendMessage(WM_GETFONT), 0);
    EXPECT_EQ(TextOf(edit.m_hWnd), L"x");
}

TEST_F(InPlaceEdit, HasNoWindowAndDoesNothingElseWhenItCannotBeCreated) {
    CEditorGrid withoutWindow;
    ASSERT_EQ(::GetFocus(), grid.m_hWnd);
    CPropertyGridInPlaceEdit edit(&withoutWindow, Cell(), WS_CHILD, 1000, L"x");
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_TRUE(withoutWindow.reports.empty());
    edit.SetColors(back, textColor);
}

TEST_F(InPlaceEdit, TakesEmptyInvertedHugeAndOffScreenRectangles) {
    for (const CRect& rect : {CRect(0, 0, 0, 0), CRect(50, 50, 40, 40), CRect(-900, 5, -800, 9),
                              CRect(0, 0, 30000, 30000), CRect(5, 5, 6, 6)}) {
        const HWND edit = OpenEdit(grid, L"text", rect, &parent.font).m_hWnd;
        ::UpdateWindow(edit);
        Type(edit, L"!\r");
        EXPECT_EQ(grid.reports, std::vector{Done(L"text!")});
        grid.reports.clear();
    }
}

// ---- Colours

// What the edit answers when its background is about to be drawn.
struct ColorsAnswered {
    COLORREF text, back, brush;
};

ColorsAnswered AskForColors(CWnd& grid, HWND edit) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto brush = reinterpret_cast<HGDIOBJ>(grid.SendMessage(
        WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), reinterpret_cast<LPARAM>(edit)));
    LOGBRUSH description = {};
    ::GetObject(brush, sizeof(description), &description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    return {dc.GetTextColor(), dc.GetBkColor(), description.lbColor};
}

TEST_F(InPlaceEdit, HasTheSystemsWindowColorsAtTheStart) {
    const CPropertyGridInPlaceEdit edit(&grid, Cell(), 0, 1000, L"x");
    const ColorsAnswered colors = AskForColors(grid, edit.m_hWnd);
    EXPECT_EQ(colors.text, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(colors.back, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(colors.brush, ::GetSysColor(COLOR_WINDOW));
}

TEST_F(InPlaceEdit, TakesOtherColors) {
    const HWND edit = Open(L"x").m_hWnd;
    const ColorsAnswered colors = AskForColors(grid, edit);
    EXPECT_EQ(colors.text, textColor);
    EXPECT_EQ(colors.back, back);
    EXPECT_EQ(colors.brush, back);
}

TEST_F(InPlaceEdit, IsPaintedInItsColors) {
    const HWND edit = Open(L"HHHH").m_hWnd;
    ::HideCaret(edit);
    ::UpdateWindow(edit);
    const CClientPixels pixels(edit);
    const int area = pixels.Width() * pixels.Height();
    const CRect all(0, 0, pixels.Width(), pixels.Height());
    const int ink = pixels.Count(all, textColor);
    EXPECT_GT(ink, 10);
    EXPECT_EQ(pixels.Count(all, back) + ink, area);
}

TEST_F(InPlaceEdit, KeepsOneBrushHoweverOftenItsColorsChange) {
    CPropertyGridInPlaceEdit& edit = Open(L"x");
    const int before = GdiObjectCount();
    for (COLORREF color = 0; color < 200; ++color) {
        edit.SetColors(color, 0);
    }
    EXPECT_EQ(GdiObjectCount(), before);
    EXPECT_EQ(AskForColors(grid, edit.m_hWnd).brush, 199U);
}

// ---- Keys that do not end it

TEST_F(InPlaceEdit, WantsAllKeysOfADialog) {
    EXPECT_EQ(::SendMessage(Open(L"x").m_hWnd, WM_GETDLGCODE, 0, 0), DLGC_WANTALLKEYS);
}

TEST_F(InPlaceEdit, MovesTheCaretByPlainArrowKeys) {
    const HWND edit = Open(L"12.5").m_hWnd;
    ::SendMessage(edit, WM_KEYDOWN, VK_LEFT, 1);
    ::SendMessage(edit, WM_KEYDOWN, VK_LEFT, 1);
    EXPECT_EQ(Selection(edit), CPoint(2, 2));
    ::SendMessage(edit, WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(Selection(edit), CPoint(3, 3));
    ::SendMessage(edit, WM_KEYDOWN, VK_HOME, 1);
    EXPECT_EQ(Selection(edit), CPoint(0, 0));
    for (const UINT key : {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT}) {
        ::SendMessage(edit, WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(InPlaceEdit, StaysForOtherKeysWithCtrl) {
    const HWND edit = Open(L"12.5").m_hWnd;
    const CKeyHeldDown control(VK_CONTROL);
    for (const UINT key : {VK_HOME, VK_END, VK_INSERT, VK_F5, VK_CONTROL, VK_SHIFT}) {
        ::SendMessage(edit, WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(InPlaceEdit, LeavesTheKeysOfEndingsToTheirCharacters) {
    const HWND edit = Open(L"12.5").m_hWnd;
    for (const UINT key : {VK_RETURN, VK_TAB, VK_ESCAPE}) {
        ::SendMessage(edit, WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_EQ(TextOf(edit), L"12.5");
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(InPlaceEdit, TypesAndErasesCharacters) {
    const HWND edit = Open(L"ab").m_hWnd;
    Type(edit, L"c\bd\u00E8");
    EXPECT_EQ(TextOf(edit), L"abd\u00E8");
}

TEST_F(InPlaceEdit, SwallowsAltWithACharacterAndNothingElse) {
    CPropertyGridInPlaceEdit& edit = Open(L"x");
    for (UINT number = 0; number < WM_USER; ++number) {
        MSG message = {edit.m_hWnd, number, L'a', 0, 0, {0, 0}};
        EXPECT_EQ(edit.PreTranslateMessage(&message) != FALSE, number == WM_SYSCHAR) << number;
    }
}

// ---- Endings

struct Ending {
    const char* name;
    std::function<void(EditorTest&, CEditorGrid&, HWND edit)> end;
    bool backToInitialText = false;
};

std::ostream& operator<<(std::ostream& out, const Ending& ending) {
    return out << ending.name;
}

void SendChar(HWND edit, WPARAM character) {
    ::SendMessage(edit, WM_CHAR, character, 1);
}

void PressWithCtrl(HWND edit, UINT key) {
    const CKeyHeldDown control(VK_CONTROL);
    ::SendMessage(edit, WM_KEYDOWN, key, 1);
}

HWND FindSibling(HWND grid) {
    return ::GetDlgItem(::GetParent(grid), 101);
}

const Ending endings[] = {
    {"Enter", [](auto&, auto&, HWND edit) { SendChar(edit, VK_RETURN); }},
    {"Tab", [](auto&, auto&, HWND edit) { SendChar(edit, VK_TAB); }},
    {"CtrlLeft", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_LEFT); }},
    {"CtrlUp", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_UP); }},
    {"CtrlRight", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_RIGHT); }},
    {"CtrlDown", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_DOWN); }},
    {"CtrlPageUp", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_PRIOR); }},
    {"CtrlPageDown", [](auto&, auto&, HWND edit) { PressWithCtrl(edit, VK_NEXT); }},
    {"FocusToTheGrid", [](auto&, auto& grid, HWND) { ::SetFocus(grid.m_hWnd); }},
    {"FocusToASibling", [](auto&, auto& grid, HWND) { ::SetFocus(FindSibling(grid.m_hWnd)); }},
    {"FocusNowhere", [](auto&, auto&, HWND) { ::SetFocus(nullptr); }},
    {"FocusBesideTheParent", [](auto&, auto& grid, HWND) { ::SetFocus(::GetParent(grid.m_hWnd)); }},
    {"Hiding", [](auto&, auto&, HWND edit) { ::ShowWindow(edit, SW_HIDE); }},
    {"Closing", [](auto&, auto&, HWND edit) { ::SendMessage(edit, WM_CLOSE, 0, 0); }},
    {"DestroyingItsWindow", [](auto&, auto&, HWND edit) { ::DestroyWindow(edit); }},
    {"Escape", [](auto&, auto&, HWND edit) { SendChar(edit, VK_ESCAPE); }, true},
};

class InPlaceEditEnding : public InPlaceEdit, public testing::WithParamInterface<Ending> {
protected:
    void End(HWND edit) { GetParam().end(*this, grid, edit); }
    Report Expected() const { return Done(GetParam().backToInitialText ? L"12.5" : L"12.57"); }
};

INSTANTIATE_TEST_SUITE_P(Endings, InPlaceEditEnding, testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(InPlaceEditEnding, ReportsTheTextOnceToAGridThatDeletesIt) {
    const HWND edit = Open(L"12.5").m_hWnd;
    Type(edit, L"7");
    End(edit);
    EXPECT_EQ(grid.reports, std::vector{Expected()});
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(grid.editor, nullptr);
}

// As a grid does that has no focused item any more: it leaves the edit to itself.
TEST_P(InPlaceEditEnding, ReportsTheTextOnceAndDestroysItselfWhenTheGridKeepsIt) {
    grid.keepsEditor = true;
    const HWND edit = Open(L"12.5").m_hWnd;
    Type(edit, L"7");
    End(edit);
    EXPECT_EQ(grid.reports, std::vector{Expected()});
    EXPECT_FALSE(::IsWindow(edit));
    ASSERT_NE(grid.editor, nullptr);
    EXPECT_EQ(grid.editor->m_hWnd, nullptr);
}

TEST_P(InPlaceEditEnding, LeavesTheNextEditToEndLikeTheFirst) {
    End(Open(L"1").m_hWnd);
    const HWND next = Open(L"12.5").m_hWnd;
    Type(next, L"7");
    End(next);
    ASSERT_EQ(grid.reports.size(), 2U);
    EXPECT_EQ(grid.reports.back(), Expected());
}

TEST_P(InPlaceEditEnding, ReportsTheTextToAnOwnerThatIsNotTheParent) {
    CEditorGrid owner;
    owner.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 102);
    CPropertyGridInPlaceEdit& edit = Open(L"12.5");
    edit.SetOwner(&owner);
    Type(edit.m_hWnd, L"7");
    End(edit.m_hWnd);
    EXPECT_EQ(owner.reports, std::vector{Expected()});
    EXPECT_TRUE(grid.reports.empty());
}

TEST_P(InPlaceEditEnding, LeavesNothingBehind) {
    const auto cycle = [&] {
        End(Open(L"a text too long for the object to hold inside").m_hWnd);
        grid.reports = {};
    };
    for (int i = 0; i < 3; ++i) {
        cycle();
    }
    const ProcessHoldings before = CountHoldings();
    for (int i = 0; i < 50; ++i) {
        cycle();
    }
    EXPECT_EQ(CountHoldings(), before);
}

TEST_F(InPlaceEdit, EndsWhenAnotherTopLevelWindowTakesTheFocus) {
    const HWND edit = Open(L"12.5").m_hWnd;
    CGridParent another;
    another.SetFocus();
    EXPECT_EQ(grid.reports, std::vector{Done(L"12.5")});
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(InPlaceEdit, EndsWhenItsOwnerClosesIt) {
    Open(L"12.5");
    grid.CloseEditor();
    EXPECT_EQ(grid.reports, std::vector{Done(L"12.5")});
}

TEST_F(InPlaceEdit, EndsWithTheGrid) {
    const HWND edit = Open(L"12.5").m_hWnd;
    grid.DestroyWindow();
    EXPECT_EQ(grid.reports, std::vector{Done(L"12.5")});
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(grid.editor, nullptr);
}

TEST_F(InPlaceEdit, EndsWithTheWholeDialog) {
    const HWND edit = Open(L"12.5").m_hWnd;
    parent.DestroyWindow();
    EXPECT_EQ(grid.reports, std::vector{Done(L"12.5")});
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(grid.editor, nullptr);
}

TEST_F(InPlaceEdit, EndsWithTheWholeDialogAlsoWhenTheGridKeepsIt) {
    grid.keepsEditor = true;
    const HWND edit = Open(L"12.5").m_hWnd;
    parent.DestroyWindow();
    EXPECT_EQ(grid.reports, std::vector{Done(L"12.5")});
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(InPlaceEdit, EndsByPlainNavigationKeysWhenSetTo) {
    for (const UINT key : {VK_PRIOR, VK_NEXT, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
        CPropertyGridInPlaceEdit& edit = Open(L"12.5");
        edit.SetExitOnNavigation(true);
        ::SendMessage(edit.m_hWnd, WM_KEYDOWN, VK_HOME, 1);
        ::SendMessage(edit.m_hWnd, WM_KEYDOWN, VK_END, 1);
        EXPECT_NE(grid.editor, nullptr);
        ::SendMessage(edit.m_hWnd, WM_KEYDOWN, key, 1);
        EXPECT_EQ(grid.editor, nullptr) << key;
    }
    EXPECT_EQ(grid.reports, std::vector(6, Done(L"12.5")));
}

TEST_F(InPlaceEdit, GivesTheFocusToTheGridByEnterTabAndCtrlWithAnArrow) {
    for (const auto& end : {endings[0].end, endings[1].end, endings[2].end}) {
        end(*this, grid, Open(L"x").m_hWnd);
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    }
}

// The focus goes about while the grid deals with the end: a message box, the closing of the window.
TEST_F(InPlaceEdit, EndsOnceHoweverTheFocusMovesMeanwhile) {
    const HWND edit = Open(L"12.5").m_hWnd;
    grid.beforeClosing = [&] {
        ::SetFocus(edit);
        sibling.SetFocus();
        ::SetFocus(edit);
    };
    SendChar(edit, VK_RETURN);
    EXPECT_EQ(grid.reports.size(), 1U);
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(InPlaceEdit, DoesNotEndWhileAnotherOneIsEnding) {
    HWND second = nullptr;
    std::unique_ptr<CPropertyGridInPlaceEdit> secondEdit;
    grid.beforeClosing = [&] {
        if (second != nullptr) {
            return;
        }
        secondEdit = std::make_unique<CPropertyGridInPlaceEdit>(&grid, Cell(), WS_VISIBLE, 1001, L"second");
        second = secondEdit->m_hWnd;
        sibling.SetFocus();
    };
    SendChar(Open(L"first").m_hWnd, VK_RETURN);
    EXPECT_EQ(grid.reports, std::vector{Done(L"first")});
    EXPECT_TRUE(::IsWindow(second)) << "one flag for all edits";
    ::SetFocus(second);
    sibling.SetFocus();
    EXPECT_EQ(grid.reports.size(), 2U);
    EXPECT_EQ(grid.reports.back(), Done(L"second"));
    EXPECT_FALSE(::IsWindow(second));
}

// ---- Texts

TEST_F(InPlaceEdit, OpensAndEndsWithoutAText) {
    SendChar(Open(L"").m_hWnd, VK_RETURN);
    EXPECT_EQ(grid.reports, std::vector{Done(L"")});
}

TEST_F(InPlaceEdit, EndsEmptyWhenEverythingIsErased) {
    const HWND edit = Open(L"12").m_hWnd;
    Type(edit, L"\b\b\b\r");
    EXPECT_EQ(grid.reports, std::vector{Done(L"")});
}

TEST_F(InPlaceEdit, OpensWithATextUpToItsFirstNul) {
    SendChar(Open(std::wstring(L"a\0b", 3)).m_hWnd, VK_RETURN);
    EXPECT_EQ(grid.reports, std::vector{Done(L"a")});
}

TEST_F(InPlaceEdit, HoldsAHundredThousandCharactersAndTakesMore) {
    std::wstring text(100000, L'i');
    text.front() = L'(';
    text.back() = L')';
    HWND edit = Open(text).m_hWnd;
    EXPECT_EQ(Selection(edit), CPoint(100000, 100000));
    Type(edit, L"more\r");
    ASSERT_EQ(grid.reports.size(), 1U);
    EXPECT_TRUE(grid.reports[0].text == text + L"more");

    edit = Open(text).m_hWnd;
    Type(edit, L"more\x1B");
    ASSERT_EQ(grid.reports.size(), 2U);
    EXPECT_TRUE(grid.reports[1].text == text);
}

TEST_F(InPlaceEdit, TakesMoreTypedCharactersThanAnEditDoesByItself) {
    const HWND edit = Open(std::wstring(29990, L'i')).m_hWnd;
    const std::wstring pasted(40000, L'p');
    ::SendMessage(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(pasted.c_str()));
    Type(edit, L"typed\r");
    ASSERT_EQ(grid.reports.size(), 1U);
    EXPECT_EQ(grid.reports[0].text.size(), 29990U + 40000U + 5U);
}

// ---- In a dialog

class InPlaceEditInADialog : public testing::Test {
protected:
    // Posts one message to the window with the focus, which is an edit's unless the grid is to have it.
    void Post(UINT message, WPARAM wParam, bool withEdit = true) {
        dialog.Run([=, this] {
            if (withEdit) {
                OpenEdit(dialog.grid, L"12.5", CRect(150, 20, 300, 36), nullptr);
            }
            ::PostMessage(::GetFocus(), message, wParam, 1);
        });
    }
    CEditorDialog dialog;
};

TEST_F(InPlaceEditInADialog, EnterEndsTheEditAlone) {
    Post(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(dialog.grid.reports, std::vector{Done(L"12.5")});
    EXPECT_EQ(dialog.oks, 0);
    EXPECT_TRUE(dialog.gridHadFocus);
}

TEST_F(InPlaceEditInADialog, TabEndsTheEditAlone) {
    Post(WM_KEYDOWN, VK_TAB);
    EXPECT_EQ(dialog.grid.reports, std::vector{Done(L"12.5")});
    EXPECT_TRUE(dialog.gridHadFocus);
}

TEST_F(InPlaceEditInADialog, EscapeEndsTheEditAlone) {
    Post(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(dialog.grid.reports, std::vector{Done(L"12.5")});
    EXPECT_EQ(dialog.cancels, 0);
    EXPECT_TRUE(dialog.gridHadFocus);
}

TEST_F(InPlaceEditInADialog, AltWithALetterDoesNothing) {
    Post(WM_SYSCHAR, L'a');
    EXPECT_EQ(dialog.mnemonics, 0);
    EXPECT_TRUE(dialog.editorWasOpen);
}

// What the tests above rule out does happen without an edit.
TEST_F(InPlaceEditInADialog, WithoutAnEditTheKeysAreTheDialogs) {
    Post(WM_KEYDOWN, VK_RETURN, false);
    EXPECT_EQ(dialog.oks, 1);
    CEditorDialog second;
    second.Run([&] { ::PostMessage(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1); });
    EXPECT_EQ(second.cancels, 1);
    CEditorDialog third;
    third.Run([&] { ::PostMessage(::GetFocus(), WM_SYSCHAR, L'a', 1); });
    EXPECT_EQ(third.mnemonics, 1);
}

}  // namespace
