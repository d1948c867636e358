// Which rows a paint draws, in which order, and what it records of them.
#include "propgrid/layout/PaintPass.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

class PaintPass : public GridFixture {
protected:
    // The ids of the rows that a paint draws: of sections as 1000 + id.
    std::vector<Id> Drawn() {
        std::vector<Id> ids;
        for (const PaintedRow& row : Paint()) {
            ids.push_back(row.section != nullptr ? 1000 + row.section->id : row.item->id);
        }
        return ids;
    }
    Rect NameRect(Id item) { return layout.GetNameRect(Item(item)); }
    Rect ValueRect(Id item) { return layout.GetValueRect(Item(item)); }
    Rect GlyphRect(Id section) { return layout.GetGlyphRect(Section(section)); }
    Rect HeaderRect(Id section) { return layout.GetHeaderRect(Section(section)); }
    // The recorded top of an item's row, in rows.
    int RowOf(Id item) { return NameRect(item).top / kRowHeight; }
    using Ids = std::vector<Id>;
};

TEST_F(PaintPass, HasNoRowsWithoutSections) {
    EXPECT_TRUE(Paint().empty());
}

TEST_F(PaintPass, PutsTheItemsUnderTheirHeadersInTheCategorisedDisplay) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddItem(1, L"b");
    AddItem(0, L"a");
    EXPECT_EQ(Drawn(), (Ids{1000, 1, 1001, 0}));
    EXPECT_EQ(RowOf(0), 3);
}

TEST_F(PaintPass, RecordsTheGlyphAndTheHeaderThatItDraws) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    Paint();
    EXPECT_EQ(GlyphRect(0), (Rect{2, 4, 11, 13}));
    EXPECT_EQ(HeaderRect(0), (Rect{14, 0, 300, 20}));
    EXPECT_EQ(GlyphRect(1), (Rect{2, 24, 11, 33}));
    EXPECT_EQ(HeaderRect(1), (Rect{14, 20, 300, 40}));
}

TEST_F(PaintPass, HidesTheItemsOfACollapsedSectionAndLeavesTheirRectanglesAlone) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddItem(0, L"a");
    AddItem(1, L"b");
    Paint();
    const Rect name = NameRect(0);
    const Rect value = ValueRect(0);
    model.SetCollapsed(Section(0), true);
    model.settings.gutter = 77;
    EXPECT_EQ(Drawn(), (Ids{1000, 1001, 1}));
    EXPECT_EQ(NameRect(0), name);
    EXPECT_EQ(ValueRect(0), value);
}

TEST_F(PaintPass, IgnoresHeadersAndCollapsedSectionsInTheFlatDisplays) {
    AddSection(L"section", true);
    AddItem(0, L"a");
    for (const std::uint32_t mode : {std::uint32_t{DM_SORTED}, std::uint32_t{DM_FLAT}, 77U}) {
        model.settings.displayMode = mode;
        EXPECT_EQ(Drawn(), Ids{0}) << mode;
        EXPECT_EQ(RowOf(0), 0);
        EXPECT_TRUE(GlyphRect(0).IsEmpty());
    }
}

TEST_F(PaintPass, EmptiesTheRectanglesOfASectionThatTheSortedDisplayDoesNotShow) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    Paint();
    EXPECT_FALSE(HeaderRect(0).IsEmpty());
    model.settings.displayMode = DM_SORTED;
    Paint();
    EXPECT_TRUE(GlyphRect(0).IsEmpty());
    EXPECT_TRUE(HeaderRect(0).IsEmpty());
}

TEST_F(PaintPass, ListsTheItemsOfAllSectionsInInsertionOrderWhenFlat) {
    AddSection();
    model.AddSection(L"early", false, 0);
    AddItem(0, L"a");
    AddItem(1, L"c");
    AddItem(1, L"b");
    EXPECT_EQ(Drawn(), (Ids{1, 2, 0}));
}

TEST_F(PaintPass, SortsTheItemsOfAllSectionsByTheirNamesCodeUnits) {
    model.settings.displayMode = DM_SORTED;
    AddSection();
    AddSection();
    AddItem(0, L"a");
    AddItem(1, L"a");
    AddItem(0, L"\u00C4");
    AddItem(1, L"B");
    AddItem(1, L"10");
    EXPECT_EQ(Drawn(), (Ids{4, 3, 0, 1, 2})) << "equal names stay in section order";
}

TEST_F(PaintPass, SortsAgainAfterARowOrASectionWasAdded) {
    model.settings.displayMode = DM_SORTED;
    AddSection();
    AddItem(0, L"b");
    AddItem(0, L"a");
    EXPECT_EQ(Drawn(), (Ids{1, 0}));
    AddItem(0, L"B");
    EXPECT_EQ(Drawn(), (Ids{2, 1, 0}));
    model.AddSection(L"before", false, 0);
    AddItem(1, L"b");
    EXPECT_EQ(Drawn(), (Ids{2, 1, 3, 0}));
    model.Clear();
    EXPECT_TRUE(Drawn().empty());
}

TEST_F(PaintPass, RecordsTheNameAndTheValueOfARow) {
    AddSection();
    AddRows(0, 2);
    Paint();
    EXPECT_EQ(NameRect(0), (Rect{0, 0, 150, 20}));
    EXPECT_EQ(ValueRect(0), (Rect{150, 0, 300, 20}));
    EXPECT_EQ(NameRect(1), (Rect{0, 20, 150, 40}));
    EXPECT_EQ(ValueRect(1), (Rect{150, 20, 300, 40}));
}

TEST_F(PaintPass, MovesTheRowsUpByTheScrollPosition) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddRows(0, 40);
    ShowAt(5, 16);
    Paint();
    EXPECT_EQ(HeaderRect(0), (Rect{14, -5, 284, 15}));
    EXPECT_EQ(GlyphRect(0), (Rect{2, -1, 11, 8}));
    EXPECT_EQ(NameRect(0).top, 15);
}

TEST_F(PaintPass, RecordsWholeRowsAndNoValuesForRowsThatAreScrolledAway) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddRows(0, 40);
    Paint();
    ShowAt(60, 16);
    Paint();
    EXPECT_TRUE(GlyphRect(0).IsEmpty());
    EXPECT_EQ(HeaderRect(0), (Rect{0, -60, 284, -40}));
    EXPECT_EQ(NameRect(0), (Rect{0, -40, 284, -20}));
    EXPECT_TRUE(ValueRect(0).IsEmpty());
    // The row that just touches the upper edge from outside is away, the next one is there.
    EXPECT_TRUE(ValueRect(1).IsEmpty());
    EXPECT_EQ(ValueRect(2), (Rect{150, 0, 284, 20}));
    EXPECT_EQ(NameRect(39), (Rect{0, 740, 284, 760}));
    EXPECT_TRUE(ValueRect(39).IsEmpty());
}

TEST_F(PaintPass, DrawsOnlyTheRowsInSight) {
    AddSection();
    AddRows(0, 5000);
    ShowAt(2001 * kRowHeight - 1);
    for (const std::uint32_t mode : {DM_CATEGORIZED, DM_SORTED, DM_FLAT}) {
        model.settings.displayMode = mode;
        EXPECT_EQ(Paint().size(), std::size_t{kHeight / kRowHeight + 1}) << mode;
    }
}

TEST_F(PaintPass, RecordsNothingForARowThatWasAddedSince) {
    AddSection();
    for (const std::uint32_t mode : {DM_FLAT, DM_SORTED}) {
        model.settings.displayMode = mode;
        const auto add = [&] { return AddItem(0, std::to_wstring(100 - model.GetItemCount())); };
        const Id painted = add();
        Paint();
        const Rect name = NameRect(painted);
        const Id added = add();
        EXPECT_FALSE(name.IsEmpty());
        EXPECT_TRUE(NameRect(added).IsEmpty());
        EXPECT_TRUE(ValueRect(added).IsEmpty());
        EXPECT_EQ(NameRect(painted), name);
    }
}

TEST_F(PaintPass, RecordsNothingForANewRowThatGotTheIdOfARemovedOne) {
    AddSection();
    AddRows(0, 1);
    Paint();
    model.Clear();
    AddSection();
    AddRows(0, 1);
    EXPECT_TRUE(NameRect(0).IsEmpty());
    EXPECT_TRUE(HeaderRect(0).IsEmpty());
}

TEST_F(PaintPass, KeepsWhatTheSortedDisplayRecordedOfARowThatCollapses) {
    AddSection();
    AddItem(0, L"b");
    AddItem(0, L"a");
    model.settings.displayMode = DM_SORTED;
    Paint();
    EXPECT_EQ(RowOf(0), 1);
    EXPECT_EQ(RowOf(1), 0);
    model.settings.displayMode = DM_CATEGORIZED;
    model.SetCollapsed(Section(0), true);
    model.settings.gutter = 77;
    Paint();
    EXPECT_EQ(NameRect(0), (Rect{0, 20, 150, 40}));
    EXPECT_EQ(ValueRect(1), (Rect{150, 0, 300, 20}));
}

// ---- The edit button

struct ButtonCase {
    int mode;
    bool hasEditor;
    bool isWholeValue;
};

class EditButton : public PaintPass, public testing::WithParamInterface<ButtonCase> {};

TEST_P(EditButton, IsPlacedAndRecordedByTheEditMode) {
    AddSection();
    CTestCustomItem custom;
    custom.mode = GetParam().mode;
    const Id id = AddCustom(0, custom);
    Focus({.item = id});
    const Rect square = {280, 0, 300, 20};
    const std::vector<PaintedRow> rows = Paint();
    EXPECT_EQ(rows[0].parts.editMode, GetParam().mode);
    EXPECT_EQ(rows[0].parts.button, GetParam().hasEditor ? square : Rect());
    EXPECT_EQ(rows[0].parts.value.right, GetParam().hasEditor ? 280 : 300);
    EXPECT_EQ(ValueRect(id), rows[0].parts.value);
    const Rect whole = {150, 0, 300, 20};
    EXPECT_EQ(layout.GetEditButton(), !GetParam().hasEditor     ? Rect()
                                      : GetParam().isWholeValue ? whole
                                                                : square);
}

INSTANTIATE_TEST_SUITE_P(EveryMode, EditButton,
                         testing::Values(ButtonCase{EM_CUSTOM, false, false},
                                         ButtonCase{EM_INPLACE, true, true},
                                         ButtonCase{EM_DROPDOWN, true, false},
                                         ButtonCase{EM_MODAL, true, false},
                                         ButtonCase{EM_INPLACE_BUTTON, true, true}),
                         [](const auto& info) { return "Mode" + std::to_string(info.param.mode); });

TEST_F(PaintPass, PlacesNoButtonForAnItemThatIsNotEditableOrNotFocused) {
    AddSection();
    const Id locked = AddItem(0, L"locked", IT_COMBO, 0, false);
    AddItem(0, L"free", IT_COMBO, 0);
    Focus({.item = locked});
    for (const PaintedRow& row : Paint()) {
        EXPECT_TRUE(row.parts.button.IsEmpty());
        EXPECT_EQ(row.parts.value.right, kWidth);
    }
    EXPECT_TRUE(layout.GetEditButton().IsEmpty());
}

// ---- What drawing may do meanwhile

TEST_F(PaintPass, GivesARowThatIsAddedToTheSectionMeanwhileAndMovesTheNextOnesDown) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddRows(0, 1);
    CPaintPass pass(layout);
    pass.Next();
    EXPECT_EQ(pass.Next()->item->id, 0U);
    AddItem(0, L"added");
    const std::optional<PaintedRow> added = pass.Next();
    ASSERT_TRUE(added);
    EXPECT_EQ(added->item->id, 1U);
    EXPECT_EQ(added->row.top, 40);
    EXPECT_EQ(pass.Next()->section->id, 1U);
    EXPECT_FALSE(pass.Next());
    EXPECT_EQ(NameRect(1).top, 40);
    EXPECT_EQ(HeaderRect(1).top, 60);
}

TEST_F(PaintPass, DrawsEachSectionOnceWhenOneIsAddedAboveMeanwhile) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddRows(0, 1);
    CPaintPass pass(layout);
    pass.Next();
    pass.Next();
    model.AddSection(L"added", false, 0);
    EXPECT_EQ(pass.Next()->section->id, 1U);
    EXPECT_FALSE(pass.Next());
    EXPECT_EQ(HeaderRect(0).top, 0);
    EXPECT_EQ(HeaderRect(1).top, 40);
}

TEST_F(PaintPass, EndsWhenAllRowsAreRemovedMeanwhile) {
    for (const std::uint32_t mode : {DM_CATEGORIZED, DM_SORTED, DM_FLAT}) {
        model.settings.displayMode = mode;
        AddSection();
        AddRows(0, 3);
        CPaintPass pass(layout);
        EXPECT_TRUE(pass.Next());
        model.Clear();
        AddSection();
        AddRows(0, 3);
        EXPECT_FALSE(pass.Next());
        EXPECT_TRUE(NameRect(0).IsEmpty());
        model.Clear();
    }
}

TEST_F(PaintPass, SurvivesAViewWithoutArea) {
    AddSection();
    AddRows(0, 3);
    for (const Size size : {Size{0, 0}, Size{5, 0}, Size{0, 5}}) {
        layout.SetView({.client = size, .scrollBarWidth = 0, .scrollPosition = 0, .rowHeight = kRowHeight});
        EXPECT_TRUE(Paint().empty());
        EXPECT_EQ(NameRect(0).top, 0);
    }
    // Before the window exists there is no row height either.
    layout.SetView({});
    EXPECT_TRUE(Paint().empty());
}

TEST_F(PaintPass, NeedsTheScrollBarFromTheHeightOfTheWindowOn) {
    AddSection();
    AddRows(0, 9);
    EXPECT_FALSE(layout.NeedsScrollBar());
    AddRows(0, 1);
    EXPECT_EQ(layout.GetTotalHeight(), kHeight);
    EXPECT_TRUE(layout.NeedsScrollBar());
}

}  // namespace
