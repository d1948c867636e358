// A map from texts to the first line with the text: an open-addressing hash table with all texts in one
// string. It keeps the check of a file with a million parameters within the time and memory that
// docs/performance.md sets, which std::unordered_map does not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrin::tools {

class CTextIndex {
public:
    // The first line with the text; the given one, which is added, when there was none.
    std::size_t FindOrAdd(std::wstring_view text, std::size_t line);

    // The first line with the text; nothing when there is none.
    std::optional<std::size_t> Find(std::wstring_view text) const;

private:
    struct Entry {
        std::size_t start = 0;  // in m_texts; the text ends where the next one starts
        std::size_t line = 0;
    };
    // With the hash, so that probing rarely compares texts.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;  // index plus one; 0 for an empty slot
    };

    std::size_t SlotOf(std::wstring_view text, std::uint32_t hash) const;
    std::wstring_view TextOf(std::size_t entry) const;
    void Grow();

    std::wstring m_texts;  // concatenated
    std::vector<Entry> m_entries;
    std::vector<Slot> m_slots;  // their number is a power of two
};

}  // namespace tavrin::tools
