// The checking heap: blocks end at guard pages as long as addresses last; further blocks are on the ordinary
// heap with a border of known bytes. Releasing a block twice, with the wrong operator or with a damaged
// border, and releasing an address that is not a block, end the process with a message.
//
// Its functions may be called on any thread; none throws.
#pragma once

#include <windows.h>

#include "devhost/alloc/GuardArena.h"
#include "devhost/alloc/HeapBlock.h"
#include "devhost/alloc/PatternHeap.h"

namespace devhost {

class CCheckedHeap {
public:
    void* Allocate(std::size_t size, EBlockKind kind) noexcept;
    void Release(const void* address, EBlockKind kind) noexcept;

    std::size_t LiveBlocks() noexcept;
    std::size_t LiveBytes() noexcept;
    std::size_t Requests() noexcept;
    void FailAfter(std::size_t count) noexcept;
    void PrintLive(std::size_t most) noexcept;

    // Ends the process if a fault at `address` is a misuse of one of this heap's blocks.
    void EndIfMisused(const void* address, const char* access, const char* culprit) noexcept;

private:
    void* AllocateBlock(const HeapBlock& block);

    SRWLOCK m_lock = SRWLOCK_INIT;
    CGuardArena m_arena;
    CPatternHeap m_overflow;
    std::size_t m_requests = 0;
    std::size_t m_failAt = 0;  // the number of the request that fails; 0: none
    std::size_t m_liveBlocks = 0;
    std::size_t m_liveBytes = 0;
};

}  // namespace devhost
