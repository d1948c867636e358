#include "devhost/alloc/HeapBlock.h"

#include <windows.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "devhost/fault/CodeAddress.h"

namespace devhost {

BlockName::BlockName(const HeapBlock& block) {
    std::snprintf(text, sizeof text, "block %llu (%llu bytes, %s)",
                  static_cast<unsigned long long>(block.number), static_cast<unsigned long long>(block.size),
                  block.kind == BK_ARRAY ? "new[]" : "new");
}

bool IsFilled(const unsigned char* begin, const unsigned char* end, unsigned char byte) {
    return std::all_of(begin, end, [=](unsigned char found) { return found == byte; });
}

void AbortOnHeapMisuse(const char* format, ...) {
    char what[512];
    std::va_list arguments = {};
    va_start(arguments, format);
    std::vsnprintf(what, sizeof what, format, arguments);
    va_end(arguments);
    WriteToStandardError("heap check: ");
    WriteToStandardError(what);
    WriteToStandardError("\n");
    // Not exit: no further code may run on a damaged heap.
    TerminateProcess(GetCurrentProcess(), kHeapMisuseStatus);
    for (;;) {
        Sleep(INFINITE);
    }
}

}  // namespace devhost
