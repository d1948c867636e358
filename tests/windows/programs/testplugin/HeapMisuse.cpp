// Commands that use the host's allocator, well and badly. They call its operators directly, and read and
// write through volatile pointers so that the compiler cannot see what they do.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "tests/windows/programs/testplugin/TestPlugin.h"

namespace tests {

extern "C" {
__declspec(dllimport) void* td_new(std::size_t size);
__declspec(dllimport) void* td_new_array(std::size_t size);
__declspec(dllimport) void td_delete(void* block);
__declspec(dllimport) void td_delete_array(void* block);
}

namespace {

volatile char* NewBlock(std::size_t size) {
    return static_cast<volatile char*>(td_new(size));
}

void Delete(volatile char* block) {
    td_delete(const_cast<char*>(block));
}

// A function that the library exports for tests; null when the plain one is loaded.
template <typename TFunction>
TFunction* FindInAllocator(const char* name) {
    return reinterpret_cast<TFunction*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"TD_Alloc.dll"), name)));
}

// Makes so many small blocks that the following ones lie on the ordinary heap, if the argument says so.
void FillGuardedRoom(int argument) {
    if (ShortArgument(argument) != 0) {
        for (int i = 0; i < 20'000; ++i) {
            td_new(1);
        }
    }
}

}  // namespace

// (leak BLOCKS BYTES)
void Leak() {
    for (int i = 0; i < ShortArgument(0); ++i) {
        NewBlock(static_cast<std::size_t>(ShortArgument(1)));
    }
    HOST(sds_retnil)();
}

// (churn THOUSANDS): that many thousand blocks of odd sizes at the same time, each written from end to end,
// and as often again one after the other. Gives 0 when every address was aligned and every byte kept.
void Churn() {
    const int count = 1000 * ShortArgument(0, 1);
    int wrong = 0;
    std::vector<char*> blocks;
    const auto make = [&](int i) {
        const auto size = static_cast<std::size_t>(i % 131);
        auto* block = static_cast<char*>(td_new_array(size));
        wrong += block == nullptr || reinterpret_cast<std::uintptr_t>(block) % (2 * sizeof(void*)) != 0;
        std::fill_n(block, size, static_cast<char>(i));
        return block;
    };
    const auto check = [&](const char* block, int i) {
        for (int byte = 0; byte < i % 131; ++byte) {
            wrong += block[byte] != static_cast<char>(i);
        }
    };
    for (int i = 0; i < count; ++i) {
        blocks.push_back(make(i));
    }
    for (int i = 0; i < count; ++i) {
        check(blocks[static_cast<std::size_t>(i)], i);
        td_delete_array(blocks[static_cast<std::size_t>(i)]);
    }
    for (int i = 0; i < count; ++i) {
        char* block = make(i);
        check(block, i);
        td_delete_array(block);
    }
    td_delete(nullptr);
    HOST(sds_retint)(wrong);
}

// One byte after a block whose size is no multiple of the alignment.
void WriteBehind() {
    FillGuardedRoom(0);
    volatile char* block = NewBlock(5);
    block[5] = 1;
    Delete(block);
}

// One byte after a block that ends at its last page's end.
void WriteFarBehind() {
    volatile char* block = NewBlock(32);
    block[32] = 1;
    Delete(block);
}

void ReadBehind() {
    volatile char* block = NewBlock(4096);
    HOST(sds_retint)(block[4096]);
    Delete(block);
}

void WriteInFront() {
    FillGuardedRoom(0);
    volatile char* block = NewBlock(5);
    block[-1] = 1;
    Delete(block);
}

void WriteAfterDelete() {
    FillGuardedRoom(0);
    volatile char* block = NewBlock(5);
    Delete(block);
    block[0] = 1;
    for (int i = 0; i < 10'000; ++i) {
        Delete(NewBlock(1));
    }
}

void DeleteTwice() {
    FillGuardedRoom(0);
    volatile char* block = NewBlock(5);
    Delete(block);
    Delete(block);
}

void DeleteForeign() {
    static char foreign[16];
    td_delete(foreign + ShortArgument(0));
}

void DeleteWithTheOther() {
    FillGuardedRoom(0);
    td_delete_array(td_new(5));
}

// (fail-one-allocation N): which of five allocations failed, when the N-th is made to; 0 for none.
void FailOneAllocation() {
    auto* failAfter = FindInAllocator<void(std::size_t)>("td_fail_after");
    auto* allocations = FindInAllocator<std::size_t()>("td_allocations");
    if (failAfter == nullptr || allocations == nullptr) {
        return;
    }
    const std::size_t before = allocations();
    failAfter(static_cast<std::size_t>(ShortArgument(0)));
    int failed = 0;
    for (int i = 1; i <= 5; ++i) {
        volatile char* block = NewBlock(10);
        if (block == nullptr) {
            failed = failed * 10 + i;
        }
        Delete(block);
    }
    failAfter(0);
    HOST(sds_retlist)
    (HOST(sds_buildlist)(RTSHORT, failed, RTSHORT, static_cast<int>(allocations() - before), RTNONE));
}

}  // namespace tests
