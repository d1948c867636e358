// The main window's menu and the keys that stand for its commands (Commands.h has their numbers).
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

// What can be done at the moment.
struct SMenuState {
    bool isIdle = true;  // no call is running and nothing is being asked
    bool canReload = false;
    bool hasDrawing = false;
    bool hasSnap = false;
};

class CMainMenu {
public:
    // Gives the window its menu, which goes away with the window.
    explicit CMainMenu(HWND window);

    // The entries of the menu Items; the first nine have keys, Ctrl+1 and so on.
    void SetItems(const std::vector<std::wstring>& titles);

    // To be called before the menu opens and before a key is taken for a command: makes grey what cannot be
    // done, which TranslateAccelerator respects.
    void Update(const SMenuState& state) const;

    HACCEL Keys() const { return m_keys.get(); }

private:
    struct SKeysDeleter {
        using pointer = HACCEL;
        void operator()(HACCEL keys) const { DestroyAcceleratorTable(keys); }
    };

    HMENU m_menu;
    HMENU m_items;
    std::size_t m_itemCount = 0;
    std::unique_ptr<HACCEL, SKeysDeleter> m_keys;
};
