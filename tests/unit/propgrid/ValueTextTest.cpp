#include "propgrid/model/ValueText.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/unit/propgrid/TestCustomItem.h"

namespace {

using namespace tavrin::propgrid;
using tests::CTestCustomItem;

// Writes dates as "day 2 of FORMAT" with a note of what else was asked.
class CTestSystemText final : public ISystemText {
public:
    explicit CTestSystemText(int pixelsPerInch = 96) : m_pixelsPerInch(pixelsPerInch) {}
    std::wstring GetDateText(const DateValue& date, const std::wstring& format,
                             bool withTime) const override {
        return L"day " + std::to_wstring(static_cast<int>(date.days)) + L" status " +
               std::to_wstring(date.status) + (withTime ? L" with time" : L"") + L" as [" + format + L"]";
    }
    int GetPixelsPerInch() const override { return m_pixelsPerInch; }

private:
    int m_pixelsPerInch;
};

GridItem Item(EItemType kind, Value value, std::vector<std::wstring> options = {}) {
    GridItem item;
    item.kind = kind;
    item.value = std::move(value);
    item.options = std::move(options);
    return item;
}

std::wstring Text(const GridItem& item) {
    return GetValueText(item, GridTexts(), CTestSystemText());
}

FontPointer Font(std::u16string_view face, std::int32_t height) {
    FontValue font;
    font.height = height;
    std::copy(face.begin(), face.end(), font.faceName);
    return std::make_shared<const FontValue>(font);
}

TEST(ValueText, IsTheStringItself) {
    EXPECT_EQ(Text(Item(IT_STRING, std::wstring(L"two\r\nlines"))), L"two\r\nlines");
    EXPECT_EQ(Text(Item(IT_FILE, std::wstring(L"C:\\a\\b.txt"))), L"C:\\a\\b.txt");
    EXPECT_EQ(Text(Item(IT_FOLDER, std::wstring(L"C:\\a"))), L"C:\\a");
}

TEST(ValueText, ShowsEachLineBreakOfATextAsAPilcrow) {
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\r\nb\r\n\r\nc"))), L"a\u00B6b\u00B6\u00B6c");
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"\r\n"))), L"\u00B6");
    // Only the two together are a line break.
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\rb\nc\n\rd\r"))), L"a\rb\nc\n\rd\r");
    EXPECT_EQ(Text(Item(IT_TEXT, std::wstring(L"a\r\r\nb"))), L"a\r\u00B6b");
}

TEST(ValueText, FormatsWholeNumbersWithTheItemsFormat) {
    EXPECT_EQ(Text(Item(IT_INTEGER, -42)), L"-42");
    EXPECT_EQ(Text(Item(IT_INTEGER, std::numeric_limits<int>::min())), L"-2147483648");
    EXPECT_EQ(Text(Item(IT_INTEGER, 255, {L"0x%04X mm\u00B2"})), L"0x00FF mm\u00B2");
    EXPECT_EQ(Text(Item(IT_INTEGER, 7, {L""})), L"7");
    EXPECT_EQ(Text(Item(IT_INTEGER, 7, {L"%300d"})), std::wstring(299, L' ') + L"7");
}

TEST(ValueText, FormatsRealNumbersWithTheItemsFormat) {
    EXPECT_EQ(Text(Item(IT_DOUBLE, 2.5)), L"2.5");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 1234567.0)), L"1.23457e+06");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 1e-7)), L"1e-07");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 2.0, {L"%.3f cm"})), L"2.000 cm");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 0.5, {L""})), L"0.5");
    EXPECT_EQ(Text(Item(IT_DOUBLE, 1e300, {L"%.0f"})).size(), 301U);
}

TEST(ValueText, IsEmptyForAFormatThatNoNumberFits) {
    EXPECT_EQ(Text(Item(IT_INTEGER, 7, {L"%100000d"})), L"");
}

TEST(ValueText, IsTheChosenOneOfTheChoices) {
    EXPECT_EQ(Text(Item(IT_COMBO, 0, {L"left", L"right"})), L"left");
    EXPECT_EQ(Text(Item(IT_COMBO, 1, {L"left", L"right"})), L"right");
}

TEST(ValueText, IsEmptyForAnIndexWithoutAChoice) {
    for (const int index : {-1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(Text(Item(IT_COMBO, index, {L"left", L"right"})), L"") << index;
    }
    EXPECT_EQ(Text(Item(IT_COMBO, 0)), L"");
}

TEST(ValueText, UsesTheGridsTextsForTrueAndFalse) {
    EXPECT_EQ(Text(Item(IT_BOOLEAN, true)), L"True");
    EXPECT_EQ(Text(Item(IT_BOOLEAN, false)), L"False");
    GridTexts texts;
    texts.trueText = L"Vero";
    texts.falseText = L"Falso";
    EXPECT_EQ(GetValueText(Item(IT_BOOLEAN, true), texts, CTestSystemText()), L"Vero");
    EXPECT_EQ(GetValueText(Item(IT_BOOLEAN, false), texts, CTestSystemText()), L"Falso");
}

TEST(ValueText, LeavesDatesToTheSystem) {
    EXPECT_EQ(Text(Item(IT_DATE, DateValue{2.5})), L"day 2 status 0 as []");
    EXPECT_EQ(Text(Item(IT_DATETIME, DateValue{2.5, DS_NULL})), L"day 2 status 2 with time as []");
    EXPECT_EQ(Text(Item(IT_DATE, DateValue{2.5}, {L"%Y"})), L"day 2 status 0 as [%Y]");
}

TEST(ValueText, WritesAColourAsRedGreenBlue) {
    EXPECT_EQ(Text(Item(IT_COLOR, Color{0x00FF1401})), L"1; 20; 255");
    EXPECT_EQ(Text(Item(IT_COLOR, Color{0xFFFFFFFF})), L"255; 255; 255");
}

TEST(ValueText, WritesAFontAsFaceAndPointSize) {
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"Tahoma", -16))), L"Tahoma; 12pt");
    EXPECT_EQ(GetValueText(Item(IT_FONT, Font(u"Tahoma", -16)), GridTexts(), CTestSystemText(144)),
              L"Tahoma; 8pt");
    // A height of the line instead of the letters counts negative.
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"Tahoma", 16))), L"Tahoma; -12pt");
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"", 0))), L"; 0pt");
}

TEST(ValueText, RoundsPointSizesToTheNearest) {
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", -13))), L"F; 10pt");  // 9.75
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", -14))), L"F; 11pt");  // 10.5
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", -11))), L"F; 8pt");   // 8.25
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", 13))), L"F; -10pt");
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", 14))), L"F; -11pt");
    EXPECT_EQ(Text(Item(IT_FONT, Font(u"F", std::numeric_limits<std::int32_t>::min()))), L"F; 1610612736pt");
}

TEST(ValueText, IsTheUndefinedTextForEveryUndefinedItem) {
    GridTexts texts;
    texts.undefined = L"(unknown)";
    const std::wstring text = L"text";
    for (GridItem item :
         {Item(IT_STRING, text), Item(IT_TEXT, text), Item(IT_FILE, text), Item(IT_FOLDER, text),
          Item(IT_INTEGER, 5), Item(IT_DOUBLE, 5.0), Item(IT_COMBO, 0, {L"choice"}), Item(IT_BOOLEAN, true),
          Item(IT_DATE, DateValue()), Item(IT_DATETIME, DateValue()), Item(IT_COLOR, Color()),
          Item(IT_FONT, Font(u"F", -12))}) {
        item.undefined = true;
        EXPECT_EQ(GetValueText(item, texts, CTestSystemText()), L"(unknown)") << item.kind;
        EXPECT_EQ(GetValueText(item, GridTexts(), CTestSystemText()), L"") << item.kind;
    }
}

TEST(ValueText, IsEmptyForACustomItemWhichDrawsItself) {
    CTestCustomItem custom;
    EXPECT_EQ(Text(Item(IT_CUSTOM, static_cast<ICustomItem*>(&custom))), L"");
}

TEST(EditText, ShowsNumbersInAFormatOfItsOwn) {
    EXPECT_EQ(GetEditText(Item(IT_INTEGER, -7, {L"<%05d>"})), L"-7");
    EXPECT_EQ(GetEditText(Item(IT_DOUBLE, 1234567.0, {L"<%.9f>"})), L"1.23457e+06");
    EXPECT_EQ(GetEditText(Item(IT_STRING, std::wstring(L"value"))), L"value");
}

TEST(EditText, IsEmptyForANumberThatIsUndefined) {
    GridItem integer = Item(IT_INTEGER, 7);
    GridItem real = Item(IT_DOUBLE, 7.0);
    GridItem string = Item(IT_STRING, std::wstring(L"value"));
    integer.undefined = real.undefined = string.undefined = true;
    EXPECT_EQ(GetEditText(integer), L"");
    EXPECT_EQ(GetEditText(real), L"");
    EXPECT_EQ(GetEditText(string), L"value");
}

TEST(EditText, IsAskedOfACustomItem) {
    CTestCustomItem custom;
    EXPECT_EQ(GetEditText(Item(IT_CUSTOM, static_cast<ICustomItem*>(&custom))), L"custom");
}

}  // namespace
