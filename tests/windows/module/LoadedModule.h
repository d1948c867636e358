// The built TavrinWnd.dll in this program, and the allocator that it runs on.
#pragma once

#include <windows.h>

#include <cstddef>

// Loads the module as a host does, with its load request; unloads it in the same way.
class CLoadedModule {
public:
    CLoadedModule();
    ~CLoadedModule();
    CLoadedModule(const CLoadedModule&) = delete;
    CLoadedModule& operator=(const CLoadedModule&) = delete;

    // Sends a request (SDS_LOAD and the others) and gives the module's answer.
    int Send(unsigned request) const { return m_entry(request, nullptr); }

    // The module's icrxEntryPoint.
    int (*Entry() const)(unsigned request, void* packet) { return m_entry; }

    // Calls the module's function `code` with what fakeHost holds as arguments.
    int Invoke(int code) const;

private:
    HMODULE m_library;
    int (*m_entry)(unsigned request, void* packet);
};

// The functions of the checking allocator that are no operators; see HostHeap.h.
struct ModuleHeap {
    ModuleHeap();

    std::size_t (*liveBlocks)();
    std::size_t (*allocations)();
    void (*failAfter)(std::size_t count);
    void (*printLive)(std::size_t most);
};
