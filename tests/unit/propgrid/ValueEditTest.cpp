#include "propgrid/model/ValueEdit.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace tavrin::propgrid;

GridItem Item(EItemType kind, Value value, bool undefined = false) {
    GridItem item;
    item.kind = kind;
    item.value = std::move(value);
    item.undefined = undefined;
    return item;
}

TEST(TakenText, BecomesTheStringEvenWhenItIsEmpty) {
    GridItem item = Item(IT_STRING, std::wstring(L"old"), true);
    EXPECT_TRUE(TakeText(item, L"new", true));
    EXPECT_EQ(std::get<std::wstring>(item.value), L"new");
    EXPECT_FALSE(item.undefined);
    EXPECT_TRUE(TakeText(item, L"", true));
    EXPECT_EQ(std::get<std::wstring>(item.value), L"");
}

TEST(TakenText, BecomesTheLeadingNumber) {
    GridItem integer = Item(IT_INTEGER, 7, true);
    EXPECT_TRUE(TakeText(integer, L"12abc", true));
    EXPECT_EQ(std::get<int>(integer.value), 12);
    EXPECT_FALSE(integer.undefined);
    GridItem real = Item(IT_DOUBLE, 7.0, true);
    EXPECT_TRUE(TakeText(real, L"-3e2x", true));
    EXPECT_EQ(std::get<double>(real.value), -300);
    EXPECT_TRUE(TakeText(real, L"abc", true));
    EXPECT_EQ(std::get<double>(real.value), 0);
}

TEST(TakenText, ThatIsEmptyKeepsANumber) {
    GridItem integer = Item(IT_INTEGER, 7, true);
    EXPECT_FALSE(TakeText(integer, L"", true));
    EXPECT_EQ(std::get<int>(integer.value), 7);
    EXPECT_TRUE(integer.undefined);
    GridItem real = Item(IT_DOUBLE, 7.5);
    EXPECT_FALSE(TakeText(real, L"", true));
    EXPECT_EQ(std::get<double>(real.value), 7.5);
}

TEST(TakenText, ThatWasNotTypedKeepsTheDigitsThatItDoesNotHave) {
    GridItem real = Item(IT_DOUBLE, 80.123456789);
    EXPECT_TRUE(TakeText(real, L"80.1235", false));
    EXPECT_EQ(std::get<double>(real.value), 80.123456789);
}

TEST(TakenText, ThatWasNotTypedKeepsTheLinesThatTheEditDoesNotHave) {
    GridItem string = Item(IT_STRING, std::wstring(L"one\r\ntwo"), true);
    EXPECT_TRUE(TakeText(string, L"one", false));
    EXPECT_EQ(std::get<std::wstring>(string.value), L"one\r\ntwo");
    EXPECT_FALSE(string.undefined);
}

TEST(TakenText, ThatWasTypedAsItWasShownIsATypedNumber) {
    GridItem real = Item(IT_DOUBLE, 80.123456789);
    EXPECT_TRUE(TakeText(real, L"80.1235", true));
    EXPECT_EQ(std::get<double>(real.value), 80.1235);
}

TEST(TakenChoice, IsStoredAsItComes) {
    GridItem combo = Item(IT_COMBO, 0, true);
    combo.options = {L"a", L"b"};
    for (const int index : {1, 2, 1000, -1, INT_MIN, INT_MAX}) {
        EXPECT_TRUE(TakeChoice(combo, index));
        EXPECT_EQ(std::get<int>(combo.value), index);
        EXPECT_FALSE(combo.undefined);
    }
}

TEST(TakenChoice, IsTrueForTheFirstOfABoolean) {
    GridItem boolean = Item(IT_BOOLEAN, false, true);
    EXPECT_TRUE(TakeChoice(boolean, 0));
    EXPECT_TRUE(std::get<bool>(boolean.value));
    for (const int index : {1, -1, 7}) {
        EXPECT_TRUE(TakeChoice(boolean, index));
        EXPECT_FALSE(std::get<bool>(boolean.value));
    }
}

TEST(TakenChoice, IsNothingToAnotherKind) {
    GridItem integer = Item(IT_INTEGER, 7, true);
    EXPECT_FALSE(TakeChoice(integer, 1));
    EXPECT_EQ(std::get<int>(integer.value), 7);
    EXPECT_TRUE(integer.undefined);
}

TEST(TakenDate, IsADay) {
    GridItem date = Item(IT_DATE, DateValue{0, DS_NULL}, true);
    EXPECT_TRUE(TakeDate(date, {45351.75}));
    EXPECT_EQ(std::get<DateValue>(date.value), DateValue{45351});
    EXPECT_FALSE(date.undefined);
    // Before the first day the fraction counts away from it too.
    EXPECT_TRUE(TakeDate(date, {-2.25}));
    EXPECT_EQ(std::get<DateValue>(date.value), DateValue{-2});
}

TEST(TakenDate, IsNothingToAnotherKind) {
    GridItem dateTime = Item(IT_DATETIME, DateValue{1.5});
    EXPECT_FALSE(TakeDate(dateTime, {7}));
    EXPECT_EQ(std::get<DateValue>(dateTime.value), DateValue{1.5});
}

TEST(AdvancedValue, IsTheOtherBooleanWhetherEditableOrNot) {
    GridItem boolean = Item(IT_BOOLEAN, true);
    boolean.editable = false;
    EXPECT_TRUE(AdvanceValue(boolean));
    EXPECT_FALSE(std::get<bool>(boolean.value));
}

TEST(AdvancedValue, IsTheNextChoiceFromAnyIndex) {
    for (const auto& [before, after] :
         {std::pair{0, 1}, {1, 2}, {2, 0}, {-1, 0}, {-3, 1}, {3, 1}, {INT_MAX, 2}, {INT_MIN, 2}}) {
        GridItem combo = Item(IT_COMBO, before);
        combo.options = {L"a", L"b", L"c"};
        EXPECT_TRUE(AdvanceValue(combo));
        EXPECT_EQ(std::get<int>(combo.value), after) << before;
    }
}

TEST(AdvancedValue, IsNoneOfUndefinedItemsOtherKindsAndCombosWithoutChoices) {
    GridItem undefined = Item(IT_BOOLEAN, true, true);
    EXPECT_FALSE(AdvanceValue(undefined));
    EXPECT_TRUE(undefined.undefined);
    GridItem empty = Item(IT_COMBO, 4);
    EXPECT_FALSE(AdvanceValue(empty));
    EXPECT_EQ(std::get<int>(empty.value), 4);
    GridItem integer = Item(IT_INTEGER, 4);
    EXPECT_FALSE(AdvanceValue(integer));
}

}  // namespace
