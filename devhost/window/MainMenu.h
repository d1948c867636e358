// The main window's menu and its accelerator keys. The command ids are in Commands.h.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace devhost {

// Determines which commands are enabled.
struct MenuState {
    bool isIdle = true;  // no call is running and no question is open
    bool canReload = false;
    bool canRescan = false;
    bool canSave = false;
    bool canUndo = false;
    bool canRedo = false;
    bool isTyping = false;  // the prompt has a text, which the keys of Undo and Redo are for
    bool hasDrawing = false;
    bool hasSnap = false;
    std::optional<std::size_t> language;  // the index of the current one
};

class CMainMenu {
public:
    // Sets the window's menu, which the window owns.
    explicit CMainMenu(HWND window);

    // The entries of the menu Items. The first nine have the keys Ctrl+1 to Ctrl+9, the others mnemonics.
    void SetItems(const std::vector<std::wstring>& titles);
    // The entries of the menu Items > Last items, the last one first.
    void SetRecent(const std::vector<std::wstring>& titles);

    // The entries of the menu Language.
    void SetLanguages(const std::vector<std::wstring>& titles);

    // To be called before the menu opens and before TranslateAccelerator, which ignores disabled commands:
    // enables and disables the commands.
    void Update(const MenuState& state) const;

    HACCEL Keys() const { return m_keys.get(); }

private:
    struct KeysDeleter {
        using pointer = HACCEL;
        void operator()(HACCEL keys) const { DestroyAcceleratorTable(keys); }
    };

    HMENU m_menu;
    HMENU m_items;
    HMENU m_languages;
    std::size_t m_languageCount = 0;
    std::vector<std::wstring> m_recent;
    std::vector<std::wstring> m_titles;
    std::unique_ptr<HACCEL, KeysDeleter> m_keys;
};

}  // namespace devhost
