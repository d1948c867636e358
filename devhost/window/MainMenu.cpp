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
    {FVIRTKEY, VK_F1, IDM_HELP},
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

wchar_t UpperCase(wchar_t letter) {
    CharUpperBuffW(&letter, 1);
    return letter;
}

void Clear(HMENU menu) {
    while (GetMenuItemCount(menu) > 0) {
        DeleteMenu(menu, 0, MF_BYPOSITION);
    }
}

// Doubles ampersands, which would underline the next letter.
std::wstring EscapeAmpersands(const std::wstring& title) {
    std::wstring shown;
    for (const wchar_t letter : title) {
        shown.append(letter == L'&' ? 2 : 1, letter);
    }
    return shown;
}

// Marks the first letter or digit of a title that no other item has as its mnemonic; the title's first
// character when all are taken, which then selects one item after the other.
std::wstring WithMnemonic(const std::wstring& title, std::wstring& taken) {
    const auto isFree = [&](wchar_t letter) {
        return IsCharAlphaNumericW(letter) != 0 && taken.find(UpperCase(letter)) == std::wstring::npos;
    };
    const auto found = std::find_if(title.begin(), title.end(), isFree);
    if (found == title.end()) {
        return L'&' + EscapeAmpersands(title);
    }
    taken += UpperCase(*found);
    return EscapeAmpersands({title.begin(), found}) + L'&' + EscapeAmpersands({found, title.end()});
}

}  // namespace

CMainMenu::CMainMenu(HWND window)
    : m_menu(CreateMenu()),
      m_items(CreatePopupMenu()),
      m_languages(CreatePopupMenu()),
      m_keys(CreateAcceleratorTableW(kKeys, static_cast<int>(std::size(kKeys)))) {
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
    AddPopup(m_menu, m_languages, L"&Language");
    const HMENU view = CreatePopupMenu();
    AppendMenuW(view, MF_STRING, IDM_FIT, L"&Fit\tCtrl+0");
    AppendMenuW(view, MF_STRING, IDM_SNAP, L"&Snap to end points\tF3");
    AppendMenuW(view, MF_STRING, IDM_OPEN_UNITS, L"&Units...");
    AppendMenuW(view, MF_STRING, IDM_OPEN_PRECISION, L"&Precision...");
    AppendMenuW(view, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(view, MF_STRING, IDM_CLEAR, L"&Clear drawing");
    AddPopup(m_menu, view, L"&View");
    const HMENU help = CreatePopupMenu();
    AppendMenuW(help, MF_STRING, IDM_HELP, L"&Documentation\tF1");
    AppendMenuW(help, MF_STRING, IDM_ABOUT, L"&About DevHost");
    AddPopup(m_menu, help, L"&Help");
    SetItems({});
    SetLanguages({});
    SetMenu(window, m_menu);
}

void CMainMenu::SetItems(const std::vector<std::wstring>& titles) {
    Clear(m_items);
    std::wstring taken = L"LRX";  // those of the entries below
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const std::wstring text = i < kItemKeys
                                      ? EscapeAmpersands(titles[i]) + L"\tCtrl+" + std::to_wstring(i + 1)
                                      : WithMnemonic(titles[i], taken);
        AppendMenuW(m_items, MF_STRING, IDM_ITEM + i, text.c_str());
    }
    if (titles.empty()) {
        AppendMenuW(m_items, MF_STRING | MF_GRAYED, 0, L"No items found");
    }
    AppendMenuW(m_items, MF_SEPARATOR, 0, nullptr);
    const HMENU recent = CreatePopupMenu();
    std::wstring takenByRecent;
    for (std::size_t i = 0; i < m_recent.size(); ++i) {
        AppendMenuW(recent, MF_STRING, IDM_RECENT + i,
                    (WithMnemonic(m_recent[i], takenByRecent) + (i == 0 ? L"\tEnter" : L"")).c_str());
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

void CMainMenu::SetLanguages(const std::vector<std::wstring>& titles) {
    Clear(m_languages);
    std::wstring taken;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        AppendMenuW(m_languages, MF_STRING, IDM_LANGUAGE + i, WithMnemonic(titles[i], taken).c_str());
    }
    if (titles.empty()) {
        AppendMenuW(m_languages, MF_STRING | MF_GRAYED, 0, L"No TavrinRes.dll found");
    }
    m_languageCount = titles.size();
}

void CMainMenu::Update(const MenuState& state) const {
    const auto enable = [&](UINT command, bool enabled) {
        EnableMenuItem(m_menu, command, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    };
    for (std::size_t i = 0; i < m_titles.size(); ++i) {
        enable(static_cast<UINT>(IDM_ITEM + i), state.isIdle);
    }
    for (std::size_t i = 0; i < m_languageCount; ++i) {
        enable(static_cast<UINT>(IDM_LANGUAGE + i), state.isIdle);
    }
    if (state.language) {
        CheckMenuRadioItem(m_languages, IDM_LANGUAGE, static_cast<UINT>(IDM_LANGUAGE + m_languageCount - 1),
                           static_cast<UINT>(IDM_LANGUAGE + *state.language), MF_BYCOMMAND);
    }
    for (std::size_t i = 0; i < m_recent.size(); ++i) {
        enable(static_cast<UINT>(IDM_RECENT + i), state.isIdle);
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
