// The items of the menu: folders NAME with a routine NAME.lsp.
#pragma once

#include <string>
#include <vector>

namespace devhost {

struct Item {
    std::wstring name;  // of the folder, of the routine's file and of the LISP function that it defines
    std::wstring folder;
};

// The items in a folder, sorted by name. Throws CUserError when the folder does not exist or cannot be read.
std::vector<Item> FindItems(const std::wstring& folder);

}  // namespace devhost
