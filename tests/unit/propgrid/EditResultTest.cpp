// What becomes of what an editor gives back.
#include "propgrid/controller/EditResult.h"

#include "tests/unit/propgrid/GridFixture.h"

namespace {

using namespace tests;

class EditResult : public GridFixture {
protected:
    EditResult() { AddSection(); }
    // The value is stored by the time that the actions are carried out: they notify of it once.
    static void ExpectNotified(const Actions& actions, Id item) {
        ASSERT_EQ(actions.size(), 2U);
        ASSERT_TRUE(std::holds_alternative<action::Notify>(actions[0]));
        EXPECT_EQ(std::get<action::Notify>(actions[0]).item, item);
        EXPECT_TRUE(std::holds_alternative<action::Repaint>(actions[1]));
    }
};

TEST_F(EditResult, ATypedTextIsStoredAndNotified) {
    const Id id = AddItem(0, L"string", IT_STRING, std::wstring(L"old"));
    ExpectNotified(TakeEditText(model, id, L"new", true), id);
    EXPECT_EQ(std::get<std::wstring>(Item(id).value), L"new");
}

TEST_F(EditResult, NoTextForANumberSendsNoNotification) {
    const Id id = AddItem(0, L"integer", IT_INTEGER, 5);
    const Actions actions = TakeEditText(model, id, L"", true);
    EXPECT_FALSE(HasAction<action::Notify>(actions));
    EXPECT_TRUE(HasAction<action::Repaint>(actions)) << "the edit is gone from the row";
}

TEST_F(EditResult, ATextIsGivenToACustomItem) {
    CTestCustomItem custom;
    const Id id = AddCustom(0, custom);
    const Actions actions = TakeEditText(model, id, L"typed", true);
    ASSERT_TRUE(HasAction<action::GiveText>(actions));
    EXPECT_EQ(FindAction<action::GiveText>(actions)->item, id);
    EXPECT_EQ(FindAction<action::GiveText>(actions)->text, L"typed");
    EXPECT_TRUE(FindAction<action::GiveText>(actions)->typed);
    EXPECT_FALSE(HasAction<action::Notify>(actions));
}

TEST_F(EditResult, ATextForAnotherKindOrNoRowIsIgnored) {
    const Id id = AddItem(0, L"boolean", IT_BOOLEAN, true);
    EXPECT_TRUE(TakeEditText(model, id, L"1", true).empty());
    EXPECT_TRUE(TakeEditText(model, 99, L"1", true).empty());
    EXPECT_TRUE(TakeEditText(model, kNoId, L"1", true).empty());
}

TEST_F(EditResult, AChoiceIsStoredAndNotified) {
    const Id id = AddItem(0, L"combo", IT_COMBO, 0);
    ExpectNotified(TakeListChoice(model, id, 7), id);
    EXPECT_EQ(std::get<int>(Item(id).value), 7);
    EXPECT_TRUE(TakeListChoice(model, AddItem(0, L"integer", IT_INTEGER, 5), 7).empty());
    EXPECT_TRUE(TakeListChoice(model, kNoId, 7).empty());
}

TEST_F(EditResult, ADateIsStoredAndNotified) {
    const Id id = AddItem(0, L"date", IT_DATE, DateValue{1});
    ExpectNotified(TakeCalendarDate(model, id, {2}), id);
    EXPECT_EQ(std::get<DateValue>(Item(id).value), DateValue{2});
    EXPECT_TRUE(TakeCalendarDate(model, AddItem(0, L"time", IT_DATETIME, DateValue{1}), {2}).empty());
    EXPECT_TRUE(TakeCalendarDate(model, kNoId, {2}).empty());
}

TEST_F(EditResult, ADialogsValueIsStoredAndNotifiedForTheRowThatItWasOpenedFor) {
    const Id id = AddItem(0, L"text", IT_TEXT, std::wstring(L"old"));
    Item(id).undefined = true;
    ExpectNotified(TakeDialogValue(model, id, IT_TEXT, std::wstring(L"new")), id);
    EXPECT_EQ(std::get<std::wstring>(Item(id).value), L"new");
    EXPECT_FALSE(Item(id).undefined);
    model.Clear();
    EXPECT_TRUE(TakeDialogValue(model, id, IT_TEXT, std::wstring(L"late")).empty());
    AddSection();
    ASSERT_EQ(AddItem(0, L"another", IT_STRING, std::wstring(L"mine")), id);
    EXPECT_TRUE(TakeDialogValue(model, id, IT_TEXT, std::wstring(L"late")).empty());
    EXPECT_EQ(std::get<std::wstring>(Item(id).value), L"mine");
}

}  // namespace
