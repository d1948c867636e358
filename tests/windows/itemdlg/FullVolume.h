// A full volume: while an object lives, the files that the program writes take `capacity` more bytes.
#pragma once

#include <windows.h>

#include <cstddef>

#include "tests/windows/support/ImportHook.h"

class CFullVolume {
public:
    explicit CFullVolume(std::size_t capacity);
    ~CFullVolume();
    CFullVolume(const CFullVolume&) = delete;
    CFullVolume& operator=(const CFullVolume&) = delete;

private:
    using FWrite = BOOL(WINAPI*)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);

    static BOOL WINAPI Write(HANDLE file, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);

    static CFullVolume* s_active;
    std::size_t m_capacity;
    CImportHook<FWrite> m_hook;
};
