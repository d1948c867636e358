// The host's allocator library. It must be loaded before the plug-in, whose imports then bind to it.
#pragma once

#include <windows.h>

#include <string>

#include "devhost/alloc/HostHeap.h"

namespace devhost {

class CHeapLibrary {
public:
    // Loads TD_Alloc.dll from `folder`, or the checking one from `folder`\checked. Throws CUserError.
    CHeapLibrary(const std::wstring& folder, bool checking);

    std::size_t LiveBlocks() const { return m_liveBlocks(); }
    std::size_t LiveBytes() const { return m_liveBytes(); }
    // With the checking library, lists some live blocks on standard error.
    void PrintLive() const;

private:
    template <typename TFunction>
    TFunction* Find(const char* name) const;

    HMODULE m_library;  // never unloaded
    decltype(&td_live_blocks) m_liveBlocks;
    decltype(&td_live_bytes) m_liveBytes;
    decltype(&td_print_live) m_printLive;  // null in the plain library
};

}  // namespace devhost
