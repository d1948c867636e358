// Another program that has a file open.
#pragma once

#include <windows.h>

#include <string>

// Keeps the file open for reading; other opens are limited to `sharing` (FILE_SHARE_...).
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
