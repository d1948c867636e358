// A set of characters as "[...]" in a pattern describes it: a bitmap for the first 256 characters, which are
// nearly all that single-byte files hold, and a list of ranges for the others.
#pragma once

#include <bitset>
#include <cstdint>
#include <vector>

class CCharacterSet {
public:
    static constexpr std::uint32_t kLowCount = 256;
    using LowSet = std::bitset<kLowCount>;

    // Adds the characters from first to last, both included; first must not lie above last.
    void Add(wchar_t first, wchar_t last);

    // Turns the set into its complement. The end of the input, seen by the search as a null character, is
    // not in the complement either: a search that relies on that needs no other check for the end.
    void Negate();

    // Makes each capital a member exactly if its small letter is one, which is what matching against a
    // lower-cased input would give. True if that changes the set.
    bool FoldCapitals();

    bool Contains(wchar_t character) const {
        const auto code = static_cast<std::uint32_t>(character);
        return code < kLowCount ? m_low[code] : ContainsHigh(code);
    }

    // The members among the first 256 characters, and whether there may be others.
    const LowSet& Low() const { return m_low; }
    bool HasHigh() const { return m_negated || !m_high.empty(); }

private:
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };

    bool ContainsHigh(std::uint32_t code) const;

    LowSet m_low;
    std::vector<Range> m_high;  // parts of the added ranges above the first 256 characters
    bool m_negated = false;     // whether m_high lists what is outside the set
};
