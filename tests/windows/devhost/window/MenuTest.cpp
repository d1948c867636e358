// The menu, its keys, and the unit format of the status line.
#include "tests/windows/devhost/window/WindowFixture.h"

using namespace tests;
using namespace devhost;

namespace {

class Menu : public CWindowFixture {
protected:
    // The state and the text of a command as the user would see them.
    UINT StateOf(UINT command) {
        const HMENU menu = GetMenu(m_window.Handle());
        SendMessageW(m_window.Handle(), WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
        return GetMenuState(menu, command, MF_BYCOMMAND);
    }
    bool IsGray(UINT command) { return (StateOf(command) & MF_GRAYED) != 0; }
    std::wstring Title(UINT command) const {
        wchar_t text[100] = L"";
        GetMenuStringW(GetMenu(m_window.Handle()), command, text, 100, MF_BYCOMMAND);
        return text;
    }

    // Presses a key while Control is held.
    void PressWithControl(WPARAM key) {
        BYTE keys[256] = {};
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
        PostKey(key);
        Handle();
        keys[VK_CONTROL] = 0;
        SetKeyboardState(keys);
    }
};

TEST_F(Menu, AnItemIsChosenByItsCommandOrItsKey) {
    std::vector<std::size_t> chosen;
    m_window.SetItems({L"Door", L"Doors & more"}, [&](std::size_t index) { chosen.push_back(index); });
    EXPECT_EQ(Title(IDM_ITEM), L"Door\tCtrl+1");
    EXPECT_EQ(Title(IDM_ITEM + 1), L"Doors && more\tCtrl+2");
    PostCommand(IDM_ITEM + 1);
    Handle();
    PressWithControl('1');
    EXPECT_EQ(chosen, (std::vector<std::size_t>{1, 0}));
    PressWithControl('3');
    EXPECT_EQ(chosen.size(), 2u) << "there is no third item";
}

// The letters that are underlined in a menu, and '-' for an entry that can be reached by none and has no key.
std::wstring MnemonicsOf(HMENU menu) {
    std::wstring letters;
    for (int entry = 0; entry < GetMenuItemCount(menu); ++entry) {
        wchar_t text[100] = L"";
        if (GetMenuStringW(menu, static_cast<UINT>(entry), text, 100, MF_BYPOSITION) == 0) {
            continue;  // a separator
        }
        std::wstring title = text;
        for (std::size_t at = 0; (at = title.find(L"&&", at)) != title.npos;) {
            title.erase(at, 2);
        }
        const std::size_t mark = title.find(L'&');
        letters += mark != title.npos ? title[mark + 1] : title.find(L'\t') != title.npos ? L'k' : L'-';
    }
    return letters;
}

TEST_F(Menu, EveryEntryHasAKeyOrALetter) {
    const HMENU menu = GetMenu(m_window.Handle());
    EXPECT_EQ(MnemonicsOf(menu), L"IDPLVH");
    EXPECT_EQ(MnemonicsOf(GetSubMenu(menu, 1)), L"URS");
    EXPECT_EQ(MnemonicsOf(GetSubMenu(menu, 2)), L"R");
    EXPECT_EQ(MnemonicsOf(GetSubMenu(menu, 4)), L"FSUPC");
    EXPECT_EQ(MnemonicsOf(GetSubMenu(menu, 5)), L"DA");
}

TEST_F(Menu, ItemsWithoutAKeyHaveDifferentLetters) {
    std::vector<std::wstring> titles(9, L"Door");
    for (const wchar_t* const title : {L"Stairs", L"Shelf", L"S & T", L"Xylophone", L"Sh"}) {
        titles.emplace_back(title);
    }
    m_window.SetItems(titles, nullptr);
    EXPECT_EQ(Title(IDM_ITEM + 9), L"&Stairs");
    EXPECT_EQ(Title(IDM_ITEM + 10), L"S&helf");
    EXPECT_EQ(Title(IDM_ITEM + 11), L"S && &T");
    EXPECT_EQ(Title(IDM_ITEM + 12), L"X&ylophone") << "Exit has the X";
    EXPECT_EQ(Title(IDM_ITEM + 13), L"&Sh") << "both are taken";
    EXPECT_EQ(MnemonicsOf(GetSubMenu(GetMenu(m_window.Handle()), 0)), L"kkkkkkkkkShTySLRx");
}

TEST_F(Menu, NewItemsReplaceTheOldOnes) {
    m_window.SetItems({L"Door", L"Window"}, nullptr);
    m_window.SetItems({L"Stairs"}, nullptr);
    EXPECT_EQ(Title(IDM_ITEM), L"Stairs\tCtrl+1");
    EXPECT_EQ(Title(IDM_ITEM + 1), L"");
}

TEST_F(Menu, TheCurrentLanguageIsMarkedAndAnotherIsChosen) {
    std::vector<std::size_t> chosen;
    m_window.SetLanguages({L"English", L"Italian"}, [&](std::size_t index) { chosen.push_back(index); });
    EXPECT_EQ(Title(IDM_LANGUAGE + 1), L"&Italian");
    EXPECT_FALSE(StateOf(IDM_LANGUAGE) & MF_CHECKED);
    m_window.SetLanguage(1);
    EXPECT_FALSE(StateOf(IDM_LANGUAGE) & MF_CHECKED);
    EXPECT_TRUE(StateOf(IDM_LANGUAGE + 1) & MF_CHECKED);
    PostCommand(IDM_LANGUAGE);
    PostCommand(IDM_LANGUAGE + 2);
    Handle();
    EXPECT_EQ(chosen, std::vector<std::size_t>{0});
    m_window.SetLanguage(0);
    EXPECT_TRUE(StateOf(IDM_LANGUAGE) & MF_CHECKED);
    EXPECT_FALSE(StateOf(IDM_LANGUAGE + 1) & MF_CHECKED);
}

TEST_F(Menu, ReloadIsGreyUntilSomeoneDoesIt) {
    EXPECT_TRUE(IsGray(IDM_RELOAD));
    int reloads = 0;
    m_window.SetReloadHandler([&] { ++reloads; });
    EXPECT_FALSE(IsGray(IDM_RELOAD));
    PostKey(VK_F5);
    Handle();
    EXPECT_EQ(reloads, 1);
}

TEST_F(Menu, F1AsksForHelpAtAnyTime) {
    int calls = 0;
    m_window.SetHelpHandler([&] { ++calls; });
    PostKey(VK_F1);
    Handle();
    m_window.SetBusy(true);
    PostKey(VK_F1);
    Handle();
    m_window.SetBusy(false);
    EXPECT_EQ(calls, 2);
}

TEST_F(Menu, WhileBusyWhatBeginsSomethingIsGrey) {
    m_window.SetItems({L"Door"}, [](std::size_t) {});
    m_window.SetLanguages({L"English"}, [](std::size_t) {});
    m_window.SetReloadHandler([] {});
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    for (const UINT command : {UINT{IDM_ITEM}, UINT{IDM_LANGUAGE}, UINT{IDM_RELOAD}, UINT{IDM_CLEAR}}) {
        EXPECT_FALSE(IsGray(command)) << command;
        m_window.SetBusy(true);
        EXPECT_TRUE(IsGray(command)) << command;
        EXPECT_FALSE(IsGray(IDM_FIT));
        m_window.SetBusy(false);
    }
}

TEST_F(Menu, ClearEmptiesTheDrawing) {
    EXPECT_TRUE(IsGray(IDM_CLEAR));
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    EXPECT_FALSE(IsGray(IDM_CLEAR));
    PostCommand(IDM_CLEAR);
    Handle();
    EXPECT_TRUE(m_drawing.Entities().empty());
}

TEST_F(Menu, UndoAndRedoTakeCommandsBackAndRepeatThem) {
    EXPECT_TRUE(IsGray(IDM_UNDO));
    m_drawing.BeginCommand();
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    PostCommand(IDM_CLEAR);
    Handle();
    EXPECT_TRUE(IsGray(IDM_REDO));
    PressWithControl('Z');
    EXPECT_EQ(m_drawing.Entities().size(), 1u) << "what Clear has removed";
    PressWithControl('Z');
    EXPECT_TRUE(m_drawing.Entities().empty());
    EXPECT_TRUE(IsGray(IDM_UNDO));
    PressWithControl('Y');
    EXPECT_EQ(m_drawing.Entities().size(), 1u);
}

TEST_F(Menu, TheKeysOfUndoAreThePromptsWhileItHasAText) {
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    SetWindowTextW(Part(IDC_PROMPT), L"(door");
    PressWithControl('Z');
    EXPECT_EQ(m_drawing.Entities().size(), 1u);
    SetWindowTextW(Part(IDC_PROMPT), L"");
    PressWithControl('Z');
    EXPECT_TRUE(m_drawing.Entities().empty());
}

TEST_F(Menu, SaveAndRescanAreGreyUntilSomeoneDoesThem) {
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    EXPECT_TRUE(IsGray(IDM_SAVE));
    EXPECT_TRUE(IsGray(IDM_RESCAN));
    int rescans = 0;
    m_window.SetRescanHandler([&] { ++rescans; });
    m_window.SetSaveHandler([](const std::wstring&) {});
    EXPECT_FALSE(IsGray(IDM_SAVE));
    m_drawing.Clear();
    EXPECT_TRUE(IsGray(IDM_SAVE)) << "there is nothing to save";
    PostCommand(IDM_RESCAN);
    Handle();
    EXPECT_EQ(rescans, 1);
}

TEST_F(Menu, TheLastItemsAreListedTheLastOneFirst) {
    std::vector<std::size_t> chosen;
    const std::vector<std::wstring> items = {L"a", L"b", L"c", L"d", L"e", L"f", L"g"};
    m_window.SetItems(items, [&](std::size_t index) { chosen.push_back(index); });
    EXPECT_EQ(Title(IDM_RECENT), L"");
    for (const int item : {0, 1, 2, 3, 4, 5, 1}) {
        PostCommand(IDM_ITEM + item);
    }
    Handle();
    EXPECT_EQ(Title(IDM_RECENT), L"&b\tEnter");
    EXPECT_EQ(Title(IDM_RECENT + 1), L"&f");
    EXPECT_EQ(Title(IDM_RECENT + 4), L"&c");
    EXPECT_EQ(Title(IDM_RECENT + 5), L"");
    chosen.clear();
    PostCommand(IDM_RECENT + 1);
    Handle();
    EXPECT_EQ(chosen, std::vector<std::size_t>{5});
    m_window.SetItems({L"c", L"f"}, [&](std::size_t index) { chosen.push_back(index); });
    EXPECT_EQ(Title(IDM_RECENT), L"&f\tEnter") << "the others have gone";
    EXPECT_EQ(Title(IDM_RECENT + 1), L"&c");
    EXPECT_EQ(Title(IDM_RECENT + 2), L"");
    PostKey(VK_RETURN);
    Handle();
    EXPECT_EQ(chosen, (std::vector<std::size_t>{5, 1})) << "Enter repeats the last one";
}

TEST_F(Menu, TheIdleHandlerIsNotCalledWhileSomethingRuns) {
    int calls = 0;
    m_window.SetIdleHandler([&] { ++calls; });
    const auto tick = [this] { SendMessageW(m_window.Handle(), WM_TIMER, 1, 0); };
    tick();
    EXPECT_EQ(calls, 1);
    m_window.SetBusy(true);
    tick();
    m_window.SetBusy(false);
    SendMessageW(m_window.Handle(), WM_ENTERMENULOOP, 0, 0);
    tick();
    EXPECT_EQ(calls, 1) << "busy, and in a menu";
    SendMessageW(m_window.Handle(), WM_EXITMENULOOP, 0, 0);
    tick();
    EXPECT_EQ(calls, 2);
}

TEST_F(Menu, SnapIsTicked) {
    EXPECT_TRUE(StateOf(IDM_SNAP) & MF_CHECKED);
    PostCommand(IDM_SNAP);
    Handle();
    EXPECT_FALSE(StateOf(IDM_SNAP) & MF_CHECKED);
}

TEST_F(Menu, ChoosingUnitsOrPrecisionReportsBoth) {
    std::vector<std::pair<int, int>> formats;
    m_window.SetFormat(2, 3);
    m_window.SetFormatHandler([&](int lunits, int luprec) { formats.emplace_back(lunits, luprec); });
    PostCommand(IDM_UNITS + 5);
    PostCommand(IDM_PRECISION + 8);
    PostCommand(IDM_PRECISION);
    Handle();
    EXPECT_EQ(formats, (std::vector<std::pair<int, int>>{{5, 3}, {5, 8}, {5, 0}}));
}

TEST_F(Menu, ExitClosesTheWindow) {
    PostCommand(IDM_EXIT);
    m_window.Run();
    EXPECT_EQ(m_window.Handle(), nullptr);
}

}  // namespace
