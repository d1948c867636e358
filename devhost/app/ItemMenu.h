// The items of the window's menu: run when they are chosen, checked when they are chosen or change, and
// looked for again from time to time.
#pragma once

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

private:
    void Offer();
    void Run(std::size_t index);
    // Takes over what has changed on the disk.
    void Watch();
    void PrintDifference(const std::vector<Item>& items, const std::vector<Item>& others,
                         const std::wstring& what);
    // Checks all items and prints all findings.
    void CheckAll();

    CItemCatalog& m_catalog;
    CSearchPath& m_searchPath;
    CSession& m_session;
    CTextOutput& m_output;
    CMainWindow& m_window;
    CItemCheck m_check;
};

// Adds the items' folders to the search path, each item's before its parent, except those that it has.
void AddToSearchPath(const CItemCatalog& catalog, CSearchPath& searchPath);

}  // namespace devhost
