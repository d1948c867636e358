#include "tests/windows/support/HandleCount.h"

#include <windows.h>
#include <winternl.h>

#include <ostream>

namespace {

// The layout of an entry of the handle table that the system shares with each process: the same in 32-bit
// processes, whose system is a 64-bit one.
struct GdiTableEntry {
    unsigned long long kernelObject;
    unsigned short processId;
    unsigned short reuseCount;
    unsigned short upperHandle;
    unsigned short type;
    unsigned long long userObject;
};

// Field offset of GdiSharedHandleTable in the process environment block.
#ifdef _WIN64
constexpr int gdiTableOffset = 0xF8;
#else
constexpr int gdiTableOffset = 0x94;
#endif

int CountInSharedTable() {
    PROCESS_BASIC_INFORMATION process = {};
    if (NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process),
                                  nullptr) != 0) {
        return -1;
    }
    const auto* environment = reinterpret_cast<const char*>(process.PebBaseAddress);
    const auto* table = *reinterpret_cast<const GdiTableEntry* const*>(environment + gdiTableOffset);
    if (table == nullptr) {
        return -1;
    }
    const auto processId = static_cast<unsigned short>(GetCurrentProcessId());
    int count = 0;
    for (unsigned index = 0; index < 0x10000; ++index) {
        const GdiTableEntry& entry = table[index];
        if (entry.type == 0) {
            continue;
        }
        // Wine keeps the table per process and does not fill in every entry's owner.
        const auto handle = reinterpret_cast<HGDIOBJ>(
            static_cast<UINT_PTR>(index | static_cast<unsigned>(entry.upperHandle) << 16));
        if ((entry.processId == processId || entry.processId == 0) && GetObjectType(handle) != 0) {
            ++count;
        }
    }
    return count;
}

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM count) {
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (processId == GetCurrentProcessId()) {
        ++*reinterpret_cast<int*>(count);
        EnumChildWindows(window, CountChild, count);
    }
    return TRUE;
}

}  // namespace

int GdiObjectCount() {
    const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    return count != 0 ? static_cast<int>(count) : CountInSharedTable();
}

int WindowCount() {
    int count = 0;
    EnumWindows(CountTopLevel, reinterpret_cast<LPARAM>(&count));
    return count;
}

long long HeapBlockCount() {
    using LiveBlocks = size_t (*)();
    static const auto liveBlocks = reinterpret_cast<LiveBlocks>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"TD_Alloc.dll"), "td_live_blocks")));
    return static_cast<long long>(liveBlocks());
}

ProcessHoldings CountHoldings() {
    return {GdiObjectCount(), WindowCount(), HeapBlockCount()};
}

void PrintTo(const ProcessHoldings& holdings, std::ostream* output) {
    *output << holdings.gdiObjects << " GDI objects, " << holdings.windows << " windows, "
            << holdings.heapBlocks << " heap blocks";
}
