// What one match found: where the whole match and each capturing group lie in the caller's input. The
// context owns its array of pairs and keeps it from match to match; the pointers in it point into the
// caller's input and must not be used longer than that lives.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

class CMatchContext {
public:
    // [start, end). Both null: the group took no part in the match. Equal: it matched an empty stretch.
    struct Pair {
        const wchar_t* start = nullptr;
        const wchar_t* end = nullptr;
    };

    // The whole match, the end one past its last character. Both null unless the last match succeeded.
    const wchar_t* MatchStart() const { return m_match.start; }
    const wchar_t* MatchEnd() const { return m_match.end; }

    // One pair for each capturing group of the pattern, in the order of their opening braces, from 0.
    std::size_t GroupCount() const { return m_groupCount; }
    const Pair& Group(std::size_t index) const { return Groups()[index].pair; }

    // The text of a group; empty when it took no part in the match.
    std::wstring_view GroupText(std::size_t index) const {
        const Pair& group = Group(index);
        return group.start == nullptr
                   ? std::wstring_view()
                   : std::wstring_view(group.start, static_cast<std::size_t>(group.end - group.start));
    }

    // The work that the last match took: instructions executed, choices taken back and characters passed
    // over. It is the same on every machine, which lets a test state how the work grows with the input.
    std::size_t Steps() const { return m_steps; }

private:
    friend class CPatternMatcher;
    friend class CPatternSearch;

    struct Capture {
        Pair pair;
        const wchar_t* opening = nullptr;  // where the group began last; it may still be open
    };

    // Patterns have few groups: their pairs need no memory from the heap.
    static constexpr std::size_t kInlineGroups = 4;

    const Capture* Groups() const {
        return m_groupCount <= kInlineGroups ? m_inlineGroups : m_manyGroups.data();
    }
    Capture* Groups() { return m_groupCount <= kInlineGroups ? m_inlineGroups : m_manyGroups.data(); }

    // As many pairs as that, all null.
    void ResetGroups(std::size_t count) {
        if (count > kInlineGroups) {
            m_manyGroups.resize(count);
        }
        m_groupCount = count;
        std::fill_n(Groups(), count, Capture());
    }

    Pair m_match;
    std::size_t m_groupCount = 0;
    Capture m_inlineGroups[kInlineGroups];
    std::vector<Capture> m_manyGroups;  // used instead when there are more
    std::size_t m_steps = 0;
};
