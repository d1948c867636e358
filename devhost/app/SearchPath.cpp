#include "devhost/app/SearchPath.h"

#include <windows.h>

#include <shlwapi.h>

#include <algorithm>
#include <filesystem>

#include "devhost/UserError.h"

namespace devhost {

std::wstring FullPath(const std::wstring& path) {
    const DWORD length = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(length, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), length, full.data(), nullptr));
    return full;
}

bool IsFolder(const std::wstring& fullPath) {
    const DWORD attributes =
        fullPath.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(fullPath.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsFile(const std::wstring& fullPath) {
    if (fullPath.empty() || fullPath.starts_with(L"\\\\.\\") || fullPath.ends_with(L'\\')) {
        return false;
    }
    const DWORD attributes = GetFileAttributesW(fullPath.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
}

CSearchPath::CSearchPath(const std::vector<std::wstring>& folders) {
    for (const std::wstring& folder : folders) {
        const std::wstring full = FullPath(folder);
        if (!IsFolder(full)) {
            throw CUserError(L"the search folder '" + folder +
                             L"' does not exist: give --search an existing folder");
        }
        m_folders.push_back(full);
    }
}

void CSearchPath::Add(const std::wstring& folder) {
    if (std::find(m_folders.begin(), m_folders.end(), folder) == m_folders.end()) {
        m_folders.push_back(folder);
    }
}

std::optional<std::wstring> CSearchPath::Find(const std::wstring& name) const {
    if (name.empty()) {
        return std::nullopt;
    }
    std::vector<std::wstring> candidates;
    if (PathIsRelativeW(name.c_str())) {
        for (const std::wstring& folder : m_folders) {
            candidates.push_back((std::filesystem::path(folder) / name).wstring());
        }
    }
    candidates.push_back(name);
    for (const std::wstring& candidate : candidates) {
        if (const std::wstring full = FullPath(candidate); IsFile(full)) {
            return full;
        }
    }
    return std::nullopt;
}

}  // namespace devhost
