// The checking heap: blocks behind guard pages as long as there is room, on the ordinary heap with a known
// border beyond that. A block that is given back twice, by the wrong operator or with a damaged border, and
// an address that is no block, end the process with a line that says so.
//
// Its functions may be called on any thread; none throws.
#pragma once

#include <windows.h>

#include "devhost/alloc/GuardArena.h"
#include "devhost/alloc/HeapBlock.h"
#include "devhost/alloc/PatternHeap.h"

class CCheckedHeap {
public:
    void* Allocate(std::size_t size, EBlockKind kind) noexcept;
    void Release(const void* address, EBlockKind kind) noexcept;

    std::size_t LiveBlocks() noexcept;
    std::size_t LiveBytes() noexcept;
    std::size_t Requests() noexcept;
    void FailAfter(std::size_t count) noexcept;
    void PrintLive(std::size_t most) noexcept;

    // Whether a fault at `address` is one of this heap's blocks being misused; then it ends the process.
    void EndIfMisused(const void* address, const char* access, const char* culprit) noexcept;

private:
    void* Place(const SHeapBlock& block);

    SRWLOCK m_lock = SRWLOCK_INIT;
    CGuardArena m_arena;
    CPatternHeap m_overflow;
    std::size_t m_requests = 0;
    std::size_t m_failAt = 0;  // the number of the request that fails; 0: none
    std::size_t m_liveBlocks = 0;
    std::size_t m_liveBytes = 0;
};
