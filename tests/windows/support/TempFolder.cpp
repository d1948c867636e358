#include "tests/windows/support/TempFolder.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

std::wstring CTempFolder::SystemFolder() {
    wchar_t path[MAX_PATH];
    GetTempPathW(MAX_PATH, path);
    return path;
}

// A process with the same number may have left a folder: one that holds a DLL cannot be removed while that is
// loaded.
CTempFolder::CTempFolder(const std::wstring& parent) {
    static int number = 0;
    const std::wstring start = parent + L"tavrin_" + std::to_wstring(GetCurrentProcessId()) + L"_";
    do {
        m_path = start + std::to_wstring(++number) + L"\\";
    } while (!std::filesystem::create_directories(m_path));
}

CTempFolder::~CTempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void CTempFolder::Write(const std::wstring& name, const std::string& bytes) const {
    std::ofstream file(std::filesystem::path(m_path + name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string CTempFolder::Read(const std::wstring& name) const {
    std::ifstream file(std::filesystem::path(m_path + name), std::ios::binary);
    if (!file) {
        return "(no file)";
    }
    return {std::istreambuf_iterator<char>(file), {}};
}
