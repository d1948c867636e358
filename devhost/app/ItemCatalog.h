// The items of all folders of items, kept up to date: their files are watched.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "devhost/app/Items.h"

namespace devhost {

class CItemCatalog {
public:
    // Finds the items of the folders. Throws CUserError for the first one that does not exist.
    explicit CItemCatalog(const std::vector<std::wstring>& folders);

    const std::vector<Item>& Items() const { return m_items; }
    // The folders of items, as full paths.
    const std::vector<std::wstring>& Folders() const { return m_folders; }

    // What has changed on the disk since the last call, or since the construction.
    struct Changes {
        bool hasOtherItems = false;  // items were added or removed
        std::vector<Item> changed;   // items that are new, or with a file that was added, removed or written
    };
    // Looks for changes. A folder of items that has disappeared has no items.
    Changes Rescan();

private:
    // The names, sizes and times of an item's files.
    using Files = std::map<std::wstring, std::pair<unsigned long long, long long>>;

    static Files FilesOf(const Item& item);

    std::vector<std::wstring> m_folders;
    std::vector<Item> m_items;
    std::map<std::wstring, Files> m_files;  // by the item's folder
};

}  // namespace devhost
