// What the keys of keyboard editing do.
#include "propgrid/controller/EditKeyController.h"

#include "propgrid/controller/KeyController.h"
#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

constexpr unsigned kEditKeys[] = {KEY_F2, KEY_F4, KEY_HOME, KEY_END, KEY_PAGE_UP, KEY_PAGE_DOWN};

class EditKeyController : public GridFixture {
protected:
    EditKeyController() {
        model.settings.keyboardEditing = true;
        AddSection();
    }
    // Adds an item and focuses it.
    Id FocusNew(EItemType kind, Value value, bool editable = true) {
        const Id id =
            AddItem(0, L"item " + std::to_wstring(model.GetItemCount()), kind, std::move(value), editable);
        Focus({.item = id});
        return id;
    }
    Id FocusNew(CTestCustomItem& custom, bool editable = true) {
        const Id id = AddCustom(0, custom, editable);
        Focus({.item = id});
        return id;
    }
    // What a key asks for beside repaints: how many actions, and whether one is an `Expected`.
    template <class Expected>
    static bool IsOnly(const Actions& actions) {
        return actions.size() == 1 && HasAction<Expected>(actions);
    }
    // Whether no key or character edits the focused row.
    bool IsLeftAlone() {
        bool alone = true;
        for (const wchar_t character : std::wstring(L"5-+.,aZ\x00E9 \"'")) {
            alone = alone && !keys.TakesCharacter(character) && keys.TypeCharacter(character).empty();
        }
        return alone && keys.PressKey(KEY_F2).empty() && keys.PressAltKey(KEY_DOWN).empty() &&
               keys.PressAltKey(KEY_RETURN).empty();
    }

    CEditKeyController keys{model, layout};
};

// ---- The switch

TEST_F(EditKeyController, TakesNothingUntilKeyboardEditingIsOn) {
    FocusNew(IT_DOUBLE, 1.5);
    model.settings.keyboardEditing = false;
    for (unsigned key = 0; key < 256; ++key) {
        EXPECT_FALSE(keys.TakesKey(key) || keys.TakesAltKey(key)) << key;
    }
    for (wchar_t character = 0; character < 0x300; ++character) {
        EXPECT_FALSE(keys.TakesCharacter(character)) << int(character);
    }
}

TEST_F(EditKeyController, IsOffAtTheStart) {
    EXPECT_FALSE(GridSettings().keyboardEditing);
}

TEST_F(EditKeyController, TakesItsKeysAndLeavesTheArrowsToTheOther) {
    for (unsigned key = 0; key < 256; ++key) {
        const bool expected =
            std::find(std::begin(kEditKeys), std::end(kEditKeys), key) != std::end(kEditKeys);
        EXPECT_EQ(keys.TakesKey(key), expected) << key;
        EXPECT_FALSE(keys.TakesKey(key) && CKeyController::IsGridKey(key)) << key;
        EXPECT_EQ(keys.TakesAltKey(key), key == KEY_DOWN || key == KEY_RETURN) << key;
    }
}

// ---- Opening editors

TEST_F(EditKeyController, F2AndF4AndAltDownOpenTheTextEditWhereAClickDoes) {
    const Id id = FocusNew(IT_STRING, std::wstring(L"text"));
    for (const Actions& actions :
         {keys.PressKey(KEY_F2), keys.PressKey(KEY_F4), keys.PressAltKey(KEY_DOWN)}) {
        ASSERT_TRUE(IsOnly<action::OpenTextEdit>(actions));
        const auto& edit = *FindAction<action::OpenTextEdit>(actions);
        EXPECT_EQ(edit.item, id);
        EXPECT_EQ(edit.rect, (Rect{kGutter + 1, 2, kWidth, kRowHeight}));
        EXPECT_EQ(edit.typed, 0);
    }
}

TEST_F(EditKeyController, F2LeavesTheButtonBesideTheTextEditVisible) {
    CTestCustomItem custom;
    custom.mode = EM_INPLACE_BUTTON;
    FocusNew(custom);
    const Actions actions = keys.PressKey(KEY_F2);
    ASSERT_TRUE(IsOnly<action::OpenTextEdit>(actions));
    EXPECT_EQ(FindAction<action::OpenTextEdit>(actions)->rect,
              (Rect{kGutter + 2, 2, kWidth - kRowHeight, kRowHeight}));
}

TEST_F(EditKeyController, F2DropsAListOrACalendarDownUnderTheRow) {
    CTestCustomItem custom;
    custom.mode = EM_DROPDOWN;
    AddItem(0, L"combo", IT_COMBO, 0);
    AddItem(0, L"bool", IT_BOOLEAN, true);
    AddItem(0, L"date", IT_DATE, DateValue());
    AddCustom(0, custom);
    for (Id id = 0; id < 4; ++id) {
        Focus({.item = id});
        const Actions actions = keys.PressKey(KEY_F2);
        ASSERT_TRUE(IsOnly<action::DropDown>(actions)) << id;
        const int top = static_cast<int>(id) * kRowHeight;
        EXPECT_EQ(FindAction<action::DropDown>(actions)->item, id);
        EXPECT_EQ(FindAction<action::DropDown>(actions)->cell,
                  (Rect{kGutter, top, kWidth, top + kRowHeight}));
    }
}

TEST_F(EditKeyController, F2RunsADialog) {
    CTestCustomItem custom;
    custom.mode = EM_MODAL;
    FocusNew(IT_COLOR, Color{1});
    EXPECT_TRUE(IsOnly<action::EditInDialog>(keys.PressKey(KEY_F2)));
    FocusNew(custom);
    EXPECT_TRUE(IsOnly<action::EditInDialog>(keys.PressKey(KEY_F2)));
}

TEST_F(EditKeyController, AltEnterPressesTheButtonOfARowThatHasOne) {
    CTestCustomItem custom;
    custom.mode = EM_INPLACE_BUTTON;
    const Id id = FocusNew(custom);
    const Actions actions = keys.PressAltKey(KEY_RETURN);
    ASSERT_TRUE(IsOnly<action::EditInDialog>(actions));
    EXPECT_EQ(FindAction<action::EditInDialog>(actions)->item, id);
    FocusNew(IT_FONT, std::make_shared<const FontValue>());
    EXPECT_TRUE(IsOnly<action::EditInDialog>(keys.PressAltKey(KEY_RETURN)));
    FocusNew(IT_INTEGER, 1);
    EXPECT_TRUE(keys.PressAltKey(KEY_RETURN).empty());
    FocusNew(IT_COMBO, 1);
    EXPECT_TRUE(keys.PressAltKey(KEY_RETURN).empty());
}

TEST_F(EditKeyController, ARowThatIsNotEditableAnswersNothing) {
    CTestCustomItem custom;
    custom.mode = EM_INPLACE_BUTTON;
    FocusNew(IT_DOUBLE, 1.0, false);
    EXPECT_TRUE(IsLeftAlone());
    FocusNew(IT_BOOLEAN, true, false);
    EXPECT_TRUE(IsLeftAlone());
    FocusNew(IT_COLOR, Color{1}, false);
    EXPECT_TRUE(IsLeftAlone());
    FocusNew(custom, false);
    EXPECT_TRUE(IsLeftAlone());
}

TEST_F(EditKeyController, ARowThatWantsTheMouseAloneAnswersNothing) {
    CTestCustomItem custom;
    FocusNew(custom);
    EXPECT_TRUE(IsLeftAlone());
}

TEST_F(EditKeyController, NothingIsEditedWithoutAFocusedItemInDisplay) {
    EXPECT_TRUE(IsLeftAlone());
    model.settings.displayMode = DM_CATEGORIZED;
    Focus({.section = 0});
    EXPECT_TRUE(IsLeftAlone()) << "a section";
    FocusNew(IT_STRING, std::wstring());
    Section(0).collapsed = true;
    Paint();
    EXPECT_TRUE(IsLeftAlone()) << "in a collapsed section";
    model.SetFocus({.item = 77});
    EXPECT_TRUE(IsLeftAlone()) << "an item that is gone";
}

TEST_F(EditKeyController, AnEditorOnTheRowOpensInSightOrNotAtAll) {
    AddRows(0, 40);
    Focus({.item = 30});
    EXPECT_TRUE(keys.PressKey(KEY_F2).empty()) << "nothing scrolls without a bar";
    ShowAt(0, 16);
    Focus({.item = 30});
    Actions actions = keys.PressKey(KEY_F2);
    ASSERT_EQ(actions.size(), 2U);
    EXPECT_EQ(std::get<action::ScrollTo>(actions[0]).position, 31 * kRowHeight - kHeight);
    EXPECT_EQ(std::get<action::OpenTextEdit>(actions[1]).rect,
              (Rect{kGutter + 1, kHeight - kRowHeight + 2, kWidth - 16, kHeight}));
    ShowAt(25 * kRowHeight + 7, 16);
    Focus({.item = 25});
    actions = keys.TypeCharacter(L'7');
    ASSERT_EQ(actions.size(), 2U) << "visible in part";
    EXPECT_EQ(std::get<action::ScrollTo>(actions[0]).position, 25 * kRowHeight);
    EXPECT_EQ(std::get<action::OpenTextEdit>(actions[1]).rect.top, 2);
}

// ---- Characters

TEST_F(EditKeyController, APrintableCharacterOpensTheTextEditWithIt) {
    CTestCustomItem inPlace;
    inPlace.mode = EM_INPLACE;
    CTestCustomItem withButton;
    withButton.mode = EM_INPLACE_BUTTON;
    AddItem(0, L"string", IT_STRING);
    AddItem(0, L"integer", IT_INTEGER, 1);
    AddItem(0, L"double", IT_DOUBLE, 1.0);
    AddCustom(0, inPlace);
    AddCustom(0, withButton);
    for (Id id = 0; id < 5; ++id) {
        Focus({.item = id});
        for (const wchar_t character : std::wstring(L"09-+.,aZ\x00E9\x4E2D'\"(")) {
            EXPECT_TRUE(keys.TakesCharacter(character)) << id << ' ' << int(character);
            const Actions actions = keys.TypeCharacter(character);
            ASSERT_TRUE(IsOnly<action::OpenTextEdit>(actions));
            EXPECT_EQ(FindAction<action::OpenTextEdit>(actions)->typed, character);
        }
    }
}

TEST_F(EditKeyController, OtherCharactersAreLeft) {
    FocusNew(IT_STRING, std::wstring());
    for (const wchar_t character : {L'*', L'/', L' ', L'\t', L'\r', L'\x1b', L'\b', L'\x7F', L'\x9F',
                                    static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)}) {
        EXPECT_FALSE(keys.TakesCharacter(character)) << int(character);
    }
}

TEST_F(EditKeyController, CharactersOpenNoListAndNoDialog) {
    for (const auto& [kind, value] :
         {std::pair{IT_COMBO, Value(0)}, {IT_DATE, Value(DateValue())}, {IT_COLOR, Value(Color{1})}}) {
        FocusNew(kind, value);
        EXPECT_FALSE(keys.TakesCharacter(L'5'));
        EXPECT_TRUE(keys.TypeCharacter(L'5').empty());
        EXPECT_FALSE(keys.TakesCharacter(L' '));
    }
}

TEST_F(EditKeyController, PlusAndMinusOfAFocusedSectionAreLeft) {
    model.settings.displayMode = DM_CATEGORIZED;
    Focus({.section = 0});
    EXPECT_FALSE(keys.TakesCharacter(L'+') || keys.TakesCharacter(L'-'));
}

TEST_F(EditKeyController, SpaceInvertsABooleanAndNotifiesOnce) {
    const Id id = FocusNew(IT_BOOLEAN, true);
    EXPECT_TRUE(keys.TakesCharacter(L' '));
    const Actions actions = keys.TypeCharacter(L' ');
    ASSERT_EQ(actions.size(), 2U);
    EXPECT_EQ(std::get<action::Notify>(actions[0]).item, id);
    EXPECT_TRUE(std::holds_alternative<action::Repaint>(actions[1]));
    EXPECT_FALSE(std::get<bool>(Item(id).value));
}

TEST_F(EditKeyController, SpaceHasNoValueToInvertInAnUndefinedBoolean) {
    const Id id = FocusNew(IT_BOOLEAN, true);
    Item(id).undefined = true;
    EXPECT_FALSE(keys.TakesCharacter(L' '));
    EXPECT_TRUE(keys.TypeCharacter(L' ').empty());
    EXPECT_TRUE(Item(id).undefined);
}

// ---- Pages and ends

class PagedRows : public EditKeyController {
protected:
    // Where a key takes the focus and the scroll position; a position that stays is -1.
    std::pair<Id, int> Go(unsigned key, int position, Id focused) {
        ShowAt(position, 16);
        Focus({.item = focused});
        const Actions actions = keys.PressKey(key);
        EXPECT_TRUE(HasAction<action::Repaint>(actions));
        const auto* const scroll = FindAction<action::ScrollTo>(actions);
        return {model.GetFocus().item, scroll != nullptr ? scroll->position : -1};
    }
    using Where = std::pair<Id, int>;
};

TEST_F(PagedRows, HomeAndEndGoToTheEndsAndBringThemIntoView) {
    AddRows(0, 80);
    EXPECT_EQ(Go(KEY_END, 0, 3), (Where{79, 80 * kRowHeight - kHeight}));
    EXPECT_EQ(Go(KEY_HOME, 700, 40), (Where{0, 0}));
    EXPECT_EQ(Go(KEY_HOME, 0, 4), (Where{0, -1}));
}

TEST_F(PagedRows, APageIsTheRowsThatFitTheWindow) {
    AddRows(0, 80);
    EXPECT_EQ(Go(KEY_PAGE_DOWN, 0, 0), (Where{10, kRowHeight}));
    EXPECT_EQ(Go(KEY_PAGE_DOWN, 600, 30), (Where{40, 620})) << "the row's place in the list";
    EXPECT_EQ(Go(KEY_PAGE_UP, 600, 35), (Where{25, 25 * kRowHeight}));
    EXPECT_EQ(Go(KEY_PAGE_DOWN, 1400, 75), (Where{79, -1}));
    EXPECT_EQ(Go(KEY_PAGE_UP, 0, 4), (Where{0, -1}));
}

TEST_F(PagedRows, ALowWindowStillGoesOn) {
    AddRows(0, 80);
    layout.SetView(
        {.client = {kWidth, 5}, .scrollBarWidth = 16, .scrollPosition = 0, .rowHeight = kRowHeight});
    Focus({.item = 0});
    keys.PressKey(KEY_PAGE_DOWN);
    EXPECT_EQ(model.GetFocus().item, 1U);
}

TEST_F(PagedRows, HeadersAreRowsToo) {
    model.settings.displayMode = DM_CATEGORIZED;
    AddRows(0, 80);
    ShowAt(800, 16);
    Focus({.item = 50});
    const Actions actions = keys.PressKey(KEY_HOME);
    EXPECT_EQ(model.GetFocus(), (RowId{.section = 0}));
    ASSERT_TRUE(HasAction<action::ScrollTo>(actions));
    EXPECT_EQ(FindAction<action::ScrollTo>(actions)->position, 0);
}

TEST_F(PagedRows, NothingHappensWithoutARow) {
    for (const unsigned key : {KEY_HOME, KEY_END, KEY_PAGE_UP, KEY_PAGE_DOWN}) {
        EXPECT_TRUE(keys.PressKey(key).empty());
    }
}

TEST_F(PagedRows, TheEditButtonOfTheLastRowIsForgotten) {
    AddRows(0, 2);
    Focus({.item = 0});
    keys.PressKey(KEY_END);
    EXPECT_TRUE(layout.GetEditButton().IsEmpty());
}

}  // namespace
