// One way to run the program's patterns over lines: our matcher's, or another library's.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tavrin::benchmarks {

// Begin and end of the match, then of each group, as positions in the line.
struct MatchSpan {
    std::ptrdiff_t begin;
    std::ptrdiff_t end;
    bool operator==(const MatchSpan&) const = default;
};
using MatchSpans = std::vector<MatchSpan>;

using Lines = std::vector<std::wstring>;

class IMatcher {
public:
    virtual ~IMatcher() = default;

    // The lines of the calls to come, in the form that the library takes them in.
    virtual void SetLines(const Lines& lines) = 0;

    // How many of the lines match. This is what the times are taken of: all groups are found each time.
    virtual std::size_t CountMatches() = 0;

    // What a line's match and its groups are, to compare the matchers.
    virtual std::optional<MatchSpans> Find(std::size_t line) = 0;
};

// A pattern in our language and, for all peers alike, in the usual one, where no character but the line's end
// needs an option for its meaning.
struct BenchPattern {
    const char* name;
    const wchar_t* ours;
    const char* theirs;
};

struct MatcherKind {
    const char* name;
    bool compilesToMachineCode;
    std::unique_ptr<IMatcher> (*make)(const BenchPattern& pattern);
};

// Ours first.
const std::vector<MatcherKind>& MatcherKinds();

}  // namespace tavrin::benchmarks
