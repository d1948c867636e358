// Where the host looks for the files of plug-ins: some folders in order, then the current one.
#pragma once

#include <optional>
#include <string>
#include <vector>

class CSearchPath {
public:
    // The folders as the user gave them. They are made absolute at once, since file dialogs change the
    // current folder. Throws CUserError that names the first one that is no folder.
    explicit CSearchPath(const std::vector<std::wstring>& folders);

    // Adds a folder behind the others, as a full path.
    void Add(const std::wstring& folder) { m_folders.push_back(folder); }

    // The full path of a file; nothing when there is none of that name. A name that is not relative (it
    // has a drive, a share or a leading backslash) is looked for where it says and nowhere else. Folders
    // and devices are no files.
    std::optional<std::wstring> Find(const std::wstring& name) const;

private:
    std::vector<std::wstring> m_folders;
};

// The path with drive and folder, or empty when it cannot be one.
std::wstring FullPath(const std::wstring& path);
// Whether a folder lies at a full path.
bool IsFolder(const std::wstring& fullPath);
// Whether a file that is neither a folder nor a device lies at a full path.
bool IsFile(const std::wstring& fullPath);
