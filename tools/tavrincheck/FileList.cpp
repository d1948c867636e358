#include "FileList.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "CodePage.h"
#include "Files.h"
#include "ItemFiles.h"

namespace {

namespace fs = std::filesystem;

SItemFile ItemFileOf(const std::string& name) {
    const std::string working = Utf8Text(kWorkingFileEnding);
    const std::string ending = Utf8Text(kTemplateFileEnding);
    SItemFile file{name, name.ends_with(working), {}};
    if (file.isWorkingFile) {
        file.item = name.substr(0, name.size() - working.size());
    } else if (name.ends_with(ending)) {
        file.item = name.substr(0, name.size() - ending.size());
    }
    return file;
}

void AppendFolder(const std::string& folder, std::vector<std::string>& names,
                  std::vector<std::string>& errors) {
    const std::string ending = Utf8Text(kTemplateFileEnding);
    std::vector<std::string> found;
    try {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(PathOf(folder))) {
            const std::string name = NameOf(entry.path());
            if (name.ends_with(ending) && entry.is_regular_file()) {
                found.push_back(name);
            }
        }
    } catch (const fs::filesystem_error& error) {
        errors.push_back(folder + ": the folder cannot be read: " + error.code().message());
    }
    std::sort(found.begin(), found.end());
    names.insert(names.end(), found.begin(), found.end());
}

}  // namespace

std::vector<SItemFile> ListFiles(const std::vector<std::string>& names, std::vector<std::string>& errors) {
    std::vector<std::string> all;
    for (const std::string& name : names) {
        std::error_code ignored;
        const fs::path path = PathOf(name);
        if (fs::is_directory(path, ignored)) {
            AppendFolder(name, all, errors);
        } else if (fs::exists(path, ignored)) {
            all.push_back(NameOf(path));
        } else {
            errors.push_back(name + ": there is no such file or folder");
        }
    }
    std::vector<SItemFile> files;
    std::set<std::string> seen;
    for (const std::string& name : all) {
        if (seen.insert(NameOf(PathOf(name).lexically_normal())).second) {
            files.push_back(ItemFileOf(name));
        }
    }
    return files;
}
