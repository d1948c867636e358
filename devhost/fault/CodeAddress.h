// What reports about a damaged process need: nothing here allocates memory or takes a lock of ours.
#pragma once

#include <cstddef>

// Where code lies, as text: "TavrinWnd.dll+0x1a2b", or the address alone when it is in no module.
struct SCodeAddress {
    explicit SCodeAddress(const void* address);
    char text[160];
};

// Writes to the standard error output, past the runtime's buffers.
void WriteToStandardError(const char* text);
