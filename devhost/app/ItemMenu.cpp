#include "devhost/app/ItemMenu.h"

#include <algorithm>
#include <filesystem>

#include "lisp/Value.h"

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
    session.SetItemFinder([this](std::wstring_view function) { return Find(function); });
}

CItemMenu::~CItemMenu() {
    m_window.SetIdleHandler(nullptr);
    m_window.SetRescanHandler(nullptr);
    m_window.SetItems({}, nullptr);
    m_session.SetItemFinder(nullptr);
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

std::optional<std::wstring> CItemMenu::Find(std::wstring_view function) {
    Watch();
    for (const Item& item : m_catalog.Items()) {
        if (lisp::UpperCase(item.name) == function) {
            m_check.Check(item);
            return item.name;
        }
    }
    return std::nullopt;
}

void CItemMenu::Watch() {
    const std::vector<Item> before = m_catalog.Items();
    const CItemCatalog::Changes changes = m_catalog.Rescan();
    if (changes.hasOtherItems) {
        PrintDifference(m_catalog.Items(), before, L"added");
        PrintDifference(before, m_catalog.Items(), L"removed");
        AddToSearchPath(m_catalog, m_searchPath);
        Offer();
        NotifyRescan();
    }
    for (const Item& item : changes.changed) {
        m_check.Check(item);
    }
}

void CItemMenu::NotifyRescan() {
    if (m_onRescan) {
        m_onRescan();
    }
}

// Names the items that only the first list has.
void CItemMenu::PrintDifference(const std::vector<Item>& items, const std::vector<Item>& others,
                                const std::wstring& what) {
    for (const Item& item : items) {
        const bool isThere = std::any_of(others.begin(), others.end(),
                                         [&](const Item& other) { return other.folder == item.folder; });
        if (!isThere) {
            m_output.Line(L"; the item " + item.name + L" has been " + what);
        }
    }
}

void CItemMenu::CheckAll() {
    m_check.Forget();
    Watch();
    NotifyRescan();
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
