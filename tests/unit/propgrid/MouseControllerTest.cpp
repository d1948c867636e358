// What the mouse does.
#include "propgrid/controller/MouseController.h"

#include "propgrid/controller/Focus.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

class MouseController : public GridFixture {
protected:
    Actions Press(Point point) {
        Paint();
        mouse.BeginPress();
        return mouse.Press(point);
    }
    Actions Release(Point point) {
        Paint();
        return mouse.Release(point);
    }
    Actions Click(Point point) {
        Press(point);
        return Release(point);
    }
    static ECursor CursorOf(const Actions& actions) {
        const auto* const cursor = FindAction<action::ShowCursor>(actions);
        EXPECT_NE(cursor, nullptr);
        return cursor != nullptr ? cursor->cursor : CU_ARROW;
    }
    ECursor Hover(int x) { return CursorOf(mouse.Move({x, 190}, false)); }

    CMouseController mouse{model, layout};
};

TEST_F(MouseController, APressOnANameFocusesTheItemAndOpensNothing) {
    AddSection();
    AddRows(0, 2);
    Paint();
    EXPECT_TRUE(HasAction<action::Repaint>(Press(NameOf(1))));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 1}));
    EXPECT_TRUE(Release(ValueOf(1)).empty());
}

TEST_F(MouseController, APressOnNothingClearsTheFocusAndIsLeftToTheWindowToo) {
    AddSection();
    AddRows(0, 1);
    Focus({.item = 0});
    const Actions actions = Press({20, 190});
    EXPECT_TRUE(HasAction<action::DefaultHandling>(actions));
    EXPECT_TRUE(HasAction<action::Repaint>(actions));
    EXPECT_EQ(model.GetFocus(), RowId());
    EXPECT_TRUE(layout.GetEditButton().IsEmpty());
}

TEST_F(MouseController, AGlyphCollapsesItsSectionFocusesItAndLaysOut) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    AddRows(0, 1);
    Focus({.item = 0});
    for (const bool collapsed : {true, false}) {
        EXPECT_TRUE(HasAction<action::Relayout>(Press({5, 8})));
        EXPECT_EQ(Section(0).collapsed, collapsed);
        EXPECT_EQ(model.GetFocus(), (RowId{.section = 0}));
    }
}

TEST_F(MouseController, AHeaderFocusesItsSectionAlone) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    EXPECT_FALSE(HasAction<action::Relayout>(Press({40, 8})));
    EXPECT_EQ(model.GetFocus(), (RowId{.section = 0}));
    EXPECT_FALSE(Section(0).collapsed);
}

// ---- The edit button

TEST_F(MouseController, TheEditButtonIsPushedWhileTheMouseIsOnIt) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    Focus({.item = 0});
    const Point button = ButtonOf(0);
    EXPECT_TRUE(HasAction<action::BeginCapture>(Press(button)));
    EXPECT_TRUE(mouse.IsButtonPressed());
    EXPECT_TRUE(HasAction<action::Repaint>(mouse.Move({20, 100}, false)));
    EXPECT_FALSE(mouse.IsButtonPressed());
    EXPECT_FALSE(HasAction<action::Repaint>(mouse.Move({20, 101}, false)));
    mouse.Move(button, false);
    EXPECT_TRUE(mouse.IsButtonPressed());
    const Actions actions = Release({20, 100});
    EXPECT_FALSE(mouse.IsButtonPressed());
    EXPECT_TRUE(HasAction<action::EndCapture>(actions));
    EXPECT_FALSE(HasAction<action::EditInDialog>(actions));
}

TEST_F(MouseController, TheEditButtonOpensTheDialogOnRelease) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    Focus({.item = 0});
    const Actions actions = Click(ButtonOf(0));
    ASSERT_TRUE(HasAction<action::EditInDialog>(actions));
    EXPECT_EQ(FindAction<action::EditInDialog>(actions)->item, 0U);
    EXPECT_TRUE(std::holds_alternative<action::EndCapture>(actions.front()));
}

TEST_F(MouseController, AnItemThatIsNotEditableOpensNothing) {
    AddSection();
    AddItem(0, L"string", IT_STRING, std::wstring(), false);
    EXPECT_TRUE(Click({200, 5}).empty());
    EXPECT_TRUE(Click({290, 5}).empty());
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0}));
}

TEST_F(MouseController, TheInPlaceEditOpensWhenTheButtonIsReleasedOverTheValue) {
    AddSection();
    AddRows(0, 2);
    const Actions actions = Click({200, 25});
    ASSERT_TRUE(HasAction<action::OpenTextEdit>(actions));
    EXPECT_EQ(FindAction<action::OpenTextEdit>(actions)->item, 1U);
    EXPECT_EQ(FindAction<action::OpenTextEdit>(actions)->rect, (Rect{151, 22, 300, 40}));
}

TEST_F(MouseController, NothingOpensWhenTheButtonIsReleasedElsewhere) {
    AddSection();
    AddRows(0, 2);
    EXPECT_FALSE(HasAction<action::OpenTextEdit>((Press({200, 5}), Release({200, 180}))));
    EXPECT_FALSE(HasAction<action::OpenTextEdit>((Press({20, 5}), Release({200, 5}))))
        << "the press on the value was another one";
}

TEST_F(MouseController, AListDropsDownFromTheDividerToTheRightEdge) {
    AddSection();
    AddItem(0, L"combo", IT_COMBO, 0);
    const Actions actions = Click({200, 5});
    ASSERT_TRUE(HasAction<action::DropDown>(actions));
    EXPECT_EQ(FindAction<action::DropDown>(actions)->cell, (Rect{150, 0, 300, 20}));
}

TEST_F(MouseController, ADialogOpensByItsButtonAlone) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    EXPECT_FALSE(HasAction<action::EditInDialog>(Click({200, 5})));
    EXPECT_FALSE(HasAction<action::EditInDialog>(Click({200, 5})));
}

TEST_F(MouseController, AReleaseIsAwaitedOnlyAfterAPressThatMayOpenAnEditor) {
    AddSection();
    AddItem(0, L"string");
    AddItem(0, L"colour", IT_COLOR, Color{1});
    Focus({.item = 1});
    EXPECT_FALSE(mouse.AwaitsRelease());
    Press({20, 5});
    EXPECT_FALSE(mouse.AwaitsRelease());
    Press({200, 5});
    EXPECT_TRUE(mouse.AwaitsRelease());
    Release({200, 5});
    EXPECT_FALSE(mouse.AwaitsRelease());
    Focus({.item = 1});
    Press({290, 25});
    EXPECT_TRUE(mouse.AwaitsRelease());
    mouse.BeginPress();
    mouse.LoseCapture();
    EXPECT_FALSE(mouse.AwaitsRelease());
}

// ---- Text edit and button

class TextWithButton : public MouseController {
protected:
    TextWithButton() {
        AddSection();
        custom.mode = EM_INPLACE_BUTTON;
        AddCustom(0, custom);
        Paint();
    }
    static bool OpensEdit(const Actions& actions) {
        EXPECT_NE(HasAction<action::OpenTextEdit>(actions), HasAction<action::EditInDialog>(actions));
        return HasAction<action::OpenTextEdit>(actions);
    }

    CTestCustomItem custom;
};

TEST_F(TextWithButton, TheEditLeavesRoomForTheButton) {
    const Actions actions = Click({200, 5});
    ASSERT_TRUE(OpensEdit(actions));
    EXPECT_EQ(FindAction<action::OpenTextEdit>(actions)->rect, (Rect{152, 2, 280, 20}));
}

TEST_F(TextWithButton, TheFocusingClickOpensTheEditWhereverItIs) {
    EXPECT_TRUE(OpensEdit(Click({290, 5})));
    EXPECT_FALSE(OpensEdit(Click({290, 5}))) << "the next one on the button is the button's";
}

TEST_F(TextWithButton, AClickOnTheButtonOfAFocusedItemIsTheButtons) {
    Click({20, 5});
    EXPECT_FALSE(OpensEdit(Click({290, 5})));
    EXPECT_TRUE(OpensEdit(Click({200, 5})));
}

TEST_F(TextWithButton, TheButtonBeginsARowHeightFromTheRightEdge) {
    Click({20, 5});
    EXPECT_FALSE(OpensEdit(Click({280, 5})));
    EXPECT_TRUE(OpensEdit(Click({279, 5})));
}

// The flag that a focusing press leaves: the item is focused and nothing opens, the next release is on the
// button.
TEST_F(TextWithButton, TheTextPartOfTheFocusingPressEndsARowHeightBeforeTheRightEdge) {
    for (const auto& [x, opensEdit] : {std::pair{279, false}, {280, true}}) {
        Press({20, 190});
        Release({20, 190});
        Press({x, 5});
        Release({20, 190});
        EXPECT_EQ(OpensEdit(Click({290, 5})), opensEdit) << x;
    }
}

// ---- Custom items

class CustomMouse : public MouseController {
protected:
    CustomMouse() {
        AddSection();
        AddCustom(0, custom);
        AddRows(0, 1);
        Focus({.item = 0});
    }

    CTestCustomItem custom;
};

TEST_F(CustomMouse, AFocusedItemWithoutEditorIsAskedOfEveryPress) {
    const Actions actions = Press({200, 100});
    ASSERT_TRUE(HasAction<action::AskCustomItem>(actions));
    const auto& question = *FindAction<action::AskCustomItem>(actions);
    EXPECT_EQ(question.item, 0U);
    EXPECT_EQ(question.value, (Rect{150, 0, 300, 20}));
    EXPECT_EQ(question.point, (Point{200, 100}));
}

TEST_F(CustomMouse, AnItemThatTakesThePressGetsTheMouse) {
    Press({200, 5});
    EXPECT_TRUE(HasAction<action::BeginCapture>(mouse.AnswerPress(true, {200, 5})));
    const Actions move = mouse.Move({-5, 77}, false);
    ASSERT_TRUE(HasAction<action::NotifyCustomItem>(move));
    EXPECT_EQ(FindAction<action::NotifyCustomItem>(move)->event, CE_MOVE);
    const Actions release = Release({1, 2});
    ASSERT_TRUE(HasAction<action::NotifyCustomItem>(release));
    EXPECT_EQ(FindAction<action::NotifyCustomItem>(release)->event, CE_UP);
    EXPECT_EQ(FindAction<action::NotifyCustomItem>(release)->point, (Point{1, 2}));
    // The capture is released and the repaint requested before the item is called.
    EXPECT_TRUE(std::holds_alternative<action::EndCapture>(release.front()));
    EXPECT_TRUE(std::holds_alternative<action::NotifyCustomItem>(release.back()));
    EXPECT_FALSE(HasAction<action::NotifyCustomItem>(mouse.Move({1, 1}, false)));
}

TEST_F(CustomMouse, AnItemThatDoesNotLeavesThePressToTheGrid) {
    Press({20, 25});
    EXPECT_FALSE(HasAction<action::BeginCapture>(mouse.AnswerPress(false, {20, 25})));
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 1}));
}

TEST_F(CustomMouse, AnItemWithAnEditorIsNotAsked) {
    custom.mode = EM_MODAL;
    EXPECT_FALSE(HasAction<action::AskCustomItem>(Press({20, 5})));
}

TEST_F(CustomMouse, AnItemThatLosesItsEditorMeanwhileGetsTheRelease) {
    custom.mode = EM_INPLACE;
    Focus({.item = 1});
    Press({200, 5});
    custom.mode = EM_CUSTOM;
    const Actions actions = mouse.Release({200, 5});
    ASSERT_TRUE(HasAction<action::NotifyCustomItem>(actions));
    EXPECT_EQ(FindAction<action::NotifyCustomItem>(actions)->event, CE_UP);
    custom.mode = 77;
    Focus({.item = 1});
    EXPECT_TRUE(Click({200, 5}).empty()) << "an edit mode that there is not";
}

TEST_F(CustomMouse, AnItemThatRemovesTheRowsLeavesAPressOnNothing) {
    Press({200, 5});
    model.Clear();
    mouse.AnswerPress(false, {200, 5});
    EXPECT_EQ(model.GetFocus(), RowId());
}

TEST_F(CustomMouse, TheRectangleOfAnotherEditButtonDoesNotCatchItsPress) {
    Focus({.item = 1});
    EXPECT_FALSE(layout.GetEditButton().IsEmpty());
    MoveFocus(model, layout, {.item = 0});
    Paint();
    EXPECT_TRUE(HasAction<action::AskCustomItem>(Press({200, 25})));
}

// ---- The divider

TEST_F(MouseController, TheDividerFollowsTheMouse) {
    AddSection();
    AddRows(0, 1);
    Focus({.item = 0});
    EXPECT_TRUE(HasAction<action::BeginCapture>(Press({kGutter + 2, 190})));
    EXPECT_EQ(CursorOf(mouse.Move({kGutter + 12, 20}, false)), CU_SIZE);
    EXPECT_EQ(model.settings.gutter, kGutter + 10);
    EXPECT_EQ(CursorOf(Release({kGutter + 12, 20})), CU_ARROW);
    mouse.Move({kGutter + 50, 20}, false);
    EXPECT_EQ(model.settings.gutter, kGutter + 10);
    EXPECT_EQ(model.GetFocus(), (RowId{.item = 0})) << "a press on the divider leaves the focus";
}

TEST_F(MouseController, TheDividerStopsAtOneAndAtFourFifths) {
    Press({kGutter, 190});
    mouse.Move({-500, 190}, false);
    EXPECT_EQ(model.settings.gutter, 60);
    mouse.Move({-490, 190}, false);
    EXPECT_EQ(model.settings.gutter, 70) << "it follows the movement, not the position";
    mouse.Move({900, 190}, false);
    EXPECT_EQ(model.settings.gutter, 240);
}

TEST_F(MouseController, TheLimitsOfTheDividerAreWholePixels) {
    layout.SetView({.client = {33, 100}, .scrollBarWidth = 0, .scrollPosition = 0, .rowHeight = kRowHeight});
    Press({kGutter, 190});
    mouse.Move({-500, 190}, false);
    EXPECT_EQ(model.settings.gutter, 6);
    mouse.Move({900, 190}, false);
    EXPECT_EQ(model.settings.gutter, 26);
}

TEST_F(MouseController, TheCursorShowsWhereTheDividerIs) {
    EXPECT_EQ(Hover(kGutter - 2), CU_SIZE);
    EXPECT_EQ(Hover(kGutter - 3), CU_ARROW);
    EXPECT_EQ(Hover(kGutter + 2), CU_SIZE);
    EXPECT_EQ(Hover(kGutter + 3), CU_ARROW);
    EXPECT_TRUE(mouse.Move({kGutter, 190}, true).empty()) << "an open editor keeps the cursor";
}

TEST_F(MouseController, AnotherWindowThatTakesTheMouseEndsTheDrag) {
    Press({kGutter, 190});
    EXPECT_TRUE(HasAction<action::EndCapture>(mouse.LoseCapture()));
    mouse.Move({100, 190}, false);
    EXPECT_EQ(model.settings.gutter, kGutter);
    EXPECT_TRUE(mouse.LoseCapture().empty());
}

// ---- Double clicks

TEST_F(MouseController, ADoubleClickChangesABooleanAndAComboAndNotifiesOnce) {
    AddSection();
    AddItem(0, L"bool", IT_BOOLEAN, true, false);
    AddItem(0, L"combo", IT_COMBO, 0, false);
    Item(1).options = {L"a", L"b"};
    for (const Id id : {Id{0}, Id{1}}) {
        Focus({.item = id});
        const Actions actions = mouse.DoubleClick();
        ASSERT_EQ(actions.size(), 2U);
        EXPECT_EQ(std::get<action::Notify>(actions[0]).item, id);
        EXPECT_TRUE(std::holds_alternative<action::Repaint>(actions[1]));
    }
    EXPECT_FALSE(std::get<bool>(Item(0).value));
    EXPECT_EQ(std::get<int>(Item(1).value), 1);
}

TEST_F(MouseController, ADoubleClickCollapsesAFocusedSectionWithoutALayout) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddSection();
    Focus({.section = 0});
    const Actions actions = mouse.DoubleClick();
    EXPECT_TRUE(HasAction<action::Repaint>(actions));
    EXPECT_FALSE(HasAction<action::Relayout>(actions));
    EXPECT_TRUE(Section(0).collapsed);
}

TEST_F(MouseController, ADoubleClickRunsADialog) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1});
    Focus({.item = 0});
    EXPECT_TRUE(HasAction<action::EditInDialog>(mouse.DoubleClick()));
}

TEST_F(MouseController, ADoubleClickRunsNoDialogForAnItemThatIsNotEditable) {
    AddSection();
    AddItem(0, L"colour", IT_COLOR, Color{1}, false);
    Focus({.item = 0});
    EXPECT_TRUE(mouse.DoubleClick().empty());
}

TEST_F(MouseController, ADoubleClickOnAnythingElseDoesNothing) {
    EXPECT_TRUE(mouse.DoubleClick().empty());
    AddSection();
    AddItem(0, L"integer", IT_INTEGER, 1);
    AddItem(0, L"empty combo", IT_COMBO, 1);
    for (const Id id : {Id{0}, Id{1}}) {
        Focus({.item = id});
        EXPECT_TRUE(mouse.DoubleClick().empty());
    }
}

}  // namespace
