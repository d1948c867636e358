// The drop-down list: how it opens and looks, what mouse and keys do, each of its endings, and that nothing
// of it is touched after its message to the grid.
#include <climits>
#include <ostream>

#include "propgrid/editors/PropertyGridCombo.h"
#include "tests/windows/propgrid/EditorFixture.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/Pixels.h"

namespace {

constexpr COLORREF back = RGB(0xE1, 0xE1, 0xE1);
constexpr COLORREF textColor = RGB(0, 0, 140);
constexpr COLORREF focusColor = RGB(0, 130, 0);
constexpr COLORREF focusTextColor = RGB(255, 240, 0);

Report Chosen(int index) {
    return {WM_GRID_CHOICE_MADE, index, {}};
}

// Opens a list in the grid as the grid does for an item with choices.
CPropertyGridCombo& OpenList(CEditorGrid& grid, const std::vector<std::wstring>& strings, int selection,
                             const CRect& under, CFont* font) {
    auto list = std::make_unique<CPropertyGridCombo>();
    EXPECT_TRUE(list->Create(WS_CHILD, under, &grid, 0));
    list->SetColors(back, textColor, focusColor, focusTextColor);
    if (font != nullptr) {
        list->SetFont(font);
    }
    for (const std::wstring& string : strings) {
        list->AddString(string);
    }
    list->SetCurSel(selection);
    list->ShowWindow(SW_SHOW);
    CPropertyGridCombo& opened = *list;
    grid.editor = std::move(list);
    return opened;
}

int HeightOfGg(HFONT font) {
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ previous = font != nullptr ? ::SelectObject(dc, font) : nullptr;
    SIZE size = {};
    ::GetTextExtentPoint32(dc, L"Gg", 2, &size);
    if (previous != nullptr) {
        ::SelectObject(dc, previous);
    }
    ::ReleaseDC(nullptr, dc);
    return size.cy;
}

class ComboList : public EditorTest {
protected:
    // Under the value of a row, in client coordinates of the grid.
    static CRect Under() { return {150, 36, 300, 136}; }
    static const std::vector<std::wstring>& Three() {
        static const std::vector<std::wstring> strings = {L"HHH", L"HH", L"H"};
        return strings;
    }

    CPropertyGridCombo& Open(int selection = 1, const std::vector<std::wstring>& strings = Three()) {
        return OpenList(grid, strings, selection, Under(), &parent.font);
    }
    int RowHeight() const { return HeightOfGg(parent.font) + 4; }
    CPropertyGridCombo& List() { return static_cast<CPropertyGridCombo&>(*grid.editor); }

    // Mouse and keys reach the list at once, before it can paint.
    void Mouse(UINT message, int y, int x = 10) {
        ::SendMessage(grid.editor->m_hWnd, message, 0,
                      MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y)));
    }
    void Key(UINT key) { ::SendMessage(grid.editor->m_hWnd, WM_KEYDOWN, key, 1); }
    void Paint() { grid.editor->RedrawWindow(); }
    bool IsPaintDue() { return ::GetUpdateRect(grid.editor->m_hWnd, nullptr, FALSE) != FALSE; }
};

// ---- The window

TEST_F(ComboList, IsAPopUpOfTheGridsParentAtTheRectanglesScreenPosition) {
    CPropertyGridCombo list;
    ASSERT_TRUE(list.Create(WS_CHILD, Under(), &grid, 0));
    EXPECT_EQ(list.GetStyle() & (WS_CHILD | WS_POPUP | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_POPUP));
    EXPECT_EQ(list.GetExStyle(), 0U);
    EXPECT_EQ(::GetWindow(list.m_hWnd, GW_OWNER), parent.m_hWnd);
    EXPECT_EQ(::GetAncestor(list.m_hWnd, GA_PARENT), ::GetDesktopWindow());
    EXPECT_EQ(list.GetOwner(), &grid);
    EXPECT_EQ(::GetWindowTextLength(list), 0);
    CRect rect;
    list.GetWindowRect(&rect);
    grid.ScreenToClient(&rect);
    EXPECT_EQ(rect, Under());
}

TEST_F(ComboList, HasAPlainWindowClass) {
    CPropertyGridCombo list;
    ASSERT_TRUE(list.Create(WS_CHILD, Under(), &grid, 0));
    EXPECT_EQ(::GetClassLong(list.m_hWnd, GCL_STYLE), static_cast<DWORD>(CS_VREDRAW | CS_HREDRAW));
    EXPECT_EQ(::GetClassLongPtr(list.m_hWnd, GCLP_HBRBACKGROUND), 0U);
    EXPECT_EQ(::GetClassLongPtr(list.m_hWnd, GCLP_HCURSOR), 0U);
    EXPECT_EQ(::GetClassLongPtr(list.m_hWnd, GCLP_HICON), 0U);
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CPropertyGridCombo)));
}

TEST_F(ComboList, KnowsItsClass) {
    const CPropertyGridCombo list;
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_STREQ(list.GetRuntimeClass()->m_lpszClassName, "CPropertyGridCombo");
}

TEST_F(ComboList, HasNothingSelectedAtTheStart) {
    EXPECT_EQ(CPropertyGridCombo().GetCurSel(), -1);
}

TEST_F(ComboList, IsAsHighAsItsStringsWhenShownAndHasTheFocus) {
    const CPropertyGridCombo& list = Open();
    CRect rect;
    list.GetWindowRect(&rect);
    grid.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(150, 36, 300, 36 + 3 * RowHeight() + 2));
    EXPECT_EQ(::GetFocus(), list.m_hWnd);
    EXPECT_TRUE(list.IsWindowVisible());
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, TakesTheFocusHoweverItIsShown) {
    auto list = std::make_unique<CPropertyGridCombo>();
    list->Create(WS_CHILD, Under(), &grid, 0);
    grid.editor = std::move(list);
    grid.editor->ShowWindow(SW_SHOWNA);
    EXPECT_EQ(::GetFocus(), grid.editor->m_hWnd);
}

TEST_F(ComboList, OfABooleanIsTwoRowsAndTwoPixelsHigh) {
    CRect client;
    Open(0, {L"True", L"False"}).GetClientRect(&client);
    EXPECT_EQ(client.Height(), 2 * RowHeight() + 2);
}

TEST_F(ComboList, FitsItsRowsToItsFont) {
    CFont large;
    large.CreatePointFont(240, L"Tahoma");
    CRect client;
    OpenList(grid, Three(), 0, Under(), &large).GetClientRect(&client);
    EXPECT_EQ(client.Height(), 3 * (HeightOfGg(large) + 4) + 2);
    EXPECT_GT(HeightOfGg(large), RowHeight());
    grid.CloseEditor();
}

// Such a window answers no font, which leaves the one of the device context.
TEST_F(ComboList, DoesWithoutAFont) {
    CRect client;
    OpenList(grid, Three(), 0, Under(), nullptr).GetClientRect(&client);
    EXPECT_EQ(client.Height(), 3 * (HeightOfGg(nullptr) + 4) + 2);
    Paint();
    List().SetFont(nullptr);
    Paint();
    EXPECT_GT(CClientPixels(List()).Count({0, 0, 150, 400}, textColor), 0);
}

TEST_F(ComboList, UsesTheFontThatItsWindowAnswersWhenNoneWasSet) {
    struct CAnswering : CPropertyGridCombo {
        CFont font;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_GETFONT) {
                return reinterpret_cast<LRESULT>(font.GetSafeHandle());
            }
            return CPropertyGridCombo::WindowProc(message, wParam, lParam);
        }
    } list;
    list.font.CreatePointFont(240, L"Tahoma");
    list.Create(WS_CHILD, Under(), &grid, 0);
    list.AddString(L"x");
    list.ShowWindow(SW_SHOW);
    CRect client;
    list.GetClientRect(&client);
    EXPECT_EQ(client.Height(), HeightOfGg(list.font) + 4 + 2);
}

TEST_F(ComboList, PassesTheFontToItsWindow) {
    struct CRecordingList : CPropertyGridCombo {
        std::vector<std::pair<WPARAM, LPARAM>> fonts;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_SETFONT) {
                fonts.emplace_back(wParam, lParam);
            }
            return CPropertyGridCombo::WindowProc(message, wParam, lParam);
        }
    } list;
    list.Create(WS_CHILD, Under(), &grid, 0);
    list.SetFont(&parent.font, FALSE);
    const std::pair<WPARAM, LPARAM> expected(reinterpret_cast<WPARAM>(parent.font.GetSafeHandle()), FALSE);
    EXPECT_EQ(list.fonts, std::vector{expected});
}

TEST_F(ComboList, WantsAllKeysOfADialog) {
    EXPECT_EQ(Open().SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
}

TEST_F(ComboList, IsNotShownAgainByHiding) {
    CPropertyGridCombo& list = Open();
    list.AddString(L"one more");
    CRect before;
    CRect after;
    list.GetWindowRect(&before);
    list.SendMessage(WM_SHOWWINDOW, FALSE, 0);
    list.GetWindowRect(&after);
    EXPECT_EQ(before, after);
}

// ---- Painting

class ComboListPaint : public ComboList {
protected:
    // The rectangle of a string, and the part of it that is filled when it is selected.
    CRect Row(int index) const { return {1, 1 + index * RowHeight(), 149, 1 + (index + 1) * RowHeight()}; }
    CRect Inside(int index) const {
        CRect inside = Row(index);
        inside.DeflateRect(1, 1);
        return inside;
    }
    CClientPixels Picture() {
        Paint();
        return CClientPixels(List());
    }
    static int Area(const CRect& rect) { return rect.Width() * rect.Height(); }
};

TEST_F(ComboListPaint, FramesTheListInTheTextColor) {
    Open();
    const CClientPixels picture = Picture();
    const int bottom = picture.Height() - 1;
    ASSERT_EQ(picture.Width(), 150);
    EXPECT_EQ(picture.Count({0, 0, 150, 1}, textColor), 150);
    EXPECT_EQ(picture.Count({0, bottom, 150, bottom + 1}, textColor), 150);
    EXPECT_EQ(picture.Count({0, 0, 1, bottom}, textColor), bottom);
    EXPECT_EQ(picture.Count({149, 0, 150, bottom}, textColor), bottom);
}

TEST_F(ComboListPaint, WritesStringsInTheTextColorOnTheBackground) {
    Open(1);
    const CClientPixels picture = Picture();
    for (const int row : {0, 2}) {
        const int ink = picture.Count(Row(row), textColor);
        EXPECT_GT(ink, 5);
        EXPECT_EQ(picture.Count(Row(row), back) + ink, Area(Row(row)));
    }
    EXPECT_GT(picture.Count(Row(0), textColor), 2 * picture.Count(Row(2), textColor)) << "HHH over H";
}

TEST_F(ComboListPaint, FillsTheSelectedRowInTheFocusColors) {
    Open(1);
    const CClientPixels picture = Picture();
    const int ink = picture.Count(Inside(1), focusTextColor);
    EXPECT_GT(ink, 5);
    EXPECT_EQ(picture.Count(Inside(1), focusColor) + ink, Area(Inside(1)));
    const CRect all(0, 0, 150, picture.Height());
    EXPECT_EQ(picture.Count(all, focusColor), picture.Count(Inside(1), focusColor)) << "one row alone";
}

TEST_F(ComboListPaint, DrawsAFocusRectangleAroundTheFill) {
    Open(1);
    const CClientPixels picture = Picture();
    const CRect edge(1, Row(1).top, 149, Row(1).top + 1);
    const int changed = edge.Width() - picture.Count(edge, back);
    EXPECT_GT(changed, edge.Width() / 4);
    EXPECT_LT(changed, edge.Width());
}

TEST_F(ComboListPaint, StartsTheTextFourPixelsInside) {
    Open(2);
    const CClientPixels picture = Picture();
    const CRect row = Row(0);
    // A text that begins at 0 has its first ink where its first letter has.
    const CGridPicture letters({100, RowHeight()}, [&](CDC& dc) {
        const HGDIOBJ previous = ::SelectObject(dc, parent.font.GetSafeHandle());
        dc.SetTextColor(textColor);
        dc.SetBkMode(TRANSPARENT);
        CRect rect(0, 0, 100, RowHeight());
        dc.DrawText(Three()[0].c_str(), -1, &rect, DT_SINGLELINE | DT_NOPREFIX);
        ::SelectObject(dc, previous);
    });
    const int first = letters.Bounds({0, 0, 100, RowHeight()}, textColor).left;
    EXPECT_EQ(picture.Count({1, row.top, row.left + 4 + first, row.bottom}, textColor), 0);
    EXPECT_GT(picture.Count({row.left + 4 + first, row.top, row.left + 5 + first, row.bottom}, textColor), 0);
}

TEST_F(ComboListPaint, CentresTheTextInItsRow) {
    CFont large;
    large.CreatePointFont(240, L"Tahoma");
    Open(1);
    // Smaller letters in rows made for larger ones.
    List().SetFont(&large);
    List().SendMessage(WM_SHOWWINDOW, TRUE, 0);
    List().SetFont(&parent.font);
    const CClientPixels picture = Picture();
    const int rowHeight = HeightOfGg(large) + 4;
    int first = -1;
    int last = -1;
    for (int y = 1; y < 1 + rowHeight; ++y) {
        if (picture.Count({1, y, 149, y + 1}, textColor) == 0) {
            continue;
        }
        first = first < 0 ? y : first;
        last = y;
    }
    EXPECT_NEAR(first - 1, 1 + rowHeight - last, 6);
    EXPECT_GT(first, rowHeight / 5);
    grid.CloseEditor();
}

TEST_F(ComboListPaint, WritesInItsFont) {
    CFont large;
    large.CreatePointFont(240, L"Tahoma");
    Open(1);
    const int small = Picture().Count(Row(0), textColor);
    grid.CloseEditor();
    OpenList(grid, Three(), 1, Under(), &large);
    EXPECT_GT(Picture().Count({1, 1, 149, 1 + HeightOfGg(large) + 4}, textColor), 2 * small);
    grid.CloseEditor();
}

TEST_F(ComboListPaint, TakesNoCharacterForAMnemonic) {
    Open(2, {L"&&", L"&", L""});
    const CClientPixels picture = Picture();
    const int one = picture.Count(Row(1), textColor);
    EXPECT_GT(one, 5);
    EXPECT_EQ(picture.Count(Row(0), textColor), 2 * one);
}

TEST_F(ComboListPaint, CutsAStringAtTheEdgeWithoutAnEllipsis) {
    const std::wstring wide(100, L'l');
    Open(2, {wide, wide + L"l", L""});
    const CClientPixels picture = Picture();
    for (int y = 0; y < RowHeight(); ++y) {
        for (int x = 1; x < 149; ++x) {
            ASSERT_EQ(picture.At(x, 1 + y), picture.At(x, 1 + y + RowHeight()));
        }
    }
    EXPECT_GT(picture.Count({139, 1, 149, RowHeight()}, textColor), 5) << "up to the edge";
}

TEST_F(ComboListPaint, FollowsTheSelection) {
    Open(1);
    Paint();
    Key(VK_DOWN);
    EXPECT_TRUE(IsPaintDue());
    const CClientPixels picture = Picture();
    EXPECT_EQ(picture.Count(Row(1), focusColor), 0);
    EXPECT_GT(picture.Count(Row(2), focusColor), 0);
}

TEST_F(ComboListPaint, SelectsTheFirstStringWhenNothingWasSelected) {
    Open(-1);
    EXPECT_GT(Picture().Count(Row(0), focusColor), 0);
    EXPECT_EQ(List().GetCurSel(), 0);
    Key(VK_RETURN);
    EXPECT_EQ(grid.reports, std::vector{Chosen(0)});
}

TEST_F(ComboListPaint, SelectsTheNearestStringForAnIndexOutside) {
    Open(3);
    EXPECT_GT(Picture().Count(Row(2), focusColor), 0);
    EXPECT_EQ(List().GetCurSel(), 2);
    for (const auto& [index, nearest] : {std::pair(INT_MAX, 2), {INT_MIN, 0}, {-7, 0}, {1000000, 2}}) {
        List().SetCurSel(index);
        Paint();
        EXPECT_EQ(List().GetCurSel(), nearest);
    }
}

TEST_F(ComboListPaint, HasNothingSelectedWithoutStrings) {
    for (const int index : {-1, 0, 5, INT_MAX}) {
        Open(index, {});
        const CClientPixels picture = Picture();
        EXPECT_EQ(picture.Height(), 2);
        EXPECT_EQ(List().GetCurSel(), -1);
        grid.CloseEditor();
    }
}

TEST_F(ComboListPaint, UsesTheSystemsColorsAtTheStart) {
    CPropertyGridCombo list;
    list.Create(WS_CHILD, Under(), &grid, 0);
    list.SetFont(&parent.font);
    list.AddString(L"selected");
    list.AddString(L"HHH");
    list.ShowWindow(SW_SHOW);
    list.RedrawWindow();
    const CClientPixels picture(list);
    EXPECT_GT(picture.Count(Row(0), ::GetSysColor(COLOR_HIGHLIGHT)), 100);
    EXPECT_GT(picture.Count(Row(0), ::GetSysColor(COLOR_HIGHLIGHTTEXT)), 5);
    EXPECT_GT(picture.Count(Row(1), ::GetSysColor(COLOR_WINDOW)), 100);
    EXPECT_GT(picture.Count(Row(1), ::GetSysColor(COLOR_WINDOWTEXT)), 5);
}

TEST_F(ComboListPaint, NeedsNoRoom) {
    for (const CRect& rect : {CRect(0, 0, 0, 0), CRect(5, 5, 6, 6), CRect(5, 5, 2, 2), CRect(0, 0, 3, 100)}) {
        OpenList(grid, Three(), 0, rect, &parent.font);
        Paint();
        // Smaller than a row.
        List().SetWindowPos(nullptr, 0, 0, 40, 3, SWP_NOMOVE | SWP_NOZORDER);
        Paint();
        Mouse(WM_LBUTTONDOWN, 1);
        Mouse(WM_LBUTTONUP, 1);
        EXPECT_EQ(grid.reports.back(), Chosen(0));
    }
}

TEST_F(ComboListPaint, TakesLongStringsAndManyOfThem) {
    Open(0, {std::wstring(100000, L'm'), std::wstring(100000, L' '), L""});
    const CClientPixels picture = Picture();
    EXPECT_GT(picture.Count(Row(0), focusTextColor), 20);
    grid.CloseEditor();
    Open(19999, std::vector<std::wstring>(20000, L"H"));
    Paint();
    EXPECT_EQ(List().GetCurSel(), 19999);
}

TEST_F(ComboListPaint, LeavesNoGdiObjectBehind) {
    Open();
    Paint();
    const int before = GdiObjectCount();
    for (int i = 0; i < 1000; ++i) {
        List().SetCurSel(i % 3);
        Paint();
    }
    EXPECT_EQ(GdiObjectCount(), before);
}

// ---- Mouse

TEST_F(ComboList, SelectsTheRowUnderTheButton) {
    Open(-1);
    Mouse(WM_LBUTTONDOWN, 1 + RowHeight() + 3);
    EXPECT_EQ(List().GetCurSel(), 1);
    EXPECT_TRUE(IsPaintDue());
    EXPECT_TRUE(grid.reports.empty());
    Mouse(WM_LBUTTONUP, 1 + RowHeight() + 3);
    EXPECT_EQ(grid.reports, std::vector{Chosen(1)});
}

TEST_F(ComboList, CountsTheTopBorderToTheFirstRow) {
    Open(2);
    Mouse(WM_LBUTTONDOWN, 0);
    EXPECT_EQ(List().GetCurSel(), 0);
    // So every row begins one pixel above where it is painted.
    Mouse(WM_MOUSEMOVE, RowHeight() - 1);
    EXPECT_EQ(List().GetCurSel(), 0);
    Mouse(WM_MOUSEMOVE, RowHeight());
    EXPECT_EQ(List().GetCurSel(), 1);
    Mouse(WM_LBUTTONUP, 0);
    EXPECT_EQ(grid.reports, std::vector{Chosen(1)}) << "the release itself selects nothing";
}

TEST_F(ComboList, FollowsTheMouseWhileTheButtonIsDownAlone) {
    Open(0);
    Paint();
    Mouse(WM_MOUSEMOVE, 2 * RowHeight() + 3);
    EXPECT_EQ(List().GetCurSel(), 0);
    EXPECT_FALSE(IsPaintDue());
    Mouse(WM_LBUTTONDOWN, 3);
    EXPECT_EQ(::GetCapture(), List().m_hWnd);
    Paint();
    Mouse(WM_MOUSEMOVE, 2 * RowHeight() + 3);
    EXPECT_EQ(List().GetCurSel(), 2);
    EXPECT_TRUE(IsPaintDue());
    grid.keepsEditor = true;
    Paint();
    Mouse(WM_LBUTTONUP, 2 * RowHeight() + 3);
    Mouse(WM_MOUSEMOVE, 3);
    EXPECT_EQ(List().GetCurSel(), 2);
    EXPECT_TRUE(IsPaintDue());
}

TEST_F(ComboList, HasReleasedTheMouseWhenItReports) {
    HWND capture = grid.m_hWnd;
    grid.beforeClosing = [&] { capture = ::GetCapture(); };
    Open();
    Mouse(WM_LBUTTONDOWN, 3);
    Mouse(WM_LBUTTONUP, 3);
    EXPECT_EQ(capture, nullptr);
}

TEST_F(ComboList, ReportsAnIndexBelowTheListUnchanged) {
    Open();
    Mouse(WM_LBUTTONDOWN, 3 * RowHeight());  // the bottom border
    Mouse(WM_LBUTTONUP, 3 * RowHeight());
    Open();
    Mouse(WM_LBUTTONDOWN, 3);
    Mouse(WM_MOUSEMOVE, 9 * RowHeight() + 5);
    Mouse(WM_LBUTTONUP, 9 * RowHeight() + 5);
    EXPECT_EQ(grid.reports, (std::vector{Chosen(3), Chosen(9)}));
}

TEST_F(ComboList, ReportsAnIndexAboveTheListUnchanged) {
    Open();
    Mouse(WM_LBUTTONDOWN, 3);
    Mouse(WM_MOUSEMOVE, -2 * RowHeight());
    Mouse(WM_LBUTTONUP, -2 * RowHeight());
    Open();
    Mouse(WM_LBUTTONDOWN, 3);
    Mouse(WM_MOUSEMOVE, 1 - RowHeight());  // less than a row above divides to 0
    Mouse(WM_LBUTTONUP, 1 - RowHeight());
    EXPECT_EQ(grid.reports, (std::vector{Chosen(-2), Chosen(0)}));
}

TEST_F(ComboList, ReportsTheNearestStringWhenItHasPaintedBeforeTheRelease) {
    Open();
    Mouse(WM_LBUTTONDOWN, 3);
    Mouse(WM_MOUSEMOVE, 9 * RowHeight());
    Paint();
    Mouse(WM_LBUTTONUP, 9 * RowHeight());
    EXPECT_EQ(grid.reports, std::vector{Chosen(2)});
}

TEST_F(ComboList, ReportsItsSelectionWhenAButtonPressedElsewhereIsReleasedInIt) {
    Open(1);
    Mouse(WM_LBUTTONUP, 2 * RowHeight() + 3);
    EXPECT_EQ(grid.reports, std::vector{Chosen(1)});
}

TEST_F(ComboList, TakesTheMouseBeforeItIsShown) {
    auto list = std::make_unique<CPropertyGridCombo>();
    list->Create(WS_CHILD, Under(), &grid, 0);
    list->AddString(L"x");
    grid.editor = std::move(list);
    Mouse(WM_LBUTTONDOWN, 0);
    Mouse(WM_LBUTTONUP, 0);
    EXPECT_EQ(grid.reports, std::vector{Chosen(0)});
}

TEST_F(ComboList, IsChosenFromWithARealMouse) {
    ClickOn([&] { return Open(0).m_hWnd; }, [&](HWND) { return POINT{20, 1 + 2 * RowHeight() + 5}; });
    EXPECT_EQ(grid.reports, std::vector{Chosen(2)});
    EXPECT_EQ(grid.editor, nullptr);
}

// ---- Keys

TEST_F(ComboList, MovesTheSelectionByArrowKeysToItsEnds) {
    Open(1);
    for (const auto& [key, selected] : {std::pair(VK_DOWN, 2),
                                        {VK_DOWN, 2},
                                        {VK_UP, 1},
                                        {VK_LEFT, 0},
                                        {VK_LEFT, 0},
                                        {VK_UP, 0},
                                        {VK_RIGHT, 1},
                                        {VK_RIGHT, 2},
                                        {VK_RIGHT, 2}}) {
        Paint();
        Key(static_cast<UINT>(key));
        EXPECT_EQ(List().GetCurSel(), selected);
        EXPECT_TRUE(IsPaintDue());
    }
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, MovesTheSelectionFromAnyIndex) {
    Open(1);
    for (const auto& [from, up, down] : {std::tuple(-1, 0, 0),
                                         {-5, 0, -4},
                                         {INT_MIN, 0, INT_MIN + 1},
                                         {9, 8, 2},
                                         {INT_MAX, INT_MAX - 1, 2}}) {
        List().SetCurSel(from);
        Key(VK_UP);
        EXPECT_EQ(List().GetCurSel(), up);
        List().SetCurSel(from);
        Key(VK_DOWN);
        EXPECT_EQ(List().GetCurSel(), down);
    }
}

TEST_F(ComboList, MovesNowhereWithoutStrings) {
    Open(-1, {});
    Key(VK_DOWN);
    EXPECT_EQ(List().GetCurSel(), -1);
    Paint();
    Key(VK_RETURN);
    EXPECT_EQ(grid.reports, std::vector{Chosen(-1)});
}

TEST_F(ComboList, LeavesOtherKeysAlone) {
    Open(1);
    for (const UINT key : {VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_SPACE, VK_TAB, VK_F4}) {
        Key(key);
    }
    EXPECT_EQ(List().GetCurSel(), 1);
    EXPECT_EQ(::GetFocus(), List().m_hWnd);
    EXPECT_TRUE(grid.reports.empty());
}

// ---- Endings

struct Ending {
    const char* name;
    std::function<void(CEditorGrid&, HWND list)> end;
    bool chooses = false;
};

std::ostream& operator<<(std::ostream& out, const Ending& ending) {
    return out << ending.name;
}

void Send(HWND list, UINT message, WPARAM wParam) {
    ::SendMessage(list, message, wParam, 0);
}

const Ending endings[] = {
    {"Enter", [](auto&, HWND list) { Send(list, WM_KEYDOWN, VK_RETURN); }, true},
    {"Execute", [](auto&, HWND list) { Send(list, WM_KEYDOWN, VK_EXECUTE); }, true},
    {"Release", [](auto&, HWND list) { Send(list, WM_LBUTTONUP, 0); }, true},
    {"Escape", [](auto&, HWND list) { Send(list, WM_KEYDOWN, VK_ESCAPE); }},
    {"FocusToTheGrid", [](auto& grid, HWND) { ::SetFocus(grid.m_hWnd); }},
    {"FocusToTheParent", [](auto& grid, HWND) { ::SetFocus(::GetParent(grid.m_hWnd)); }},
    {"FocusNowhere", [](auto&, HWND) { ::SetFocus(nullptr); }},
    {"Closing", [](auto&, HWND list) { Send(list, WM_CLOSE, 0); }},
    {"DestroyingItsWindow", [](auto&, HWND list) { ::DestroyWindow(list); }},
};

class ComboListEnding : public ComboList, public testing::WithParamInterface<Ending> {
protected:
    void End(HWND list) { GetParam().end(grid, list); }
};

INSTANTIATE_TEST_SUITE_P(Endings, ComboListEnding, testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(ComboListEnding, ReportsAChoiceOnceToAGridThatDeletesIt) {
    const HWND list = Open(2).m_hWnd;
    End(list);
    EXPECT_EQ(grid.reports, GetParam().chooses ? std::vector{Chosen(2)} : std::vector<Report>());
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(grid.editor == nullptr, GetParam().chooses) << "without a choice the object stays";
}

TEST_P(ComboListEnding, LeavesTheClosingAfterAChoiceToTheGrid) {
    grid.keepsEditor = true;
    const HWND list = Open(2).m_hWnd;
    End(list);
    EXPECT_EQ(grid.reports.size(), GetParam().chooses ? 1U : 0U);
    EXPECT_EQ(::IsWindow(list) != FALSE, GetParam().chooses);
    ASSERT_NE(grid.editor, nullptr);
    EXPECT_EQ(grid.editor->m_hWnd, GetParam().chooses ? list : nullptr);
}

TEST_P(ComboListEnding, LeavesNothingBehind) {
    const auto cycle = [&] {
        Open(2, {L"a string too long for the object to hold inside", L"b", L"c"});
        Paint();
        End(grid.editor->m_hWnd);
        grid.CloseEditor();
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

TEST_F(ComboList, EndsSilentlyWhenAnotherTopLevelWindowTakesTheFocus) {
    const HWND list = Open().m_hWnd;
    CGridParent another;
    another.SetFocus();
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, EndsSilentlyWithAClickBesideIt) {
    const HWND list = Open().m_hWnd;
    Click(parent.m_hWnd, {450, 300});
    EXPECT_TRUE(PumpUntil([&] { return !::IsWindow(list); }));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, EndsWithTheGrid) {
    const HWND list = Open().m_hWnd;
    grid.DestroyWindow();
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(grid.editor, nullptr);
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, EndsWithTheWholeDialog) {
    grid.keepsEditor = true;
    const HWND list = Open().m_hWnd;
    parent.DestroyWindow();
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(ComboList, ReportsToItsParentWhenItHasNoOwner) {
    CEditorGrid top;
    top.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    CEditorGrid inside;
    inside.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 10, 10), &top, 1);
    inside.keepsEditor = top.keepsEditor = true;
    OpenList(inside, Three(), 1, Under(), &parent.font).SetOwner(nullptr);
    Send(inside.editor->m_hWnd, WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(top.reports, std::vector{Chosen(1)});
    EXPECT_TRUE(inside.reports.empty());
    inside.CloseEditor();
}

// ---- In a dialog

class ComboListInADialog : public testing::Test {
protected:
    void Press(UINT key) {
        dialog.Run([=, this] {
            OpenList(dialog.grid, {L"a", L"b"}, 1, CRect(150, 36, 300, 136), nullptr);
            ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1);
        });
    }
    CEditorDialog dialog;
};

TEST_F(ComboListInADialog, EnterChoosesAlone) {
    Press(VK_RETURN);
    EXPECT_EQ(dialog.grid.reports, std::vector{Chosen(1)});
    EXPECT_EQ(dialog.oks, 0);
}

TEST_F(ComboListInADialog, EscapeClosesTheListAlone) {
    Press(VK_ESCAPE);
    EXPECT_TRUE(dialog.grid.reports.empty());
    EXPECT_FALSE(dialog.editorWasOpen);
    EXPECT_EQ(dialog.cancels, 0);
}

}  // namespace
