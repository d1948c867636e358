#include "TextIndex.h"

#include <functional>

std::size_t CTextIndex::FindOrAdd(std::wstring_view text, std::size_t line) {
    if (2 * m_entries.size() >= m_slots.size()) {
        Grow();
    }
    const std::size_t hash = std::hash<std::wstring_view>{}(text);
    std::uint32_t& slot = SlotOf(text, hash);
    if (slot == 0) {
        m_entries.push_back({m_texts.size(), text.size(), line, hash});
        m_texts += text;
        slot = static_cast<std::uint32_t>(m_entries.size());
    }
    return m_entries[slot - 1].line;
}

// The slot that holds the text, or the empty one where it belongs.
std::uint32_t& CTextIndex::SlotOf(std::wstring_view text, std::size_t hash) {
    for (std::size_t place = hash;; ++place) {
        std::uint32_t& slot = m_slots[place & (m_slots.size() - 1)];
        if (slot == 0) {
            return slot;
        }
        const SEntry& entry = m_entries[slot - 1];
        if (entry.hash == hash && std::wstring_view(m_texts).substr(entry.start, entry.length) == text) {
            return slot;
        }
    }
}

void CTextIndex::Grow() {
    constexpr std::size_t kFirstSize = 64;
    m_slots.assign(m_slots.empty() ? kFirstSize : 2 * m_slots.size(), 0);
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        std::size_t place = m_entries[i].hash;
        while (m_slots[place & (m_slots.size() - 1)] != 0) {
            ++place;
        }
        m_slots[place & (m_slots.size() - 1)] = static_cast<std::uint32_t>(i + 1);
    }
}
