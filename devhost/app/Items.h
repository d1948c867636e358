// The items that can be tried: folders NAME with a routine NAME.lsp in them.
#pragma once

#include <string>
#include <vector>

struct SItem {
    std::wstring name;  // of the folder, of the routine's file and of the LISP function that it defines
    std::wstring folder;
};

// The items in a folder, by name. Throws CUserError, which names the folder, when it does not exist or
// cannot be read.
std::vector<SItem> FindItems(const std::wstring& folder);
