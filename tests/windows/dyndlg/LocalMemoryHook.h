// Local memory watched: how many blocks are alive, and what happens when there are none to be had.
#pragma once

#include <windows.h>

#include <cstddef>

#include "tests/windows/support/ImportHook.h"

// While one lives, this program's local memory functions go through it.
class CLocalMemoryHook {
public:
    CLocalMemoryHook();
    ~CLocalMemoryHook();
    CLocalMemoryHook(const CLocalMemoryHook&) = delete;
    CLocalMemoryHook& operator=(const CLocalMemoryHook&) = delete;

    bool failAlloc = false;
    bool failLock = false;

    int allocated = 0;
    int locked = 0;  // locks not undone
    int freed = 0;
    int alive = 0;
    unsigned flags = 0;        // of the last block
    std::size_t lastSize = 0;  // of the last block

private:
    static HLOCAL WINAPI Alloc(UINT flags, SIZE_T size);
    static LPVOID WINAPI Lock(HLOCAL memory);
    static BOOL WINAPI Unlock(HLOCAL memory);
    static HLOCAL WINAPI Free(HLOCAL memory);

    static CLocalMemoryHook* s_active;
    CImportHook<decltype(&Alloc)> m_alloc;
    CImportHook<decltype(&Lock)> m_lock;
    CImportHook<decltype(&Unlock)> m_unlock;
    CImportHook<decltype(&Free)> m_free;
};
