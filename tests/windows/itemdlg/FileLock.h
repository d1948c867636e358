// Another program that has a file open.
#pragma once

#include <windows.h>

#include <string>

// Reads the file as long as it lives and lets nobody else do what `sharing` (FILE_SHARE_...) does not say.
class CFileLock {
public:
    explicit CFileLock(const std::wstring& path, DWORD sharing = 0)
        : m_file(::CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~CFileLock() { ::CloseHandle(m_file); }
    CFileLock(const CFileLock&) = delete;
    CFileLock& operator=(const CFileLock&) = delete;

private:
    HANDLE m_file;
};
