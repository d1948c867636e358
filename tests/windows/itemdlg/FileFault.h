// A disk that fails: while an object lives, one call of ReadFile or WriteFile fails, or it and all later
// ones.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/windows/support/ImportHook.h"

// A call as it is made: the file's name without its folder, and the file's position in bytes.
struct FileCall {
    std::wstring file;
    std::size_t position = 0;
};

enum EFileOperation { FO_READ, FO_WRITE };

class CFileFault {
public:
    static constexpr std::size_t kNever = static_cast<std::size_t>(-1);

    // The call with the index `failing` (from 0) of that operation fails; with `forGood` every later one,
    // too.
    explicit CFileFault(EFileOperation operation, std::size_t failing = kNever, bool forGood = false);
    ~CFileFault();
    CFileFault(const CFileFault&) = delete;
    CFileFault& operator=(const CFileFault&) = delete;

    // The calls of the operation up to now, the failed ones among them.
    const std::vector<FileCall>& Calls() const { return m_calls; }

private:
    using FRead = BOOL(WINAPI*)(HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED);
    using FWrite = BOOL(WINAPI*)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);

    static BOOL WINAPI Read(HANDLE file, LPVOID data, DWORD size, LPDWORD read, LPOVERLAPPED overlapped);
    static BOOL WINAPI Write(HANDLE file, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);
    bool Fails(EFileOperation operation, HANDLE file, DWORD* done, DWORD error);

    static CFileFault* s_active;
    EFileOperation m_operation;
    std::size_t m_failing;
    bool m_forGood;
    std::vector<FileCall> m_calls;
    CImportHook<FRead> m_readHook;
    CImportHook<FWrite> m_writeHook;
};
