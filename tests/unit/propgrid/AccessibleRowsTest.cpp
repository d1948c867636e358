// What assistive technology is told of the grid's rows.
#include "propgrid/accessible/AccessibleRows.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;
using namespace tavrin::accessible;

// The system's part of texts, with an answer that no other source gives.
class CTestSystemText final : public ISystemText {
public:
    std::wstring GetDateText(const DateValue& /*date*/, const std::wstring& /*format*/,
                             bool withTime) const override {
        return withTime ? L"date and time" : L"date";
    }
    int GetPixelsPerInch() const override { return 96; }
};

// Two sections with headers, the second collapsed, and one after them:
//     Size: Width, Height; Colour (collapsed): Paint; Rest: Note
class AccessibleRows : public GridFixture {
protected:
    AccessibleRows() {
        model.settings.displayMode = DM_CATEGORIZED;
        size = AddSection(L"Size");
        color = AddSection(L"Colour", true);
        rest = AddSection(L"Rest");
        width = AddItem(size, L"Width", IT_INTEGER, 80);
        height = AddItem(size, L"Height", IT_INTEGER, 200);
        paint = AddItem(color, L"Paint");
        note = AddItem(rest, L"Note", IT_STRING, std::wstring(L"none"));
    }

    // The names of all children in their order.
    std::wstring Names() {
        std::wstring names;
        for (int child = 1; child <= rows.GetCount(); ++child) {
            names += rows.GetName(child) + L" ";
        }
        return names;
    }
    int ChildOf(Id item) { return rows.FindChild({.item = item}); }
    int ChildOfSection(Id section) { return rows.FindChild({.section = section}); }
    unsigned StateOfItem(Id item, const WindowCondition& window = {}) {
        return rows.GetState(ChildOf(item), window);
    }
    std::optional<std::wstring> ValueOfItem(Id item) {
        return rows.GetValue(ChildOf(item), CTestSystemText());
    }

    CAccessibleRows rows{model, layout};
    Id size = 0, color = 0, rest = 0, width = 0, height = 0, paint = 0, note = 0;
};

TEST_F(AccessibleRows, AreTheHeadersAndTheItemsOfExpandedSections) {
    EXPECT_EQ(Names(), L"Size Width Height Colour Rest Note ");
    EXPECT_EQ(rows.GetRole(kSelf), ROLE_OUTLINE);
    EXPECT_EQ(rows.GetRole(1), ROLE_OUTLINE_ITEM);
}

TEST_F(AccessibleRows, AreAllItemsInAFlatDisplay) {
    model.settings.displayMode = DM_FLAT;
    EXPECT_EQ(Names(), L"Width Height Paint Note ");
    EXPECT_EQ(rows.GetRole(kSelf), ROLE_LIST);
    EXPECT_EQ(rows.GetRole(1), ROLE_LIST_ITEM);
}

TEST_F(AccessibleRows, AreSortedInTheSortedDisplay) {
    model.settings.displayMode = DM_SORTED;
    EXPECT_EQ(Names(), L"Height Note Paint Width ");
}

TEST_F(AccessibleRows, StandInTheOrderOfTheSectionsNotOfTheirIds) {
    model.AddSection(L"First", false, size);
    EXPECT_EQ(Names(), L"First Size Width Height Colour Rest Note ");
}

TEST_F(AccessibleRows, AreFoundByTheirChildAndBack) {
    for (const std::uint32_t mode : {DM_CATEGORIZED, DM_SORTED, DM_FLAT}) {
        model.settings.displayMode = mode;
        for (int child = 1; child <= rows.GetCount(); ++child) {
            EXPECT_EQ(rows.FindChild(rows.FindRow(child)), child) << "mode " << mode;
        }
        EXPECT_EQ(rows.FindRow(0), RowId());
        EXPECT_EQ(rows.FindRow(-1), RowId());
        EXPECT_EQ(rows.FindRow(rows.GetCount() + 1), RowId());
    }
}

TEST_F(AccessibleRows, HaveNoChildWhereTheDisplayDoesNotHaveThem) {
    EXPECT_EQ(ChildOf(paint), kSelf) << "in a collapsed section";
    EXPECT_EQ(ChildOf(17), kSelf) << "no such item";
    EXPECT_EQ(rows.FindChild({}), kSelf);
    model.settings.displayMode = DM_FLAT;
    EXPECT_NE(ChildOf(paint), kSelf);
    EXPECT_EQ(ChildOfSection(size), kSelf) << "a flat list has no headers";
}

TEST_F(AccessibleRows, ShowNewRowsInTheSortedDisplayAtOnce) {
    model.settings.displayMode = DM_SORTED;
    EXPECT_EQ(ChildOf(width), 4);
    const Id depth = AddItem(size, L"Depth");
    EXPECT_EQ(ChildOf(depth), 1);
    EXPECT_EQ(ChildOf(width), 5);
}

TEST_F(AccessibleRows, HaveTheTextsOfTheirValues) {
    EXPECT_EQ(ValueOfItem(width), L"80");
    EXPECT_EQ(ValueOfItem(note), L"none");
    EXPECT_EQ(ValueOfItem(AddItem(rest, L"day", IT_DATE, DateValue())), L"date");
    EXPECT_EQ(ValueOfItem(AddItem(rest, L"empty")), L"") << "an empty text is a value too";
    EXPECT_EQ(rows.GetValue(ChildOfSection(size), CTestSystemText()), std::nullopt);
    EXPECT_EQ(rows.GetValue(kSelf, CTestSystemText()), std::nullopt);
}

TEST_F(AccessibleRows, HaveTheUndefinedTextWhileUndefined) {
    model.settings.texts.undefined = L"(not given)";
    Item(width).undefined = true;
    EXPECT_EQ(ValueOfItem(width), L"(not given)");
}

TEST_F(AccessibleRows, AskCustomItemsForTheirTexts) {
    CTestCustomItem custom;
    custom.text = L"3'-6\"";
    EXPECT_EQ(ValueOfItem(AddCustom(rest, custom)), L"3'-6\"");
}

TEST_F(AccessibleRows, CanBeFocusedAndSelected) {
    EXPECT_EQ(StateOfItem(width), STATE_FOCUSABLE | STATE_SELECTABLE);
    EXPECT_EQ(rows.GetState(kSelf, {}), STATE_FOCUSABLE);
}

TEST_F(AccessibleRows, AreSelectedWithTheFocusAndFocusedInAWindowThatHasIt) {
    model.SetFocus({.item = height});
    constexpr unsigned kCan = STATE_FOCUSABLE | STATE_SELECTABLE;
    EXPECT_EQ(StateOfItem(height), kCan | STATE_SELECTED);
    EXPECT_EQ(StateOfItem(height, {.hasFocus = true}), kCan | STATE_SELECTED | STATE_FOCUSED);
    EXPECT_EQ(StateOfItem(width, {.hasFocus = true}), kCan);
    EXPECT_EQ(rows.GetState(kSelf, {.hasFocus = true}), unsigned{STATE_FOCUSABLE | STATE_FOCUSED});
    EXPECT_EQ(rows.GetFocusedChild(), 3);
}

TEST_F(AccessibleRows, AreReadOnlyWhenTheyAreNotEditable) {
    Item(width).SetEditable(false);
    EXPECT_EQ(StateOfItem(width), STATE_FOCUSABLE | STATE_SELECTABLE | STATE_READ_ONLY);
    model.settings.focusNonEditable = false;
    EXPECT_EQ(StateOfItem(width), STATE_READ_ONLY);
}

TEST_F(AccessibleRows, AreExpandedOrCollapsedWhenTheyAreHeaders) {
    constexpr unsigned kCan = STATE_FOCUSABLE | STATE_SELECTABLE;
    EXPECT_EQ(rows.GetState(ChildOfSection(size), {}), kCan | STATE_EXPANDED);
    EXPECT_EQ(rows.GetState(ChildOfSection(color), {}), kCan | STATE_COLLAPSED);
}

TEST_F(AccessibleRows, TakeTheStateOfTheirWindow) {
    EXPECT_EQ(StateOfItem(width, {.visible = false}), STATE_INVISIBLE | STATE_FOCUSABLE | STATE_SELECTABLE);
    EXPECT_EQ(StateOfItem(width, {.enabled = false}), STATE_UNAVAILABLE) << "nothing can be focused in it";
    EXPECT_EQ(rows.GetState(kSelf, {.enabled = false}), STATE_UNAVAILABLE);
}

TEST_F(AccessibleRows, AreOffScreenWhenNothingOfThemIsInSight) {
    AddRows(rest, 20);
    ShowAt(30, 15);
    EXPECT_EQ(rows.GetState(1, {}) & STATE_OFF_SCREEN, STATE_OFF_SCREEN) << "0 to 20";
    EXPECT_EQ(rows.GetState(2, {}) & STATE_OFF_SCREEN, 0U) << "20 to 40, half of it in sight";
    EXPECT_EQ(rows.GetState(12, {}) & STATE_OFF_SCREEN, 0U) << "220 to 240, half of it in sight";
    EXPECT_EQ(rows.GetState(13, {}) & STATE_OFF_SCREEN, unsigned{STATE_OFF_SCREEN}) << "240 to 260";
}

TEST_F(AccessibleRows, StandWhereAPaintDrawsThem) {
    AddRows(rest, 20);
    ShowAt(30, 15);
    for (const std::uint32_t mode : {DM_CATEGORIZED, DM_SORTED, DM_FLAT}) {
        model.settings.displayMode = mode;
        for (const PaintedRow& painted : Paint()) {
            const RowId row = painted.item != nullptr ? RowId{.item = painted.item->id}
                                                      : RowId{.section = painted.section->id};
            const int child = rows.FindChild(row);
            EXPECT_EQ(rows.GetRect(child), painted.row) << "mode " << mode << ", child " << child;
            const Point middle = CenterOf(Intersect(painted.row, {0, 0, kWidth, kHeight}));
            EXPECT_EQ(rows.HitTest(middle), child) << "mode " << mode;
        }
    }
}

TEST_F(AccessibleRows, AreNotHitBesideThem) {
    EXPECT_EQ(rows.HitTest({10, 119}), 6);
    EXPECT_EQ(rows.HitTest({10, 120}), kSelf) << "below the last row";
    EXPECT_EQ(rows.HitTest({10, -1}), kSelf);
    EXPECT_EQ(rows.HitTest({-1, 10}), kSelf);
    EXPECT_EQ(rows.HitTest({kWidth, 10}), kSelf);
    ShowAt(0, 15);
    EXPECT_EQ(rows.HitTest({kWidth - 15, 10}), kSelf) << "on the scroll bar";
    EXPECT_EQ(rows.HitTest({kWidth - 16, 10}), 1);
}

TEST_F(AccessibleRows, OfferWhatTheKeyboardDoes) {
    EXPECT_EQ(rows.GetDefaultAction(ChildOf(width)), L"Edit");
    EXPECT_EQ(rows.GetDefaultAction(ChildOfSection(size)), L"Collapse");
    EXPECT_EQ(rows.GetDefaultAction(ChildOfSection(color)), L"Expand");
    EXPECT_EQ(rows.GetDefaultAction(kSelf), L"");
    EXPECT_EQ(rows.GetShortcut(ChildOf(width)), L"") << "no key edits";
    model.settings.keyboardEditing = true;
    EXPECT_EQ(rows.GetShortcut(ChildOf(width)), L"F2");
    EXPECT_EQ(rows.GetShortcut(ChildOfSection(size)), L"-");
    EXPECT_EQ(rows.GetShortcut(ChildOfSection(color)), L"+");
    EXPECT_EQ(rows.GetShortcut(kSelf), L"");
}

TEST_F(AccessibleRows, OfferNothingWhereNothingCanBeEdited) {
    model.settings.keyboardEditing = true;
    CTestCustomItem custom;
    const int child = rows.FindChild({.item = AddCustom(rest, custom)});
    EXPECT_EQ(rows.GetDefaultAction(child), L"") << "the mouse is the item's own";
    EXPECT_EQ(rows.GetShortcut(child), L"");
    custom.mode = EM_INPLACE_BUTTON;
    EXPECT_EQ(rows.GetDefaultAction(child), L"Edit");
    Item(width).SetEditable(false);
    EXPECT_EQ(rows.GetDefaultAction(ChildOf(width)), L"");
    EXPECT_EQ(rows.GetShortcut(ChildOf(width)), L"");
}

TEST_F(AccessibleRows, AreNoneInAnEmptyGrid) {
    model.Clear();
    EXPECT_EQ(rows.GetCount(), 0);
    EXPECT_EQ(rows.FindRow(1), RowId());
    EXPECT_EQ(rows.HitTest({10, 10}), kSelf);
    EXPECT_EQ(rows.GetFocusedChild(), kSelf);
}

}  // namespace
