// Folders of files that are to be written.
#pragma once

#include <string>

namespace tavrin::tools {

// Makes the folder that a file is to be in, with its parents. Throws CToolError when it fails.
void CreateFolderOf(const std::string& name);

}  // namespace tavrin::tools
