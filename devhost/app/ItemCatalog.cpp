#include "devhost/app/ItemCatalog.h"

#include <algorithm>
#include <filesystem>

#include "devhost/UserError.h"
#include "devhost/app/SearchPath.h"

namespace devhost {

CItemCatalog::CItemCatalog(const std::vector<std::wstring>& folders) {
    for (const std::wstring& folder : folders) {
        const std::vector<Item> items = FindItems(folder);
        m_items.insert(m_items.end(), items.begin(), items.end());
        std::wstring full = FullPath(folder);
        // The backslash of a root such as "D:\" stays: "D:" is the current folder of that drive.
        while (full.ends_with(L'\\') && std::filesystem::path(full).has_relative_path()) {
            full.pop_back();
        }
        m_folders.push_back(full);
    }
    for (const Item& item : m_items) {
        m_files[item.folder] = FilesOf(item);
    }
}

CItemCatalog::Files CItemCatalog::FilesOf(const Item& item) {
    Files files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(item.folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        const auto time = entry->last_write_time(ignored).time_since_epoch().count();
        const auto size = entry->is_regular_file(ignored) ? entry->file_size(ignored) : 0;
        files[entry->path().filename().wstring()] = {size, time};
    }
    return files;
}

CItemCatalog::Changes CItemCatalog::Rescan() {
    std::vector<Item> items;
    for (const std::wstring& folder : m_folders) {
        try {
            const std::vector<Item> found = FindItems(folder);
            items.insert(items.end(), found.begin(), found.end());
        } catch (const CUserError&) {
            // It may come back.
        }
    }
    Changes changes;
    std::map<std::wstring, Files> files;
    for (const Item& item : items) {
        const Files& now = files[item.folder] = FilesOf(item);
        const auto before = m_files.find(item.folder);
        if (before == m_files.end() || before->second != now) {
            changes.changed.push_back(item);
        }
    }
    changes.hasOtherItems =
        !std::equal(items.begin(), items.end(), m_items.begin(), m_items.end(),
                    [](const Item& a, const Item& b) { return a.folder == b.folder && a.name == b.name; });
    m_items = std::move(items);
    m_files = std::move(files);
    return changes;
}

}  // namespace devhost
