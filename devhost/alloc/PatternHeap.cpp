#include "devhost/alloc/PatternHeap.h"

#include <malloc.h>

#include <algorithm>
#include <cstdint>

namespace devhost {

namespace {

constexpr std::size_t kBorder = 16;
constexpr std::size_t kMaxQuarantinedBlocks = 4096;
constexpr std::size_t kMaxQuarantinedBytes = std::size_t{64} * 1024 * 1024;

}  // namespace

unsigned char* CPatternHeap::Allocate(const HeapBlock& block) {
    if (block.size > PTRDIFF_MAX - 2 * kBorder) {
        return nullptr;
    }
    auto* memory = static_cast<unsigned char*>(_aligned_malloc(block.size + 2 * kBorder, kBlockAlignment));
    if (memory == nullptr) {
        return nullptr;
    }
    unsigned char* data = memory + kBorder;
    try {
        m_live.emplace(data, block);
    } catch (...) {
        _aligned_free(memory);
        return nullptr;
    }
    std::fill_n(memory, kBorder, kBorderByte);
    std::fill_n(data, block.size, kFreshByte);
    std::fill_n(data + block.size, kBorder, kBorderByte);
    return data;
}

const HeapBlock* CPatternHeap::FindLive(const void* address) const {
    const auto found = m_live.find(address);
    return found != m_live.end() ? &found->second : nullptr;
}

const HeapBlock* CPatternHeap::FindFreed(const void* address) const {
    const auto found = std::find_if(m_quarantine.begin(), m_quarantine.end(),
                                    [=](const FreedBlock& freed) { return freed.data == address; });
    return found != m_quarantine.end() ? &found->block : nullptr;
}

void CPatternHeap::CheckBorder(const void* address) const {
    const HeapBlock& block = m_live.at(address);
    const auto* data = static_cast<const unsigned char*>(address);
    if (!IsFilled(data - kBorder, data, kBorderByte)) {
        AbortOnHeapMisuse("%s was written before its start", BlockName(block).text);
    }
    if (!IsFilled(data + block.size, data + block.size + kBorder, kBorderByte)) {
        AbortOnHeapMisuse("%s was written past its end", BlockName(block).text);
    }
}

void CPatternHeap::Release(const void* address) {
    const auto found = m_live.find(address);
    const HeapBlock block = found->second;
    m_live.erase(found);
    auto* data = static_cast<unsigned char*>(const_cast<void*>(address));
    std::fill_n(data, block.size, kFreedByte);
    m_quarantine.push_back({data, block});
    m_quarantinedBytes += block.size;
    while (m_quarantine.size() > kMaxQuarantinedBlocks || m_quarantinedBytes > kMaxQuarantinedBytes) {
        ReleaseOldest();
    }
}

void CPatternHeap::ReleaseOldest() {
    const FreedBlock oldest = m_quarantine.front();
    m_quarantine.pop_front();
    m_quarantinedBytes -= oldest.block.size;
    if (!IsFilled(oldest.data, oldest.data + oldest.block.size, kFreedByte)) {
        AbortOnHeapMisuse("%s was written after it was deleted", BlockName(oldest.block).text);
    }
    _aligned_free(oldest.data - kBorder);
}

void CPatternHeap::ForEachLive(
    const std::function<void(const HeapBlock&, const unsigned char*)>& visit) const {
    for (const auto& [address, block] : m_live) {
        visit(block, static_cast<const unsigned char*>(address));
    }
}

}  // namespace devhost
