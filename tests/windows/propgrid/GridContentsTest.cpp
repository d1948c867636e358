#include "propgrid/GridContents.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/windows/support/HandleCount.h"

namespace {

constexpr UINT none = CGridContents::NO_ID;

UINT AddNumber(CGridContents& contents, UINT section, const std::wstring& name) {
    return contents.AddItem(section, IT_INTEGER, name, 1, true, false);
}

std::vector<UINT> SectionIds(const CGridContents& contents) {
    std::vector<UINT> ids;
    for (const CGridSection* section : contents.GetSections()) {
        ids.push_back(section->id);
    }
    return ids;
}

TEST(GridContents, NumbersSectionsAndItemsApartFromZero) {
    CGridContents contents;
    EXPECT_EQ(contents.AddSection(L"A", false, none), 0U);
    EXPECT_EQ(contents.AddSection(L"B", false, none), 1U);
    EXPECT_EQ(AddNumber(contents, 1, L"x"), 0U);
    EXPECT_EQ(AddNumber(contents, 0, L"x"), 1U);
    EXPECT_EQ(AddNumber(contents, 0, L"y"), 2U);
}

TEST(GridContents, InsertsASectionBeforeTheOneThatIsNamed) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    contents.AddSection(L"B", false, none);
    EXPECT_EQ(contents.AddSection(L"C", false, 1), 2U);
    EXPECT_EQ(contents.AddSection(L"D", false, 0), 3U);
    EXPECT_EQ(SectionIds(contents), (std::vector<UINT>{3, 0, 2, 1}));
}

TEST(GridContents, AppendsASectionWhenTheOneToInsertBeforeIsUnknown) {
    CGridContents contents;
    contents.AddSection(L"A", false, 7);
    // Its own future id is unknown too.
    contents.AddSection(L"B", false, 1);
    EXPECT_EQ(SectionIds(contents), (std::vector<UINT>{0, 1}));
}

TEST(GridContents, RefusesASecondItemOfTheSameNameInASectionAndChangesNothing) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    contents.AddSection(L"B", false, none);
    EXPECT_EQ(AddNumber(contents, 0, L"Width"), 0U);
    EXPECT_EQ(AddNumber(contents, 0, L"Width"), none);
    EXPECT_EQ(contents.GetItemCount(), 1U);
    EXPECT_EQ(contents.GetRowCount(true), 3U);
    EXPECT_EQ(contents.FindSection(0)->items.size(), 1U);
    // The id that the refused item would have had goes to the next one.
    EXPECT_EQ(AddNumber(contents, 1, L"Width"), 1U);
}

TEST(GridContents, ComparesNamesExactly) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    EXPECT_EQ(AddNumber(contents, 0, L"Width"), 0U);
    EXPECT_EQ(AddNumber(contents, 0, L"width"), 1U);
    EXPECT_EQ(AddNumber(contents, 0, L"Width "), 2U);
    EXPECT_EQ(AddNumber(contents, 0, L""), 3U);
    EXPECT_EQ(AddNumber(contents, 0, std::wstring(L"Width\0", 6)), 4U);
    EXPECT_EQ(AddNumber(contents, 0, L""), none);
}

TEST(GridContents, RefusesAnItemForASectionThatDoesNotExist) {
    CGridContents contents;
    EXPECT_EQ(AddNumber(contents, 0, L"x"), none);
    EXPECT_EQ(AddNumber(contents, none, L"x"), none);
    EXPECT_EQ(contents.GetItemCount(), 0U);
}

TEST(GridContents, StartsItsIdsAgainAfterClear) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    AddNumber(contents, 0, L"x");
    contents.Clear();
    EXPECT_EQ(contents.GetRowCount(true), 0U);
    EXPECT_EQ(contents.GetRowCount(false), 0U);
    EXPECT_EQ(contents.FindSection(0), nullptr);
    EXPECT_EQ(contents.FindItem(0), nullptr);
    EXPECT_EQ(contents.AddSection(L"A", false, none), 0U);
    EXPECT_EQ(AddNumber(contents, 0, L"x"), 0U);
    EXPECT_EQ(contents.GetRowCount(true), 2U);
}

TEST(GridContents, CountsTheRowsThatEachDisplayShows) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    contents.AddSection(L"B", true, none);
    contents.AddSection(L"empty", true, none);
    AddNumber(contents, 0, L"x");
    AddNumber(contents, 1, L"x");
    AddNumber(contents, 1, L"y");
    EXPECT_EQ(contents.GetRowCount(true), 4U);
    EXPECT_EQ(contents.GetRowCount(false), 3U);
    contents.SetCollapsed(*contents.FindSection(1), false);
    contents.SetCollapsed(*contents.FindSection(1), false);
    EXPECT_EQ(contents.GetRowCount(true), 6U);
    contents.SetCollapsed(*contents.FindSection(0), true);
    contents.SetCollapsed(*contents.FindSection(0), true);
    EXPECT_EQ(contents.GetRowCount(true), 5U);
    EXPECT_EQ(contents.GetRowCount(false), 3U);
}

TEST(GridContents, WalksTheItemsInSectionOrder) {
    CGridContents contents;
    contents.AddSection(L"later", false, none);
    contents.AddSection(L"first", true, 0);
    AddNumber(contents, 0, L"a");
    AddNumber(contents, 1, L"b");
    AddNumber(contents, 0, L"c");
    std::vector<UINT> ids;
    for (const CGridItem* item : contents.WalkAll()) {
        ids.push_back(item->id);
    }
    EXPECT_EQ(ids, (std::vector<UINT>{1, 0, 2}));
    EXPECT_EQ(contents.GetItemsWalked(), 3U);
}

TEST(GridContents, KeepsTheRecordsWhereTheyAre) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    AddNumber(contents, 0, L"first");
    const CGridSection* const section = contents.FindSection(0);
    const CGridItem* const item = contents.FindItem(0);
    for (int i = 0; i < 1000; ++i) {
        contents.AddSection(L"more", false, none);
        AddNumber(contents, 0, std::to_wstring(i));
    }
    EXPECT_EQ(contents.FindSection(0), section);
    EXPECT_EQ(contents.FindItem(0), item);
    EXPECT_EQ(item->name, L"first");
    EXPECT_EQ(item->section, section);
}

TEST(GridContents, TakesTheSavedCopyOfWhatIsAdded) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    const UINT id = contents.AddItem(0, IT_STRING, L"x", std::wstring(L"value"), true, true);
    const CGridItem& item = *contents.FindItem(id);
    EXPECT_TRUE(item.savedUndefined);
    EXPECT_EQ(std::get<std::wstring>(item.saved), L"value");
    EXPECT_FALSE(item.IsModified());
}

// What `count` further rows cost in comparisons of names.
std::size_t ComparisonsFor(CGridContents& contents, int count) {
    static int number = 0;
    const std::size_t before = contents.GetNameComparisons();
    for (int i = 0; i < count; ++i) {
        AddNumber(contents, 0, L"row " + std::to_wstring(number++));
    }
    return contents.GetNameComparisons() - before;
}

TEST(GridContents, AddsTheLastOfManyRowsForTheCostOfTheFirst) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    EXPECT_LE(ComparisonsFor(contents, 100), 200U);
    ComparisonsFor(contents, 20000);
    EXPECT_LE(ComparisonsFor(contents, 100), 200U);
    EXPECT_EQ(contents.GetRowCount(true), 20201U);
    EXPECT_EQ(contents.GetItemsWalked(), 0U);
    // A refused row compares its name with the one that is there.
    EXPECT_EQ(AddNumber(contents, 0, L"row 7"), none);
}

TEST(GridContents, RefusesEveryNameOfManyASecondTimeUntilItIsCleared) {
    constexpr UINT rows = 1000;
    CGridContents contents;
    for (int round = 0; round < 2; ++round) {
        contents.AddSection(L"A", false, none);
        for (UINT row = 0; row < rows; ++row) {
            ASSERT_EQ(AddNumber(contents, 0, std::to_wstring(row)), row);
        }
        for (UINT row = 0; row < rows; ++row) {
            ASSERT_EQ(AddNumber(contents, 0, std::to_wstring(row)), none) << row;
        }
        EXPECT_EQ(contents.GetItemCount(), rows);
        contents.Clear();
    }
}

TEST(GridContents, SortsByNameAgainAfterARowOrASectionWasAdded) {
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    const auto ids = [&] {
        std::vector<UINT> sorted;
        for (const CGridItem* const item : contents.GetSorted()) {
            sorted.push_back(item->id);
        }
        return sorted;
    };
    AddNumber(contents, 0, L"b");
    AddNumber(contents, 0, L"a");
    EXPECT_EQ(ids(), (std::vector<UINT>{1, 0}));
    AddNumber(contents, 0, L"B");
    EXPECT_EQ(ids(), (std::vector<UINT>{2, 1, 0}));
    // Equal names stay in section order.
    contents.AddSection(L"C", false, 0);
    AddNumber(contents, 1, L"b");
    EXPECT_EQ(ids(), (std::vector<UINT>{2, 1, 3, 0}));
    contents.Clear();
    EXPECT_TRUE(ids().empty());
}

TEST(GridContents, SpreadsTheSameNameInManySections) {
    CGridContents contents;
    for (UINT section = 0; section < 5000; ++section) {
        contents.AddSection(L"A", false, none);
        AddNumber(contents, section, L"Width");
    }
    EXPECT_EQ(contents.GetItemCount(), 5000U);
    EXPECT_LE(contents.GetNameComparisons(), 10000U);
}

// Bytes that are alive on the heap, with 16 for what it keeps beside each block.
std::size_t HeapBytes() {
    using Counter = std::size_t (*)();
    const HMODULE allocator = ::GetModuleHandle(L"TD_Alloc.dll");
    const auto bytes =
        reinterpret_cast<Counter>(reinterpret_cast<void*>(::GetProcAddress(allocator, "td_live_bytes")));
    return bytes() + 16 * static_cast<std::size_t>(HeapBlockCount());
}

TEST(GridContents, TakesFewerThanFourHundredBytesForARow) {
    constexpr UINT rows = 10000;
    const std::size_t before = HeapBytes();
    CGridContents contents;
    contents.AddSection(L"A", false, none);
    for (UINT row = 0; row < rows; ++row) {
        // Names and formats short enough to need no block of their own.
        AddNumber(contents, 0, L"r" + std::to_wstring(row));
        contents.FindItem(row)->options.assign(1, L"%d");
    }
    EXPECT_LT((HeapBytes() - before) / rows, 400U);
}

}  // namespace
