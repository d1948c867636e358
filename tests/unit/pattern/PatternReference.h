// A second, deliberately simple pattern matcher, for comparison alone: a recursive parser that builds a tree
// and a matcher over the tree that hands on what comes next as a function. It shares no code with the
// matcher under test and works on lower-cased copies, positions and copies of all captures. It is meant for
// short patterns and inputs.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct ReferenceNode;

// Begin and end of a capture as positions in the input.
struct ReferenceSpan {
    std::size_t begin;
    std::size_t end;
    bool operator==(const ReferenceSpan&) const = default;
};

struct ReferenceResult {
    bool tooMuchWork = false;  // given up: there is nothing to compare
    std::optional<ReferenceSpan> match;
    std::vector<std::optional<ReferenceSpan>> groups;
};

class CPatternReference {
public:
    CPatternReference(const std::wstring& pattern, bool caseSensitive);
    ~CPatternReference();
    CPatternReference(const CPatternReference&) = delete;
    CPatternReference& operator=(const CPatternReference&) = delete;

    // 0, or the number of the error as CPatternMatcher counts them.
    unsigned Error() const { return m_error; }
    std::size_t GroupCount() const { return m_groupCount; }

    ReferenceResult Match(const std::wstring& input) const;

private:
    std::unique_ptr<ReferenceNode> m_root;
    std::size_t m_groupCount = 0;
    bool m_anchored = false;
    bool m_caseSensitive;
    unsigned m_error = 0;
};
