// Blocks that end where memory ends: behind each lies a page that cannot be touched, and the pages of a
// block that was given back cannot be touched either. A wrong access faults at the instruction that makes it.
//
// Owns one reserved range of addresses. Reserving block by block would cost 64 KiB of addresses each, so
// pages are committed one by one inside the range. The number of blocks that live here at a time is limited:
// each costs the system two mappings, of which a Linux process may have 65530 under Wine.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "devhost/alloc/HeapBlock.h"

class CGuardArena {
public:
    CGuardArena() = default;
    CGuardArena(const CGuardArena&) = delete;
    CGuardArena& operator=(const CGuardArena&) = delete;

    // Memory for the block, or null: too many or too large blocks, no addresses or memory left.
    unsigned char* Allocate(const SHeapBlock& block);
    // Whether an address lies in the arena, in whatever state.
    bool Holds(const void* address) const;

    // The block that begins at `address` and has not been given back, or null.
    const SHeapBlock* FindLive(const void* address) const;
    // The block that began at `address` and was given back, as long as its place was not used again.
    const SHeapBlock* FindFreed(const void* address) const;
    // Ends the process when something was written around the live block at `address`.
    void CheckBorder(const void* address) const;
    // Gives back the live block at `address`.
    void Release(const void* address);

    // Ends the process with what can be said about an access that faulted in the arena.
    [[noreturn]] void EndOverFault(const void* address, const char* access, const char* culprit) const;

    void ForEachLive(const std::function<void(const SHeapBlock&, const unsigned char*)>& visit) const;

private:
    // The page on which a block begins carries its record, also after it was given back.
    struct SRecord {
        SHeapBlock block;
        std::uint32_t pages = 0;  // without the guard page; 0: no block begins here
        bool live = false;
    };

    bool Reserve();
    std::size_t FindRun(std::size_t pages);
    std::size_t PageOf(const void* address) const;
    unsigned char* PageAt(std::size_t page) const;
    unsigned char* DataOf(std::size_t page) const;
    const SRecord* RecordAt(const void* address) const;
    void Quarantine(std::size_t page);

    unsigned char* m_base = nullptr;
    std::vector<SRecord> m_records;
    std::vector<bool> m_taken;  // by page: part of a live or quarantined block, its guard page included
    std::size_t m_cursor = 0;   // where the search for free pages goes on
    std::size_t m_liveBlocks = 0;
    std::deque<std::size_t> m_quarantine;  // first pages, the oldest in front
    std::size_t m_quarantinedPages = 0;
};
