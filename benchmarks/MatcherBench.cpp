// The pattern matcher beside other libraries' on the program's two patterns, and how its time grows with the
// length of a line.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "benchmarks/BenchTable.h"
#include "benchmarks/Matcher.h"
#include "benchmarks/MatcherCorpus.h"
#include "benchmarks/PeerPatterns.h"
#include "itemdlg/TemplatePatterns.h"

using namespace tavrin::benchmarks;
using namespace tavrin::itemdlg;

namespace {

const BenchPattern kPatterns[] = {
    {"parameter pattern", kParameterPattern, kPeerParameterPattern},
    {"placeholder pattern", kPlaceholderPattern, kPeerPlaceholderPattern},
};

// A matcher and the lines that it works on.
struct Run {
    const MatcherKind* kind;
    Lines lines;
};

// The time of one pattern for each run, in nanoseconds; the runs take turns. A matcher that does not find
// what ours finds is not worth a comparison.
std::vector<double> Times(const BenchPattern& pattern, const std::vector<Run>& runs) {
    std::vector<std::unique_ptr<IMatcher>> matchers;
    std::vector<std::function<void()>> works;
    for (const Run& run : runs) {
        const std::unique_ptr<IMatcher> ours = MatcherKinds().front().make(pattern);
        ours->SetLines(run.lines);
        matchers.push_back(run.kind->make(pattern));
        IMatcher& matcher = *matchers.back();
        matcher.SetLines(run.lines);
        for (std::size_t line = 0; line < run.lines.size(); ++line) {
            if (matcher.Find(line) != ours->Find(line)) {
                throw std::runtime_error(std::string(run.kind->name) + " does not find what our " +
                                         pattern.name + " finds in line " + std::to_string(line));
            }
        }
        works.push_back([&matcher] { Use(matcher.CountMatches()); });
    }
    return MedianTimes(works);
}

void CompareOnMixedLines() {
    const Lines lines = MixedLines();
    const std::string size = std::to_string(lines.size()) + " lines";
    const std::vector<MatcherKind>& kinds = MatcherKinds();
    std::vector<Run> runs;
    for (const MatcherKind& kind : kinds) {
        runs.push_back({&kind, lines});
    }
    std::vector<double> sums(kinds.size());
    for (const BenchPattern& pattern : kPatterns) {
        const std::vector<double> times = Times(pattern, runs);
        for (std::size_t index = 0; index < kinds.size(); ++index) {
            sums[index] += times[index];
            if (index > 0) {
                PrintRow({"matcher", pattern.name, size, times[0], "ns", kinds[index].name, times[index]});
            }
        }
    }
    for (std::size_t index = 1; index < kinds.size(); ++index) {
        PrintRow({"matcher", "both patterns", size, sums[0], "ns", kinds[index].name, sums[index],
                  kinds[index].compilesToMachineCode ? 2.5 : 1.0});
    }
}

// The time for a character of a line in each run, both patterns together, in nanoseconds.
std::vector<double> TimesPerCharacter(const std::vector<Run>& runs) {
    std::vector<double> sums(runs.size());
    for (const BenchPattern& pattern : kPatterns) {
        const std::vector<double> times = Times(pattern, runs);
        for (std::size_t index = 0; index < runs.size(); ++index) {
            sums[index] += times[index] / static_cast<double>(runs[index].lines.front().size());
        }
    }
    return sums;
}

// A line ten times as long takes ten times as long: the time per character may not grow. Short lines cost
// more per character, because a call costs something too, so that a thousand characters are the measure;
// twice as much is left for what the caches of the machine hold.
void MeasureGrowth() {
    constexpr std::size_t kMeasure = 1000;
    const MatcherKind* const ours = &MatcherKinds()[0];
    const MatcherKind* const pcre2 = &MatcherKinds()[1];
    for (const LineKind& kind : GrowingLines()) {
        for (std::size_t length = 10; length <= 1'000'000; length *= 10) {
            const Lines line = {LineOf(kind, length)};
            const std::vector<double> times =
                TimesPerCharacter({{ours, line}, {pcre2, line}, {ours, {LineOf(kind, kMeasure)}}});
            const std::string size = std::to_string(length) + " characters";
            if (length > kMeasure) {
                PrintRow({"matcher's growth", kind.name, size, times[0], "ns/character", "itself at 1000",
                          times[2], 2.0});
            }
            PrintRow({"matcher's growth", kind.name, size, times[0], "ns/character", pcre2->name, times[1]});
        }
    }
}

}  // namespace

int main() {
    try {
        CompareOnMixedLines();
        MeasureGrowth();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_matcher: %s\n", failure.what());
        return 1;
    }
}
