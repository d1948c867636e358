#include "devhost/app/Items.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>

#include "devhost/Libraries.h"
#include "devhost/UserError.h"
#include "devhost/app/SearchPath.h"
#include "lisp/Reader.h"

namespace devhost {

std::vector<Item> FindItems(const std::wstring& folder) {
    const std::wstring full = FullPath(folder);
    if (!IsFolder(full)) {
        throw CUserError(L"the folder of items '" + folder +
                         L"' does not exist: give --items an existing folder");
    }
    std::vector<Item> items;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(full, error), end; entry != end; entry.increment(error)) {
        const std::wstring name = entry->path().filename().wstring();
        const std::filesystem::path& path = entry->path();
        if (lisp::IsSymbolName(name) && IsFile((path / (name + L".lsp")).wstring())) {
            items.push_back({name, path.wstring()});
        }
    }
    if (error) {
        throw CUserError(L"the folder of items '" + folder +
                         L"' cannot be read: give --items a folder that you may read");
    }
    std::sort(items.begin(), items.end(), [](const Item& a, const Item& b) { return a.name < b.name; });
    return items;
}

}  // namespace devhost
