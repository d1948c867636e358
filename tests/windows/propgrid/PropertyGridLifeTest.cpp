// The grid's window from creation to its end, and what is left of it then.
#include <memory>
#include <string>

#include "propgrid/DistanceItem.h"
#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/Pixels.h"

namespace {

class PropertyGridLife : public testing::Test {
protected:
    // A control as a dialog template makes it.
    HWND MakeControl(const wchar_t* windowClass, const wchar_t* caption, DWORD style, int id,
                     const CRect& area = CRect(0, 0, 200, 100)) {
        return ::CreateWindowExW(0, windowClass, caption, style | WS_CHILD | WS_VISIBLE, area.left, area.top,
                                 area.Width(), area.Height(), parent.m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }
    bool Create(CPropertyGrid& grid) {
        return grid.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &parent,
                           100) != FALSE;
    }

    CGridParent parent;
};

TEST_F(PropertyGridLife, TakesOverAStaticOfADialog) {
    MakeControl(L"Static", L"", SS_BLACKFRAME, 100);
    CTestGrid grid;
    grid.SetBackColor(RGB(0xE1, 0xE1, 0xE1));
    ASSERT_TRUE(grid.SubclassDlgItem(100, &parent));
    EXPECT_EQ(grid.GetGutterWidth(), 100);
    EXPECT_GT(grid.GetRowHeight(), 4);
    EXPECT_NE(grid.GetStyle() & WS_CLIPCHILDREN, 0U);
    parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    // The placeholder's black frame is gone.
    EXPECT_EQ(CClientPixels(grid).Count({0, 0, 200, 100}, RGB(0xE1, 0xE1, 0xE1)), 20000);
}

TEST_F(PropertyGridLife, GetsTheMouseAndTheTabKeyWhenItReplacesAStatic) {
    const HWND control = MakeControl(L"Static", L"", SS_BLACKFRAME, 100);
    CPoint point(50, 50);
    ::ClientToScreen(control, &point);
    const LPARAM position = MAKELPARAM(point.x, point.y);
    EXPECT_EQ(::SendMessage(control, WM_NCHITTEST, 0, position), HTTRANSPARENT);
    CTestGrid grid;
    ASSERT_TRUE(grid.SubclassDlgItem(100, &parent));
    EXPECT_EQ(::SendMessage(control, WM_NCHITTEST, 0, position), HTCLIENT);
    EXPECT_NE(grid.GetStyle() & WS_TABSTOP, 0U);
}

TEST_F(PropertyGridLife, LeavesTheStyleOfOtherWindowsToTheirCreator) {
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    EXPECT_EQ(grid.GetStyle() & (WS_TABSTOP | SS_NOTIFY), 0U);
}

TEST_F(PropertyGridLife, TakesTheButtonTextsOfItsParent) {
    MakeControl(L"Button", L"Accetta", 0, IDOK);
    MakeControl(L"Button", L"Rinuncia", 0, IDCANCEL);
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    EXPECT_EQ(grid.GetOkText(), L"Accetta");
    EXPECT_EQ(grid.GetCancelText(), L"Rinuncia");
}

TEST_F(PropertyGridLife, HasButtonTextsOfItsOwnWhenTheParentHasNoButtons) {
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    EXPECT_EQ(grid.GetOkText(), L"OK");
    EXPECT_EQ(grid.GetCancelText(), L"Cancel");
}

TEST_F(PropertyGridLife, KeepsButtonTextsThatTheClientHasSet) {
    MakeControl(L"Button", L"Accetta", 0, IDOK);
    CTestGrid grid;
    grid.SetOkText(L"Mine");
    ASSERT_TRUE(Create(grid));
    EXPECT_EQ(grid.GetOkText(), L"Mine");
}

TEST_F(PropertyGridLife, UsesTahomaWhenTheParentHasNoFont) {
    CTestGrid inParentsFont;
    ASSERT_TRUE(Create(inParentsFont));
    parent.font.DeleteObject();
    CTestGrid inItsOwn;
    ASSERT_TRUE(Create(inItsOwn));
    CFont tahoma;
    tahoma.CreatePointFont(85, L"Tahoma");
    CClientDC dc(&inItsOwn);
    const HGDIOBJ previous = ::SelectObject(dc, tahoma.GetSafeHandle());
    EXPECT_EQ(inItsOwn.GetRowHeight(), dc.GetTextExtent(L"Gg", 2).cy + 4);
    ::SelectObject(dc, previous);
}

TEST_F(PropertyGridLife, UsesTahomaWhenTheParentsFontIsGone) {
    const HGDIOBJ gone = parent.font.Detach();
    ::DeleteObject(gone);
    parent.font.m_hObject = gone;
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    parent.font.m_hObject = nullptr;
    EXPECT_GT(grid.GetRowHeight(), 10);
}

TEST_F(PropertyGridLife, DoesNotNeedTheParentsFontAfterItsStart) {
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    grid.SetTextColor(RGB(9, 9, 9));
    grid.AddIntegerItem(grid.AddSection(L""), L"HHH", 1);
    const int before = CGridPicture(grid).Count({0, 0, 200, 100}, RGB(9, 9, 9));
    EXPECT_GT(before, 0);
    parent.font.DeleteObject();
    EXPECT_EQ(CGridPicture(grid).Count({0, 0, 200, 100}, RGB(9, 9, 9)), before);
}

TEST_F(PropertyGridLife, KeepsItsContentsWhenItsWindowGoesAndIsMadeAgain) {
    CTestGrid grid;
    ASSERT_TRUE(Create(grid));
    const UINT section = grid.AddSection(L"section");
    for (int row = 0; row < 30; ++row) {
        grid.AddIntegerItem(section, std::to_wstring(row), row);
    }
    grid.DestroyWindow();
    grid.AddIntegerItem(section, L"between", 1);
    grid.SetBackColor(1);
    ASSERT_TRUE(Create(grid));
    EXPECT_EQ(grid.GetItemCount(), 31U);
    EXPECT_TRUE(grid.GetDlgItem(1000)->IsWindowVisible());
}

TEST_F(PropertyGridLife, TakesOverAControlAfterACreationThatFailed) {
    MakeControl(L"Static", L"", SS_BLACKFRAME, 100);
    CTestGrid grid;
    EXPECT_FALSE(grid.Create(L"no such class", L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 101));
    ASSERT_TRUE(grid.SubclassDlgItem(100, &parent));
    EXPECT_GT(grid.GetRowHeight(), 4);
    EXPECT_EQ(grid.GetGutterWidth(), 100);
}

TEST_F(PropertyGridLife, EndsWithItsObject) {
    HWND window = nullptr;
    {
        CTestGrid grid;
        ASSERT_TRUE(Create(grid));
        window = grid.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(PropertyGridLife, KnowsItsClass) {
    const CTestGrid grid;
    EXPECT_TRUE(grid.IsKindOf(RUNTIME_CLASS(CPropertyGrid)));
    EXPECT_TRUE(grid.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_STREQ(grid.GetRuntimeClass()->m_lpszClassName, "CPropertyGrid");
}

// One row of every kind, modified and not, focused in turn.
void Fill(CPropertyGrid& grid, CDistanceItem& distance) {
    LOGFONTW font = {};
    wcscpy(font.lfFaceName, L"Tahoma");
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    const UINT section = grid.AddSection(L"section");
    grid.AddSection(L"collapsed", true);
    grid.SetItemValue(grid.AddStringItem(section, L"string", L"a"), L"b");
    grid.AddTextItem(section, L"text", L"a\r\nb");
    grid.AddIntegerItem(section, L"integer", 1);
    grid.AddDoubleItem(section, L"double", 1);
    grid.AddComboItem(section, L"combo", {L"a", L"b"}, 0);
    grid.AddBooleanItem(section, L"bool", true);
    grid.AddDateItem(section, L"date", date);
    grid.AddDateTimeItem(section, L"datetime", date);
    grid.AddFileItem(section, L"file", L"C:\\a\\b", L"");
    grid.AddFolderItem(section, L"folder", L"C:\\a", L"");
    grid.AddColorItem(section, L"color", RGB(1, 2, 3));
    grid.AddFontItem(section, L"font", font);
    grid.AddCustomItem(section, L"distance", &distance);
}

TEST_F(PropertyGridLife, LeavesNoGdiObjectBehindByTenThousandPaints) {
    CTestGrid grid;
    ASSERT_TRUE(
        grid.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 380), &parent, 100));
    CDistanceItem distance(nullptr, 2.0);
    Fill(grid, distance);
    const auto paint = [&](UINT number) {
        grid.SetFocusedItem(number % 13);
        grid.SetDisplayMode(number / 13 % 3);
        grid.UpdateWindow();
    };
    for (UINT number = 0; number < 39; ++number) {
        paint(number);
    }
    const int before = GdiObjectCount();
    ASSERT_GT(before, 0);
    for (UINT number = 0; number < 10000; ++number) {
        paint(number);
    }
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST_F(PropertyGridLife, HoldsNoPictureOnceItsWindowIsGone) {
    const auto objectsLeft = [this](bool paint) {
        const int before = GdiObjectCount();
        CTestGrid grid;
        EXPECT_TRUE(Create(grid));
        grid.AddSection(L"Section");
        if (paint) {
            grid.UpdateWindow();
        }
        grid.DestroyWindow();
        return GdiObjectCount() - before;
    };
    objectsLeft(true);  // the system keeps some of the first paint's
    EXPECT_EQ(objectsLeft(true), objectsLeft(false));
}

TEST_F(PropertyGridLife, LeavesNothingBehindByTwoHundredGrids) {
    const auto cycle = [&] {
        const auto grid = std::make_unique<CTestGrid>();
        ASSERT_TRUE(Create(*grid));
        CDistanceItem distance(nullptr, 2.0);
        Fill(*grid, distance);
        grid->UpdateWindow();
        PumpMessages();
    };
    for (int i = 0; i < 3; ++i) {
        cycle();
    }
    const ProcessHoldings before = CountHoldings();
    for (int i = 0; i < 200; ++i) {
        cycle();
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
