#include "devhost/alloc/CheckedHeap.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "devhost/fault/CodeAddress.h"

namespace devhost {

namespace {

class CLock {
public:
    explicit CLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    ~CLock() { ReleaseSRWLockExclusive(&m_lock); }
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;

private:
    SRWLOCK& m_lock;
};

// Releases a live block of `store` after checking it, and returns its size.
template <typename TStore>
std::size_t ReleaseFrom(TStore& store, const void* address, EBlockKind kind) {
    const HeapBlock* found = store.FindLive(address);
    if (found == nullptr) {
        if (const HeapBlock* freed = store.FindFreed(address)) {
            AbortOnHeapMisuse("%s was deleted twice", BlockName(*freed).text);
        }
        AbortOnHeapMisuse("what was deleted at %p is no block of this heap", address);
    }
    const HeapBlock block = *found;
    if (block.kind != kind) {
        AbortOnHeapMisuse("%s was deleted with %s", BlockName(block).text,
                          kind == BK_ARRAY ? "delete[]" : "delete");
    }
    store.CheckBorder(address);
    store.Release(address);
    return block.size;
}

}  // namespace

void* CCheckedHeap::Allocate(std::size_t size, EBlockKind kind) noexcept {
    const CLock lock(m_lock);
    ++m_requests;
    if (m_requests == m_failAt) {
        return nullptr;
    }
    void* address = AllocateBlock({size, m_requests, kind});
    if (address != nullptr) {
        ++m_liveBlocks;
        m_liveBytes += size;
    }
    return address;
}

void* CCheckedHeap::AllocateBlock(const HeapBlock& block) {
    try {
        if (void* guarded = m_arena.Allocate(block)) {
            return guarded;
        }
        return m_overflow.Allocate(block);
    } catch (...) {
        return nullptr;  // out of memory for the bookkeeping
    }
}

void CCheckedHeap::Release(const void* address, EBlockKind kind) noexcept {
    if (address == nullptr) {
        return;
    }
    const CLock lock(m_lock);
    const std::size_t size =
        m_arena.Holds(address) ? ReleaseFrom(m_arena, address, kind) : ReleaseFrom(m_overflow, address, kind);
    --m_liveBlocks;
    m_liveBytes -= size;
}

std::size_t CCheckedHeap::LiveBlocks() noexcept {
    const CLock lock(m_lock);
    return m_liveBlocks;
}

std::size_t CCheckedHeap::LiveBytes() noexcept {
    const CLock lock(m_lock);
    return m_liveBytes;
}

std::size_t CCheckedHeap::Requests() noexcept {
    const CLock lock(m_lock);
    return m_requests;
}

void CCheckedHeap::FailAfter(std::size_t count) noexcept {
    const CLock lock(m_lock);
    m_failAt = count == 0 ? 0 : m_requests + count;
}

void CCheckedHeap::PrintLive(std::size_t most) noexcept {
    struct LiveBlock {
        HeapBlock block;
        const unsigned char* data;
    };
    const CLock lock(m_lock);
    std::vector<LiveBlock> live;
    const auto collect = [&](const HeapBlock& block, const unsigned char* data) {
        live.push_back({block, data});
    };
    m_arena.ForEachLive(collect);
    m_overflow.ForEachLive(collect);
    std::sort(live.begin(), live.end(),
              [](const LiveBlock& a, const LiveBlock& b) { return a.block.number < b.block.number; });
    if (live.size() > most) {
        live.resize(most);
    }
    for (const LiveBlock& entry : live) {
        char bytes[16 * 3 + 1] = "";
        for (std::size_t i = 0; i < std::min<std::size_t>(16, entry.block.size); ++i) {
            std::snprintf(bytes + 3 * i, 4, " %02X", entry.data[i]);
        }
        char line[200];
        std::snprintf(line, sizeof line, "heap check: %s is held, bytes%s\n", BlockName(entry.block).text,
                      bytes);
        WriteToStandardError(line);
    }
}

void CCheckedHeap::EndIfMisused(const void* address, const char* access, const char* culprit) noexcept {
    // The thread that faulted may hold the lock itself; then the bookkeeping may be inconsistent.
    if (!m_arena.Holds(address) || !TryAcquireSRWLockExclusive(&m_lock)) {
        return;
    }
    m_arena.ExitOnFault(address, access, culprit);
}

}  // namespace devhost
