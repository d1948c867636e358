// A set of characters as "[...]" in a pattern describes it: a bitmap for the first 256 characters, which are
// nearly all that single-byte files hold, and a list of ranges for the others.
#pragma once

#include <bitset>
#include <cstdint>
#include <vector>

namespace tavrin::pattern {

class CCharacterSet {
public:
    // Adds the characters from first to last, both included; first must not be above last.
    void Add(wchar_t first, wchar_t last);

    // Turns the set into its complement without the null character, which ends the input: a search that
    // tests a character for membership needs no other test for the end.
    void Negate();

    // Makes each capital a member exactly if its small letter is one. Matching the input as it is then gives
    // what matching a lower-cased input against the original set would give.
    void FoldCapitals();

    bool Contains(wchar_t character) const {
        const auto code = static_cast<std::uint32_t>(character);
        return code < kLowCount ? m_low[code] : ContainsHigh(code);
    }

private:
    static constexpr std::uint32_t kLowCount = 256;

    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };

    bool ContainsHigh(std::uint32_t code) const;

    std::bitset<kLowCount> m_low;
    std::vector<Range> m_high;  // the parts of the added ranges above the bitmap
    bool m_negated = false;     // m_high lists what is outside the set
};

}  // namespace tavrin::pattern
