// The host's file search: some folders in order, then the current one.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace devhost {

class CSearchPath {
public:
    // The folders as the user gave them. They become absolute at once, since file dialogs change the current
    // folder. Throws CUserError for the first one that is not a folder.
    explicit CSearchPath(const std::vector<std::wstring>& folders);

    // Adds a folder, as a full path, at the end, unless it is there already.
    void Add(const std::wstring& folder);

    // The full path of a file; nothing when it does not exist. An absolute name (with a drive, a share or a
    // leading backslash) is not searched for. Folders and devices do not count as files.
    std::optional<std::wstring> Find(const std::wstring& name) const;

private:
    std::vector<std::wstring> m_folders;
};

// The absolute path, or empty when there is none.
std::wstring FullPath(const std::wstring& path);
// Whether the full path is that of a folder.
bool IsFolder(const std::wstring& fullPath);
// Whether the full path is that of a file, not of a folder or a device.
bool IsFile(const std::wstring& fullPath);

}  // namespace devhost
