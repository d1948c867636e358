#include "LocalMemoryHook.h"

#include <windows.h>

// The import table's entries, by the names under which the import library declares them.
extern "C" {
extern HLOCAL(WINAPI* __imp_LocalAlloc)(UINT, SIZE_T);
extern LPVOID(WINAPI* __imp_LocalLock)(HLOCAL);
extern BOOL(WINAPI* __imp_LocalUnlock)(HLOCAL);
extern HLOCAL(WINAPI* __imp_LocalFree)(HLOCAL);
}

namespace {

CLocalMemoryHook* active = nullptr;
decltype(__imp_LocalAlloc) systemAlloc;
decltype(__imp_LocalLock) systemLock;
decltype(__imp_LocalUnlock) systemUnlock;
decltype(__imp_LocalFree) systemFree;

HLOCAL WINAPI HookedAlloc(UINT flags, SIZE_T size) {
    active->flags = flags;
    active->lastSize = size;
    const HLOCAL memory = active->failAlloc ? nullptr : systemAlloc(flags, size);
    if (memory != nullptr) {
        ++active->allocated;
        ++active->alive;
    }
    return memory;
}

LPVOID WINAPI HookedLock(HLOCAL memory) {
    void* const address = active->failLock ? nullptr : systemLock(memory);
    if (address != nullptr)
        ++active->locked;
    return address;
}

BOOL WINAPI HookedUnlock(HLOCAL memory) {
    --active->locked;
    return systemUnlock(memory);
}

HLOCAL WINAPI HookedFree(HLOCAL memory) {
    ++active->freed;
    --active->alive;
    return systemFree(memory);
}

template <typename Function>
void Replace(Function& entry, Function function) {
    DWORD protection = 0;
    VirtualProtect(&entry, sizeof(entry), PAGE_READWRITE, &protection);
    entry = function;
    VirtualProtect(&entry, sizeof(entry), protection, &protection);
}

}  // namespace

CLocalMemoryHook::CLocalMemoryHook() {
    active = this;
    systemAlloc = __imp_LocalAlloc;
    systemLock = __imp_LocalLock;
    systemUnlock = __imp_LocalUnlock;
    systemFree = __imp_LocalFree;
    Replace(__imp_LocalAlloc, HookedAlloc);
    Replace(__imp_LocalLock, HookedLock);
    Replace(__imp_LocalUnlock, HookedUnlock);
    Replace(__imp_LocalFree, HookedFree);
}

CLocalMemoryHook::~CLocalMemoryHook() {
    Replace(__imp_LocalAlloc, systemAlloc);
    Replace(__imp_LocalLock, systemLock);
    Replace(__imp_LocalUnlock, systemUnlock);
    Replace(__imp_LocalFree, systemFree);
    active = nullptr;
}
