#include "devhost/alloc/GuardArena.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace devhost {

namespace {

constexpr std::size_t kPageSize = 4096;
constexpr std::size_t kMebibyte = std::size_t{1024} * 1024;
constexpr std::size_t kArenaPages = (sizeof(void*) == 8 ? 1024 : 256) * kMebibyte / kPageSize;
constexpr std::size_t kMaxBlockSize = 16 * kMebibyte;
constexpr std::size_t kMaxLiveBlocks = 12'000;
constexpr std::size_t kMaxQuarantinedBlocks = 4096;
constexpr std::size_t kMaxQuarantinedPages = kArenaPages / 4;
constexpr std::size_t kNoPage = SIZE_MAX;

std::size_t RoundUp(std::size_t size, std::size_t step) {
    return (size + step - 1) / step * step;
}

}  // namespace

unsigned char* CGuardArena::Allocate(const HeapBlock& block) {
    if (block.size > kMaxBlockSize || m_liveBlocks == kMaxLiveBlocks || !Reserve()) {
        return nullptr;
    }
    const std::size_t pages = std::max<std::size_t>(1, RoundUp(block.size, kPageSize) / kPageSize);
    const std::size_t first = FindRun(pages + 1);
    if (first == kNoPage ||
        VirtualAlloc(PageAt(first), pages * kPageSize, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
        return nullptr;
    }

    std::fill_n(m_records.begin() + static_cast<std::ptrdiff_t>(first), pages + 1, Record());
    std::fill_n(m_taken.begin() + static_cast<std::ptrdiff_t>(first), pages + 1, true);
    m_records[first] = {block, static_cast<std::uint32_t>(pages), true};
    m_cursor = first + pages + 1;
    ++m_liveBlocks;

    unsigned char* data = DataOf(first);
    std::fill(PageAt(first), data, kBorderByte);
    std::fill_n(data, block.size, kFreshByte);
    std::fill(data + block.size, PageAt(first + pages), kBorderByte);
    return data;
}

bool CGuardArena::Reserve() {
    if (m_base != nullptr) {
        return true;
    }
    m_records.resize(kArenaPages);
    m_taken.resize(kArenaPages);
    m_base = static_cast<unsigned char*>(
        VirtualAlloc(nullptr, kArenaPages * kPageSize, MEM_RESERVE, PAGE_NOACCESS));
    return m_base != nullptr;
}

// The first of `pages` consecutive free pages. The search cycles through the arena, so that pages are reused
// as late as possible.
std::size_t CGuardArena::FindRun(std::size_t pages) {
    std::size_t run = 0;
    std::size_t page = m_cursor;
    for (std::size_t steps = 0; steps < kArenaPages + pages; ++steps, ++page) {
        if (page >= kArenaPages) {
            page = 0;
            run = 0;
        }
        run = m_taken[page] ? 0 : run + 1;
        if (run == pages) {
            return page + 1 - pages;
        }
    }
    return kNoPage;
}

bool CGuardArena::Holds(const void* address) const {
    const auto* byte = static_cast<const unsigned char*>(address);
    return m_base != nullptr && byte >= m_base && byte < m_base + kArenaPages * kPageSize;
}

std::size_t CGuardArena::PageOf(const void* address) const {
    return static_cast<std::size_t>(static_cast<const unsigned char*>(address) - m_base) / kPageSize;
}

unsigned char* CGuardArena::PageAt(std::size_t page) const {
    return m_base + page * kPageSize;
}

// The first byte of the block that begins on `page`. Alignment leaves up to 15 bytes between its end and the
// guard page.
unsigned char* CGuardArena::DataOf(std::size_t page) const {
    const Record& record = m_records[page];
    const std::size_t size = RoundUp(std::max<std::size_t>(1, record.block.size), kBlockAlignment);
    return PageAt(page + record.pages) - size;
}

const CGuardArena::Record* CGuardArena::RecordAt(const void* address) const {
    if (!Holds(address)) {
        return nullptr;
    }
    const std::size_t page = PageOf(address);
    return m_records[page].pages != 0 && DataOf(page) == address ? &m_records[page] : nullptr;
}

const HeapBlock* CGuardArena::FindLive(const void* address) const {
    const Record* record = RecordAt(address);
    return record != nullptr && record->live ? &record->block : nullptr;
}

const HeapBlock* CGuardArena::FindFreed(const void* address) const {
    const Record* record = RecordAt(address);
    return record != nullptr && !record->live ? &record->block : nullptr;
}

void CGuardArena::CheckBorder(const void* address) const {
    const std::size_t page = PageOf(address);
    const Record& record = m_records[page];
    const unsigned char* data = DataOf(page);
    if (!IsFilled(PageAt(page), data, kBorderByte)) {
        AbortOnHeapMisuse("%s was written before its start", BlockName(record.block).text);
    }
    if (!IsFilled(data + record.block.size, PageAt(page + record.pages), kBorderByte)) {
        AbortOnHeapMisuse("%s was written past its end", BlockName(record.block).text);
    }
}

void CGuardArena::Release(const void* address) {
    const std::size_t page = PageOf(address);
    Record& record = m_records[page];
    record.live = false;
    --m_liveBlocks;
    VirtualFree(PageAt(page), record.pages * kPageSize, MEM_DECOMMIT);
    Quarantine(page);
}

// Delays the reuse of a released block's pages.
void CGuardArena::Quarantine(std::size_t page) {
    m_quarantine.push_back(page);
    m_quarantinedPages += m_records[page].pages + 1;
    while (m_quarantine.size() > kMaxQuarantinedBlocks || m_quarantinedPages > kMaxQuarantinedPages) {
        const std::size_t oldest = m_quarantine.front();
        const std::size_t pages = m_records[oldest].pages + 1;
        m_quarantine.pop_front();
        m_quarantinedPages -= pages;
        std::fill_n(m_taken.begin() + static_cast<std::ptrdiff_t>(oldest), pages, false);
    }
}

void CGuardArena::ExitOnFault(const void* address, const char* access, const char* culprit) const {
    std::size_t page = PageOf(address);
    const std::size_t faulted = page;
    while (page > 0 && m_records[page].pages == 0) {
        --page;
    }
    const Record& record = m_records[page];
    if (record.pages == 0 || faulted > page + record.pages) {
        AbortOnHeapMisuse("%s %s an address outside of all blocks (%p)", culprit, access, address);
    }
    const BlockName name(record.block);
    if (!record.live) {
        AbortOnHeapMisuse("%s %s %s after it was deleted", culprit, access, name.text);
    }
    const auto past = static_cast<const unsigned char*>(address) - (DataOf(page) + record.block.size);
    AbortOnHeapMisuse("%s %s %lld bytes past the end of %s", culprit, access, static_cast<long long>(past),
                      name.text);
}

void CGuardArena::ForEachLive(
    const std::function<void(const HeapBlock&, const unsigned char*)>& visit) const {
    for (std::size_t page = 0; page < m_records.size(); ++page) {
        if (m_records[page].live) {
            visit(m_records[page].block, DataOf(page));
        }
    }
}

}  // namespace devhost
