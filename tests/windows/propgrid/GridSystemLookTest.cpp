// What the system changes of the grid's look: whether it is enabled, its colours, high contrast, its font.
#include "propgrid/DistanceItem.h"
#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ImportHook.h"

extern "C" BOOL(WINAPI* __imp_SystemParametersInfoW)(UINT, UINT, PVOID, UINT)
    IMPORT_ENTRY(SystemParametersInfoW, 16);
extern "C" DWORD(WINAPI* __imp_GetSysColor)(int) IMPORT_ENTRY(GetSysColor, 4);

namespace {

class GridSystemLook : public GridPaintTest {
protected:
    GridSystemLook() {
        Plain();
        section = grid.AddSection(L"Section");
    }
    UINT section = 0;
};

// ---- Enabled or not

TEST_F(GridSystemLook, ADisabledGridShowsItsValuesInTheNonEditableColour) {
    CRecordingItem custom;
    grid.AddStringItem(section, L"HHH", L"HHHHHH");
    grid.AddCustomItem(section, L"custom", &custom);
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
    grid.EnableWindow(FALSE);
    const CGridPicture disabled(grid);
    EXPECT_FALSE(disabled.Has(ValueOfRow(0), editable));
    EXPECT_TRUE(disabled.Has(ValueOfRow(0), nonEditable));
    EXPECT_TRUE(disabled.Has(NameOfRow(0), text)) << "names stay";
    EXPECT_EQ(custom.drawings.back().textColor, nonEditable);
    grid.EnableWindow(TRUE);
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
}

TEST_F(GridSystemLook, EnablingAndDisablingRepaint) {
    for (const BOOL enable : {FALSE, TRUE}) {
        grid.UpdateWindow();
        grid.EnableWindow(enable);
        EXPECT_TRUE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
    }
}

// ---- The system's colours

DWORD WINAPI OtherColor(int index) {
    return static_cast<DWORD>(0x010203 * (index + 1));
}

TEST_F(GridSystemLook, TheSystemsNewColoursAreTakenWhereTheClientSetNone) {
    CPropertyGrid other;
    ASSERT_TRUE(other.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 50, 50), &parent, 5));
    other.SetBackColor(back);
    other.SetShadeColor(other.GetShadeColor());
    const COLORREF oldShade = other.GetShadeColor();
    {
        const CImportHook hook(__imp_GetSysColor, OtherColor);
        other.SendMessage(WM_SYSCOLORCHANGE);
    }
    EXPECT_EQ(other.GetBackColor(), back);
    EXPECT_EQ(other.GetShadeColor(), oldShade) << "set by the client to what it was";
    EXPECT_EQ(other.GetTextColor(), OtherColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(other.GetTitleColor(), OtherColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(other.GetFocusColor(), OtherColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(other.GetFocusTextColor(), OtherColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(other.GetEditableColor(), OtherColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(other.GetNonEditableColor(), OtherColor(COLOR_GRAYTEXT));
}

// ---- High contrast

decltype(__imp_SystemParametersInfoW) systemParameters;

BOOL WINAPI WithHighContrast(UINT action, UINT size, PVOID data, UINT update) {
    if (action != SPI_GETHIGHCONTRAST) {
        return systemParameters(action, size, data, update);
    }
    static_cast<HIGHCONTRAST*>(data)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
}

class CHighContrast {
public:
    CHighContrast() { systemParameters = m_hook.System(); }

private:
    CImportHook<decltype(__imp_SystemParametersInfoW)> m_hook{__imp_SystemParametersInfoW, WithHighContrast};
};

class HighContrast : public GridSystemLook {
protected:
    static constexpr COLORREF pale = RGB(255, 255, 255);
    static constexpr COLORREF black = RGB(0, 0, 0);

    HighContrast() {
        item = grid.AddStringItem(section, L"name", L"HHHH");
        grid.AddStringItem(section, L"other", L"HHHH");
        grid.SetItemValue(item, std::wstring(L"HHHHHH"));
        grid.SetEditableColor(pale);
    }
    UINT item = 0;
};

TEST_F(HighContrast, AModifiedValueStaysReadable) {
    const CHighContrast on;
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has(ValueOfRow(0), modified));
    EXPECT_TRUE(picture.Has(ValueOfRow(0), black));
    EXPECT_FALSE(picture.Has(ValueOfRow(0), pale));
    EXPECT_TRUE(picture.Has(ValueOfRow(1), pale)) << "a value that is not modified keeps its colour";
}

TEST_F(HighContrast, AReadableColourStays) {
    grid.SetEditableColor(editable);
    const CHighContrast on;
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
}

TEST_F(HighContrast, OffNothingChanges) {
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has(ValueOfRow(0), pale));
    EXPECT_FALSE(picture.Has(ValueOfRow(0), black));
}

TEST_F(HighContrast, AModifiedDistanceStaysReadable) {
    fakeHost = FakeHost{};
    CDistanceItem distance(nullptr, 2.0);
    grid.AddCustomItem(section, L"distance", &distance);
    fakeHost.distance = 5;
    ASSERT_TRUE(distance.OnButtonClicked());
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(2), pale));
    const CHighContrast on;
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has(ValueOfRow(2), black));
    EXPECT_FALSE(picture.Has(ValueOfRow(2), pale));
    grid.ResetContents();
}

// ---- Another font

class GridFont : public GridSystemLook {
protected:
    GridFont() {
        LOGFONT description = {};
        parent.font.GetLogFont(&description);
        description.lfHeight *= 2;
        m_large.CreateFontIndirect(&description);
    }
    void Set(HFONT font) { grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }
    HFONT Large() const { return static_cast<HFONT>(m_large.GetSafeHandle()); }

    CFont m_large;
};

TEST_F(GridFont, TheRowsFollowIt) {
    const UINT item = grid.AddStringItem(section, L"name", L"HHHH");
    grid.AddStringItem(section, L"other", L"HHHH");
    const CRect before = CGridPicture(grid).Bounds(ValueOfRow(0), editable);
    Set(Large());
    EXPECT_EQ(grid.GetRowHeight(), ExtentOf(L"Gg", Large()).cy + 4);
    const CGridPicture picture(grid);
    EXPECT_EQ(ValueRect(item).Height(), grid.GetRowHeight());
    EXPECT_GT(picture.Bounds(ValueOfRow(0), editable).Height(), before.Height() * 3 / 2);
}

TEST_F(GridFont, TheBoldFontFollowsIt) {
    grid.AddStringItem(section, L"name", L"HHHH");
    grid.SetBoldEditable(true);
    const CRect before = CGridPicture(grid).Bounds(ValueOfRow(0), editable);
    Set(Large());
    EXPECT_GT(CGridPicture(grid).Bounds(ValueOfRow(0), editable).Height(), before.Height() * 3 / 2);
}

TEST_F(GridFont, TheScrollBarComesWhenTheRowsNoLongerFit) {
    while (grid.GetItemCount() < static_cast<std::size_t>(200 / RowHeight() - 1)) {
        grid.AddStringItem(section, std::to_wstring(grid.GetItemCount()), L"");
    }
    ASSERT_FALSE(ScrollBarShows());
    Set(Large());
    EXPECT_TRUE(ScrollBarShows());
}

TEST_F(GridFont, IsACopyAndIsAnsweredToWhoAsks) {
    Set(Large());
    EXPECT_EQ(grid.SendMessage(WM_GETFONT), reinterpret_cast<LRESULT>(Large()));
    const int height = grid.GetRowHeight();
    m_large.DeleteObject();
    grid.AddStringItem(section, L"name", L"HHHH");
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
    EXPECT_EQ(grid.GetRowHeight(), height);
}

TEST_F(GridFont, NoneStandsForTheSystems) {
    Set(nullptr);
    EXPECT_EQ(grid.GetRowHeight(), ExtentOf(L"Gg", static_cast<HFONT>(::GetStockObject(SYSTEM_FONT))).cy + 4);
}

TEST_F(GridFont, AnOpenEditorEndsFirst) {
    const UINT item = grid.AddStringItem(section, L"name", L"old");
    grid.SetFocusedItem(item);
    grid.UpdateWindow();
    grid.EditFocusedItem();
    ASSERT_TRUE(grid.IsEditing());
    ::SetWindowText(::FindWindowEx(grid.m_hWnd, nullptr, L"Edit", nullptr), L"new");
    Set(Large());
    EXPECT_FALSE(grid.IsEditing());
    std::wstring value;
    EXPECT_TRUE(grid.GetItemValue(item, value));
    EXPECT_EQ(value, L"new");
}

TEST_F(GridFont, ManyChangesLeaveNoHandle) {
    Set(Large());
    const ProcessHoldings before = CountHoldings();
    for (int change = 0; change < 50; ++change) {
        Set(change % 2 == 0 ? nullptr : Large());
    }
    Set(Large());
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
