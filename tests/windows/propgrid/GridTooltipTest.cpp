// The tooltip that shows what a cell cuts off.
#include <commctrl.h>

#include "tests/windows/propgrid/GridInputFixture.h"

namespace {

class GridTooltip : public GridInputTest {
protected:
    void Hover(CPoint point) { grid.SendMessage(WM_MOUSEHOVER, 0, MAKELPARAM(point.x, point.y)); }
    // The text of the tooltip that is up; empty without one.
    static std::wstring Shown() {
        const HWND window = Find();
        if (window == nullptr || !::IsWindowVisible(window)) {
            return {};
        }
        std::wstring text(5000, L'\0');
        text.resize(static_cast<std::size_t>(::GetWindowText(window, text.data(), 5000)));
        return text;
    }
    static HWND Find() {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) CALLBACK -> BOOL {
                wchar_t name[40] = {};
                ::GetClassName(window, name, 40);
                if (_wcsicmp(name, TOOLTIPS_CLASS) != 0) {
                    return TRUE;
                }
                *reinterpret_cast<HWND*>(result) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    // Whether the system has been asked to report that the mouse rests.
    bool IsAwaited() {
        TRACKMOUSEEVENT hover = {sizeof(hover), TME_QUERY, nullptr, 0};
        ::TrackMouseEvent(&hover);
        return hover.hwndTrack == grid.m_hWnd && (hover.dwFlags & TME_HOVER) != 0;
    }
    void PutMouse(CPoint point) {
        grid.ClientToScreen(&point);
        ::SetCursorPos(point.x, point.y);
    }

    const std::wstring longText = L"a text that is far too long for its narrow cell in this grid";
};

TEST_F(GridTooltip, ShowsANameAndAValueThatAreCutOff) {
    const UINT item = grid.AddStringItem(Section(), L"Name: " + longText, longText);
    Hover(NameOf(item));
    EXPECT_EQ(Shown(), L"Name: " + longText);
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), longText);
}

TEST_F(GridTooltip, StandsOverTheCellInItsFont) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    const CRect value = RectsOf(item).second;
    Hover(value.CenterPoint());
    CRect text;
    ::GetWindowRect(Find(), &text);
    ::SendMessage(Find(), TTM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&text));
    grid.ScreenToClient(&text);
    EXPECT_EQ(text.left, value.left + CPropertyGrid::GetTextMargin());
    EXPECT_EQ(text.top, value.top);
    LOGFONT font = {};
    LOGFONT shown = {};
    parent.font.GetLogFont(&font);
    ::GetObject(reinterpret_cast<HFONT>(::SendMessage(Find(), WM_GETFONT, 0, 0)), sizeof(shown), &shown);
    EXPECT_EQ(shown.lfHeight, font.lfHeight);
}

TEST_F(GridTooltip, StaysOnTheScreen) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    const int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    parent.SetWindowPos(nullptr, screenWidth - 300, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Hover(ValueOf(item));
    CRect shown;
    ::GetWindowRect(Find(), &shown);
    EXPECT_EQ(shown.right, screenWidth);
}

TEST_F(GridTooltip, ShowsNothingThatFitsItsCell) {
    const UINT item = grid.AddStringItem(Section(), L"name", L"text");
    Hover(NameOf(item));
    EXPECT_EQ(Shown(), L"");
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), L"");
    Hover(CPoint(20, 190));
    EXPECT_EQ(Shown(), L"") << "no row";
}

TEST_F(GridTooltip, ATextThatJustFitsHasNoneAndOnePixelLessHas) {
    const UINT item = grid.AddStringItem(Section(), L"name", L"a value of some length");
    CClientDC dc(&grid);
    ::SelectObject(dc.GetSafeHdc(), parent.font.GetSafeHandle());
    const int width = dc.GetTextExtent(L"a value of some length", 22).cx;
    grid.SetGutterWidth(300 - width - CPropertyGrid::GetTextMargin());
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), L"");
    grid.SetGutterWidth(300 - width - CPropertyGrid::GetTextMargin() + 1);
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), L"a value of some length");
    ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(SYSTEM_FONT));
}

TEST_F(GridTooltip, ShowsAPathInFull) {
    const std::wstring path = L"C:\\windows\\a folder with a long name\\another folder\\drawing.dwg";
    const UINT item = grid.AddFileItem(Section(), L"name", path, L"All|*.*||");
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), path);
}

TEST_F(GridTooltip, ACustomItemsTextShowsWhereItIsEditedAsText) {
    custom.text = longText;
    custom.mode = EM_INPLACE_BUTTON;
    const UINT item = grid.AddCustomItem(Section(), L"custom", &custom);
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), longText);
    custom.mode = EM_CUSTOM;
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), L"") << "what it draws is its own affair";
}

TEST_F(GridTooltip, ShowsRowsThatCannotHaveTheFocusToo) {
    grid.SetFocusNonEditable(false);
    const UINT item = grid.AddStringItem(Section(), L"name", longText, false);
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), longText);
}

TEST_F(GridTooltip, ShowsNothingWhileAnEditorIsOpen) {
    const UINT item = grid.AddStringItem(Section(), longText, longText);
    ClickOn(ValueOf(item));
    ASSERT_NE(Edit(), nullptr);
    Hover(NameOf(item));
    EXPECT_EQ(Shown(), L"");
}

TEST_F(GridTooltip, ShowsNothingWhileTheMouseIsHeld) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    Press(CPoint(grid.GetGutterWidth(), NameOf(item).y));
    ASSERT_EQ(::GetCapture(), grid.m_hWnd) << "the divider is dragged";
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), L"");
    Release(CPoint(0, 0));
}

TEST_F(GridTooltip, GoesWhenTheMouseLeavesTheCellOrTheUserActs) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    const CPoint point = ValueOf(item);
    const CPoint inside(point.x + 5, point.y);
    const std::function<void()> endings[] = {
        [&] { MoveTo(CPoint(20, point.y)); },
        [&] { MoveTo(CPoint(point.x, point.y + 3 * RowHeight())); },
        [&] { grid.SendMessage(WM_MOUSELEAVE); },
        [&] { Press(point), Release(CPoint(0, 0)); },
        [&] { PressKey(VK_DOWN); },
        [&] { Turn(-120); },
        [&] { grid.SetItemValue(item, std::wstring(L"short")), grid.SetItemValue(item, longText); },
        [&] { grid.MoveWindow(1, 0, 300, 200), grid.MoveWindow(0, 0, 300, 200); },
    };
    for (const std::function<void()>& end : endings) {
        Hover(point);
        ASSERT_EQ(Shown(), longText);
        MoveTo(inside);
        EXPECT_EQ(Shown(), longText) << "still in the cell";
        end();
        EXPECT_EQ(Shown(), L"") << "ending " << &end - endings;
    }
}

TEST_F(GridTooltip, GoesWithTheGridsWindow) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    Hover(ValueOf(item));
    ASSERT_NE(Find(), nullptr);
    grid.DestroyWindow();
    EXPECT_EQ(Find(), nullptr);
}

TEST_F(GridTooltip, OfATextWithoutEndIsCutOff) {
    const UINT item = grid.AddStringItem(Section(), L"name", std::wstring(100000, L'x'));
    Hover(ValueOf(item));
    EXPECT_EQ(Shown(), std::wstring(1023, L'x'));
}

// As the system reports a mouse at rest when a window below it closes.
TEST_F(GridTooltip, IsNotAwaitedWhenAnEditorClosesUnderAMouseAtRest) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    const CPoint pressed = ValueOf(item);
    const CPoint rest(pressed.x + 5, pressed.y + 1);
    const auto isAwaitedAfterMove = [this](CPoint point) {
        TRACKMOUSEEVENT hover = {sizeof(hover), TME_CANCEL | TME_HOVER, grid.m_hWnd, 0};
        ::TrackMouseEvent(&hover);
        MoveTo(point);
        return IsAwaited();
    };
    PutMouse(pressed);
    MoveTo(rest);
    EXPECT_TRUE(isAwaitedAfterMove(pressed));
    EXPECT_FALSE(isAwaitedAfterMove(pressed));
    ClickOn(pressed);
    ASSERT_NE(Edit(), nullptr);
    PutMouse(rest);
    Enter(longText + L"!");
    ASSERT_EQ(Edit(), nullptr);
    EXPECT_FALSE(isAwaitedAfterMove(rest));
    EXPECT_TRUE(isAwaitedAfterMove(pressed));
}

// The mouse comes, clicks, and the value is typed before the hover time is over.
TEST_F(GridTooltip, IsNotAwaitedAnyMoreAfterAPressOrAKey) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    const CPoint value = ValueOf(item);
    PutMouse(value);
    const auto await = [&] {
        MoveTo(CPoint(value.x + 5, value.y));
        MoveTo(value);
        EXPECT_TRUE(IsAwaited());
    };
    await();
    ClickOn(value);
    EXPECT_FALSE(IsAwaited());
    Enter(longText + L"!");
    EXPECT_FALSE(IsAwaited());
    await();
    grid.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_FALSE(IsAwaited());
}

// The system's own hover: the mouse rests on the cell.
TEST_F(GridTooltip, ComesUpWhenTheMouseRests) {
    const UINT item = grid.AddStringItem(Section(), L"name", longText);
    CPoint point = ValueOf(item);
    MoveTo(CPoint(0, 0));
    grid.ClientToScreen(&point);
    ::SetCursorPos(point.x - 1, point.y);
    ::SetCursorPos(point.x, point.y);
    const ULONGLONG deadline = ::GetTickCount64() + 9000;
    while (Shown().empty() && ::GetTickCount64() < deadline) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        PumpMessages();
    }
    EXPECT_EQ(Shown(), longText);
}

}  // namespace
