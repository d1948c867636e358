// For reports about a damaged process: nothing here allocates memory or takes a lock.
#pragma once

#include <cstddef>

namespace devhost {

// A code address as text: "TavrinWnd.dll+0x1a2b", or the address alone outside of modules.
struct CodeAddress {
    explicit CodeAddress(const void* address);
    char text[160];
};

// Writes to standard error, bypassing the runtime's buffers.
void WriteToStandardError(const char* text);

}  // namespace devhost
