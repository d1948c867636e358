// What is reported to assistive technology, and that it is reported once.
#include "propgrid/accessible/AccessibleChanges.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;
using namespace tavrin::accessible;

using Events = std::vector<AccessibleEvent>;

// Section 0 with items 0 and 1, section 1 with item 2: children 1 to 5. All of it is reported.
class AccessibleChanges : public GridFixture {
protected:
    AccessibleChanges() {
        model.settings.displayMode = DM_CATEGORIZED;
        AddSection(L"S");
        AddSection(L"T");
        AddItem(0, L"a");
        AddItem(0, L"b");
        AddItem(1, L"c");
        Take();
    }
    Events Take(bool windowHasFocus = false) {
        return changes.Take([=] { return windowHasFocus; });
    }

    CAccessibleRows rows{model, layout};
    CAccessibleChanges changes{model, rows};
    const Events reorder = {{EVENT_REORDER, kSelf}};
};

TEST_F(AccessibleChanges, AreNoneWithoutAChange) {
    EXPECT_EQ(Take(true), Events());
}

TEST_F(AccessibleChanges, ReportAMovedFocusOnce) {
    model.SetFocus({.item = 1});
    EXPECT_EQ(Take(true), (Events{{EVENT_SELECTION, 3}, {EVENT_FOCUS, 3}}));
    EXPECT_EQ(Take(true), Events());
    model.SetFocus({.section = 1});
    EXPECT_EQ(Take(true), (Events{{EVENT_SELECTION, 4}, {EVENT_FOCUS, 4}}));
    model.SetFocus({});
    EXPECT_EQ(Take(true), (Events{{EVENT_SELECTION, kSelf}, {EVENT_FOCUS, kSelf}}));
}

TEST_F(AccessibleChanges, ReportTheSelectionAloneWhileTheFocusIsElsewhere) {
    model.SetFocus({.item = 1});
    EXPECT_EQ(Take(false), (Events{{EVENT_SELECTION, 3}}));
}

TEST_F(AccessibleChanges, ReportTheFocusedRowWhenTheWindowGetsTheFocus) {
    model.SetFocus({.item = 1});
    Take(false);
    changes.NoteWindowFocus();
    EXPECT_EQ(Take(true), (Events{{EVENT_FOCUS, 3}}));
    EXPECT_EQ(Take(true), Events());
}

TEST_F(AccessibleChanges, ReportAValueAndAStateOnce) {
    changes.NoteValue(2);
    changes.NoteState(0);
    changes.NoteValue(2);
    EXPECT_EQ(Take(), (Events{{EVENT_VALUE_CHANGE, 5}, {EVENT_STATE_CHANGE, 2}}));
    EXPECT_EQ(Take(), Events());
}

TEST_F(AccessibleChanges, LeaveOutRowsThatTheDisplayDoesNotHave) {
    model.SetCollapsed(Section(1), true);
    Take();
    changes.NoteValue(2);
    changes.NoteValue(17);
    EXPECT_EQ(Take(), Events());
}

TEST_F(AccessibleChanges, ReportACollapsedSectionAndItsRows) {
    model.SetCollapsed(Section(0), true);
    EXPECT_EQ(Take(), (Events{{EVENT_REORDER, kSelf}, {EVENT_STATE_CHANGE, 1}}));
    model.SetCollapsed(Section(0), false);
    model.SetCollapsed(Section(1), true);
    EXPECT_EQ(Take(), (Events{{EVENT_REORDER, kSelf}, {EVENT_STATE_CHANGE, 1}, {EVENT_STATE_CHANGE, 4}}));
    model.SetCollapsed(Section(0), true);
    model.SetCollapsed(Section(0), false);
    EXPECT_EQ(Take(), Events()) << "as it was";
}

TEST_F(AccessibleChanges, ReportAddedRowsTogether) {
    AddRows(0, 3);
    AddSection(L"U", true);
    EXPECT_EQ(Take(), reorder);
}

TEST_F(AccessibleChanges, ReportAnotherDisplayMode) {
    model.settings.displayMode = DM_SORTED;
    EXPECT_EQ(Take(), reorder);
}

TEST_F(AccessibleChanges, ForgetWhatWasAboutRemovedRows) {
    model.SetCollapsed(Section(1), true);
    changes.NoteValue(0);
    model.Clear();
    AddSection(L"new");
    AddItem(0, L"new");
    EXPECT_EQ(Take(), reorder);
    changes.NoteValue(0);
    EXPECT_EQ(Take(), (Events{{EVENT_VALUE_CHANGE, 2}}));
}

TEST_F(AccessibleChanges, KeepWhatIsNotedAfterRowsWereRemoved) {
    changes.NoteValue(2);
    model.Clear();
    AddSection(L"new");
    AddItem(0, L"new");
    changes.NoteValue(0);
    EXPECT_EQ(Take(), (Events{{EVENT_REORDER, kSelf}, {EVENT_VALUE_CHANGE, 2}}));
}

TEST_F(AccessibleChanges, ReportTooManyItemsAsAllRows) {
    AddRows(0, 100);
    Take();
    for (Id item = 0; item < 64; ++item) {
        changes.NoteValue(item);
    }
    EXPECT_EQ(Take().size(), 64U);
    for (Id item = 0; item < 65; ++item) {
        changes.NoteValue(item);
    }
    EXPECT_EQ(Take(), reorder);
    EXPECT_EQ(Take(), Events());
}

}  // namespace
