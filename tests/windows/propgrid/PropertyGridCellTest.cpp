// What the grid paints into the value cells, by pixels: edit buttons, values, their marks and fonts. Rows
// are counted from the top of the window.
#include <string>
#include <vector>

#include "tests/windows/propgrid/GridFixture.h"

namespace {

class PropertyGridCell : public GridPaintTest {};

// ---- The edit button

struct ButtonCase {
    const char* what;
    int mode;
    bool drawn;
    bool wholeValue;
};

class PropertyGridButton : public GridPaintTest, public testing::WithParamInterface<ButtonCase> {};

TEST_P(PropertyGridButton, IsDrawnAndRecordedByTheEditMode) {
    Plain();
    CRecordingItem custom;
    custom.mode = GetParam().mode;
    const UINT id = grid.AddCustomItem(grid.AddSection(L""), L"", &custom);
    grid.SetFocusedItem(id);
    const CGridPicture picture(grid);
    const int h = RowHeight();
    const CRect square(300 - h, 0, 300, h);
    const bool hasButton = GetParam().mode != EM_CUSTOM;
    EXPECT_EQ(custom.drawings.back().rect, CRect(150, 0, hasButton ? 300 - h : 300, h));
    EXPECT_EQ(ValueRect(id), CRect(150, 0, hasButton ? 300 - h : 300, h));
    EXPECT_EQ(Ink(picture, square) > h, GetParam().drawn);
    const CRect expected = !hasButton ? CRect() : GetParam().wholeValue ? CRect(150, 0, 300, h) : square;
    EXPECT_EQ(grid.GetEditButtonRect(), expected);
}

INSTANTIATE_TEST_SUITE_P(EveryMode, PropertyGridButton,
                         testing::Values(ButtonCase{"custom", EM_CUSTOM, false, false},
                                         ButtonCase{"inplace", EM_INPLACE, false, true},
                                         ButtonCase{"dropdown", EM_DROPDOWN, true, false},
                                         ButtonCase{"modal", EM_MODAL, true, false},
                                         ButtonCase{"inplaceButton", EM_INPLACE_BUTTON, true, true}),
                         [](const auto& info) { return info.param.what; });

TEST_F(PropertyGridCell, DrawsTheButtonsOfTheModesDifferently) {
    Plain();
    CRecordingItem custom;
    grid.SetFocusedItem(grid.AddCustomItem(grid.AddSection(L""), L"", &custom));
    const CRect square(300 - RowHeight(), 0, 300, RowHeight());
    const auto inkOf = [&](int mode) {
        custom.mode = mode;
        const CGridPicture picture(grid);
        std::vector<COLORREF> pixels;
        for (int y = square.top; y < square.bottom; ++y) {
            for (int x = square.left; x < square.right; ++x) {
                pixels.push_back(picture.At(x, y));
            }
        }
        return pixels;
    };
    EXPECT_NE(inkOf(EM_DROPDOWN), inkOf(EM_MODAL));
    EXPECT_NE(inkOf(EM_MODAL), inkOf(EM_INPLACE_BUTTON)) << "flat";
}

TEST_F(PropertyGridCell, WritesThreeDotsBoldInTheMiddleOfAButton) {
    Plain();
    CFont bold;
    bold.Attach(MakeBoldFont());
    const CRect square(0, 0, RowHeight(), RowHeight());
    const COLORREF ink = ::GetSysColor(COLOR_BTNTEXT);
    // Where the dots are by themselves.
    const auto draw = [&](HFONT font, UINT format) {
        return CGridPicture(square.Size(), [&](CDC& dc) {
            dc.FillSolidRect(&square, back);
            const HGDIOBJ previous = ::SelectObject(dc, font);
            dc.SetTextColor(ink);
            dc.SetBkMode(TRANSPARENT);
            CRect rect = square;
            dc.DrawText(L"...", 3, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | format);
            ::SelectObject(dc, previous);
        });
    };
    const CGridPicture expected = draw(bold, DT_CENTER);
    ASSERT_NE(expected.Count(square, ink), draw(parent.font, DT_CENTER).Count(square, ink)) << "normal";
    ASSERT_NE(expected.Bounds(square, ink), draw(bold, 0).Bounds(square, ink)) << "at the left";
    CRecordingItem custom;
    grid.SetFocusedItem(grid.AddCustomItem(grid.AddSection(L""), L"", &custom));
    for (const int mode : {EM_MODAL, EM_INPLACE_BUTTON}) {
        custom.mode = mode;
        const CGridPicture picture(grid);
        // Inside the button's edges, which may have the colour too.
        for (int y = 2; y < RowHeight() - 2; ++y) {
            for (int x = 2; x < RowHeight() - 2; ++x) {
                EXPECT_EQ(picture.At(300 - RowHeight() + x, y) == ink, expected.At(x, y) == ink)
                    << x << ' ' << y;
            }
        }
    }
}

TEST_F(PropertyGridCell, DrawsNoButtonForAnItemThatIsNotEditableOrNotFocused) {
    Plain();
    const UINT section = grid.AddSection(L"");
    const UINT locked = grid.AddComboItem(section, L"locked", {}, 0, false);
    grid.AddComboItem(section, L"free", {}, 0);
    grid.SetFocusedItem(locked);
    const CGridPicture picture(grid);
    EXPECT_EQ(Ink(picture, {150, 0, 300, 200}), 0);
    EXPECT_EQ(ValueRect(locked).right, 300);
    EXPECT_TRUE(grid.GetEditButtonRect() == CRect());
}

TEST_F(PropertyGridCell, RecordsNoButtonForAFocusedItemWithoutOne) {
    Plain();
    const UINT section = grid.AddSection(L"");
    const UINT combo = grid.AddComboItem(section, L"combo", {}, 0);
    const UINT locked = grid.AddComboItem(section, L"locked", {}, 0, false);
    grid.SetFocusedItem(combo);
    CGridPicture first(grid);
    EXPECT_FALSE(grid.GetEditButtonRect().IsRectEmpty());
    grid.SetFocusedItem(locked);
    CGridPicture second(grid);
    EXPECT_TRUE(grid.GetEditButtonRect().IsRectEmpty());
}

// ---- Values

TEST_F(PropertyGridCell, MarksAModifiedValueUntilTheSavedCopyIsTakenAgain) {
    Plain();
    const UINT id = grid.AddIntegerItem(grid.AddSection(L""), L"HH", 111);
    EXPECT_FALSE(CGridPicture(grid).Has({0, 0, 300, 200}, modified));
    grid.SetItemValue(id, 888);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({154, 0, 200, RowHeight()}, modified));
    EXPECT_TRUE(picture.Has({154, 0, 200, RowHeight()}, editable));
    EXPECT_FALSE(picture.Has({220, 0, 300, RowHeight()}, modified)) << "behind the text only";
    EXPECT_FALSE(picture.Has({0, 0, 154, 200}, modified));
    grid.AcceptValues();
    EXPECT_FALSE(CGridPicture(grid).Has({0, 0, 300, 200}, modified));
}

TEST_F(PropertyGridCell, MarksTheModifiedRowAlone) {
    Plain();
    const UINT section = grid.AddSection(L"");
    const UINT first = grid.AddIntegerItem(section, L"first", 1);
    grid.AddIntegerItem(section, L"second", 1);
    grid.SetItemValue(first, 2);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has(Row(0), modified));
    EXPECT_FALSE(picture.Has(Row(1), modified));
}

TEST_F(PropertyGridCell, MarksModifiedValuesOfEveryKind) {
    Plain();
    const UINT section = grid.AddSection(L"");
    LOGFONTW font = {};
    wcscpy(font.lfFaceName, L"Tahoma");
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    const COleDateTime later(2025, 1, 1, 0, 0, 0);
    grid.SetItemValue(grid.AddStringItem(section, L"string", L"a"), L"b");
    grid.SetItemValue(grid.AddTextItem(section, L"text", L"a"), L"b");
    grid.SetItemValue(grid.AddDoubleItem(section, L"double", 1), 2.0);
    grid.SetItemValue(grid.AddComboItem(section, L"combo", {L"a", L"b"}, 0), 1);
    grid.SetItemValue(grid.AddBooleanItem(section, L"bool", false), true);
    grid.SetItemValue(grid.AddDateItem(section, L"date", date), later);
    grid.SetItemValue(grid.AddDateTimeItem(section, L"datetime", date), later);
    grid.SetItemValue(grid.AddFileItem(section, L"file", L"C:\\a", L""), L"C:\\b");
    grid.SetItemValue(grid.AddFolderItem(section, L"folder", L"C:\\a", L""), L"C:\\b");
    grid.SetItemValue(grid.AddColorItem(section, L"color", 0), static_cast<COLORREF>(1));
    const UINT fontItem = grid.AddFontItem(section, L"font", font);
    font.lfItalic = TRUE;
    grid.SetItemValue(fontItem, font);
    grid.MoveWindow(0, 0, 300, 14 * RowHeight());
    const CGridPicture picture(grid);
    for (int row = 0; row < 11; ++row) {
        EXPECT_TRUE(picture.Has(ValueOfRow(row), modified)) << row;
    }
}

TEST_F(PropertyGridCell, ReplacesAnUndefinedValueByTheUndefinedText) {
    Plain();
    const UINT id = grid.AddStringItem(grid.AddSection(L""), L"", L"HHHH", true, true);
    EXPECT_EQ(Ink(CGridPicture(grid), Row(0)), 0);
    grid.SetUndefinedText(L"HH");
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
    grid.SetUndefinedText(L"");
    grid.SetItemUndefined(id, false);
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(0), editable));
}

TEST_F(PropertyGridCell, ShowsAnIndexWithoutAChoiceAsNothing) {
    Plain();
    const UINT id = grid.AddComboItem(grid.AddSection(L""), L"", {L"HH"}, 0);
    EXPECT_GT(Ink(CGridPicture(grid), Row(0)), 0);
    for (const int index : {1, -1, 1000000}) {
        grid.SetItemValue(id, index);
        EXPECT_EQ(Ink(CGridPicture(grid), Row(0)), 0) << index;
    }
}

TEST_F(PropertyGridCell, ShowsAColourAsASwatchBeforeItsText) {
    Plain();
    const UINT id = grid.AddColorItem(grid.AddSection(L""), L"", RGB(200, 100, 50));
    const CGridPicture picture(grid);
    const int h = RowHeight();
    const CRect swatch(154, 3, 154 + h, h - 2);
    EXPECT_TRUE(picture.Is({swatch.left, swatch.top, swatch.right, swatch.top + 1}, text));
    EXPECT_TRUE(picture.Is({swatch.left, swatch.bottom - 1, swatch.right, swatch.bottom}, text));
    EXPECT_TRUE(picture.Is({swatch.left, swatch.top, swatch.left + 1, swatch.bottom}, text));
    EXPECT_TRUE(picture.Is({swatch.right - 1, swatch.top, swatch.right, swatch.bottom}, text));
    EXPECT_TRUE(picture.Is({swatch.left + 1, swatch.top + 1, swatch.right - 1, swatch.bottom - 1},
                           RGB(200, 100, 50)));
    EXPECT_EQ(Ink(picture, {swatch.right, 0, swatch.right + 6, h}), 0);
    EXPECT_TRUE(picture.Has({swatch.right + 6, 0, 300, h}, editable));
    // The swatch is no text: it stays when the value is undefined.
    grid.SetItemUndefined(id, true);
    EXPECT_EQ(CGridPicture(grid).At(160, h / 2), RGB(200, 100, 50));
}

TEST_F(PropertyGridCell, ShortensALongPathInTheMiddle) {
    Plain();
    const std::wstring path = L"C:\\one\\two\\three\\four\\five\\six\\seven\\eight\\nine\\HHHH.HHH";
    const UINT section = grid.AddSection(L"");
    grid.AddFileItem(section, L"", path, L"");
    grid.AddFolderItem(section, L"folder", path, L"");
    grid.AddStringItem(section, L"string", path);
    const CGridPicture picture(grid);
    // The file's name stands at the end of the paths, and fits; the string is cut off before it.
    EXPECT_TRUE(SameRows(picture, 154, 0, 1));
    EXPECT_FALSE(SameRows(picture, 154, 0, 2));
}

TEST_F(PropertyGridCell, ShortensAFileNameThatIsTooLongForTheShellAtItsEnd) {
    Plain();
    const std::wstring path = L"C:\\" + std::wstring(700, L'n');
    const UINT section = grid.AddSection(L"");
    grid.AddFileItem(section, L"file", path, L"");
    grid.AddStringItem(section, L"string", path);
    EXPECT_TRUE(SameRows(CGridPicture(grid), 154, 0, 1));
}

TEST_F(PropertyGridCell, SurvivesPathsThatNoFileSystemWouldTake) {
    Plain();
    const UINT section = grid.AddSection(L"");
    std::wstring deep = L"C:";
    while (deep.size() < 5000) {
        deep += L"\\folder";
    }
    grid.AddFileItem(section, L"deep", deep + L"\\name.txt", L"");
    grid.AddFileItem(section, L"one name", std::wstring(100000, L'n'), L"");
    grid.AddFileItem(section, L"long name", L"C:\\" + std::wstring(700, L'n'), L"");
    grid.AddFolderItem(section, L"empty", L"", L"");
    grid.AddFolderItem(section, L"slashes", std::wstring(1500, L'\\'), L"");
    grid.SetGutterWidth(295);
    CGridPicture narrow(grid);
    grid.SetGutterWidth(100);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has(ValueOfRow(0), editable));
    EXPECT_TRUE(picture.Has(ValueOfRow(1), editable));
}

TEST_F(PropertyGridCell, DrawsBoldValuesAsTheFontFlagsSay) {
    Plain();
    const UINT section = grid.AddSection(L"");
    const UINT changed = grid.AddStringItem(section, L"changed", L"HHHH");
    const UINT locked = grid.AddStringItem(section, L"locked", L"HHHH", false);
    grid.AddStringItem(section, L"same", L"HHHh");
    const UINT undefined = grid.AddStringItem(section, L"undefined", L"HHHH");
    grid.SetUndefinedText(L"HHHh");
    grid.SetNonEditableColor(editable);
    grid.SetItemValue(changed, L"HHHh");
    grid.SetItemValue(locked, L"HHHh");
    grid.SetItemUndefined(undefined, true);
    // Which rows have more ink than the normal font gives.
    const int normal = CGridPicture(grid).Count(ValueOfRow(2), editable);
    const auto bold = [&] {
        const CGridPicture picture(grid);
        std::string rows;
        for (int row = 0; row < 4; ++row) {
            rows += picture.Count(ValueOfRow(row), editable) > normal ? 'b' : '.';
        }
        return rows;
    };
    EXPECT_EQ(bold(), "....");
    grid.SetBoldModified(true);
    EXPECT_EQ(bold(), "bb.b");
    grid.SetBoldEditable(true);
    EXPECT_EQ(bold(), "bbbb");
    grid.SetBoldModified(false);
    EXPECT_EQ(bold(), "b.bb");
}

TEST_F(PropertyGridCell, LetsACustomItemDrawItsValueAndTakesTheDeviceContextBack) {
    Plain();
    const UINT section = grid.AddSection(L"");
    CRecordingItem custom;
    CRecordingItem locked;
    const UINT id = grid.AddCustomItem(section, L"custom", &custom);
    grid.AddCustomItem(section, L"locked", &locked, false);
    grid.AddStringItem(section, L"HH", L"HH");
    grid.AddStringItem(section, L"HH ", L"HH");
    const CGridPicture picture(grid);
    ASSERT_EQ(custom.drawings.size(), 1U);
    EXPECT_EQ(custom.drawings[0].rect, ValueRect(id));
    EXPECT_FALSE(custom.drawings[0].focused);
    EXPECT_EQ(custom.drawings[0].textColor, editable);
    EXPECT_EQ(custom.drawings[0].backMode, TRANSPARENT);
    ASSERT_EQ(locked.drawings.size(), 1U);
    EXPECT_EQ(locked.drawings[0].textColor, nonEditable);
    EXPECT_EQ(locked.drawings[0].backMode, TRANSPARENT);
    EXPECT_TRUE(picture.Has(ValueOfRow(2), editable));
    EXPECT_TRUE(SameRows(picture, 0, 2, 3));
    EXPECT_FALSE(picture.Has({0, 0, 300, 200}, RGB(255, 0, 0)));
    grid.SetFocusedItem(id);
    CGridPicture again(grid);
    EXPECT_TRUE(custom.drawings.back().focused);
    EXPECT_FALSE(locked.drawings.back().focused);
}

TEST_F(PropertyGridCell, GivesACustomItemABrushOfTheTextColour) {
    Plain();
    class CFillingItem : public CRecordingItem {
    public:
        void DrawItem(CDC& dc, CRect rect, bool) override { dc.Rectangle(&rect); }
    } custom;
    const UINT section = grid.AddSection(L"");
    grid.AddStringItem(section, L"before", L"");
    const UINT id = grid.AddCustomItem(section, L"custom", &custom);
    const CGridPicture picture(grid);
    CRect cell = ValueRect(id);
    EXPECT_TRUE(picture.Is({cell.left, cell.top, cell.right, cell.top + 1}, shade)) << "the pen";
    cell.DeflateRect(1, 1);
    EXPECT_TRUE(picture.Is(cell, text)) << "the brush";
}

// ---- Odd geometry

TEST_F(PropertyGridCell, SurvivesADividerOutsideTheWindow) {
    LOGFONTW font = {};
    const UINT section = grid.AddSection(L"section");
    const UINT combo = grid.AddComboItem(section, L"combo", {L"a"}, 0);
    grid.AddColorItem(section, L"color", 1);
    grid.AddFontItem(section, L"font", font);
    grid.AddFileItem(section, L"file", L"C:\\one\\two\\three", L"");
    grid.SetFocusedItem(combo);
    for (const int gutter : {-1000, 0, 1, 299, 300, 5000}) {
        grid.SetGutterWidth(gutter);
        CGridPicture picture(grid);
        EXPECT_EQ(NameRect(combo).right, gutter);
    }
}

TEST_F(PropertyGridCell, SurvivesAWindowWithoutArea) {
    Flat();
    const UINT id = grid.AddStringItem(grid.AddSection(L"section"), L"a", L"b");
    grid.SetFocusedItem(id);
    for (const CSize size : {CSize(0, 0), CSize(5, 0), CSize(0, 5), CSize(1, 1)}) {
        grid.MoveWindow(0, 0, size.cx, size.cy);
        grid.Invalidate();
        grid.UpdateWindow();
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        grid.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT);
    }
    EXPECT_EQ(NameRect(id).top, 0);
}

}  // namespace
