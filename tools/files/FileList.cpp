#include "tools/files/FileList.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>

#include "encoding/Encoding.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/Files.h"
#include "tools/files/ItemName.h"

namespace tavrin::tools {

namespace {

namespace fs = std::filesystem;

ItemFile ItemFileOf(const std::string& name) {
    if (const std::optional<std::string> item = WithoutEnding(name, itemdlg::kWorkingFileEnding)) {
        return {name, true, *item};
    }
    return {name, false, WithoutEnding(name, itemdlg::kTemplateFileEnding).value_or("")};
}

// A broken link counts as a file, so that it is reported.
bool IsFile(const fs::directory_entry& entry) {
    return entry.is_regular_file() || (entry.is_symlink() && !entry.exists());
}

void AppendFolder(const std::string& folder, std::vector<std::string>& names, FileList& list) {
    const std::string ending = encoding::EncodeUtf8(itemdlg::kTemplateFileEnding);
    std::vector<std::string> found;
    bool isRead = true;
    try {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(PathOf(folder))) {
            const std::string name = NameOf(entry.path());
            if (name.ends_with(ending) && IsFile(entry)) {
                found.push_back(name);
            }
        }
    } catch (const fs::filesystem_error& error) {
        list.errors.push_back(folder + ": the folder cannot be read: " + error.code().message());
        isRead = false;
    }
    if (isRead && found.empty()) {
        list.remarks.push_back(folder + ": there is no *.TXT in this folder");
    }
    std::sort(found.begin(), found.end());
    names.insert(names.end(), found.begin(), found.end());
}

}  // namespace

FileList ListFiles(const std::vector<std::string>& names) {
    FileList list;
    std::vector<std::string> all;
    for (const std::string& name : names) {
        std::error_code ignored;
        const fs::path path = PathOf(name);
        if (fs::is_directory(path, ignored)) {
            AppendFolder(name, all, list);
        } else if (fs::exists(path, ignored)) {
            all.push_back(NameOf(path));
        } else {
            list.errors.push_back(name + ": there is no such file or folder");
        }
    }
    std::set<std::string> seen;
    for (const std::string& name : all) {
        if (seen.insert(NameOf(PathOf(name).lexically_normal())).second) {
            list.files.push_back(ItemFileOf(name));
        }
    }
    return list;
}

}  // namespace tavrin::tools
