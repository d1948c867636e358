// Blocks on the ordinary heap with a border of known bytes around each. What is written there is found when
// the block is given back, and what is written into a block that was given back when its memory is really
// let go, some thousand blocks later. Cheap enough for a million blocks; reading out of bounds goes unseen.
#pragma once

#include <deque>
#include <functional>
#include <unordered_map>

#include "devhost/alloc/HeapBlock.h"

class CPatternHeap {
public:
    CPatternHeap() = default;
    CPatternHeap(const CPatternHeap&) = delete;
    CPatternHeap& operator=(const CPatternHeap&) = delete;

    // Memory for the block, or null when there is none.
    unsigned char* Allocate(const SHeapBlock& block);

    // The block that begins at `address` and has not been given back, or null.
    const SHeapBlock* FindLive(const void* address) const;
    // The block that began at `address` and was given back not long ago.
    const SHeapBlock* FindFreed(const void* address) const;
    // Ends the process when something was written around the live block at `address`.
    void CheckBorder(const void* address) const;
    // Gives back the live block at `address`.
    void Release(const void* address);

    void ForEachLive(const std::function<void(const SHeapBlock&, const unsigned char*)>& visit) const;

private:
    struct SFreed {
        unsigned char* data;
        SHeapBlock block;
    };

    void LetOldestGo();

    std::unordered_map<const void*, SHeapBlock> m_live;
    std::deque<SFreed> m_quarantine;  // the oldest in front
    std::size_t m_quarantinedBytes = 0;
};
