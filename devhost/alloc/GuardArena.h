// Blocks that end at a guard page, except for up to 15 bytes of alignment; the pages of a released block are
// inaccessible too. An access beyond these bytes or after release faults at once. A write to these bytes, or
// before the block on its first page, is found by CheckBorder.
//
// Owns one reserved address range. Reserving each block separately would take 64 KiB of address space, so the
// pages of each block are committed inside the range. The number of live blocks is limited: each costs two
// mappings, of which a Linux process may have 65530 under Wine.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "devhost/alloc/HeapBlock.h"

namespace devhost {

class CGuardArena {
public:
    CGuardArena() = default;
    CGuardArena(const CGuardArena&) = delete;
    CGuardArena& operator=(const CGuardArena&) = delete;

    // Null when there are too many blocks, the block is too large, or addresses or memory are exhausted.
    unsigned char* Allocate(const HeapBlock& block);
    // Whether an address is in the arena, in any state.
    bool Holds(const void* address) const;

    // The live block that begins at `address`, or null.
    const HeapBlock* FindLive(const void* address) const;
    // The released block that began at `address`, or null once its pages are reused.
    const HeapBlock* FindFreed(const void* address) const;
    // Ends the process if the border of the live block at `address` is damaged.
    void CheckBorder(const void* address) const;
    // Releases the live block at `address`.
    void Release(const void* address);

    // Ends the process with a message about an access that faulted in the arena.
    [[noreturn]] void ExitOnFault(const void* address, const char* access, const char* culprit) const;

    void ForEachLive(const std::function<void(const HeapBlock&, const unsigned char*)>& visit) const;

private:
    // The record of a block is that of its first page, also after its release.
    struct Record {
        HeapBlock block;
        std::uint32_t pages = 0;  // without the guard page; 0: no block begins here
        bool live = false;
    };

    bool Reserve();
    std::size_t FindRun(std::size_t pages);
    std::size_t PageOf(const void* address) const;
    unsigned char* PageAt(std::size_t page) const;
    unsigned char* DataOf(std::size_t page) const;
    const Record* RecordAt(const void* address) const;
    void Quarantine(std::size_t page);

    unsigned char* m_base = nullptr;
    std::vector<Record> m_records;
    std::vector<bool> m_taken;  // by page: part of a live or quarantined block, its guard page included
    std::size_t m_cursor = 0;   // where the search for free pages continues
    std::size_t m_liveBlocks = 0;
    std::deque<std::size_t> m_quarantine;  // first pages, the oldest first
    std::size_t m_quarantinedPages = 0;
};

}  // namespace devhost
