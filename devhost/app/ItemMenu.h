// The items of the window's menu: run when they are chosen, loaded when they are called at the prompt,
// checked when they are chosen, loaded or changed, and looked for again from time to time.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "devhost/app/ItemCatalog.h"
#include "devhost/app/ItemCheck.h"
#include "devhost/app/SearchPath.h"
#include "devhost/app/Session.h"

namespace devhost {

class CItemMenu {
public:
    // All must outlive the menu. Sets the window's handlers for items, until it is destroyed.
    CItemMenu(CItemCatalog& catalog, CSearchPath& searchPath, CSession& session, CTextOutput& output,
              CMainWindow& window);
    ~CItemMenu();
    CItemMenu(const CItemMenu&) = delete;
    CItemMenu& operator=(const CItemMenu&) = delete;

    CItemCheck& Check() { return m_check; }
    // Called after items were added or removed, and after the user chose Rescan.
    void SetRescanListener(std::function<void()> onRescan) { m_onRescan = std::move(onRescan); }

private:
    void Offer();
    void Run(std::size_t index);
    // For a typed call: finds the item, even a new one, by its name in capitals, and checks it.
    std::optional<std::wstring> Find(std::wstring_view function);
    // Picks up changes on the disk.
    void Watch();
    void PrintDifference(const std::vector<Item>& items, const std::vector<Item>& others,
                         const std::wstring& what);
    void NotifyRescan();
    // Checks all items and prints all findings.
    void CheckAll();

    CItemCatalog& m_catalog;
    CSearchPath& m_searchPath;
    CSession& m_session;
    CTextOutput& m_output;
    CMainWindow& m_window;
    CItemCheck m_check;
    std::function<void()> m_onRescan;
};

// Adds the items' folders to the search path, each item's before its parent, except folders that are already
// in it.
void AddToSearchPath(const CItemCatalog& catalog, CSearchPath& searchPath);

}  // namespace devhost
