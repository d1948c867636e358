// What of a row only the system knows: the texts of dates, the formats of its runtime, its memory; and the
// order of the operations that other modules were compiled for.
#include <gtest/gtest.h>

#include <clocale>
#include <cstring>
#include <string>

#include "propgrid/model/TypedNumber.h"
#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/HandleCount.h"

namespace {

// A grid without a window.
class GridRow : public testing::Test {
protected:
    std::wstring TextOfDate(const COleDateTime& date, const wchar_t* format, bool withTime) {
        const std::wstring name = std::to_wstring(grid.GetItemCount());
        return grid.GetItemText(withTime ? grid.AddDateTimeItem(section, name, date, format)
                                         : grid.AddDateItem(section, name, date, format));
    }
    // The date as the system itself writes it.
    static std::wstring SystemText(const COleDateTime& date, DWORD flags) {
        BSTR text = nullptr;
        EXPECT_EQ(::VarBstrFromDate(date.m_dt, LANG_USER_DEFAULT, flags, &text), S_OK);
        const std::wstring copy = text;
        ::SysFreeString(text);
        return copy;
    }

    CPropertyGrid grid;
    UINT section = grid.AddSection(L"section");
    const COleDateTime date{2024, 2, 29, 13, 45, 30};
};

TEST_F(GridRow, WritesDatesAsTheUsersLocaleDoes) {
    EXPECT_EQ(TextOfDate(date, L"", false), SystemText(date, VAR_DATEVALUEONLY));
    EXPECT_EQ(TextOfDate(date, L"", true), SystemText(date, 0));
    EXPECT_NE(TextOfDate(date, L"", false), TextOfDate(date, L"", true));
}

TEST_F(GridRow, FormatsDatesWithTheItemsFormat) {
    EXPECT_EQ(TextOfDate(date, L"%Y-%m-%d", false), L"2024-02-29");
    EXPECT_EQ(TextOfDate(date, L"%d/%m/%y %H:%M:%S", true), L"29/02/24 13:45:30");
}

TEST_F(GridRow, IsEmptyForANullDateAndSaysWhenADateIsInvalid) {
    COleDateTime none = date;
    for (const bool withTime : {false, true}) {
        for (const wchar_t* const format : {L"", L"%Y"}) {
            none.SetStatus(COleDateTime::null);
            EXPECT_EQ(TextOfDate(none, format, withTime), L"");
            none.SetStatus(COleDateTime::invalid);
            EXPECT_EQ(TextOfDate(none, format, withTime), L"Invalid DateTime");
        }
    }
}

TEST_F(GridRow, FormatsNumbersAsTheStandardSaysWhateverTheRuntime) {
    EXPECT_EQ(grid.GetItemText(grid.AddDoubleItem(section, L"large", 1234567.0)), L"1.23457e+06");
    EXPECT_EQ(grid.GetItemText(grid.AddDoubleItem(section, L"small", 1e-7)), L"1e-07");
    EXPECT_EQ(grid.GetItemText(grid.AddDoubleItem(section, L"area", 2.0, L"%.3f m\u00B2")), L"2.000 m\u00B2");
    EXPECT_EQ(grid.GetItemText(grid.AddIntegerItem(section, L"hexadecimal", 255, L"0x%04X \u20AC")),
              L"0x00FF \u20AC");
}

TEST(TypedNumberInEveryLocale, HasAPointForItsDecimalPoint) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "German"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(ReadTypedReal(L"12.5"), 12.5);
    EXPECT_EQ(ReadTypedReal(L"12,5"), 12.5);
    EXPECT_EQ(ReadTypedReal(L"-1.5e2x"), -150);
    std::setlocale(LC_ALL, before.c_str());
}

// Bytes that are alive on the heap, with 16 for what it keeps beside each block.
std::size_t HeapBytes() {
    using Counter = std::size_t (*)();
    const HMODULE allocator = ::GetModuleHandle(L"TD_Alloc.dll");
    const auto bytes =
        reinterpret_cast<Counter>(reinterpret_cast<void*>(::GetProcAddress(allocator, "td_live_bytes")));
    return bytes() + 16 * static_cast<std::size_t>(HeapBlockCount());
}

TEST_F(GridRow, TakesFewerThanFourHundredBytes) {
    constexpr UINT kRows = 10000;
    const std::size_t before = HeapBytes();
    for (UINT row = 0; row < kRows; ++row) {
        // Names and formats short enough to need no block of their own.
        grid.AddIntegerItem(section, L"r" + std::to_wstring(row), 1, L"%i");
    }
    EXPECT_LT((HeapBytes() - before) / kRows, 400U);
}

// Which slot an operation has among the virtual ones of its class.
template <typename Operation>
std::size_t SlotOf(Operation operation) {
    std::size_t offset = 0;
    static_assert(sizeof(operation) >= sizeof(offset));
    std::memcpy(&offset, &operation, sizeof(offset));
    return (offset - 1) / sizeof(void*);
}

// Other implementations of the interface were compiled for this order.
TEST(CustomItemInterface, KeepsTheOrderOfItsOperations) {
    EXPECT_EQ(SlotOf(&ICustomItem::GetEditMode), 0U);
    EXPECT_EQ(SlotOf(&ICustomItem::DrawItem), 1U);
    EXPECT_EQ(SlotOf(&ICustomItem::AcceptValue), 2U);
    EXPECT_EQ(SlotOf(&ICustomItem::OnLButtonDown), 3U);
    EXPECT_EQ(SlotOf(&ICustomItem::OnMouseMove), 4U);
    EXPECT_EQ(SlotOf(&ICustomItem::OnLButtonUp), 5U);
    EXPECT_EQ(SlotOf(&ICustomItem::GetStringValue), 6U);
    EXPECT_EQ(SlotOf(&ICustomItem::SetStringValue), 7U);
    EXPECT_EQ(SlotOf(&ICustomItem::ShowDropDown), 8U);
    EXPECT_EQ(SlotOf(&ICustomItem::OnButtonClicked), 9U);
}

}  // namespace
