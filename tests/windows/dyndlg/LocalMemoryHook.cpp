#include "tests/windows/dyndlg/LocalMemoryHook.h"

// The import table's entries, by the names under which the import library declares them.
extern "C" {
extern HLOCAL(WINAPI* __imp_LocalAlloc)(UINT, SIZE_T) IMPORT_ENTRY(LocalAlloc, 8);
extern LPVOID(WINAPI* __imp_LocalLock)(HLOCAL) IMPORT_ENTRY(LocalLock, 4);
extern BOOL(WINAPI* __imp_LocalUnlock)(HLOCAL) IMPORT_ENTRY(LocalUnlock, 4);
extern HLOCAL(WINAPI* __imp_LocalFree)(HLOCAL) IMPORT_ENTRY(LocalFree, 4);
}

CLocalMemoryHook* CLocalMemoryHook::s_active = nullptr;

HLOCAL WINAPI CLocalMemoryHook::Alloc(UINT flags, SIZE_T size) {
    s_active->flags = flags;
    s_active->lastSize = size;
    const HLOCAL memory = s_active->failAlloc ? nullptr : s_active->m_alloc.System()(flags, size);
    if (memory != nullptr) {
        ++s_active->allocated;
        ++s_active->alive;
    }
    return memory;
}

LPVOID WINAPI CLocalMemoryHook::Lock(HLOCAL memory) {
    void* const address = s_active->failLock ? nullptr : s_active->m_lock.System()(memory);
    if (address != nullptr) {
        ++s_active->locked;
    }
    return address;
}

BOOL WINAPI CLocalMemoryHook::Unlock(HLOCAL memory) {
    --s_active->locked;
    return s_active->m_unlock.System()(memory);
}

HLOCAL WINAPI CLocalMemoryHook::Free(HLOCAL memory) {
    ++s_active->freed;
    --s_active->alive;
    return s_active->m_free.System()(memory);
}

CLocalMemoryHook::CLocalMemoryHook()
    : m_alloc(__imp_LocalAlloc, Alloc),
      m_lock(__imp_LocalLock, Lock),
      m_unlock(__imp_LocalUnlock, Unlock),
      m_free(__imp_LocalFree, Free) {
    s_active = this;
}

CLocalMemoryHook::~CLocalMemoryHook() {
    s_active = nullptr;
}
