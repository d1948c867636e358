// Remembers texts, each with the line that had it first. Made for many of them: all lie in one piece of
// memory, and a look-up touches it once or twice.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CTextIndex {
public:
    // The line that had the text before; when none had, it is remembered for this one, which is the answer.
    std::size_t FindOrAdd(std::wstring_view text, std::size_t line);

    // The line that had the text; nothing when it is not known.
    std::optional<std::size_t> Find(std::wstring_view text) const;

private:
    struct SEntry {
        std::size_t start = 0;  // in m_texts; the text ends where the next one starts
        std::size_t line = 0;
    };
    // The hash is kept beside the entry's place, so that a slot of another text is passed by without a look
    // at that text.
    struct SSlot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;  // its place plus one, or 0
    };

    std::size_t SlotOf(std::wstring_view text, std::uint32_t hash) const;
    std::wstring_view TextOf(std::size_t entry) const;
    void Grow();

    std::wstring m_texts;  // one behind the other
    std::vector<SEntry> m_entries;
    std::vector<SSlot> m_slots;  // a power of two of them
};
