// The result of one match: where the whole match and each capturing group are in the caller's input. The
// context owns its array of pairs and keeps it from match to match; the pointers in it point into the
// caller's input and must not be used after that is gone.
#pragma once

#include <cstddef>
#include <string_view>

#include "pattern/InlineVector.h"

namespace tavrin::pattern {

class CMatchContext {
public:
    // [start, end). Both null: the group took no part in the match. Equal: it matched the empty text.
    struct Pair {
        const wchar_t* start = nullptr;
        const wchar_t* end = nullptr;
    };
    static constexpr std::size_t kInlineGroups = 4;
    using Groups = CInlineVector<Pair, kInlineGroups>;

    // The whole match, the end one past its last character. Both null unless the last match succeeded.
    const wchar_t* MatchStart() const { return m_match.start; }
    const wchar_t* MatchEnd() const { return m_match.end; }

    // One pair for each capturing group of the pattern, in the order of their opening braces, from 0.
    std::size_t GroupCount() const { return m_groups.Size(); }
    const Pair& Group(std::size_t index) const { return m_groups[index]; }

    // The text of a group; empty if it took no part in the match.
    std::wstring_view GroupText(std::size_t index) const { return {Group(index).start, Group(index).end}; }

private:
    friend class CPatternMatcher;

    Pair m_match;
    Groups m_groups;
};

}  // namespace tavrin::pattern
