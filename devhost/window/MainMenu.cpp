#include "devhost/window/MainMenu.h"

#include <algorithm>
#include <iterator>

#include "devhost/window/Commands.h"

namespace devhost {

namespace {

ACCEL kKeys[] = {
    {FVIRTKEY, VK_F5, IDM_RELOAD},
    {FVIRTKEY, VK_F3, IDM_SNAP},
    {FVIRTKEY | FCONTROL, '0', IDM_FIT},
    {FVIRTKEY, VK_F1, IDM_ABOUT},
    {FVIRTKEY | FCONTROL, 'Z', IDM_UNDO},
    {FVIRTKEY | FCONTROL, 'Y', IDM_REDO},
    {FVIRTKEY | FCONTROL, 'S', IDM_SAVE},
    {FVIRTKEY | FCONTROL, '1', IDM_ITEM},
    {FVIRTKEY | FCONTROL, '2', IDM_ITEM + 1},
    {FVIRTKEY | FCONTROL, '3', IDM_ITEM + 2},
    {FVIRTKEY | FCONTROL, '4', IDM_ITEM + 3},
    {FVIRTKEY | FCONTROL, '5', IDM_ITEM + 4},
    {FVIRTKEY | FCONTROL, '6', IDM_ITEM + 5},
    {FVIRTKEY | FCONTROL, '7', IDM_ITEM + 6},
    {FVIRTKEY | FCONTROL, '8', IDM_ITEM + 7},
    {FVIRTKEY | FCONTROL, '9', IDM_ITEM + 8},
};
constexpr std::size_t kItemKeys = 9;

void AddPopup(HMENU menu, HMENU popup, const wchar_t* title) {
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), title);
}

// Doubles ampersands, which would underline the next letter.
std::wstring Shown(const std::wstring& title) {
    std::wstring shown;
    for (const wchar_t letter : title) {
        shown.append(letter == L'&' ? 2 : 1, letter);
    }
    return shown;
}

}  // namespace

CMainMenu::CMainMenu(HWND window)
    : m_menu(CreateMenu()),
      m_items(CreatePopupMenu()),
      m_keys(CreateAcceleratorTableW(kKeys, int(std::size(kKeys)))) {
    AddPopup(m_menu, m_items, L"&Items");
    const HMENU drawing = CreatePopupMenu();
    AppendMenuW(drawing, MF_STRING, IDM_UNDO, L"&Undo\tCtrl+Z");
    AppendMenuW(drawing, MF_STRING, IDM_REDO, L"&Redo\tCtrl+Y");
    AppendMenuW(drawing, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(drawing, MF_STRING, IDM_SAVE, L"&Save drawing as SVG...\tCtrl+S");
    AddPopup(m_menu, drawing, L"&Drawing");
    const HMENU plugIn = CreatePopupMenu();
    AppendMenuW(plugIn, MF_STRING, IDM_RELOAD, L"&Reload\tF5");
    AddPopup(m_menu, plugIn, L"&Plug-in");
    const HMENU view = CreatePopupMenu();
    AppendMenuW(view, MF_STRING, IDM_FIT, L"&Fit\tCtrl+0");
    AppendMenuW(view, MF_STRING, IDM_SNAP, L"&Snap to end points\tF3");
    AppendMenuW(view, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(view, MF_STRING, IDM_CLEAR, L"&Clear drawing");
    AddPopup(m_menu, view, L"&View");
    const HMENU help = CreatePopupMenu();
    AppendMenuW(help, MF_STRING, IDM_ABOUT, L"&About DevHost\tF1");
    AddPopup(m_menu, help, L"&Help");
    SetItems({});
    SetMenu(window, m_menu);
}

void CMainMenu::SetItems(const std::vector<std::wstring>& titles) {
    while (GetMenuItemCount(m_items) > 0) {
        DeleteMenu(m_items, 0, MF_BYPOSITION);
    }
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const std::wstring key = i < kItemKeys ? L"\tCtrl+" + std::to_wstring(i + 1) : L"";
        AppendMenuW(m_items, MF_STRING, IDM_ITEM + i, (Shown(titles[i]) + key).c_str());
    }
    if (titles.empty()) {
        AppendMenuW(m_items, MF_STRING | MF_GRAYED, 0, L"No items found");
    }
    AppendMenuW(m_items, MF_SEPARATOR, 0, nullptr);
    const HMENU recent = CreatePopupMenu();
    for (std::size_t i = 0; i < m_recent.size(); ++i) {
        AppendMenuW(recent, MF_STRING, IDM_RECENT + i,
                    (Shown(m_recent[i]) + (i == 0 ? L"\tEnter" : L"")).c_str());
    }
    AppendMenuW(m_items, MF_POPUP | (m_recent.empty() ? MF_GRAYED : 0), reinterpret_cast<UINT_PTR>(recent),
                L"&Last items");
    AppendMenuW(m_items, MF_STRING, IDM_RESCAN, L"&Rescan");
    AppendMenuW(m_items, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(m_items, MF_STRING, IDM_EXIT, L"E&xit\tAlt+F4");
    m_titles = titles;
}

void CMainMenu::SetRecent(const std::vector<std::wstring>& titles) {
    m_recent = titles;
    SetItems(std::vector<std::wstring>(m_titles));
}

void CMainMenu::Update(const MenuState& state) const {
    const auto enable = [&](UINT command, bool enabled) {
        EnableMenuItem(m_menu, command, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    };
    for (std::size_t i = 0; i < m_titles.size(); ++i) {
        enable(UINT(IDM_ITEM + i), state.isIdle);
    }
    for (std::size_t i = 0; i < m_recent.size(); ++i) {
        enable(UINT(IDM_RECENT + i), state.isIdle);
    }
    enable(IDM_EXIT, state.isIdle);
    enable(IDM_RESCAN, state.isIdle && state.canRescan);
    enable(IDM_SAVE, state.isIdle && state.canSave && state.hasDrawing);
    enable(IDM_UNDO, state.isIdle && state.canUndo && !state.isTyping);
    enable(IDM_REDO, state.isIdle && state.canRedo && !state.isTyping);
    enable(IDM_RELOAD, state.isIdle && state.canReload);
    enable(IDM_CLEAR, state.isIdle && state.hasDrawing);
    enable(IDM_ABOUT, state.isIdle);
    CheckMenuItem(m_menu, IDM_SNAP, MF_BYCOMMAND | (state.hasSnap ? MF_CHECKED : MF_UNCHECKED));
}

}  // namespace devhost
