#include <cmath>
#include <cstring>

#include "tests/windows/propgrid/GridFixture.h"

namespace {

constexpr UINT none = CPropertyGrid::NO_ID;

LOGFONTW FontOf(const wchar_t* face, int height) {
    LOGFONTW font = {};
    font.lfHeight = height;
    wcscpy(font.lfFaceName, face);
    return font;
}

// A grid without a window: all of this works without one.
class PropertyGridValues : public testing::Test {
protected:
    CTestGrid grid;
    UINT section = grid.AddSection(L"Section");
};

TEST_F(PropertyGridValues, GiveBackWhatEveryKindWasAddedWith) {
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    const LOGFONTW font = FontOf(L"Tahoma", -16);
    CRecordingItem custom;
    const UINT string = grid.AddStringItem(section, L"string", L"one");
    const UINT text = grid.AddTextItem(section, L"text", L"two\r\nlines");
    const UINT integer = grid.AddIntegerItem(section, L"integer", -3);
    const UINT real = grid.AddDoubleItem(section, L"double", 0.1);
    const UINT combo = grid.AddComboItem(section, L"combo", {L"a", L"b"}, 1);
    const UINT boolean = grid.AddBooleanItem(section, L"bool", true);
    const UINT day = grid.AddDateItem(section, L"date", date);
    const UINT moment = grid.AddDateTimeItem(section, L"datetime", date);
    const UINT file = grid.AddFileItem(section, L"file", L"C:\\f.txt", L"All|*.*||");
    const UINT folder = grid.AddFolderItem(section, L"folder", L"C:\\", L"Choose");
    const UINT color = grid.AddColorItem(section, L"color", RGB(1, 2, 3));
    const UINT fontItem = grid.AddFontItem(section, L"font", font);
    const UINT customItem = grid.AddCustomItem(section, L"custom", &custom);

    std::wstring s;
    int i = 0;
    double d = 0;
    bool b = false;
    COleDateTime t;
    COLORREF c = 0;
    LOGFONTW f = {};
    ICustomItem* p = nullptr;
    EXPECT_TRUE(grid.GetItemValue(string, s));
    EXPECT_EQ(s, L"one");
    EXPECT_TRUE(grid.GetItemValue(text, s));
    EXPECT_EQ(s, L"two\r\nlines");
    EXPECT_TRUE(grid.GetItemValue(file, s));
    EXPECT_EQ(s, L"C:\\f.txt");
    EXPECT_TRUE(grid.GetItemValue(folder, s));
    EXPECT_EQ(s, L"C:\\");
    EXPECT_TRUE(grid.GetItemValue(integer, i));
    EXPECT_EQ(i, -3);
    EXPECT_TRUE(grid.GetItemValue(combo, i));
    EXPECT_EQ(i, 1);
    EXPECT_TRUE(grid.GetItemValue(real, d));
    EXPECT_EQ(d, 0.1);
    EXPECT_TRUE(grid.GetItemValue(boolean, b));
    EXPECT_TRUE(b);
    EXPECT_TRUE(grid.GetItemValue(day, t));
    EXPECT_EQ(t.m_dt, date.m_dt);
    EXPECT_TRUE(grid.GetItemValue(moment, t));
    EXPECT_TRUE(grid.GetItemValue(color, c));
    EXPECT_EQ(c, RGB(1, 2, 3));
    EXPECT_TRUE(grid.GetItemValue(fontItem, f));
    EXPECT_EQ(std::memcmp(&f, &font, sizeof(f)), 0);
    EXPECT_TRUE(grid.GetItemValue(customItem, p));
    EXPECT_EQ(p, &custom);

    const EItemType kinds[] = {IT_STRING,   IT_TEXT, IT_INTEGER, IT_DOUBLE, IT_COMBO, IT_BOOLEAN, IT_DATE,
                               IT_DATETIME, IT_FILE, IT_FOLDER,  IT_COLOR,  IT_FONT,  IT_CUSTOM};
    for (UINT id = 0; id < 13; ++id) {
        EItemType kind = IT_CUSTOM;
        EXPECT_TRUE(grid.GetItemKind(id, kind));
        EXPECT_EQ(kind, kinds[id]);
    }
}

TEST_F(PropertyGridValues, AreNotReadAsAnotherType) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", 5);
    const UINT real = grid.AddDoubleItem(section, L"double", 5.0);
    const UINT color = grid.AddColorItem(section, L"color", 5);
    int i = -1;
    double d = -1;
    bool b = true;
    COLORREF c = 77;
    std::wstring s = L"kept";
    EXPECT_FALSE(grid.GetItemValue(real, i));
    EXPECT_FALSE(grid.GetItemValue(color, i));
    EXPECT_FALSE(grid.GetItemValue(integer, d));
    EXPECT_FALSE(grid.GetItemValue(integer, b));
    EXPECT_FALSE(grid.GetItemValue(integer, c));
    EXPECT_FALSE(grid.GetItemValue(integer, s));
    EXPECT_EQ(i, -1);
    EXPECT_EQ(d, -1);
    EXPECT_TRUE(b);
    EXPECT_EQ(c, 77U);
    EXPECT_EQ(s, L"kept");
}

TEST_F(PropertyGridValues, OfAnUndefinedItemAreNotReadAlthoughItHoldsOne) {
    const UINT id = grid.AddIntegerItem(section, L"integer", 5, L"%d", true, true);
    int value = -1;
    EXPECT_FALSE(grid.GetItemValue(id, value));
    EXPECT_EQ(value, -1);
    EXPECT_TRUE(grid.IsItemUndefined(id));
    EXPECT_TRUE(grid.SetItemUndefined(id, false));
    EXPECT_TRUE(grid.GetItemValue(id, value));
    EXPECT_EQ(value, 5);
    EXPECT_TRUE(grid.SetItemUndefined(id, true));
    EXPECT_FALSE(grid.GetItemValue(id, value));
}

TEST_F(PropertyGridValues, OfAnUnknownItemAreNotRead) {
    int value = -1;
    EXPECT_FALSE(grid.GetItemValue(0, value));
    EXPECT_FALSE(grid.GetItemValue(none, value));
    EXPECT_EQ(value, -1);
    EXPECT_FALSE(grid.SetItemValue(0, 1));
    EXPECT_EQ(grid.GetItemText(0), L"");
    EXPECT_EQ(grid.GetItemName(0), L"");
}

TEST_F(PropertyGridValues, AreSetForEveryKind) {
    const COleDateTime date(2024, 2, 29, 0, 0, 0);
    const LOGFONTW font = FontOf(L"Arial", -12);
    CRecordingItem first;
    CRecordingItem second;
    const UINT string = grid.AddStringItem(section, L"string", L"");
    const UINT integer = grid.AddIntegerItem(section, L"integer", 0);
    const UINT real = grid.AddDoubleItem(section, L"double", 0);
    const UINT boolean = grid.AddBooleanItem(section, L"bool", false);
    const UINT day = grid.AddDateItem(section, L"date", COleDateTime(), L"%Y");
    const UINT color = grid.AddColorItem(section, L"color", 0);
    const UINT fontItem = grid.AddFontItem(section, L"font", FontOf(L"Tahoma", -16));
    const UINT customItem = grid.AddCustomItem(section, L"custom", &first);
    EXPECT_TRUE(grid.SetItemValue(string, L"a literal is a text"));
    EXPECT_TRUE(grid.SetItemValue(integer, 6));
    EXPECT_TRUE(grid.SetItemValue(real, 1.5));
    EXPECT_TRUE(grid.SetItemValue(boolean, true));
    EXPECT_TRUE(grid.SetItemValue(day, date));
    EXPECT_TRUE(grid.SetItemValue(color, RGB(9, 8, 7)));
    EXPECT_TRUE(grid.SetItemValue(fontItem, font));
    EXPECT_TRUE(grid.SetItemValue(customItem, &second));
    EXPECT_EQ(grid.GetItemText(string), L"a literal is a text");
    EXPECT_EQ(grid.GetItemText(integer), L"6");
    EXPECT_EQ(grid.GetItemText(real), L"1.5");
    EXPECT_EQ(grid.GetItemText(boolean), L"True");
    EXPECT_EQ(grid.GetItemText(day), L"2024");
    EXPECT_EQ(grid.GetItemText(color), L"9; 8; 7");
    EXPECT_EQ(grid.GetItemText(fontItem).substr(0, 6), L"Arial;");
    EXPECT_EQ(second.m_pGrid, &grid);
}

TEST_F(PropertyGridValues, OfAnotherTypeAreNotSet) {
    const UINT integer = grid.AddIntegerItem(section, L"integer", 5);
    EXPECT_FALSE(grid.SetItemValue(integer, 1.0));
    EXPECT_FALSE(grid.SetItemValue(integer, L"6"));
    EXPECT_FALSE(grid.SetItemValue(integer, true));
    EXPECT_FALSE(grid.SetItemValue(integer, static_cast<COLORREF>(6)));
    EXPECT_EQ(grid.GetItemText(integer), L"5");
    EXPECT_FALSE(grid.IsItemModified(integer));
}

TEST_F(PropertyGridValues, MakeAnItemDefinedWhenSet) {
    const UINT id = grid.AddIntegerItem(section, L"integer", 5, L"%d", true, true);
    EXPECT_TRUE(grid.SetItemValue(id, 6));
    EXPECT_FALSE(grid.IsItemUndefined(id));
}

TEST_F(PropertyGridValues, AreModifiedUntilTheyAreAccepted) {
    CRecordingItem custom;
    const UINT integer = grid.AddIntegerItem(section, L"integer", 5);
    const UINT other = grid.AddStringItem(section, L"string", L"x");
    grid.AddCustomItem(section, L"custom", &custom);
    EXPECT_FALSE(grid.IsItemModified(integer));
    grid.SetItemValue(integer, 6);
    EXPECT_TRUE(grid.IsItemModified(integer));
    EXPECT_FALSE(grid.IsItemModified(other));
    grid.SetItemValue(integer, 5);
    EXPECT_FALSE(grid.IsItemModified(integer));
    grid.SetItemValue(integer, 6);
    EXPECT_EQ(custom.accepted, 1);
    grid.AcceptValues();
    EXPECT_FALSE(grid.IsItemModified(integer));
    EXPECT_EQ(custom.accepted, 2);
    grid.SetItemValue(integer, 5);
    EXPECT_TRUE(grid.IsItemModified(integer));
}

TEST_F(PropertyGridValues, TakeTheDisplayFormatsOfTheirItems) {
    EXPECT_EQ(grid.GetItemText(grid.AddIntegerItem(section, L"integer", 255, L"%x hex")), L"ff hex");
    EXPECT_EQ(grid.GetItemText(grid.AddDoubleItem(section, L"double", 1.0 / 3, L"%.2f")), L"0.33");
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    EXPECT_EQ(grid.GetItemText(grid.AddDateItem(section, L"date", date, L"%d.%m.")), L"29.02.");
    EXPECT_EQ(grid.GetItemText(grid.AddDateTimeItem(section, L"time", date, L"%H:%M")), L"13:45");
}

TEST_F(PropertyGridValues, OutsideTheChoicesShowNothing) {
    const UINT combo = grid.AddComboItem(section, L"combo", {L"a", L"b"}, 2);
    EXPECT_EQ(grid.GetItemText(combo), L"");
    EXPECT_TRUE(grid.SetItemValue(combo, 0));
    EXPECT_EQ(grid.GetItemText(combo), L"a");
    EXPECT_EQ(grid.GetItemText(grid.AddComboItem(section, L"no choices", {}, 0)), L"");
}

TEST_F(PropertyGridValues, OfADateBeyondTheCalendarShowSomethingAndDoNoHarm) {
    COleDateTime date;
    date.m_dt = 1e300;
    date.m_status = COleDateTime::valid;
    for (const wchar_t* const format : {L"", L"%Y-%m-%d"}) {
        grid.ResetContents();
        section = grid.AddSection(L"Section");
        const UINT id = grid.AddDateItem(section, L"date", date, format);
        EXPECT_LT(grid.GetItemText(id).size(), 100U);
    }
}

TEST_F(PropertyGridValues, AreTrueAndFalseInTheGridsWords) {
    const UINT id = grid.AddBooleanItem(section, L"bool", false);
    grid.SetBooleanTexts(L"S\u00EC", L"No");
    EXPECT_EQ(grid.GetItemText(id), L"No");
    grid.SetItemValue(id, true);
    EXPECT_EQ(grid.GetItemText(id), L"S\u00EC");
}

TEST_F(PropertyGridValues, AreAddedUntypedAsTheKindStoresThem) {
    const double number = 2.5;
    const UINT id = grid.AddItem(section, IT_DOUBLE, L"double", &number);
    EXPECT_EQ(grid.GetItemText(id), L"2.5");
    EXPECT_EQ(grid.AddItem(section, static_cast<EItemType>(99), L"unknown", &number), none);
    EXPECT_EQ(grid.AddItem(section, IT_DOUBLE, L"nothing", nullptr), none);
    EXPECT_EQ(grid.GetItemCount(), 1U);
}

TEST_F(PropertyGridValues, OfTheSameNameAreRefusedInOneSectionAndTakenInAnother) {
    EXPECT_EQ(grid.AddIntegerItem(section, L"Width", 1), 0U);
    EXPECT_EQ(grid.AddDoubleItem(section, L"Width", 2.0, L"%.1f"), none);
    EXPECT_EQ(grid.GetItemText(0), L"1");
    EXPECT_EQ(grid.AddDoubleItem(grid.AddSection(L"Other"), L"Width", 2.0), 1U);
    EXPECT_EQ(grid.GetItemCount(), 2U);
}

TEST_F(PropertyGridValues, AreRefusedForAnUnknownSection) {
    EXPECT_EQ(grid.AddIntegerItem(17, L"Width", 1), none);
    EXPECT_EQ(grid.AddComboItem(17, L"Width", {L"a"}, 0), none);
    EXPECT_EQ(grid.GetItemCount(), 0U);
}

// A height of -13 pixels is 9.75 points at 96 pixels per inch.
TEST_F(PropertyGridValues, ShowAFontsSizeInRoundedPoints) {
    const CWindowDC screen(nullptr);
    const double perInch = screen.GetDeviceCaps(LOGPIXELSY);
    bool wasRoundedUp = false;
    for (int height = 1; height < 40; ++height) {
        LOGFONTW font = {};
        wcscpy(font.lfFaceName, L"Tahoma");
        font.lfHeight = -height;
        const UINT id = grid.AddFontItem(section, std::to_wstring(height), font);
        const double points = height * 72 / perInch;
        EXPECT_EQ(grid.GetItemText(id), L"Tahoma; " + std::to_wstring(std::lround(points)) + L"pt");
        wasRoundedUp = wasRoundedUp || std::lround(points) > points;
    }
    EXPECT_TRUE(wasRoundedUp);
}

TEST(PropertyGridCustomItem, KnowsItsGridWhenItAcceptsItsValue) {
    CTestGrid grid;
    CRecordingItem item;
    EXPECT_EQ(item.m_pGrid, nullptr);
    const UINT id = grid.AddCustomItem(grid.AddSection(L"Section"), L"custom", &item);
    EXPECT_EQ(item.m_pGrid, &grid);
    EXPECT_EQ(item.gridWhenAccepted, &grid);
    EXPECT_EQ(item.accepted, 1);
    EXPECT_FALSE(grid.IsItemUndefined(id));
    EXPECT_FALSE(grid.SetItemUndefined(id, true));
    EXPECT_FALSE(grid.IsItemUndefined(id));
    EXPECT_EQ(grid.GetItemText(id), L"");
}

TEST(PropertyGridCustomItem, StaysWithItsGridWhenAnotherRefusesIt) {
    CTestGrid first;
    CTestGrid second;
    CRecordingItem item;
    first.AddCustomItem(first.AddSection(L"Section"), L"custom", &item);
    EXPECT_EQ(second.AddCustomItem(5, L"custom", &item), none);
    EXPECT_EQ(item.m_pGrid, &first);
    EXPECT_EQ(item.accepted, 1);
}

TEST(PropertyGridCustomItem, IsAddedByItsKindAsByItsOwnAdd) {
    CPropertyGrid grid;
    CRecordingItem item;
    const UINT section = grid.AddSection(L"Section");
    ICustomItem* const custom = &item;
    const UINT id = grid.AddItem(section, IT_CUSTOM, L"custom", custom, true, true);
    EXPECT_EQ(item.gridWhenAccepted, &grid);
    EXPECT_EQ(item.m_pGrid, &grid);
    EXPECT_FALSE(grid.IsItemUndefined(id)) << "a custom item never is";
    ICustomItem* held = nullptr;
    EXPECT_TRUE(grid.GetItemValue(id, held));
    EXPECT_EQ(held, custom);
    CPropertyGrid other;
    EXPECT_EQ(other.AddItem(5, IT_CUSTOM, L"custom", custom), none);
    EXPECT_EQ(item.m_pGrid, &grid) << "another grid has refused it";
}

TEST(PropertyGridCustomItem, MayNotBeNull) {
    CTestGrid grid;
    CRecordingItem item;
    const UINT section = grid.AddSection(L"Section");
    EXPECT_EQ(grid.AddCustomItem(section, L"nothing", nullptr), none);
    const UINT id = grid.AddCustomItem(section, L"custom", &item);
    EXPECT_FALSE(grid.SetItemValue(id, static_cast<ICustomItem*>(nullptr)));
    ICustomItem* held = nullptr;
    EXPECT_TRUE(grid.GetItemValue(id, held));
    EXPECT_EQ(held, &item);
}

TEST_F(PropertyGridValues, KeepTheirItemsPropertiesApart) {
    const UINT id = grid.AddIntegerItem(section, L"Width", 1, L"%d", false);
    EXPECT_FALSE(grid.IsItemEditable(id));
    EXPECT_TRUE(grid.SetItemEditable(id, true));
    EXPECT_TRUE(grid.IsItemEditable(id));
    EXPECT_EQ(grid.GetItemName(id), L"Width");
    EXPECT_FALSE(grid.SetItemEditable(9, true));
    EXPECT_FALSE(grid.SetItemUndefined(9, true));
    EXPECT_FALSE(grid.IsItemEditable(9));
    EItemType kind = IT_FONT;
    EXPECT_FALSE(grid.GetItemKind(9, kind));
    EXPECT_EQ(kind, IT_FONT);
}

TEST_F(PropertyGridValues, AreCountedBySection) {
    const UINT other = grid.AddSection(L"Other", true);
    grid.AddIntegerItem(section, L"a", 1);
    grid.AddIntegerItem(other, L"a", 1);
    grid.AddIntegerItem(other, L"b", 1);
    EXPECT_EQ(grid.GetSectionCount(), 2U);
    EXPECT_EQ(grid.GetItemCount(), 3U);
    EXPECT_EQ(grid.GetSectionItemCount(section), 1U);
    EXPECT_EQ(grid.GetSectionItemCount(other), 2U);
    EXPECT_EQ(grid.GetSectionItemCount(7), 0U);
    EXPECT_EQ(grid.GetSectionName(other), L"Other");
    EXPECT_EQ(grid.GetSectionName(7), L"");
    EXPECT_TRUE(grid.IsSectionCollapsed(other));
    EXPECT_TRUE(grid.SetSectionCollapsed(other, false));
    EXPECT_FALSE(grid.IsSectionCollapsed(other));
    EXPECT_FALSE(grid.SetSectionCollapsed(7, true));
}

TEST_F(PropertyGridValues, CanHaveTheFocusOrTheirSectionCan) {
    const UINT id = grid.AddIntegerItem(section, L"a", 1);
    EXPECT_EQ(grid.GetFocusedItem(), none);
    EXPECT_EQ(grid.GetFocusedSection(), none);
    EXPECT_TRUE(grid.SetFocusedItem(id));
    EXPECT_EQ(grid.GetFocusedItem(), id);
    EXPECT_TRUE(grid.SetFocusedSection(section));
    EXPECT_EQ(grid.GetFocusedSection(), section);
    EXPECT_EQ(grid.GetFocusedItem(), none);
    EXPECT_FALSE(grid.SetFocusedItem(8));
    EXPECT_FALSE(grid.SetFocusedSection(8));
    EXPECT_EQ(grid.GetFocusedSection(), section);
    EXPECT_TRUE(grid.SetFocusedItem(none));
    EXPECT_EQ(grid.GetFocusedSection(), none);
}

TEST_F(PropertyGridValues, StartAgainFromIdZeroAfterAResetThatLeavesTheFocus) {
    grid.AddIntegerItem(section, L"a", 1);
    const UINT second = grid.AddIntegerItem(section, L"b", 2);
    grid.SetFocusedItem(second);
    grid.ResetContents();
    EXPECT_EQ(grid.GetSectionCount(), 0U);
    EXPECT_EQ(grid.GetItemCount(), 0U);
    EXPECT_EQ(grid.GetFocusedItem(), second);
    EXPECT_EQ(grid.AddSection(L"new"), 0U);
    EXPECT_EQ(grid.AddIntegerItem(0, L"b", 1), 0U);
    EXPECT_EQ(grid.AddIntegerItem(0, L"c", 1), second);
    EXPECT_EQ(grid.GetFocusedItem(), second);
}

TEST(PropertyGridSettings, StartWithTheirDefaults) {
    const CTestGrid grid;
    EXPECT_EQ(grid.GetDisplayMode(), 0U);
    EXPECT_TRUE(grid.GetShadeHeaders());
    EXPECT_TRUE(grid.GetDrawLines());
    EXPECT_TRUE(grid.GetDrawDivider());
    EXPECT_TRUE(grid.GetFocusNonEditable());
    EXPECT_FALSE(grid.GetBoldModified());
    EXPECT_FALSE(grid.GetBoldEditable());
    EXPECT_EQ(grid.GetTextMargin(), 4);
    EXPECT_EQ(grid.GetBooleanText(true), L"True");
    EXPECT_EQ(grid.GetBooleanText(false), L"False");
    EXPECT_EQ(grid.GetOkText(), L"");
    EXPECT_EQ(grid.GetCancelText(), L"");
    EXPECT_EQ(grid.GetDateText(), L"Date");
    EXPECT_EQ(grid.GetTimeText(), L"Time");
    EXPECT_EQ(grid.GetUndefinedText(), L"");
    EXPECT_EQ(grid.GetEmptyListText(), L"");
    EXPECT_EQ(grid.GetTextColor(), ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(grid.GetTitleColor(), ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(grid.GetBackColor(), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(grid.GetShadeColor(), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(grid.GetFocusColor(), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(grid.GetFocusTextColor(), ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(grid.GetEditableColor(), ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(grid.GetNonEditableColor(), ::GetSysColor(COLOR_GRAYTEXT));
}

TEST(PropertyGridSettings, KeepWhatTheyAreGiven) {
    CTestGrid grid;
    grid.SetOkText(L"Va bene");
    grid.SetCancelText(L"Annulla");
    grid.SetDateText(L"Data");
    grid.SetTimeText(L"Ora");
    grid.SetUndefinedText(L"-");
    grid.SetEmptyListText(L"niente");
    grid.SetFocusNonEditable(false);
    grid.SetDisplayMode(2);
    grid.SetGutterWidth(210);
    EXPECT_EQ(grid.GetOkText(), L"Va bene");
    EXPECT_EQ(grid.GetCancelText(), L"Annulla");
    EXPECT_EQ(grid.GetDateText(), L"Data");
    EXPECT_EQ(grid.GetTimeText(), L"Ora");
    EXPECT_EQ(grid.GetUndefinedText(), L"-");
    EXPECT_EQ(grid.GetEmptyListText(), L"niente");
    EXPECT_FALSE(grid.GetFocusNonEditable());
    EXPECT_EQ(grid.GetDisplayMode(), 2U);
    EXPECT_EQ(grid.GetGutterWidth(), 210);
}

TEST_F(GridTest, NotifiesItsParentOfAChangeAtOnce) {
    grid.NotifyChanged(7);
    EXPECT_EQ(parent.changedItems, (std::vector<UINT>{7}));
}

TEST(GridMessages, HaveFixedNumbers) {
    EXPECT_EQ(WM_GRID_ITEM_CHANGED, 1510U);
    EXPECT_EQ(WM_GRID_CHOICE_MADE, 1511U);
    EXPECT_EQ(WM_GRID_EDIT_DONE, 1512U);
    EXPECT_EQ(WM_GRID_DATE_CHOSEN, 1513U);
}

TEST_F(GridTest, NotifiesItsOwnerInsteadOfItsParentWhenOneIsSet) {
    CGridParent owner;
    grid.SetOwner(&owner);
    grid.NotifyChanged(3);
    EXPECT_EQ(owner.changedItems, (std::vector<UINT>{3}));
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridTest, SendsNoNotificationForChangesByTheClient) {
    const UINT id = grid.AddIntegerItem(grid.AddSection(L"Section"), L"a", 1);
    grid.SetItemValue(id, 2);
    grid.SetItemUndefined(id, true);
    grid.AcceptValues();
    EXPECT_TRUE(parent.changedItems.empty());
}

}  // namespace
