// What lies under a point.
#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

class HitTest : public GridFixture {};

TEST_F(HitTest, FindsNothingWhereNothingWasPainted) {
    AddSection();
    AddRows(0, 1);
    EXPECT_EQ(layout.HitTest({20, 5}), Hit());
    Paint();
    EXPECT_EQ(layout.HitTest({20, 190}), Hit());
    EXPECT_EQ(layout.HitTest({kWidth, 5}), Hit());
}

TEST_F(HitTest, FindsNamesAndValues) {
    AddSection();
    AddRows(0, 2);
    Paint();
    EXPECT_EQ(layout.HitTest({0, 0}), (Hit{.part = HP_NAME, .item = 0}));
    EXPECT_EQ(layout.HitTest({0, 19}), (Hit{.part = HP_NAME, .item = 0}));
    EXPECT_EQ(layout.HitTest({0, 20}), (Hit{.part = HP_NAME, .item = 1}));
    EXPECT_EQ(layout.HitTest({160, 25}), (Hit{.part = HP_VALUE, .item = 1}));
    EXPECT_EQ(layout.HitTest({299, 25}), (Hit{.part = HP_VALUE, .item = 1}));
}

TEST_F(HitTest, FindsTheDividerWithinLessThanThreePixelsOverTheRow) {
    AddSection();
    AddRows(0, 1);
    Paint();
    for (int x = kGutter - 3; x <= kGutter + 3; ++x) {
        EXPECT_EQ(layout.HitTest({x, 5}).onDivider, x > kGutter - 3 && x < kGutter + 3) << x;
        EXPECT_EQ(layout.HitTest({x, 5}).part, x < kGutter ? HP_NAME : HP_VALUE) << x;
    }
    EXPECT_TRUE(layout.HitTest({kGutter, 190}).onDivider) << "below the rows too";
}

TEST_F(HitTest, FindsGlyphsAndHeadersInTheCategorisedDisplayAlone) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    Paint();
    EXPECT_EQ(layout.HitTest({2, 24}), (Hit{.part = HP_GLYPH, .section = 1}));
    EXPECT_EQ(layout.HitTest({14, 0}), (Hit{.part = HP_HEADER, .section = 0}));
    EXPECT_EQ(layout.HitTest({12, 0}), Hit()) << "between glyph and header";
    model.settings.displayMode = DM_FLAT;
    EXPECT_EQ(layout.HitTest({2, 24}), Hit());
}

TEST_F(HitTest, PassesOverTheItemsOfACollapsedSection) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddRows(0, 1);
    Paint();
    model.SetCollapsed(Section(0), true);
    Paint();
    EXPECT_FALSE(layout.GetNameRect(Item(0)).IsEmpty());
    EXPECT_EQ(layout.HitTest({20, 25}), Hit());
}

TEST_F(HitTest, PassesOverItemsThatCannotHaveTheFocus) {
    AddSection();
    AddItem(0, L"locked", IT_STRING, std::wstring(), false);
    Paint();
    EXPECT_EQ(layout.HitTest({20, 5}).item, 0U);
    model.settings.focusNonEditable = false;
    EXPECT_EQ(layout.HitTest({20, 5}), Hit());
}

TEST_F(HitTest, FindsTheRowsOfTheSortedDisplay) {
    model.settings.displayMode = DM_SORTED;
    AddSection();
    AddSection();
    AddItem(0, L"c");
    AddItem(1, L"b");
    AddItem(0, L"a");
    Paint();
    EXPECT_EQ(layout.HitTest({20, 5}).item, 2U);
    EXPECT_EQ(layout.HitTest({20, 25}).item, 1U);
    EXPECT_EQ(layout.HitTest({20, 45}).item, 0U);
    EXPECT_EQ(layout.HitTest({20, 65}), Hit());
}

TEST_F(HitTest, FindsNoRowThatWasRemovedOrAddedSince) {
    AddSection();
    AddRows(0, 2);
    Paint();
    AddRows(0, 1);
    EXPECT_EQ(layout.HitTest({20, 45}), Hit());
    model.Clear();
    EXPECT_EQ(layout.HitTest({20, 5}), Hit());
    AddSection();
    AddRows(0, 2);
    EXPECT_EQ(layout.HitTest({20, 5}), Hit());
}

TEST_F(HitTest, FindsTheEditButtonOfTheFocusedRowInSight) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    AddRows(0, 40);
    Focus({.item = 0});
    EXPECT_TRUE(layout.HitTest({280, 0}).onEditButton);
    EXPECT_FALSE(layout.HitTest({279, 0}).onEditButton);
    EXPECT_FALSE(layout.HitTest({290, 20}).onEditButton);
    ShowAt(100);
    Paint();
    EXPECT_FALSE(layout.HitTest({290, 5}).onEditButton) << "the row is scrolled away";
}

TEST_F(HitTest, FindsNoEditButtonOfARowThatLostIt) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    Focus({.item = 0});
    ASSERT_TRUE(layout.HitTest({290, 25}).onEditButton);
    model.SetCollapsed(Section(0), true);
    EXPECT_FALSE(layout.HitTest({290, 25}).onEditButton) << "its section is collapsed";
    model.SetCollapsed(Section(0), false);
    Item(0).SetEditable(false);
    EXPECT_FALSE(layout.HitTest({290, 25}).onEditButton) << "it is not editable";
    Item(0).SetEditable(true);
    EXPECT_TRUE(layout.HitTest({290, 25}).onEditButton);
    model.Clear();
    EXPECT_FALSE(layout.HitTest({290, 25}).onEditButton) << "it is removed";
    AddSection();
    AddItem(0, L"other", IT_COLOR, Color{1});
    EXPECT_FALSE(layout.HitTest({290, 25}).onEditButton) << "another row has its id";
}

}  // namespace
