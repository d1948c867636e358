#include "tests/windows/soak/ProcessState.h"

#include <windows.h>
// After windows.h.
#include <tlhelp32.h>

#include "tests/windows/support/HandleCount.h"

namespace {

int ThreadCount() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 thread = {};
    thread.dwSize = sizeof(thread);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &thread); more; more = Thread32Next(snapshot, &thread)) {
        count += thread.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    }
    CloseHandle(snapshot);
    return count;
}

// Checked one by one: not every system returns their number.
int KernelHandleCount() {
    constexpr UINT_PTR end = 0x4000;
    int count = 0;
    for (UINT_PTR value = 4; value < end; value += 4) {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) ? 1 : 0;
    }
    return count;
}

}  // namespace

ProcessState ProcessState::Now(std::size_t liveBlocks) {
    return {liveBlocks, GdiObjectCount(), WindowCount(), ThreadCount(), KernelHandleCount()};
}
