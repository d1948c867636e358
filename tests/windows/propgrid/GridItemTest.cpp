#include "propgrid/GridItem.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "tests/windows/propgrid/GridFixture.h"

namespace {

constexpr int inch = 96;

CGridItem Item(EItemType kind, CGridValue value, std::vector<std::wstring> options = {}) {
    CGridItem item;
    item.kind = kind;
    item.value = std::move(value);
    item.options = std::move(options);
    item.TakeSavedCopy();
    return item;
}

std::wstring Text(const CGridItem& item) {
    return item.GetText(CGridTexts{}, inch);
}

CGridFont Font(const wchar_t* face, int height) {
    LOGFONTW font = {};
    font.lfHeight = height;
    wcsncpy(font.lfFaceName, face, LF_FACESIZE);
    return std::make_shared<const LOGFONTW>(font);
}

COleDateTime WithStatus(COleDateTime::DateTimeStatus status) {
    COleDateTime date(2024, 2, 29, 13, 45, 30);
    date.SetStatus(status);
    return date;
}

// The date as the system itself writes it.
std::wstring SystemText(const COleDateTime& date, DWORD flags) {
    BSTR text = nullptr;
    EXPECT_EQ(::VarBstrFromDate(date.m_dt, LANG_USER_DEFAULT, flags, &text), S_OK);
    const std::wstring copy = text;
    ::SysFreeString(text);
    return copy;
}

TEST(GridItemText, IsTheStringItself) {
    EXPECT_EQ(Text(Item(IT_STRING, std::wstring(L"two\r\nlines"))), L"two\r\nlines");
    EXPECT_EQ(Text(Item(IT_FILE, std::wstring(L"C:\\a\\b.txt"))), L"C:\\a\\b.txt");
    EXPECT_EQ(Text(Item(IT_FOLDER, std::wstring(L"C:\\a"))), L"C:\\a");
}

TEST(GridItemText, ShowsEachLineBreakOfATextAsAPilcrow) {
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\r\nb\r\n\r\nc"))), L"a\u00B6b\u00B6\u00B6c");
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"\r\n"))), L"\u00B6");
    // Only the two together are a line break.
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\rb\nc\n\rd\r"))), L"a\rb\nc\n\rd\r");
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\r\r\nb"))), L"a\r\u00B6b");
}

TEST(GridItemText, FormatsWholeNumbersWithTheItemsFormat) {
    EXPECT_EQ(Text(Item(IT_INTEGER, -42)), L"-42");
    EXPECT_EQ(Text(Item(IT_INTEGER, std::numeric_limits<int>::min())), L"-2147483648");
    EXPECT_EQ(Text(Item(IT_INTEGER, 255, {L"0x%04X mm"})), L"0x00FF mm");
    EXPECT_EQ(Text(Item(IT_INTEGER, 7, {L""})), L"7");
}

TEST(GridItemText, FormatsRealNumbersWithTheItemsFormat) {
    EXPECT_EQ(Text(Item(IT_DOUBLE, 2.5)), L"2.5");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 1234567.0)), L"1.23457e+06");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 1e-7)), L"1e-07");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 2.0, {L"%.3f cm"})), L"2.000 cm");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 0.5, {L""})), L"0.5");
}

TEST(GridItemText, IsTheChosenOneOfTheChoices) {
    EXPECT_EQ(Text(Item(IT_COMBO, 0, {L"left", L"right"})), L"left");
    EXPECT_EQ(Text(Item(IT_COMBO, 1, {L"left", L"right"})), L"right");
}

TEST(GridItemText, IsEmptyForAnIndexWithoutAChoice) {
    for (const int index : {-1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(Text(Item(IT_COMBO, index, {L"left", L"right"})), L"") << index;
    }
    EXPECT_EQ(Text(Item(IT_COMBO, 0)), L"");
}

TEST(GridItemText, UsesTheGridsTextsForTrueAndFalse) {
    EXPECT_EQ(Text(Item(IT_BOOLEAN, true)), L"True");
    EXPECT_EQ(Text(Item(IT_BOOLEAN, false)), L"False");
    CGridTexts texts;
    texts.trueText = L"Vero";
    texts.falseText = L"Falso";
    EXPECT_EQ(Item(IT_BOOLEAN, true).GetText(texts, inch), L"Vero");
    EXPECT_EQ(Item(IT_BOOLEAN, false).GetText(texts, inch), L"Falso");
}

TEST(GridItemText, WritesDatesAsTheUsersLocaleDoes) {
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    EXPECT_EQ(Text(Item(IT_DATE, date)), SystemText(date, VAR_DATEVALUEONLY));
    EXPECT_EQ(Text(Item(IT_DATETIME, date)), SystemText(date, 0));
    EXPECT_NE(Text(Item(IT_DATE, date)), Text(Item(IT_DATETIME, date)));
}

TEST(GridItemText, FormatsDatesWithTheItemsFormat) {
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    EXPECT_EQ(Text(Item(IT_DATE, date, {L"%Y-%m-%d"})), L"2024-02-29");
    EXPECT_EQ(Text(Item(IT_DATETIME, date, {L"%d/%m/%y %H:%M:%S"})), L"29/02/24 13:45:30");
}

TEST(GridItemText, IsEmptyForANullDateAndSaysWhenADateIsInvalid) {
    for (const EItemType kind : {IT_DATE, IT_DATETIME}) {
        for (const wchar_t* const format : {L"", L"%Y"}) {
            EXPECT_EQ(Text(Item(kind, WithStatus(COleDateTime::null), {format})), L"");
            EXPECT_EQ(Text(Item(kind, WithStatus(COleDateTime::invalid), {format})), L"Invalid DateTime");
        }
    }
}

TEST(GridItemText, WritesAColourAsRedGreenBlue) {
    EXPECT_EQ(Text(Item(IT_COLOR, RGB(1, 20, 255))), L"1; 20; 255");
    EXPECT_EQ(Text(Item(IT_COLOR, static_cast<COLORREF>(CLR_INVALID))), L"255; 255; 255");
}

TEST(GridItemText, WritesAFontAsFaceAndPointSize) {
    EXPECT_EQ(Text(Item(IT_FONT, Font(L"Tahoma", -16))), L"Tahoma; 12pt");
    EXPECT_EQ(Item(IT_FONT, Font(L"Tahoma", -16)).GetText(CGridTexts{}, 144), L"Tahoma; 8pt");
    // A height of the cell instead of the letters counts negative.
    EXPECT_EQ(Text(Item(IT_FONT, Font(L"Tahoma", 16))), L"Tahoma; -12pt");
    EXPECT_EQ(Text(Item(IT_FONT, Font(L"", 0))), L"; 0pt");
}

TEST(GridItemText, ReadsNoFurtherThanAFaceNameThatFillsItsField) {
    const std::wstring face(LF_FACESIZE, L'F');
    EXPECT_EQ(Text(Item(IT_FONT, Font(face.c_str(), -16))), face + L"; 12pt");
}

TEST(GridItemText, IsTheUndefinedTextForEveryUndefinedItem) {
    CGridTexts texts;
    CGridItem item = Item(IT_INTEGER, 5);
    item.undefined = true;
    EXPECT_EQ(item.GetText(texts, inch), L"");
    texts.undefined = L"(unknown)";
    EXPECT_EQ(item.GetText(texts, inch), L"(unknown)");
    CGridItem date = Item(IT_DATE, WithStatus(COleDateTime::invalid));
    date.undefined = true;
    EXPECT_EQ(date.GetText(texts, inch), L"(unknown)");
}

// Gives the item another value and says whether it then counts as modified.
bool ModifiedBy(EItemType kind, CGridValue first, CGridValue second) {
    CGridItem item = Item(kind, std::move(first));
    EXPECT_FALSE(item.IsModified());
    item.value = std::move(second);
    return item.IsModified();
}

TEST(GridItemModified, ComparesTheValueOfEveryKindWithTheSavedCopy) {
    EXPECT_TRUE(ModifiedBy(IT_STRING, std::wstring(L"a"), std::wstring(L"A")));
    EXPECT_TRUE(ModifiedBy(IT_TEXT, std::wstring(L"a"), std::wstring(L"a ")));
    EXPECT_TRUE(ModifiedBy(IT_FILE, std::wstring(L"a"), std::wstring(L"b")));
    EXPECT_TRUE(ModifiedBy(IT_FOLDER, std::wstring(L"a"), std::wstring(L"b")));
    EXPECT_TRUE(ModifiedBy(IT_INTEGER, 1, 2));
    EXPECT_TRUE(ModifiedBy(IT_COMBO, 0, -1));
    EXPECT_TRUE(ModifiedBy(IT_DOUBLE, 0.3, 0.1 + 0.2));
    EXPECT_TRUE(ModifiedBy(IT_BOOLEAN, false, true));
    EXPECT_TRUE(ModifiedBy(IT_COLOR, RGB(0, 0, 0), RGB(0, 0, 1)));
    EXPECT_FALSE(ModifiedBy(IT_STRING, std::wstring(L"a"), std::wstring(L"a")));
    EXPECT_FALSE(ModifiedBy(IT_DOUBLE, 0.25, 0.25));
    EXPECT_FALSE(ModifiedBy(IT_DOUBLE, 0.0, -0.0));
}

TEST(GridItemModified, ComparesDatesWithTheirStatus) {
    const COleDateTime date(2024, 2, 29, 13, 45, 30);
    EXPECT_TRUE(ModifiedBy(IT_DATE, date, COleDateTime(2024, 2, 29, 13, 45, 31)));
    EXPECT_TRUE(ModifiedBy(IT_DATE, date, WithStatus(COleDateTime::null)));
    EXPECT_TRUE(ModifiedBy(IT_DATETIME, WithStatus(COleDateTime::invalid), WithStatus(COleDateTime::null)));
    EXPECT_FALSE(ModifiedBy(IT_DATETIME, WithStatus(COleDateTime::null), WithStatus(COleDateTime::null)));
}

TEST(GridItemModified, ComparesAllBytesOfAFont) {
    EXPECT_FALSE(ModifiedBy(IT_FONT, Font(L"Tahoma", -16), Font(L"Tahoma", -16)));
    EXPECT_TRUE(ModifiedBy(IT_FONT, Font(L"Tahoma", -16), Font(L"Tahoma", -17)));
    // Also those behind the end of the face name, which nobody sees.
    LOGFONTW font = *Font(L"Tahoma", -16);
    font.lfFaceName[LF_FACESIZE - 1] = L'x';
    EXPECT_TRUE(ModifiedBy(IT_FONT, Font(L"Tahoma", -16), std::make_shared<const LOGFONTW>(font)));
}

TEST(GridItemModified, EndsWhenTheSavedCopyIsTakenAgain) {
    CGridItem item = Item(IT_INTEGER, 1);
    item.value = 2;
    item.undefined = true;
    item.TakeSavedCopy();
    EXPECT_FALSE(item.IsModified());
    EXPECT_TRUE(item.savedUndefined);
}

TEST(GridItemModified, IsNoneOfACustomItemsBusiness) {
    CRecordingItem first;
    CRecordingItem second;
    EXPECT_FALSE(ModifiedBy(IT_CUSTOM, &first, &second));
    EXPECT_EQ(first.accepted, 1);
    EXPECT_EQ(second.accepted, 0);
}

TEST(GridItemEditMode, FollowsFromTheKind) {
    for (const EItemType kind : {IT_STRING, IT_INTEGER, IT_DOUBLE}) {
        CGridItem item;
        item.kind = kind;
        EXPECT_EQ(item.GetEditMode(), EM_INPLACE) << kind;
    }
    for (const EItemType kind : {IT_COMBO, IT_BOOLEAN, IT_DATE}) {
        CGridItem item;
        item.kind = kind;
        EXPECT_EQ(item.GetEditMode(), EM_DROPDOWN) << kind;
    }
    for (const EItemType kind : {IT_TEXT, IT_DATETIME, IT_FILE, IT_FOLDER, IT_COLOR, IT_FONT}) {
        CGridItem item;
        item.kind = kind;
        EXPECT_EQ(item.GetEditMode(), EM_MODAL) << kind;
    }
}

TEST(GridItemEditMode, IsAskedOfACustomItem) {
    CRecordingItem custom;
    const CGridItem item = Item(IT_CUSTOM, &custom);
    for (const int mode : {EM_CUSTOM, EM_INPLACE, EM_DROPDOWN, EM_MODAL, EM_INPLACE_BUTTON}) {
        custom.mode = mode;
        EXPECT_EQ(item.GetEditMode(), mode);
    }
}

TEST(GridItemCodes, AreThoseThatClientsStore) {
    EXPECT_EQ(IT_CUSTOM, 0);
    EXPECT_EQ(IT_STRING, 1);
    EXPECT_EQ(IT_TEXT, 2);
    EXPECT_EQ(IT_INTEGER, 3);
    EXPECT_EQ(IT_DOUBLE, 4);
    EXPECT_EQ(IT_COMBO, 5);
    EXPECT_EQ(IT_BOOLEAN, 6);
    EXPECT_EQ(IT_DATE, 7);
    EXPECT_EQ(IT_DATETIME, 8);
    EXPECT_EQ(IT_FILE, 9);
    EXPECT_EQ(IT_FOLDER, 10);
    EXPECT_EQ(IT_COLOR, 11);
    EXPECT_EQ(IT_FONT, 12);
    EXPECT_EQ(EM_CUSTOM, 0);
    EXPECT_EQ(EM_INPLACE, 1);
    EXPECT_EQ(EM_DROPDOWN, 2);
    EXPECT_EQ(EM_MODAL, 3);
    EXPECT_EQ(EM_INPLACE_BUTTON, 4);
}

// Which place an operation has among the virtual ones of its class.
template <typename Operation>
std::size_t PlaceOf(Operation operation) {
    std::size_t offset = 0;
    static_assert(sizeof(operation) >= sizeof(offset));
    std::memcpy(&offset, &operation, sizeof(offset));
    return (offset - 1) / sizeof(void*);
}

// Whoever implements the interface elsewhere was compiled for this order.
TEST(CustomItemInterface, KeepsTheOrderOfItsOperations) {
    EXPECT_EQ(PlaceOf(&ICustomItem::GetEditMode), 0U);
    EXPECT_EQ(PlaceOf(&ICustomItem::DrawItem), 1U);
    EXPECT_EQ(PlaceOf(&ICustomItem::AcceptValue), 2U);
    EXPECT_EQ(PlaceOf(&ICustomItem::OnLButtonDown), 3U);
    EXPECT_EQ(PlaceOf(&ICustomItem::OnMouseMove), 4U);
    EXPECT_EQ(PlaceOf(&ICustomItem::OnLButtonUp), 5U);
    EXPECT_EQ(PlaceOf(&ICustomItem::GetStringValue), 6U);
    EXPECT_EQ(PlaceOf(&ICustomItem::SetStringValue), 7U);
    EXPECT_EQ(PlaceOf(&ICustomItem::ShowDropDown), 8U);
    EXPECT_EQ(PlaceOf(&ICustomItem::OnButtonClicked), 9U);
}

TEST(GridItemValue, IsReadAsTheKindStoresIt) {
    CGridValue value;
    const int number = 7;
    EXPECT_TRUE(ReadGridValue(IT_COMBO, &number, value));
    EXPECT_EQ(std::get<int>(value), 7);
    const std::wstring path = L"C:\\";
    EXPECT_TRUE(ReadGridValue(IT_FOLDER, &path, value));
    EXPECT_EQ(std::get<std::wstring>(value), path);
    const LOGFONTW font = *Font(L"Tahoma", -9);
    EXPECT_TRUE(ReadGridValue(IT_FONT, &font, value));
    EXPECT_EQ(std::memcmp(std::get<CGridFont>(value).get(), &font, sizeof(font)), 0);
    CRecordingItem custom;
    EXPECT_TRUE(ReadGridValue(IT_CUSTOM, static_cast<ICustomItem*>(&custom), value));
    EXPECT_EQ(std::get<ICustomItem*>(value), &custom);
}

TEST(GridItemValue, IsNotReadForAnUnknownKindOrFromNowhere) {
    CGridValue value = 5;
    const int number = 7;
    EXPECT_FALSE(ReadGridValue(static_cast<EItemType>(13), &number, value));
    EXPECT_FALSE(ReadGridValue(static_cast<EItemType>(-1), &number, value));
    EXPECT_FALSE(ReadGridValue(IT_INTEGER, nullptr, value));
    EXPECT_EQ(std::get<int>(value), 5);
}

}  // namespace
