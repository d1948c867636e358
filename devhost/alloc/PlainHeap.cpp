// The plain TD_Alloc.dll: the process heap, counted.
#include <windows.h>

#include <atomic>

#include "devhost/alloc/HostHeap.h"

namespace {

std::atomic<std::size_t> liveBlocks;
std::atomic<std::size_t> liveBytes;

}  // namespace

void* td_new(std::size_t size) {
    void* block = HeapAlloc(GetProcessHeap(), 0, size);
    if (block != nullptr) {
        ++liveBlocks;
        liveBytes += size;
    }
    return block;
}

void* td_new_array(std::size_t size) {
    return td_new(size);
}

void td_delete(void* block) {
    if (block == nullptr) {
        return;
    }
    --liveBlocks;
    liveBytes -= HeapSize(GetProcessHeap(), 0, block);
    HeapFree(GetProcessHeap(), 0, block);
}

void td_delete_array(void* block) {
    td_delete(block);
}

std::size_t td_live_blocks() {
    return liveBlocks;
}

std::size_t td_live_bytes() {
    return liveBytes;
}
