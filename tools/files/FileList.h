// The files to check, and their items.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

struct ItemFile {
    std::string name;  // UTF-8, as the user gave it or as found in a folder
    bool isWorkingFile = false;
    // The item's base name with its folder; empty when the file does not have the name of an item's file.
    std::string item;
};

struct FileList {
    std::vector<ItemFile> files;
    std::vector<std::string> errors;   // names that are neither file nor folder, folders that cannot be read
    std::vector<std::string> remarks;  // folders without item files, probably a mistake
};

// Files, and for each folder all *.TXT in it and its subfolders, sorted by name. Each file is listed once.
FileList ListFiles(const std::vector<std::string>& names);

}  // namespace tavrin::tools
