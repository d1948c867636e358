// The rows that the focus moves along.
#include "propgrid/layout/FocusOrder.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

// Two sections of two items each, with headers.
class FocusOrder : public GridFixture {
protected:
    FocusOrder() {
        model.settings.displayMode = DM_CATEGORIZED;
        AddSection(L"S");
        AddSection(L"T");
        for (const auto& [section, name] : {std::pair{0U, L"a"}, {0U, L"b"}, {1U, L"c"}, {1U, L"d"}}) {
            AddItem(section, name);
        }
    }
    // The names of the rows on the way: "-" for no row.
    std::wstring Walk(RowId (*find)(const CGridModel&), int count) {
        std::wstring walked;
        for (int step = 0; step < count; ++step) {
            const RowId row = find(model);
            if (row == RowId()) {
                walked += L"-";
                continue;
            }
            EXPECT_TRUE(row.section == kNoId || row.item == kNoId);
            walked += row.item != kNoId ? Item(row.item).name : Section(row.section).name;
            model.SetFocus(row);
        }
        return walked;
    }
    std::wstring Next(int count) { return Walk(FindNextRow, count); }
    std::wstring Previous(int count) { return Walk(FindPreviousRow, count); }
    void FocusOn(const std::wstring& name) {
        for (Id id = 0; id < model.GetItemCount(); ++id) {
            if (Item(id).name == name) {
                model.SetFocus({.item = id});
            }
        }
    }
    void Lock(std::initializer_list<Id> items) {
        for (const Id id : items) {
            Item(id).SetEditable(false);
        }
    }
};

TEST_F(FocusOrder, GoesThroughAllRowsAndAroundTheEnd) {
    EXPECT_EQ(Next(8), L"SabTcdSa");
}

TEST_F(FocusOrder, HasTwoEnds) {
    EXPECT_EQ(FindFirstRow(model), (RowId{.section = 0}));
    EXPECT_EQ(FindLastRow(model), (RowId{.item = 3}));
    Section(1).collapsed = true;
    EXPECT_EQ(FindLastRow(model), (RowId{.section = 1}));
    model.settings.displayMode = DM_SORTED;
    model.settings.focusNonEditable = false;
    Lock({0, 3});
    EXPECT_EQ(FindFirstRow(model), (RowId{.item = 1})) << "a row that can have the focus";
    EXPECT_EQ(FindLastRow(model), (RowId{.item = 2}));
    Lock({1, 2});
    EXPECT_EQ(FindFirstRow(model), RowId());
    EXPECT_EQ(FindLastRow(model), RowId());
}

TEST_F(FocusOrder, GoesManyRowsAtOnceAndStopsAtTheEnds) {
    FocusOn(L"a");
    EXPECT_EQ(FindRowAhead(model, 3), (RowId{.item = 2}));
    EXPECT_EQ(FindRowAhead(model, 4), (RowId{.item = 3}));
    EXPECT_EQ(FindRowAhead(model, 5), (RowId{.item = 3}));
    EXPECT_EQ(FindRowBack(model, 1), (RowId{.section = 0}));
    EXPECT_EQ(FindRowBack(model, 9), (RowId{.section = 0}));
    Lock({1});
    model.settings.focusNonEditable = false;
    EXPECT_EQ(FindRowAhead(model, 1), (RowId{.section = 1}));
}

TEST_F(FocusOrder, GoesManyRowsFromNoneToTheFirstOrNowhere) {
    EXPECT_EQ(FindRowAhead(model, 3), (RowId{.section = 0}));
    EXPECT_EQ(FindRowBack(model, 3), RowId());
    FocusOn(L"b");
    Section(0).collapsed = true;
    EXPECT_EQ(FindRowAhead(model, 3), (RowId{.section = 0}));
    EXPECT_EQ(FindRowBack(model, 3), RowId());
}

TEST_F(FocusOrder, GoesBackAndAroundTheStart) {
    FocusOn(L"b");
    EXPECT_EQ(Previous(8), L"aSdcTbaS");
}

TEST_F(FocusOrder, HasNoRowBeforeNoRow) {
    EXPECT_EQ(Previous(1), L"-");
}

TEST_F(FocusOrder, PassesOverTheItemsOfACollapsedSection) {
    model.SetCollapsed(Section(0), true);
    EXPECT_EQ(Next(5), L"STcdS");
    EXPECT_EQ(Previous(4), L"dcTS");
}

TEST_F(FocusOrder, CountsAFocusedRowInACollapsedSectionAsNone) {
    FocusOn(L"b");
    model.SetCollapsed(Section(0), true);
    EXPECT_EQ(Previous(1), L"-");
    EXPECT_EQ(Next(1), L"S");
}

TEST_F(FocusOrder, CountsARemovedFocusedRowAsNone) {
    model.SetFocus({.item = 99});
    EXPECT_EQ(Previous(1), L"-");
    EXPECT_EQ(Next(1), L"S");
    model.SetFocus({.section = 99});
    EXPECT_EQ(Next(1), L"S");
}

TEST_F(FocusOrder, HasNoHeadersAndIgnoresCollapsingInTheFlatDisplays) {
    model.SetCollapsed(Section(0), true);
    for (const std::uint32_t mode : {DM_FLAT, DM_SORTED}) {
        model.settings.displayMode = mode;
        model.SetFocus({});
        EXPECT_EQ(Next(5), L"abcda");
        EXPECT_EQ(Previous(4), L"dcba");
        model.SetFocus({.section = 0});
        EXPECT_EQ(Previous(1), L"-") << "a focused section has no row";
    }
}

TEST_F(FocusOrder, MovesInSectionOrderInTheSortedDisplayToo) {
    AddItem(1, L"B");
    AddItem(0, L"A");
    model.settings.displayMode = DM_SORTED;
    EXPECT_EQ(Next(7), L"abAcdBa");
}

TEST_F(FocusOrder, PassesOverRowsThatCannotHaveTheFocus) {
    Lock({1, 3});
    EXPECT_EQ(Next(3), L"Sab");
    model.settings.focusNonEditable = false;
    model.SetFocus({});
    EXPECT_EQ(Next(6), L"SaTcSa");
    EXPECT_EQ(Previous(4), L"ScTa");
    FocusOn(L"b");
    EXPECT_EQ(Next(1), L"T");
    FocusOn(L"b");
    EXPECT_EQ(Previous(1), L"a");
}

TEST_F(FocusOrder, HasNoRowWhereNoneCanHaveTheFocus) {
    model.settings.displayMode = DM_FLAT;
    model.settings.focusNonEditable = false;
    Lock({0, 1, 2, 3});
    EXPECT_EQ(Next(1), L"-");
    model.Clear();
    EXPECT_EQ(Next(1), L"-");
    AddSection(L"empty");
    EXPECT_EQ(Next(1), L"-");
}

TEST_F(FocusOrder, StaysOnTheOnlyRow) {
    model.Clear();
    AddSection(L"S");
    EXPECT_EQ(Next(2), L"SS");
    EXPECT_EQ(Previous(2), L"SS");
}

}  // namespace
