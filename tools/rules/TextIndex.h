// Remembers texts, each with the line that had it first. Made for many of them: all lie in one piece of
// memory, and a look-up touches it once or twice.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class CTextIndex {
public:
    // The line that had the text before; when none had, it is remembered for this one, which is the answer.
    std::size_t FindOrAdd(std::wstring_view text, std::size_t line);

private:
    struct SEntry {
        std::size_t start = 0;  // in m_texts
        std::size_t length = 0;
        std::size_t line = 0;
        std::size_t hash = 0;
    };

    std::uint32_t& SlotOf(std::wstring_view text, std::size_t hash);
    void Grow();

    std::wstring m_texts;  // one behind the other
    std::vector<SEntry> m_entries;
    std::vector<std::uint32_t> m_slots;  // an entry's place plus one, or 0; a power of two of them
};
