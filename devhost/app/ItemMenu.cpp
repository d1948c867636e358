#include "devhost/app/ItemMenu.h"

#include <filesystem>

namespace devhost {

CItemMenu::CItemMenu(CItemCatalog& catalog, CSearchPath& searchPath, CSession& session, CTextOutput& output,
                     CMainWindow& window)
    : m_catalog(catalog),
      m_searchPath(searchPath),
      m_session(session),
      m_output(output),
      m_window(window),
      m_check(output) {
    Offer();
    window.SetIdleHandler([this] { Watch(); });
    window.SetRescanHandler([this] { CheckAll(); });
}

CItemMenu::~CItemMenu() {
    m_window.SetIdleHandler(nullptr);
    m_window.SetRescanHandler(nullptr);
    m_window.SetItems({}, nullptr);
}

void CItemMenu::Offer() {
    std::vector<std::wstring> names;
    for (const Item& item : m_catalog.Items()) {
        names.push_back(item.name);
    }
    m_window.SetItems(names, [this](std::size_t index) { Run(index); });
}

void CItemMenu::Run(std::size_t index) {
    const Item item = m_catalog.Items()[index];
    m_check.Check(item);
    m_session.RunItem(item.name);
}

void CItemMenu::Watch() {
    const CItemCatalog::Changes changes = m_catalog.Rescan();
    if (changes.hasOtherItems) {
        AddToSearchPath(m_catalog, m_searchPath);
        Offer();
    }
    for (const Item& item : changes.changed) {
        m_check.Check(item);
    }
}

void CItemMenu::CheckAll() {
    Watch();
    m_check.Forget();
    for (const Item& item : m_catalog.Items()) {
        m_check.Check(item);
    }
    const std::size_t count = m_catalog.Items().size();
    m_output.Line(L"; " + std::to_wstring(count) + (count == 1 ? L" item checked" : L" items checked"));
}

void AddToSearchPath(const CItemCatalog& catalog, CSearchPath& searchPath) {
    for (const std::wstring& folder : catalog.Folders()) {
        for (const Item& item : catalog.Items()) {
            if (std::filesystem::path(item.folder).parent_path() == folder) {
                searchPath.Add(item.folder);
            }
        }
        searchPath.Add(folder);
    }
}

}  // namespace devhost
