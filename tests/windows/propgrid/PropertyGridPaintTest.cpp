// The rows that the grid paints, by pixels: headers, bands, lines, names, their order, and what it records
// of them. Rows are counted from the top of the window.
#include <algorithm>
#include <climits>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/Pixels.h"

namespace {

class PropertyGridPaint : public GridPaintTest {};

// ---- The empty grid

TEST_F(PropertyGridPaint, ShowsOnlyTheBackgroundWithoutSections) {
    EXPECT_TRUE(CGridPicture(grid).Is({0, 0, 300, 200}, back));
}

TEST_F(PropertyGridPaint, ShowsTheEmptyListTextInTheMiddleBelowTheTop) {
    grid.SetEmptyListText(L"HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH HHHH");
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({75, 10, 225, 30}, text));
    EXPECT_TRUE(picture.Has({75, 30, 225, 60}, text)) << "the text is wrapped";
    EXPECT_EQ(Ink(picture, {0, 0, 300, 10}), 0);
    EXPECT_EQ(Ink(picture, {0, 0, 75, 200}), 0);
    EXPECT_EQ(Ink(picture, {225, 0, 300, 200}), 0);
}

TEST_F(PropertyGridPaint, DrawsAnAmpersandOfTheEmptyListTextAsItIs) {
    grid.SetEmptyListText(L"_");
    const int underline = Ink(CGridPicture(grid), {0, 0, 300, 200});
    grid.SetEmptyListText(L"&_");
    EXPECT_GT(Ink(CGridPicture(grid), {0, 0, 300, 200}), underline + 5);
}

TEST_F(PropertyGridPaint, ShowsNoEmptyListTextOnceThereIsASection) {
    grid.SetEmptyListText(L"nothing here");
    grid.AddSection(L"");
    Flat();
    EXPECT_TRUE(CGridPicture(grid).Is({0, 0, 300, 200}, back));
}

// ---- Section headers

TEST_F(PropertyGridPaint, FillsTheHeaderRowWithTheShadeColour) {
    grid.AddSection(L"");
    EXPECT_TRUE(CGridPicture(grid).Is({11, 0, 300, RowHeight() + 1}, shade));
    EXPECT_TRUE(CGridPicture(grid).Is({0, RowHeight() + 1, 300, 200}, back));
}

TEST_F(PropertyGridPaint, LeavesTheHeaderRowUnshadedOnRequest) {
    grid.AddSection(L"");
    grid.SetShadeHeaders(false);
    const CGridPicture picture(grid);
    const int bottom = RowHeight();
    EXPECT_TRUE(picture.Is({0, 0, 300, 1}, shade)) << "the line above";
    EXPECT_TRUE(picture.Is({0, bottom, 300, bottom + 1}, shade)) << "the line below";
    EXPECT_TRUE(picture.Is({150, 0, 151, bottom + 1}, shade)) << "the divider";
    EXPECT_TRUE(picture.Is({151, 1, 300, bottom}, back));
    EXPECT_TRUE(picture.Is({11, 1, 150, bottom}, back));
}

TEST_F(PropertyGridPaint, LeavesOutTheHeadersLinesAndDividerOnRequest) {
    grid.AddSection(L"");
    grid.SetShadeHeaders(false);
    grid.SetDrawLines(false);
    const int bottom = RowHeight();
    EXPECT_EQ(CGridPicture(grid).Count({0, 0, 300, 200}, shade), bottom + 1) << "the divider alone";
    grid.SetDrawLines(true);
    grid.SetDrawDivider(false);
    EXPECT_EQ(CGridPicture(grid).Count({0, 0, 300, 200}, shade), 600) << "the lines alone";
}

TEST_F(PropertyGridPaint, DrawsAMinusInAFrameForAnExpandedSection) {
    grid.AddSection(L"");
    const CGridPicture picture(grid);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(picture.At(2 + i, 4), title) << "top " << i;
        EXPECT_EQ(picture.At(2 + i, 12), title) << "bottom " << i;
        EXPECT_EQ(picture.At(2, 4 + i), title) << "left " << i;
        EXPECT_EQ(picture.At(10, 4 + i), title) << "right " << i;
    }
    EXPECT_TRUE(picture.Is({4, 8, 9, 9}, title));
    EXPECT_EQ(picture.Count({3, 5, 10, 12}, title), 5) << "nothing but the bar inside";
}

TEST_F(PropertyGridPaint, DrawsAPlusInAFrameForACollapsedSection) {
    grid.AddSection(L"", true);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Is({4, 8, 9, 9}, title));
    EXPECT_TRUE(picture.Is({6, 6, 7, 11}, title));
    EXPECT_EQ(picture.Count({3, 5, 10, 12}, title), 9);
}

TEST_F(PropertyGridPaint, RecordsTheGlyphAndTheHeaderThatItDraws) {
    grid.AddSection(L"first");
    grid.AddSection(L"second");
    CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_EQ(GlyphRect(0), CRect(2, 4, 11, 13));
    EXPECT_EQ(HeaderRect(0), CRect(14, 0, 300, h));
    EXPECT_EQ(GlyphRect(1), CRect(2, h + 4, 11, h + 13));
    EXPECT_EQ(HeaderRect(1), CRect(14, h, 300, 2 * h));
    CRect glyph;
    CRect header;
    EXPECT_FALSE(grid.GetSectionRects(2, glyph, header));
}

TEST_F(PropertyGridPaint, WritesTheSectionNameInTheTitleColourAndBold) {
    grid.AddSection(L"HHHH");
    grid.SetShadeHeaders(false);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({18, 1, 100, RowHeight()}, title));
    EXPECT_FALSE(picture.Has({11, 1, 18, RowHeight()}, title));
    const int bold = picture.Count({18, 1, 149, RowHeight()}, title);
    // The same letters in the normal font have less ink.
    grid.ResetContents();
    Plain();
    grid.SetTextColor(title);
    grid.AddIntegerItem(grid.AddSection(L""), L"HHHH", 1);
    EXPECT_LT(CGridPicture(grid).Count({18, 0, 149, RowHeight()}, title), bold);
}

TEST_F(PropertyGridPaint, EndsALongSectionNameInTheWindow) {
    grid.AddSection(std::wstring(200000, L'W'));
    grid.SetFocusedSection(0);
    EXPECT_TRUE(CGridPicture(grid).Has({250, 0, 300, RowHeight()}, title));
}

TEST_F(PropertyGridPaint, EndsASectionNameThatIsTooLongInAnEllipsis) {
    const std::wstring name(20, L'H');
    grid.AddSection(name);
    grid.SetDrawDivider(false);
    CFont bold;
    bold.Attach(MakeBoldFont());
    const int fits = 18 + ExtentOf(name, bold).cx;
    const auto endsInAnEllipsis = [&](int width) {
        grid.MoveWindow(0, 0, width, 200);
        return CGridPicture(grid).EndsInAnEllipsis({18, 1, width, RowHeight()}, title);
    };
    EXPECT_FALSE(endsInAnEllipsis(fits + 1));
    EXPECT_FALSE(endsInAnEllipsis(fits));
    EXPECT_TRUE(endsInAnEllipsis(fits - 1));
    EXPECT_TRUE(endsInAnEllipsis(fits / 2));
}

TEST_F(PropertyGridPaint, FramesTheNameOfTheFocusedSection) {
    grid.AddSection(L"HHHH");
    const CGridPicture without(grid);
    grid.SetFocusedSection(0);
    const CGridPicture with(grid);
    CRect frame(300, 200, 0, 0);
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x) {
            if (with.At(x, y) != without.At(x, y)) {
                frame.SetRect(std::min<int>(frame.left, x), std::min<int>(frame.top, y),
                              std::max<int>(frame.right, x + 1), std::max<int>(frame.bottom, y + 1));
            }
        }
    }
    CFont bold;
    bold.Attach(MakeBoldFont());
    const CSize name = ExtentOf(L"HHHH", bold);
    const int top = (RowHeight() - name.cy) / 2;
    EXPECT_EQ(frame.left, 14);
    EXPECT_EQ(frame.top, top);
    EXPECT_EQ(frame.right, name.cx + 20);
    EXPECT_EQ(frame.bottom, top + name.cy);
}

TEST_F(PropertyGridPaint, DrawsNoHeadersInTheFlatDisplays) {
    grid.AddSection(L"HHHH", true);
    for (const UINT mode : {1U, 2U}) {
        grid.SetDisplayMode(mode);
        EXPECT_TRUE(CGridPicture(grid).Is({0, 0, 300, 200}, back)) << mode;
        EXPECT_TRUE(GlyphRect(0).IsRectEmpty()) << mode;
    }
}

// ---- Order of rows

TEST_F(PropertyGridPaint, PutsTheItemsUnderTheirHeadersInTheCategorisedDisplay) {
    const UINT first = grid.AddSection(L"first");
    const UINT second = grid.AddSection(L"second");
    const UINT b = grid.AddIntegerItem(second, L"b", 1);
    const UINT a = grid.AddIntegerItem(first, L"a", 1);
    CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_EQ(HeaderRect(first).top, 0);
    EXPECT_EQ(NameRect(a).top, h);
    EXPECT_EQ(HeaderRect(second).top, 2 * h);
    EXPECT_EQ(NameRect(b).top, 3 * h);
}

TEST_F(PropertyGridPaint, HidesTheItemsOfACollapsedSectionAndLeavesTheirRectanglesAlone) {
    const UINT first = grid.AddSection(L"first");
    const UINT second = grid.AddSection(L"second");
    const UINT a = grid.AddIntegerItem(first, L"a", 1);
    const UINT b = grid.AddIntegerItem(second, L"b", 1);
    CGridPicture before(grid);
    const CRect name = NameRect(a);
    const CRect value = ValueRect(a);
    grid.SetSectionCollapsed(first, true);
    CGridPicture after(grid);
    EXPECT_EQ(HeaderRect(second).top, RowHeight());
    EXPECT_EQ(NameRect(b).top, 2 * RowHeight());
    EXPECT_EQ(NameRect(a), name);
    EXPECT_EQ(ValueRect(a), value);
}

TEST_F(PropertyGridPaint, IgnoresCollapsedSectionsInTheFlatDisplays) {
    const UINT section = grid.AddSection(L"section", true);
    const UINT a = grid.AddIntegerItem(section, L"a", 1);
    for (const UINT mode : {1U, 2U}) {
        grid.SetDisplayMode(mode);
        const CGridPicture picture(grid);
        EXPECT_EQ(NameRect(a).top, 0) << mode;
        EXPECT_TRUE(picture.Has(NameOfRow(0), text)) << mode;
    }
}

TEST_F(PropertyGridPaint, ListsTheItemsOfAllSectionsInInsertionOrderWhenFlat) {
    const UINT late = grid.AddSection(L"late");
    const UINT early = grid.AddSection(L"early", false, late);
    const UINT a = grid.AddIntegerItem(late, L"a", 1);
    const UINT c = grid.AddIntegerItem(early, L"c", 1);
    const UINT b = grid.AddIntegerItem(early, L"b", 1);
    Flat();
    CGridPicture picture(grid);
    EXPECT_EQ(NameRect(c).top, 0);
    EXPECT_EQ(NameRect(b).top, RowHeight());
    EXPECT_EQ(NameRect(a).top, 2 * RowHeight());
}

TEST_F(PropertyGridPaint, SortsTheItemsOfAllSectionsByTheirNamesCodeUnits) {
    const UINT first = grid.AddSection(L"first");
    const UINT second = grid.AddSection(L"second");
    const UINT a = grid.AddIntegerItem(first, L"a", 1);
    const UINT twin = grid.AddIntegerItem(second, L"a", 1);
    const UINT umlaut = grid.AddIntegerItem(first, L"\u00C4", 1);
    const UINT b = grid.AddIntegerItem(second, L"B", 1);
    const UINT number = grid.AddIntegerItem(second, L"10", 1);
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_EQ(NameRect(number).top, 0);
    EXPECT_EQ(NameRect(b).top, h);
    EXPECT_EQ(NameRect(a).top, 2 * h);
    EXPECT_EQ(NameRect(twin).top, 3 * h) << "equal names stay in section order";
    EXPECT_EQ(NameRect(umlaut).top, 4 * h);
}

TEST_F(PropertyGridPaint, ShowsAnUnknownDisplayModeAsFlat) {
    const UINT a = grid.AddIntegerItem(grid.AddSection(L"section", true), L"a", 1);
    grid.SetDisplayMode(77);
    CGridPicture picture(grid);
    EXPECT_EQ(NameRect(a).top, 0);
}

// ---- Item rows

TEST_F(PropertyGridPaint, DrawsTheBandTheLineAndTheDividerOfARow) {
    Flat();
    grid.AddStringItem(grid.AddSection(L""), L"", L"");
    const CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_TRUE(picture.Is({0, 0, 14, h}, shade));
    EXPECT_TRUE(picture.Is({0, h, 300, h + 1}, shade));
    EXPECT_TRUE(picture.Is({150, 0, 151, h + 1}, shade));
    EXPECT_TRUE(picture.Is({14, 0, 150, h}, back));
    EXPECT_TRUE(picture.Is({151, 0, 300, h}, back));
    EXPECT_TRUE(picture.Is({0, h + 1, 300, 200}, back));
}

TEST_F(PropertyGridPaint, LeavesOutTheBandTheLineAndTheDividerOnRequest) {
    Plain();
    grid.AddStringItem(grid.AddSection(L""), L"", L"");
    EXPECT_TRUE(CGridPicture(grid).Is({0, 0, 300, 200}, back));
    grid.SetShadeHeaders(true);
    EXPECT_EQ(CGridPicture(grid).Count({0, 0, 300, 200}, shade), 14 * RowHeight());
}

TEST_F(PropertyGridPaint, RecordsTheNameAndTheValueOfARow) {
    Flat();
    grid.SetGutterWidth(210);
    const UINT section = grid.AddSection(L"");
    const UINT a = grid.AddIntegerItem(section, L"a", 1);
    const UINT b = grid.AddIntegerItem(section, L"b", 1);
    CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_EQ(NameRect(a), CRect(0, 0, 210, h));
    EXPECT_EQ(ValueRect(a), CRect(210, 0, 300, h));
    EXPECT_EQ(NameRect(b), CRect(0, h, 210, 2 * h));
    EXPECT_EQ(ValueRect(b), CRect(210, h, 300, 2 * h));
    CRect rect;
    EXPECT_FALSE(grid.GetItemRects(2, rect, rect));
}

TEST_F(PropertyGridPaint, WritesNameAndValueInTheirColumnsAndColours) {
    Plain();
    const UINT section = grid.AddSection(L"");
    grid.AddStringItem(section, L"HH", L"HH", true);
    grid.AddStringItem(section, L"HHH", L"HH", false);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({18, 0, 60, RowHeight()}, text));
    EXPECT_EQ(Ink(picture, {0, 0, 18, RowHeight()}), 0);
    EXPECT_TRUE(picture.Has({154, 0, 200, RowHeight()}, editable));
    EXPECT_EQ(Ink(picture, {150, 0, 154, RowHeight()}), 0);
    EXPECT_TRUE(picture.Has({18, RowHeight(), 60, 2 * RowHeight()}, text));
    EXPECT_TRUE(picture.Has(ValueOfRow(1), nonEditable));
    EXPECT_FALSE(picture.Has(ValueOfRow(1), editable));
}

TEST_F(PropertyGridPaint, KeepsLongTextsInTheirColumns) {
    Plain();
    grid.AddStringItem(grid.AddSection(L""), std::wstring(100000, L'W'), std::wstring(100000, L'W'));
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({130, 0, 149, RowHeight()}, text));
    EXPECT_EQ(Ink(picture, {149, 0, 154, RowHeight()}), 0);
    EXPECT_TRUE(picture.Has({270, 0, 300, RowHeight()}, editable));
    EXPECT_EQ(Ink(picture, {0, RowHeight(), 300, 200}), 0);
}

// The name's column ends one pixel before the divider.
TEST_F(PropertyGridPaint, EndsANameThatIsTooLongForItsColumnInAnEllipsis) {
    Plain();
    const std::wstring name(8, L'H');
    grid.AddStringItem(grid.AddSection(L""), name, L"");
    const int fits = 18 + ExtentOf(name, parent.font).cx + 1;
    const auto endsInAnEllipsis = [&](int gutter) {
        grid.SetGutterWidth(gutter);
        return CGridPicture(grid).EndsInAnEllipsis({18, 0, gutter, RowHeight()}, text);
    };
    EXPECT_FALSE(endsInAnEllipsis(fits + 1));
    EXPECT_FALSE(endsInAnEllipsis(fits));
    EXPECT_TRUE(endsInAnEllipsis(fits - 1));
    EXPECT_TRUE(endsInAnEllipsis(fits / 2 + 18));
}

TEST_F(PropertyGridPaint, DrawsTheDividerOnePixelBelowTheLastRow) {
    Plain();
    grid.SetDrawDivider(true);
    const UINT section = grid.AddSection(L"");
    for (const int rows : {1, 2, 3}) {
        grid.AddStringItem(section, std::to_wstring(rows), L"");
        const CGridPicture picture(grid);
        EXPECT_TRUE(picture.Is({150, 0, 151, rows * RowHeight() + 1}, shade));
        EXPECT_EQ(picture.Count({0, 0, 300, 200}, shade), rows * RowHeight() + 1);
    }
}

TEST_F(PropertyGridPaint, FillsTheNameOfTheFocusedItem) {
    Flat();
    const UINT id = grid.AddStringItem(grid.AddSection(L""), L"HH", L"");
    grid.SetFocusedItem(id);
    const CGridPicture picture(grid);
    const int h = RowHeight();
    EXPECT_EQ(picture.At(13, 2), shade);
    EXPECT_EQ(picture.At(14, 0), focus);
    EXPECT_EQ(picture.At(14, h - 1), focus);
    EXPECT_EQ(picture.At(149, 0), focus) << "up to the divider";
    EXPECT_EQ(picture.At(150, 2), shade);
    EXPECT_EQ(picture.At(14, h), shade) << "the line below stays";
    EXPECT_TRUE(picture.Has({18, 0, 60, h}, focusText));
    EXPECT_FALSE(picture.Has({18, 0, 60, h}, text));
}

TEST_F(PropertyGridPaint, FocusesARowThatTookOverTheFocusedId) {
    Flat();
    grid.SetFocusedItem(grid.AddStringItem(grid.AddSection(L""), L"old", L""));
    grid.ResetContents();
    EXPECT_FALSE(CGridPicture(grid).Has(Row(0), focus));
    grid.AddStringItem(grid.AddSection(L""), L"new", L"");
    EXPECT_TRUE(CGridPicture(grid).Has(Row(0), focus));
}

// ---- Scrolling

TEST_F(PropertyGridPaint, TakesTheScrollBarsWidthFromTheRows) {
    Flat();
    FillWindow(grid.AddSection(L""));
    CGridPicture picture(grid);
    const int width = 300 - ::GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(ValueRect(0), CRect(150, 0, width, RowHeight()));
}

TEST_F(PropertyGridPaint, MovesTheRowsUpByTheScrollPosition) {
    FillWindow(grid.AddSection(L"HHH"));
    ScrollTo(5);
    CGridPicture picture(grid);
    const int width = 300 - ::GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(HeaderRect(0), CRect(14, -5, width, RowHeight() - 5));
    EXPECT_EQ(GlyphRect(0), CRect(2, -1, 11, 8));
    EXPECT_EQ(NameRect(0).top, RowHeight() - 5);
}

TEST_F(PropertyGridPaint, RecordsWholeRowsAndNoValuesForRowsThatAreScrolledAway) {
    FillWindow(grid.AddSection(L"HHH"));
    const int h = RowHeight();
    CGridPicture before(grid);
    EXPECT_FALSE(ValueRect(0).IsRectEmpty());
    ScrollTo(3 * h);
    CGridPicture picture(grid);
    const int width = 300 - ::GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_TRUE(GlyphRect(0).IsRectEmpty());
    EXPECT_EQ(HeaderRect(0), CRect(0, -3 * h, width, -2 * h));
    EXPECT_EQ(NameRect(0), CRect(0, -2 * h, width, -h));
    EXPECT_TRUE(ValueRect(0).IsRectEmpty());
    // The row that just touches the upper edge from outside is away, the next one is there.
    EXPECT_TRUE(ValueRect(1).IsRectEmpty());
    EXPECT_EQ(ValueRect(2), CRect(150, 0, width, h));
    EXPECT_EQ(NameRect(39), CRect(0, 37 * h, width, 38 * h));
    EXPECT_TRUE(ValueRect(39).IsRectEmpty());
}

TEST_F(PropertyGridPaint, RecordsNothingForARowThatIsAddedSince) {
    const UINT section = grid.AddSection(L"HHH");
    for (const UINT mode : {CPropertyGrid::DM_FLAT, CPropertyGrid::DM_SORTED}) {
        grid.SetDisplayMode(mode);
        const auto add = [&] {
            return grid.AddIntegerItem(section, std::to_wstring(100 - grid.GetItemCount()), 1);
        };
        const UINT painted = add();
        CGridPicture before(grid);
        const CRect name = NameRect(painted);
        const UINT added = add();
        EXPECT_FALSE(name.IsRectEmpty());
        EXPECT_TRUE(NameRect(added).IsRectEmpty());
        EXPECT_TRUE(ValueRect(added).IsRectEmpty());
        EXPECT_EQ(NameRect(painted), name);
    }
}

TEST_F(PropertyGridPaint, KeepsWhatTheSortedDisplayRecordedOfARowThatCollapses) {
    const UINT section = grid.AddSection(L"HHH");
    grid.AddIntegerItem(section, L"b", 1);
    grid.AddIntegerItem(section, L"a", 1);
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    CGridPicture sorted(grid);
    EXPECT_EQ(NameRect(0).top, RowHeight());
    EXPECT_EQ(NameRect(1).top, 0);
    grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
    grid.SetSectionCollapsed(section, true);
    grid.SetGutterWidth(77);
    CGridPicture collapsed(grid);
    EXPECT_EQ(NameRect(0), CRect(0, RowHeight(), 150, 2 * RowHeight()));
    EXPECT_EQ(ValueRect(1), CRect(150, 0, 300, RowHeight()));
}

TEST_F(PropertyGridPaint, EmptiesTheRectanglesOfASectionThatTheSortedDisplayDoesNotShow) {
    grid.AddSection(L"HHH");
    CGridPicture before(grid);
    grid.SetDisplayMode(CPropertyGrid::DM_SORTED);
    CGridPicture after(grid);
    EXPECT_TRUE(GlyphRect(0).IsRectEmpty());
    EXPECT_TRUE(HeaderRect(0).IsRectEmpty());
}

// ---- From right to left

// A window's client area from left to right, whichever way the window runs. Read from the window and not from
// the screen, which shows it later.
class CClientPicture {
public:
    explicit CClientPicture(HWND window) {
        RECT client;
        ::GetClientRect(window, &client);
        const HDC dc = ::GetDC(window);
        ::SetLayout(dc, 0);
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = 0; x < client.right; ++x) {
                m_pixels[{x, y}] = ::GetPixel(dc, x, y);
            }
        }
        ::ReleaseDC(window, dc);
    }
    // The pixels of one colour, the leftmost and the topmost at 0.
    std::set<std::pair<int, int>> Shape(COLORREF color) const {
        int left = INT_MAX;
        int top = INT_MAX;
        for (const auto& [point, pixel] : m_pixels) {
            if (pixel == color) {
                left = std::min(left, point.first);
                top = std::min(top, point.second);
            }
        }
        std::set<std::pair<int, int>> shape;
        for (const auto& [point, pixel] : m_pixels) {
            if (pixel == color) {
                shape.insert({point.first - left, point.second - top});
            }
        }
        return shape;
    }
    int LeftmostOf(COLORREF color) const {
        for (const auto& [point, pixel] : m_pixels) {
            if (pixel == color) {
                return point.first;
            }
        }
        return -1;
    }

private:
    std::map<std::pair<int, int>, COLORREF> m_pixels;
};

TEST_F(PropertyGridPaint, NeverMirrorsATextInADialogThatRunsFromRightToLeft) {
    CGridParent mirrored;
    ::SetWindowLongPtr(mirrored, GWL_EXSTYLE, mirrored.GetExStyle() | WS_EX_LAYOUTRTL);
    CTestGrid rightToLeft;
    ASSERT_TRUE(rightToLeft.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 40),
                                   &mirrored, 100));
    ASSERT_NE(rightToLeft.GetExStyle() & WS_EX_LAYOUTRTL, 0U);
    CTestGrid leftToRight;
    ASSERT_TRUE(leftToRight.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE,
                                   CRect(0, 200, 300, 240), &mirrored, 101));
    ::SetWindowLongPtr(leftToRight, GWL_EXSTYLE, leftToRight.GetExStyle() & ~DWORD{WS_EX_LAYOUTRTL});
    for (CTestGrid* const shown : {&rightToLeft, &leftToRight}) {
        shown->SetDisplayMode(CPropertyGrid::DM_FLAT);
        shown->SetTextColor(text);
        shown->SetEditableColor(editable);
        shown->AddStringItem(shown->AddSection(L""), L"FLRE", L"JKP");
        shown->Invalidate();
        shown->UpdateWindow();
    }
    const CClientPicture picture(rightToLeft);
    const CClientPicture expected(leftToRight);
    ASSERT_GT(expected.Shape(text).size(), 20U);
    EXPECT_EQ(picture.Shape(text), expected.Shape(text));
    EXPECT_EQ(picture.Shape(editable), expected.Shape(editable));
    EXPECT_GT(picture.LeftmostOf(text), 150) << "the names are at the right";
    EXPECT_LT(expected.LeftmostOf(text), 150);
}

// ---- The window's messages

TEST_F(PropertyGridPaint, PaintsTheScreenAsIntoAGivenDeviceContext) {
    const UINT section = grid.AddSection(L"section");
    grid.AddStringItem(section, L"name", L"value");
    grid.AddColorItem(section, L"color", RGB(1, 2, 3));
    grid.SetFocusedItem(0);
    grid.UpdateWindow();
    const CClientPixels screen(grid);
    const CGridPicture picture(grid);
    int different = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x) {
            different += screen.At(x, y) != picture.At(x, y) ? 1 : 0;
        }
    }
    EXPECT_EQ(different, 0);
}

TEST_F(PropertyGridPaint, LeavesNothingToPaint) {
    grid.AddSection(L"section");
    EXPECT_TRUE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
    grid.SendMessage(WM_PAINT);
    EXPECT_FALSE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
}

TEST_F(PropertyGridPaint, LeavesNothingToPaintWhateverIsInvalidatedMeanwhile) {
    CRecordingItem custom;
    custom.whileDrawing = [this] { grid.Invalidate(); };
    grid.AddCustomItem(grid.AddSection(L"section"), L"custom", &custom);
    grid.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(grid.m_hWnd, nullptr, FALSE));
    EXPECT_EQ(custom.drawings.size(), 1U);
}

TEST_F(PropertyGridPaint, ShowsWhatACustomItemDrawsBelowTheRows) {
    class CSprawlingItem : public CRecordingItem {
    public:
        void DrawItem(CDC& dc, CRect, bool) override { dc.FillSolidRect(0, 190, 300, 10, focus); }
    } custom;
    grid.AddCustomItem(grid.AddSection(L"section"), L"custom", &custom);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Is(CRect(0, 190, 300, 200), focus));
    EXPECT_TRUE(picture.Is(CRect(0, 3 * RowHeight(), 300, 190), back));
}

TEST_F(PropertyGridPaint, PaintsTheRowThatACustomItemAddsWhileItDraws) {
    const UINT section = grid.AddSection(L"section");
    CRecordingItem custom;
    custom.whileDrawing = [&] { grid.AddIntegerItem(section, L"added", 1); };
    grid.AddCustomItem(section, L"custom", &custom);
    const CGridPicture picture(grid);
    EXPECT_EQ(ValueRect(1), CRect(150, 2 * RowHeight(), 300, 3 * RowHeight()));
    EXPECT_GT(Ink(picture, CRect(154, 2 * RowHeight() + 1, 300, 3 * RowHeight() - 1)), 0);
}

TEST_F(PropertyGridPaint, RecordsAllVisibleRowsHoweverLittleIsInvalid) {
    Flat();
    const UINT section = grid.AddSection(L"");
    FillWindow(section);
    grid.UpdateWindow();
    grid.InvalidateRect(CRect(0, 0, 5, 5));
    grid.UpdateWindow();
    EXPECT_FALSE(ValueRect(3).IsRectEmpty());
}

TEST_F(PropertyGridPaint, SaysThatTheBackgroundIsErasedWithoutTouchingIt) {
    CBitmap bitmap;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    bitmap.Attach(::CreateBitmap(10, 10, 1, 32, nullptr));
    const HGDIOBJ previous = ::SelectObject(dc, bitmap.GetSafeHandle());
    ::SetPixel(dc, 5, 5, RGB(1, 2, 3));
    EXPECT_TRUE(grid.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0));
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(1, 2, 3));
    ::SelectObject(dc, previous);
}

TEST_F(PropertyGridPaint, MeasuresNoMoreThanItShows) {
    Flat();
    const UINT section = grid.AddSection(L"");
    std::vector<CRecordingItem> items(500);
    for (std::size_t i = 0; i < items.size(); ++i) {
        grid.AddCustomItem(section, std::to_wstring(i), &items[i]);
    }
    CGridPicture picture(grid);
    std::size_t drawn = 0;
    for (const CRecordingItem& item : items) {
        drawn += item.drawings.size();
    }
    EXPECT_LE(drawn, 200U / static_cast<unsigned>(RowHeight()) + 1);
    EXPECT_GE(drawn, 200U / static_cast<unsigned>(RowHeight()));
}

}  // namespace
