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

// The time of one pattern over the lines for each of the matchers, in nanoseconds. Matchers that do not find
// the same are not worth a comparison.
std::vector<double> Times(const BenchPattern& pattern, const Lines& lines, std::size_t matcherCount) {
    std::vector<std::unique_ptr<IMatcher>> matchers;
    std::vector<std::function<void()>> works;
    for (std::size_t index = 0; index < matcherCount; ++index) {
        const MatcherKind& kind = MatcherKinds()[index];
        matchers.push_back(kind.make(pattern));
        IMatcher& matcher = *matchers.back();
        matcher.SetLines(lines);
        for (std::size_t line = 0; line < lines.size(); ++line) {
            if (matcher.Find(line) != matchers.front()->Find(line)) {
                throw std::runtime_error(std::string(kind.name) + " does not find what our " + pattern.name +
                                         " finds in line " + std::to_string(line));
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
    std::vector<double> sums(kinds.size());
    for (const BenchPattern& pattern : kPatterns) {
        const std::vector<double> times = Times(pattern, lines, kinds.size());
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

// A line ten times as long takes ten times as long: the time per character may not grow. Short lines cost
// more per character, because a call costs something too, so that a thousand characters are the measure;
// twice as much is left for what the caches of the machine hold.
void MeasureGrowth() {
    constexpr std::size_t kMeasure = 1000;
    constexpr std::size_t kOursAndPcre2 = 2;
    for (const LineKind& kind : GrowingLines()) {
        double perCharacter = 0.0;
        for (std::size_t length = 10; length <= 1'000'000; length *= 10) {
            std::vector<double> sums(kOursAndPcre2);
            for (const BenchPattern& pattern : kPatterns) {
                const std::vector<double> times = Times(pattern, {LineOf(kind, length)}, kOursAndPcre2);
                std::transform(sums.begin(), sums.end(), times.begin(), sums.begin(), std::plus<>());
            }
            const double ours = sums[0] / static_cast<double>(length);
            const std::string size = std::to_string(length) + " characters";
            if (length > kMeasure) {
                PrintRow({"matcher's growth", kind.name, size, ours, "ns/character", "itself at 1000",
                          perCharacter, 2.0});
            } else {
                perCharacter = ours;
            }
            PrintRow({"matcher's growth", kind.name, size, ours, "ns/character", MatcherKinds()[1].name,
                      sums[1] / static_cast<double>(length)});
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
