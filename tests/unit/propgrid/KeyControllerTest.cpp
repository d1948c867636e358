// What keys and characters do.
#include "propgrid/controller/KeyController.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

class KeyController : public GridFixture {
protected:
    Actions Press(EKey key) { return keys.PressKey(key, Scroll()); }

    CKeyController keys{model, layout};
};

TEST_F(KeyController, DownAndUpMoveTheFocusAndRepaint) {
    AddSection();
    AddRows(0, 2);
    Paint();
    EXPECT_TRUE(HasAction<action::Repaint>(Press(KEY_DOWN)));
    Press(KEY_DOWN);
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 1}));
    Press(KEY_UP);
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0}));
}

TEST_F(KeyController, NothingHappensWithoutARow) {
    for (const EKey key : {KEY_DOWN, KEY_UP, KEY_LEFT, KEY_RIGHT}) {
        EXPECT_TRUE(Press(key).empty());
    }
    for (const wchar_t character : std::wstring(L"*/+-")) {
        EXPECT_TRUE(keys.TypeCharacter(character).empty());
    }
}

TEST_F(KeyController, LeftCollapsesAFocusedSectionAndElseGoesUp) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddRows(0, 1);
    model.SetFocus({.section = 1});
    EXPECT_TRUE(HasAction<action::Relayout>(Press(KEY_LEFT)));
    EXPECT_TRUE(Section(1).collapsed);
    EXPECT_FALSE(HasAction<action::Relayout>(Press(KEY_LEFT)));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0}));
}

TEST_F(KeyController, RightExpandsAFocusedSectionAndElseGoesDown) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection(L"section", true);
    AddRows(0, 1);
    model.SetFocus({.section = 0});
    EXPECT_TRUE(HasAction<action::Relayout>(Press(KEY_RIGHT)));
    EXPECT_FALSE(Section(0).collapsed);
    EXPECT_FALSE(HasAction<action::Relayout>(Press(KEY_RIGHT)));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0}));
}

TEST_F(KeyController, AMoveOfTheFocusForgetsTheEditButton) {
    AddSection();
    AddRows(0, 2);
    Focus({.item = 0});
    EXPECT_FALSE(layout.GetEditButton().IsEmpty());
    Press(KEY_DOWN);
    EXPECT_TRUE(layout.GetEditButton().IsEmpty());
}

TEST_F(KeyController, OtherKeysAreLeftToTheWindow) {
    for (unsigned key = 0; key < 256; ++key) {
        EXPECT_EQ(CKeyController::IsGridKey(key), key >= 37 && key <= 40) << key;
    }
    EXPECT_TRUE(HasAction<action::DefaultHandling>(keys.PressKey(13, Scroll())));
    for (const wchar_t character : std::wstring(L"aZ 1\t\r\x1b")) {
        EXPECT_FALSE(keys.ChangesSections(character));
        EXPECT_TRUE(HasAction<action::DefaultHandling>(keys.TypeCharacter(character)));
    }
}

TEST_F(KeyController, AStarExpandsAndASlashCollapsesAllSectionsAndEachLaysOut) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    EXPECT_TRUE(keys.ChangesSections(L'*') && keys.ChangesSections(L'/'));
    EXPECT_TRUE(HasAction<action::Relayout>(keys.TypeCharacter(L'/')));
    EXPECT_TRUE(Section(0).collapsed && Section(1).collapsed);
    EXPECT_TRUE(HasAction<action::Relayout>(keys.TypeCharacter(L'*')));
    EXPECT_FALSE(Section(0).collapsed || Section(1).collapsed);
}

TEST_F(KeyController, PlusAndMinusGoToTheFocusedSectionAndLayOutEvenWhenItIsSoAlready) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddSection();
    AddRows(0, 1);
    model.SetFocus({.section = 1});
    EXPECT_TRUE(keys.ChangesSections(L'+') && keys.ChangesSections(L'-'));
    for (int repeated = 0; repeated < 2; ++repeated) {
        EXPECT_TRUE(HasAction<action::Relayout>(keys.TypeCharacter(L'-')));
        EXPECT_TRUE(Section(1).collapsed);
    }
    EXPECT_FALSE(Section(0).collapsed);
    for (int repeated = 0; repeated < 2; ++repeated) {
        EXPECT_TRUE(HasAction<action::Relayout>(keys.TypeCharacter(L'+')));
        EXPECT_FALSE(Section(1).collapsed);
    }
    model.SetFocus({.item = 0});
    EXPECT_FALSE(keys.ChangesSections(L'+') || keys.ChangesSections(L'-'));
    EXPECT_TRUE(keys.TypeCharacter(L'-').empty());
    EXPECT_FALSE(Section(0).collapsed);
}

// ---- Scrolling to the focused row

class RevealedRow : public KeyController {
protected:
    RevealedRow() {
        AddSection();
        AddRows(0, 80);
    }
    // Where the key scrolls to when the rows are scrolled to `position` and an item is focused; -1 for
    // nowhere.
    int ScrollsTo(EKey key, int position, Id focused) {
        ShowAt(position, 16);
        Focus({.item = focused});
        const Actions actions = Press(key);
        const auto* const scroll = FindAction<action::ScrollTo>(actions);
        return scroll != nullptr ? scroll->position : -1;
    }
};

TEST_F(RevealedRow, ThatIsVisibleInFullScrollsNothing) {
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 0, 8), -1);
    EXPECT_EQ(ScrollsTo(KEY_UP, 0, 9), -1);
}

TEST_F(RevealedRow, BelowTheWindowScrollsToItsPositionInTheWindowNotInTheList) {
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 0, 9), 200);
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 600, 39), 200);
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 5, 8), -1);
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 5, 9), 195) << "visible in part";
}

TEST_F(RevealedRow, AboveTheWindowScrollsAboveTheTop) {
    EXPECT_EQ(ScrollsTo(KEY_UP, 60, 3), -20) << "the bar itself stops it there";
}

TEST_F(RevealedRow, ScrollsNothingWithoutAScrollBar) {
    ShowAt(0);
    Focus({.item = 9});
    EXPECT_FALSE(HasAction<action::ScrollTo>(Press(KEY_DOWN)));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 10}));
}

TEST_F(RevealedRow, ThatWasNeverPaintedScrollsNothing) {
    ShowAt(0, 16);
    Paint();
    AddRows(0, 1);
    model.SetFocus({.item = 79});
    EXPECT_FALSE(HasAction<action::ScrollTo>(Press(KEY_DOWN)));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 80}));
}

TEST_F(RevealedRow, MayBeAHeader) {
    model.settings.displayMode = DM_CATEGORIZED;
    EXPECT_EQ(ScrollsTo(KEY_DOWN, 600, 79), -600);
    EXPECT_EQ(model.GetFocus(), (RowId{.section = 0}));
}

}  // namespace
