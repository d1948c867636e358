// An open editor belongs to one row, whatever the client or the user does meanwhile: it ends with its text in
// that row, or it stands on that row's cell.
#include <ostream>

#include "tests/windows/propgrid/GridInputFixture.h"

namespace {

class GridOpenEditor : public GridInputTest {
public:
    using GridInputTest::custom;

protected:
    // Two sections with headers. The edited rows are not the first ones, so that rows may come before them.
    GridOpenEditor() {
        grid.SetDisplayMode(DM_CATEGORIZED);
        before = grid.AddStringItem(section, L"before", L"untouched");
        number = grid.AddIntegerItem(section, L"number", 1);
        combo = grid.AddComboItem(section, L"combo", {L"a", L"b", L"c"}, 1);
        date = grid.AddDateItem(section, L"date", COleDateTime(2024, 2, 14, 0, 0, 0), L"%Y-%m-%d");
        second = grid.AddSection(L"Second");
        after = grid.AddStringItem(second, L"after", L"untouched");
    }

    // As a person does it: the edit of the number, with another one typed.
    void OpenEdit() {
        ClickOn(ValueOf(number));
        TypeInEdit(L"7");
        ASSERT_TRUE(parent.changedItems.empty());
    }
    // The edit's rectangle in client coordinates of the grid.
    CRect EditRect() {
        CRect rect;
        ::GetWindowRect(Edit(), &rect);
        grid.ScreenToClient(&rect);
        return rect;
    }
    // Where the edit of a row belongs.
    CRect CellOf(UINT item) {
        const CRect name = RectsOf(item).first;
        CRect client;
        grid.GetClientRect(&client);
        // Not by its id, which the edit has too.
        const HWND bar = ::FindWindowEx(grid.m_hWnd, nullptr, L"ScrollBar", nullptr);
        const int barWidth = ::IsWindowVisible(bar) ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
        return {grid.GetGutterWidth() + 1, name.top + 2, client.right - barWidth, name.bottom};
    }
    void AddRows(int count) {
        for (int row = 0; row < count; ++row) {
            grid.AddIntegerItem(second, L"row " + std::to_wstring(row), row);
        }
    }

    UINT second = 0, before = 0, number = 0, combo = 0, date = 0, after = 0;
};

// What is done while an editor is open.
struct Operation {
    const char* name;
    std::function<void(GridOpenEditor&, CTestGrid&)> run;
};

std::ostream& operator<<(std::ostream& out, const Operation& operation) {
    return out << operation.name;
}

// Rows by id, in the order of the fixture.
constexpr UINT beforeRow = 0, numberRow = 1, comboRow = 2, dateRow = 3, afterRow = 4;
constexpr UINT firstSection = 0, secondSection = 1;
constexpr UINT none = CPropertyGrid::NO_ID;

void SendKey(CTestGrid& grid, UINT key) {
    grid.SendMessage(WM_KEYDOWN, key, 1);
}

void SendCharacter(CTestGrid& grid, wchar_t character) {
    grid.SendMessage(WM_CHAR, character, 1);
}

// ---- What ends the editor

const Operation endings[] = {
    {"FocusAnotherItem", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetFocusedItem(afterRow)); }},
    {"FocusNoItem", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetFocusedItem(none)); }},
    {"FocusASection", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetFocusedSection(firstSection)); }},
    {"FocusNoSection", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetFocusedSection(none)); }},
    {"AddASection", [](auto&, auto& grid) { grid.AddSection(L"new"); }},
    {"AddASectionBefore", [](auto&, auto& grid) { grid.AddSection(L"new", false, firstSection); }},
    {"AddAnItem",
     [](auto&, auto& grid) {
         const int value = 5;
         EXPECT_NE(grid.AddItem(firstSection, IT_INTEGER, L"new", &value), none);
     }},
    {"AddAnInteger", [](auto&, auto& grid) { grid.AddIntegerItem(secondSection, L"new", 1, L"<%d>"); }},
    {"AddACombo", [](auto&, auto& grid) { grid.AddComboItem(secondSection, L"new", {L"a"}, 0); }},
    {"AddACustomItem",
     [](auto& test, auto& grid) { grid.AddCustomItem(secondSection, L"new", &test.custom); }},
    {"Sort", [](auto&, auto& grid) { grid.SetDisplayMode(DM_SORTED); }},
    {"Flatten", [](auto&, auto& grid) { grid.SetDisplayMode(DM_FLAT); }},
    {"MoveTheDivider", [](auto&, auto& grid) { grid.SetGutterWidth(100); }},
    {"CollapseItsSection", [](auto&, auto& grid) { grid.SetSectionCollapsed(firstSection, true); }},
    {"CollapseAnotherSection", [](auto&, auto& grid) { grid.SetSectionCollapsed(secondSection, true); }},
    {"Enlarge", [](auto&, auto& grid) { grid.MoveWindow(0, 0, 400, 250); }},
    {"MakeLower", [](auto&, auto& grid) { grid.MoveWindow(0, 0, 300, 50); }},
    {"MoveTheWindow", [](auto&, auto& grid) { grid.MoveWindow(5, 7, 300, 200); }},
    {"DestroyTheWindow", [](auto&, auto& grid) { grid.DestroyWindow(); }},
    {"End", [](auto&, auto& grid) { grid.EndEditing(); }},
    {"Down", [](auto&, auto& grid) { SendKey(grid, VK_DOWN); }},
    {"Up", [](auto&, auto& grid) { SendKey(grid, VK_UP); }},
    {"Left", [](auto&, auto& grid) { SendKey(grid, VK_LEFT); }},
    {"Right", [](auto&, auto& grid) { SendKey(grid, VK_RIGHT); }},
    {"Star", [](auto&, auto& grid) { SendCharacter(grid, L'*'); }},
    {"Slash", [](auto&, auto& grid) { SendCharacter(grid, L'/'); }},
    {"PressBeside", [](auto&, auto& grid) { grid.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(20, 190)); }},
};

class GridOpenEditorEnds : public GridOpenEditor, public testing::WithParamInterface<Operation> {
protected:
    void Run() { GetParam().run(*this, grid); }
};

INSTANTIATE_TEST_SUITE_P(Operations, GridOpenEditorEnds, testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(GridOpenEditorEnds, WithItsTextInItsOwnRow) {
    OpenEdit();
    Run();
    ExpectNoEditorLeft();
    EXPECT_EQ(parent.changedItems, Ids{number}) << "once, and for its own row";
    EXPECT_EQ(parent.changedValues, Texts{L"7"});
    if (grid.GetItemCount() > 0) {
        EXPECT_EQ(Value<int>(number), 7);
        EXPECT_EQ(Value<std::wstring>(before), L"untouched");
        EXPECT_EQ(Value<std::wstring>(after), L"untouched");
    }
}

TEST_P(GridOpenEditorEnds, WithoutAChoiceOfAList) {
    ClickOn(ValueOf(combo));
    ASSERT_NE(List(), nullptr);
    ::SendMessage(List(), WM_KEYDOWN, VK_DOWN, 1);
    Run();
    ExpectNoEditorLeft();
    EXPECT_TRUE(parent.changedItems.empty());
    if (grid.GetItemCount() > 0) {
        EXPECT_EQ(Value<int>(combo), 1);
    }
}

TEST_P(GridOpenEditorEnds, WithoutAChoiceOfACalendar) {
    ClickOn(ValueOf(date));
    ASSERT_NE(Calendar(), nullptr);
    Run();
    ExpectNoEditorLeft();
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridOpenEditor, EndsBeforeItsOwnItemGetsAValue) {
    OpenEdit();
    EXPECT_TRUE(grid.SetItemValue(number, 3));
    ExpectNoEditorLeft();
    EXPECT_EQ(parent.changedItems, Ids{number});
    EXPECT_EQ(parent.changedValues, Texts{L"7"});
    EXPECT_EQ(Value<int>(number), 3) << "the client's value comes last";
}

TEST_F(GridOpenEditor, EndsBeforeItsOwnItemIsLocked) {
    OpenEdit();
    EXPECT_TRUE(grid.SetItemEditable(number, false));
    ExpectNoEditorLeft();
    EXPECT_EQ(parent.changedValues, Texts{L"7"});
    EXPECT_EQ(Value<int>(number), 7);
    EXPECT_FALSE(grid.IsItemEditable(number));
}

TEST_F(GridOpenEditor, EndsBeforeItsOwnItemBecomesUndefined) {
    OpenEdit();
    EXPECT_TRUE(grid.SetItemUndefined(number, true));
    ExpectNoEditorLeft();
    EXPECT_EQ(parent.changedValues, Texts{L"7"});
    EXPECT_TRUE(grid.IsItemUndefined(number));
    grid.SetItemUndefined(number, false);
    EXPECT_EQ(Value<int>(number), 7);
}

TEST_F(GridOpenEditor, EndsBeforeItsRowGetsAnotherCustomItem) {
    CScriptedItem other;
    custom.mode = other.mode = EM_INPLACE;
    const UINT item = grid.AddCustomItem(section, L"custom", &custom);
    ClickOn(ValueOf(item));
    TypeInEdit(L"typed");
    EXPECT_TRUE(grid.SetItemValue(item, &other));
    ExpectNoEditorLeft();
    EXPECT_EQ(custom.text, L"typed");
    EXPECT_EQ(other.text, L"custom");
    EXPECT_EQ(Value<ICustomItem*>(item), &other);
}

// Deliberately: the client that removes the rows has done with them.
TEST_F(GridOpenEditor, StaysWhenTheRowsAreRemovedAndItsTextIsDropped) {
    OpenEdit();
    grid.ResetContents();
    EXPECT_TRUE(grid.IsEditing());
    grid.EndEditing();
    ExpectNoEditorLeft();
    EXPECT_TRUE(parent.changedItems.empty());
}

TEST_F(GridOpenEditor, GivesNothingToANewRowWithTheIdOfTheRemovedOne) {
    OpenEdit();
    grid.ResetContents();
    const UINT again = grid.AddSection(L"again");
    ExpectNoEditorLeft();
    grid.AddIntegerItem(again, L"before", 1);
    const UINT same = grid.AddIntegerItem(again, L"number", 2);
    EXPECT_EQ(same, number);
    EXPECT_EQ(grid.GetFocusedItem(), same);
    EXPECT_EQ(Value<int>(same), 2);
    EXPECT_TRUE(parent.changedItems.empty());
}

// The rows that bring the scroll bar narrow the cells.
TEST_F(GridOpenEditor, EndsBeforeAScrollBarLiesUnderIt) {
    OpenEdit();
    AddRows(30);
    ExpectNoEditorLeft();
    ASSERT_TRUE(ScrollBarShows());
    EXPECT_EQ(Value<int>(number), 7);
    ClickOn(ValueOf(number));
    EXPECT_EQ(EditRect(), CellOf(number));
}

// ---- What leaves it where it is

const Operation harmless[] = {
    {"FocusTheSameItem", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetFocusedItem(numberRow)); }},
    {"FocusAnUnknownItem", [](auto&, auto& grid) { EXPECT_FALSE(grid.SetFocusedItem(99)); }},
    {"FocusAnUnknownSection", [](auto&, auto& grid) { EXPECT_FALSE(grid.SetFocusedSection(99)); }},
    {"AddToAnUnknownSection", [](auto&, auto& grid) { EXPECT_EQ(grid.AddIntegerItem(99, L"x", 1), none); }},
    {"AddAName", [](auto&, auto& grid) { EXPECT_EQ(grid.AddIntegerItem(firstSection, L"combo", 1), none); }},
    {"AddNothing",
     [](auto&, auto& grid) { EXPECT_EQ(grid.AddCustomItem(firstSection, L"x", nullptr), none); }},
    {"SetAnotherItem", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetItemValue(comboRow, 2)); }},
    {"SetAnotherType", [](auto&, auto& grid) { EXPECT_FALSE(grid.SetItemValue(numberRow, 2.5)); }},
    {"SetAnUnknownItem", [](auto&, auto& grid) { EXPECT_FALSE(grid.SetItemValue(99, 2)); }},
    {"LockAnotherItem", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetItemEditable(beforeRow, false)); }},
    {"LeaveItEditable", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetItemEditable(numberRow, true)); }},
    {"MakeAnotherUndefined", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetItemUndefined(dateRow, true)); }},
    {"LeaveItDefined", [](auto&, auto& grid) { EXPECT_TRUE(grid.SetItemUndefined(numberRow, false)); }},
    {"CollapseAnUnknownSection", [](auto&, auto& grid) { EXPECT_FALSE(grid.SetSectionCollapsed(99, true)); }},
    {"TheSameDivider", [](auto&, auto& grid) { grid.SetGutterWidth(grid.GetGutterWidth()); }},
    {"AcceptValues", [](auto&, auto& grid) { grid.AcceptValues(); }},
    {"Colour", [](auto&, auto& grid) { grid.SetBackColor(RGB(1, 2, 3)); }},
    {"Plus", [](auto&, auto& grid) { SendCharacter(grid, L'+'); }},
    {"Minus", [](auto&, auto& grid) { SendCharacter(grid, L'-'); }},
    {"OtherKeys",
     [](auto&, auto& grid) {
         for (const UINT key : {VK_RETURN, VK_TAB, VK_ESCAPE, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_F2}) {
             SendKey(grid, key);
         }
     }},
    {"OtherCharacters",
     [](auto&, auto& grid) {
         for (const wchar_t character : std::wstring(L"a 1\t\r\x1b")) {
             SendCharacter(grid, character);
         }
     }},
};

class GridOpenEditorStays : public GridOpenEditor, public testing::WithParamInterface<Operation> {};

INSTANTIATE_TEST_SUITE_P(Operations, GridOpenEditorStays, testing::ValuesIn(harmless),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(GridOpenEditorStays, OnItsCellWithItsText) {
    OpenEdit();
    const HWND edit = Edit();
    GetParam().run(*this, grid);
    ASSERT_EQ(Edit(), edit);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_EQ(grid.GetFocusedItem(), number);
    EXPECT_EQ(EditRect(), CellOf(number));
    EXPECT_TRUE(parent.changedItems.empty());
    ::SendMessage(edit, WM_CHAR, VK_RETURN, 1);
    ExpectNoEditorLeft();
    EXPECT_EQ(Value<int>(number), 7);
    EXPECT_EQ(parent.changedItems, Ids{number});
}

// ---- The owner, which is notified of the text before the operation goes on

class GridOpenEditorAndItsOwner : public GridOpenEditor {
protected:
    GridOpenEditorAndItsOwner() { grid.SetOwner(&owner); }
    ~GridOpenEditorAndItsOwner() override {
        owner.onChanged = [](UINT) {};
        grid.SetOwner(nullptr);
    }
    // Runs `act` in the owner's handler when the open edit ends.
    void OpenEdit(std::function<void()> act) {
        owner.onChanged = [this, act = std::move(act)](UINT) {
            const auto once = act;
            owner.onChanged = [](UINT) {};
            once();
        };
        ClickOn(ValueOf(number));
        TypeInEdit(L"7");
    }

    CListeningOwner owner;
};

TEST_F(GridOpenEditorAndItsOwner, WhoRemovesTheRowsLeavesNothingToFocus) {
    OpenEdit([&] { grid.ResetContents(); });
    EXPECT_FALSE(grid.SetFocusedItem(after));
    ExpectNoEditorLeft();
    EXPECT_EQ(grid.GetFocusedItem(), number) << "as the removal left it";
}

TEST_F(GridOpenEditorAndItsOwner, WhoRemovesTheRowsLeavesNothingToSet) {
    const std::vector<std::function<bool()>> operations = {
        [&] { return grid.SetItemValue(number, 3); },
        [&] { return grid.SetItemEditable(number, false); },
        [&] { return grid.SetItemUndefined(number, true); },
        [&] { return grid.SetSectionCollapsed(section, true); },
        [&] { return grid.SetFocusedSection(section); },
    };
    for (const auto& operation : operations) {
        OpenEdit([&] { grid.ResetContents(); });
        EXPECT_FALSE(operation());
        ExpectNoEditorLeft();
        EXPECT_EQ(grid.GetItemCount(), 0U);
        section = grid.AddSection(L"again");
        before = grid.AddStringItem(section, L"before", L"untouched");
        number = grid.AddIntegerItem(section, L"number", 1);
    }
}

TEST_F(GridOpenEditorAndItsOwner, FindsANewRowWithAllThatItHas) {
    std::wstring found;
    OpenEdit([&] { found = grid.GetItemText(static_cast<UINT>(grid.GetItemCount() - 1)); });
    grid.AddIntegerItem(section, L"new", 5, L"<%d>");
    EXPECT_EQ(found, L"<5>");
    OpenEdit([&] { found = grid.GetItemText(static_cast<UINT>(grid.GetItemCount() - 1)); });
    grid.AddComboItem(section, L"choice", {L"a", L"b"}, 1);
    EXPECT_EQ(found, L"b");
}

TEST_F(GridOpenEditorAndItsOwner, MayDestroyTheWindowUnderAnyOperation) {
    const std::vector<std::function<void()>> operations = {
        [&] { grid.SetFocusedItem(after); },
        [&] { grid.SetItemValue(number, 3); },
        [&] { grid.SetDisplayMode(DM_SORTED); },
        [&] { grid.SetGutterWidth(80); },
        [&] { grid.SetSectionCollapsed(section, true); },
        [&] { grid.AddSection(L"new"); },
        [&] { grid.AddIntegerItem(second, L"new" + std::to_wstring(grid.GetItemCount()), 1); },
        [&] { grid.MoveWindow(0, 0, 200, 150); },
        [&] { PressKey(VK_DOWN); },
        [&] { PressKey(VK_LEFT); },
        [&] { Type(L'/'); },
        [&] { Turn(-120); },
        [&] { Scroll(SB_LINEDOWN); },
    };
    for (const auto& operation : operations) {
        AddRows(30);  // so that there is something to scroll
        grid.SetDisplayMode(DM_CATEGORIZED);
        grid.SetSectionCollapsed(section, false);
        grid.SetSectionCollapsed(second, false);
        OpenEdit([&] { grid.DestroyWindow(); });
        ASSERT_TRUE(grid.IsEditing());
        operation();
        EXPECT_EQ(grid.m_hWnd, nullptr);
        EXPECT_FALSE(grid.IsEditing());
        CreateGrid(300, 200);
        grid.SetOwner(&owner);
    }
}

TEST_F(GridOpenEditorAndItsOwner, MayOpenAnotherEditorWhichEndsInItsRowToo) {
    OpenEdit([&] {
        ClickOn(ValueOf(before));
        ::SetWindowText(::GetFocus(), L"also typed");
    });
    grid.SetFocusedItem(after);
    ExpectNoEditorLeft();
    EXPECT_EQ(Value<int>(number), 7);
    EXPECT_EQ(Value<std::wstring>(before), L"also typed");
    EXPECT_EQ(Value<std::wstring>(after), L"untouched");
    EXPECT_EQ(grid.GetFocusedItem(), after);
}

}  // namespace
