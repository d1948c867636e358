#include "tools/files/Folders.h"

#include "tools/files/Files.h"

namespace tavrin::tools {

void CreateFolderOf(const std::string& name) {
    const std::filesystem::path folder = PathOf(name).parent_path();
    std::error_code error;
    if (!folder.empty()) {
        std::filesystem::create_directories(folder, error);
    }
    if (error) {
        throw CToolError(NameOf(folder) + ": the folder cannot be created");
    }
}

}  // namespace tavrin::tools
