// Blocks on the ordinary heap with a border of known bytes around each. Writes to the border are detected
// when the block is released; writes to a released block when its memory is freed, some thousand blocks
// later. Cheap enough for a million blocks; reads out of bounds are not detected.
#pragma once

#include <deque>
#include <functional>
#include <unordered_map>

#include "devhost/alloc/HeapBlock.h"

namespace devhost {

class CPatternHeap {
public:
    CPatternHeap() = default;
    CPatternHeap(const CPatternHeap&) = delete;
    CPatternHeap& operator=(const CPatternHeap&) = delete;

    // Null when out of memory.
    unsigned char* Allocate(const HeapBlock& block);

    // The live block that begins at `address`, or null.
    const HeapBlock* FindLive(const void* address) const;
    // The block that began at `address` and was released recently, or null.
    const HeapBlock* FindFreed(const void* address) const;
    // Ends the process if the border of the live block at `address` is damaged.
    void CheckBorder(const void* address) const;
    // Releases the live block at `address`.
    void Release(const void* address);

    void ForEachLive(const std::function<void(const HeapBlock&, const unsigned char*)>& visit) const;

private:
    struct FreedBlock {
        unsigned char* data;
        HeapBlock block;
    };

    void ReleaseOldest();

    std::unordered_map<const void*, HeapBlock> m_live;
    std::deque<FreedBlock> m_quarantine;  // the oldest first
    std::size_t m_quarantinedBytes = 0;
};

}  // namespace devhost
