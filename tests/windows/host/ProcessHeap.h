// The heap in which the system keeps what it allocates for the process, memory streams included.
#pragma once

#include <windows.h>

// The bytes in use in it.
inline long long ProcessHeapSize() {
    const HANDLE heap = GetProcessHeap();
    long long size = 0;
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
            size += static_cast<long long>(entry.cbData);
        }
    }
    HeapUnlock(heap);
    return size;
}
