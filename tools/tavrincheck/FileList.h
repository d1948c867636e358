// Which files are checked, and which of them belong to one item.
#pragma once

#include <string>
#include <vector>

struct SItemFile {
    std::string name;  // UTF-8, as the user gave it or found in a folder
    bool isWorkingFile = false;
    // The base name of the item with its folder; empty when the file's name is none of an item's.
    std::string item;
};

struct SFileList {
    std::vector<SItemFile> files;
    std::vector<std::string> errors;   // names that are neither file nor folder, folders that cannot be read
    std::vector<std::string> remarks;  // folders without any such file, which may be a slip
};

// The files that names stand for: a file is itself, a folder all files in it and below whose names end in
// .TXT, written so, in the order of their names. A file that is named twice is there once.
SFileList ListFiles(const std::vector<std::string>& names);
