#include "propgrid/model/GridModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/propgrid/TestCustomItem.h"

namespace {

using namespace tavrin::propgrid;
using tests::CTestCustomItem;

Id AddNumber(CGridModel& model, Id section, const std::wstring& name) {
    return model.AddItem(section, IT_INTEGER, name, 1, true, false);
}

std::vector<Id> SectionIds(const CGridModel& model) {
    std::vector<Id> ids;
    for (const GridSection* const section : model.GetSections()) {
        EXPECT_EQ(section->position, ids.size());
        ids.push_back(section->id);
    }
    return ids;
}

std::size_t CountRows(CGridModel& model, EDisplayMode mode) {
    model.settings.displayMode = mode;
    return model.GetRowCount();
}

TEST(GridModel, NumbersSectionsAndItemsApartFromZero) {
    CGridModel model;
    EXPECT_EQ(model.AddSection(L"A", false, kNoId), 0U);
    EXPECT_EQ(model.AddSection(L"B", false, kNoId), 1U);
    EXPECT_EQ(AddNumber(model, 1, L"x"), 0U);
    EXPECT_EQ(AddNumber(model, 0, L"x"), 1U);
    EXPECT_EQ(AddNumber(model, 0, L"y"), 2U);
}

TEST(GridModel, InsertsASectionBeforeTheOneThatIsNamed) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    model.AddSection(L"B", false, kNoId);
    EXPECT_EQ(model.AddSection(L"C", false, 1), 2U);
    EXPECT_EQ(model.AddSection(L"D", false, 0), 3U);
    EXPECT_EQ(SectionIds(model), (std::vector<Id>{3, 0, 2, 1}));
}

TEST(GridModel, AppendsASectionWhenTheOneToInsertBeforeIsUnknown) {
    CGridModel model;
    model.AddSection(L"A", false, 7);
    // Its own future id is unknown too.
    model.AddSection(L"B", false, 1);
    EXPECT_EQ(SectionIds(model), (std::vector<Id>{0, 1}));
}

TEST(GridModel, RefusesASecondItemOfTheSameNameInASectionAndChangesNothing) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    model.AddSection(L"B", false, kNoId);
    EXPECT_EQ(AddNumber(model, 0, L"Width"), 0U);
    const unsigned revision = model.GetRevision();
    EXPECT_EQ(AddNumber(model, 0, L"Width"), kNoId);
    EXPECT_EQ(model.GetItemCount(), 1U);
    EXPECT_EQ(model.GetRowCount(), 3U);
    EXPECT_EQ(model.FindSection(0)->items.size(), 1U);
    EXPECT_EQ(model.GetRevision(), revision);
    // The id that the refused item would have had goes to the next one.
    EXPECT_EQ(AddNumber(model, 1, L"Width"), 1U);
}

TEST(GridModel, ComparesNamesExactly) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    EXPECT_EQ(AddNumber(model, 0, L"Width"), 0U);
    EXPECT_EQ(AddNumber(model, 0, L"width"), 1U);
    EXPECT_EQ(AddNumber(model, 0, L"Width "), 2U);
    EXPECT_EQ(AddNumber(model, 0, L""), 3U);
    EXPECT_EQ(AddNumber(model, 0, std::wstring(L"Width\0", 6)), 4U);
    EXPECT_EQ(AddNumber(model, 0, L""), kNoId);
}

TEST(GridModel, RefusesAnItemForASectionThatDoesNotExist) {
    CGridModel model;
    EXPECT_EQ(AddNumber(model, 0, L"x"), kNoId);
    EXPECT_EQ(AddNumber(model, kNoId, L"x"), kNoId);
    EXPECT_EQ(model.GetItemCount(), 0U);
}

TEST(GridModel, StartsItsIdsAgainAfterClearAndKeepsTheFocus) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    AddNumber(model, 0, L"x");
    model.SetFocus({.item = 0});
    const unsigned generation = model.GetGeneration();
    model.Clear();
    EXPECT_NE(model.GetGeneration(), generation);
    EXPECT_EQ(CountRows(model, DM_CATEGORIZED), 0U);
    EXPECT_EQ(CountRows(model, DM_FLAT), 0U);
    EXPECT_EQ(model.FindSection(0), nullptr);
    EXPECT_EQ(model.FindItem(0), nullptr);
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0}));
    EXPECT_EQ(model.AddSection(L"A", false, kNoId), 0U);
    EXPECT_EQ(AddNumber(model, 0, L"x"), 0U);
    EXPECT_EQ(CountRows(model, DM_CATEGORIZED), 2U);
}

TEST(GridModel, CountsTheRowsThatEachDisplayHas) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    model.AddSection(L"B", true, kNoId);
    model.AddSection(L"empty", true, kNoId);
    AddNumber(model, 0, L"x");
    AddNumber(model, 1, L"x");
    AddNumber(model, 1, L"y");
    EXPECT_EQ(CountRows(model, DM_CATEGORIZED), 4U);
    EXPECT_EQ(CountRows(model, DM_SORTED), 3U);
    EXPECT_EQ(CountRows(model, DM_FLAT), 3U);
    for (int repeated = 0; repeated < 2; ++repeated) {
        model.SetCollapsed(*model.FindSection(1), false);
        EXPECT_EQ(CountRows(model, DM_CATEGORIZED), 6U);
    }
    for (int repeated = 0; repeated < 2; ++repeated) {
        model.SetCollapsed(*model.FindSection(0), true);
        EXPECT_EQ(CountRows(model, DM_CATEGORIZED), 5U);
    }
    EXPECT_EQ(CountRows(model, DM_FLAT), 3U);
}

TEST(GridModel, KeepsTheRecordsWhereTheyAre) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    AddNumber(model, 0, L"first");
    const GridSection* const section = model.FindSection(0);
    const GridItem* const item = model.FindItem(0);
    for (int i = 0; i < 1000; ++i) {
        model.AddSection(L"more", false, kNoId);
        AddNumber(model, 0, std::to_wstring(i));
    }
    EXPECT_EQ(model.FindSection(0), section);
    EXPECT_EQ(model.FindItem(0), item);
    EXPECT_EQ(item->name, L"first");
    EXPECT_EQ(item->section, section);
}

TEST(GridModel, TakesTheSavedCopyOfWhatIsAdded) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    const Id id = model.AddItem(0, IT_STRING, L"x", std::wstring(L"value"), true, true);
    const GridItem& item = *model.FindItem(id);
    EXPECT_TRUE(item.savedUndefined);
    EXPECT_EQ(std::get<std::wstring>(item.saved), L"value");
    EXPECT_FALSE(item.IsModified());
}

TEST(GridModel, ACustomItemMayRemoveAllRowsWhileItIsAdded) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    CTestCustomItem custom;
    custom.whileAccepting = [&] { model.Clear(); };
    EXPECT_EQ(model.AddItem(0, IT_CUSTOM, L"x", static_cast<ICustomItem*>(&custom), true, false), 0U);
    EXPECT_EQ(model.GetItemCount(), 0U);
    EXPECT_EQ(custom.accepted, 1);
}

TEST(GridModel, RefusesEveryNameOfManyASecondTimeUntilItIsCleared) {
    constexpr Id kRows = 1000;
    CGridModel model;
    for (int round = 0; round < 2; ++round) {
        model.AddSection(L"A", false, kNoId);
        for (Id row = 0; row < kRows; ++row) {
            ASSERT_EQ(AddNumber(model, 0, std::to_wstring(row)), row);
        }
        for (Id row = 0; row < kRows; ++row) {
            ASSERT_EQ(AddNumber(model, 0, std::to_wstring(row)), kNoId) << row;
        }
        EXPECT_EQ(model.GetItemCount(), kRows);
        model.Clear();
    }
}

TEST(GridModel, TakesTheSameNameInManySections) {
    CGridModel model;
    for (Id section = 0; section < 5000; ++section) {
        model.AddSection(L"A", false, kNoId);
        EXPECT_EQ(AddNumber(model, section, L"Width"), section);
    }
}

TEST(GridModel, KeepsTheEditableRowsOfEachSection) {
    CGridModel model;
    model.AddSection(L"A", false, kNoId);
    for (const bool editable : {true, false, true, true}) {
        model.AddItem(0, IT_INTEGER, std::to_wstring(model.GetItemCount()), 1, editable, false);
    }
    using Rows = std::vector<std::uint32_t>;
    EXPECT_EQ(model.FindSection(0)->editableRows, (Rows{0, 2, 3}));
    model.FindItem(2)->SetEditable(false);
    model.FindItem(2)->SetEditable(false);
    model.FindItem(1)->SetEditable(true);
    model.FindItem(1)->SetEditable(true);
    EXPECT_EQ(model.FindSection(0)->editableRows, (Rows{0, 1, 3}));
    EXPECT_FALSE(model.FindItem(2)->editable);
    EXPECT_TRUE(model.FindItem(1)->editable);
}

}  // namespace
