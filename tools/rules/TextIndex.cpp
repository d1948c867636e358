#include "tools/rules/TextIndex.h"

#include <utility>

namespace tavrin::tools {

namespace {

// FNV-1a over characters, folded, since only the lower bits choose a slot.
std::uint32_t HashOf(std::wstring_view text) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const wchar_t character : text) {
        hash = (hash ^ static_cast<std::uint64_t>(character)) * 0x100000001B3U;
    }
    return static_cast<std::uint32_t>(hash ^ hash >> 32U);
}

}  // namespace

std::size_t CTextIndex::FindOrAdd(std::wstring_view text, std::size_t line) {
    if (2 * m_entries.size() >= m_slots.size()) {
        Grow();
    }
    const std::uint32_t hash = HashOf(text);
    Slot& slot = m_slots[SlotOf(text, hash)];
    if (slot.entry == 0) {
        m_entries.push_back({m_texts.size(), line});
        m_texts += text;
        slot = {hash, static_cast<std::uint32_t>(m_entries.size())};
    }
    return m_entries[slot.entry - 1].line;
}

std::optional<std::size_t> CTextIndex::Find(std::wstring_view text) const {
    if (m_entries.empty()) {
        return std::nullopt;
    }
    const Slot& slot = m_slots[SlotOf(text, HashOf(text))];
    return slot.entry == 0 ? std::nullopt : std::optional(m_entries[slot.entry - 1].line);
}

std::wstring_view CTextIndex::TextOf(std::size_t entry) const {
    const std::size_t start = m_entries[entry].start;
    const std::size_t end = entry + 1 < m_entries.size() ? m_entries[entry + 1].start : m_texts.size();
    return std::wstring_view(m_texts).substr(start, end - start);
}

// The slot of the text, or the empty slot for it.
std::size_t CTextIndex::SlotOf(std::wstring_view text, std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t index = hash & mask;; index = (index + 1) & mask) {
        const Slot& slot = m_slots[index];
        if (slot.entry == 0 || (slot.hash == hash && TextOf(slot.entry - 1) == text)) {
            return index;
        }
    }
}

void CTextIndex::Grow() {
    constexpr std::size_t kFirstSize = 64;
    constexpr std::size_t kGrowth = 4;
    const std::vector<Slot> before = std::move(m_slots);
    m_slots.assign(before.empty() ? kFirstSize : kGrowth * before.size(), {});
    for (const Slot& slot : before) {
        if (slot.entry != 0) {
            std::size_t index = slot.hash;
            while (m_slots[index & (m_slots.size() - 1)].entry != 0) {
                ++index;
            }
            m_slots[index & (m_slots.size() - 1)] = slot;
        }
    }
}

}  // namespace tavrin::tools
