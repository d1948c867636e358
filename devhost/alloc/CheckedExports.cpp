// The checking TD_Alloc.dll: its exports, and the handler of access violations in its blocks.
#include <windows.h>

#include <new>

#include "devhost/alloc/CheckedHeap.h"
#include "devhost/alloc/HostHeap.h"
#include "devhost/fault/CodeAddress.h"

namespace devhost {

namespace {

// Never destroyed: a plug-in's static objects release blocks while the process exits.
CCheckedHeap& Heap() {
    alignas(CCheckedHeap) static unsigned char memory[sizeof(CCheckedHeap)];
    static auto* const heap = new (memory) CCheckedHeap;
    return *heap;
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.NumberParameters >= 2) {
        Heap().EndIfMisused(reinterpret_cast<const void*>(record.ExceptionInformation[1]),
                            record.ExceptionInformation[0] == 1 ? "writes" : "reads",
                            CodeAddress(record.ExceptionAddress).text);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

PVOID watch = nullptr;

}  // namespace

}  // namespace devhost

using devhost::Heap;

void* td_new(std::size_t size) {
    return Heap().Allocate(size, devhost::BK_SINGLE);
}

void* td_new_array(std::size_t size) {
    return Heap().Allocate(size, devhost::BK_ARRAY);
}

void td_delete(void* block) {
    Heap().Release(block, devhost::BK_SINGLE);
}

void td_delete_array(void* block) {
    Heap().Release(block, devhost::BK_ARRAY);
}

std::size_t td_live_blocks() {
    return Heap().LiveBlocks();
}

std::size_t td_live_bytes() {
    return Heap().LiveBytes();
}

std::size_t td_allocations() {
    return Heap().Requests();
}

void td_fail_after(std::size_t count) {
    Heap().FailAfter(count);
}

void td_print_live(std::size_t most) {
    Heap().PrintLive(most);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        devhost::watch = AddVectoredExceptionHandler(TRUE, devhost::OnException);
    } else if (reason == DLL_PROCESS_DETACH && devhost::watch != nullptr) {
        RemoveVectoredExceptionHandler(devhost::watch);
    }
    return TRUE;
}
