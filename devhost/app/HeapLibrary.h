// The host's allocator library, loaded before the plug-in so that the plug-in's import binds to it.
#pragma once

#include <windows.h>

#include <string>

#include "devhost/alloc/HostHeap.h"

class CHeapLibrary {
public:
    // Loads TD_Alloc.dll from `folder`, or the checking one from `folder`\checked. Throws CUserError.
    CHeapLibrary(const std::wstring& folder, bool checking);

    std::size_t LiveBlocks() const { return m_liveBlocks(); }
    std::size_t LiveBytes() const { return m_liveBytes(); }
    // Lists some live blocks on the standard error output, if this is the checking library.
    void PrintLive() const;

private:
    template <typename TFunction>
    TFunction* Find(const char* name) const;

    HMODULE m_library;  // kept for the life of the process
    decltype(&td_live_blocks) m_liveBlocks;
    decltype(&td_live_bytes) m_liveBytes;
    decltype(&td_print_live) m_printLive;  // null in the plain library
};
