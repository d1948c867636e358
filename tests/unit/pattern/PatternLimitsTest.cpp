// What must hold however large the pattern or the input is: no deep recursion, work in proportion to the
// input for the two patterns of the program, and orderly failure when memory runs out.
#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

#include "itemdlg/TemplatePatterns.h"
#include "pattern/PatternMatcher.h"
#include "tests/unit/pattern/ExactText.h"
#include "tests/unit/support/FailingMemory.h"

using namespace tavrin::itemdlg;
using namespace tavrin::pattern;

namespace {

constexpr std::size_t kMillion = 1000000;

std::wstring Repeat(const std::wstring& text, std::size_t times) {
    std::wstring repeated;
    repeated.reserve(text.size() * times);
    for (std::size_t count = 0; count < times; ++count) {
        repeated += text;
    }
    return repeated;
}

// Text of about that length.
std::wstring Fill(const std::wstring& text, std::size_t length) {
    return Repeat(text, length / text.size());
}

// Lines of about the length, each made to send a search into as many dead ends as it can.
std::vector<std::wstring> HardLines(std::size_t length) {
    const std::vector<std::wstring> heads = {L"", L"$", L"$1 = \"", L"$1 = \"a\"D", L"<<", L"$12", L"$ = "};
    const std::vector<std::wstring> fills = {
        L"\"",       L" ",       L"<",    L"1",     L"$",      L">",      L"x",      L"\"D",
        L"\"Q",      L"<<1",     L"<<1>", L"<<1>>", L"<<>",    L"1 ",     L"= ",     L"\" \"",
        L"$1=\"a\"", L"\"\"\"I", L"<<<1", L"<1>>",  L"\u00e9", L"\u2020", L"<< 1>>", L"<<11111111>"};
    const std::vector<std::wstring> tails = {L"", L"\"", L"\"D", L">>", L"=\"x\"I7", L"\"Q", L"<"};
    std::vector<std::wstring> lines;
    for (const std::wstring& head : heads) {
        for (const std::wstring& fill : fills) {
            for (const std::wstring& tail : tails) {
                lines.push_back(head + Fill(fill, length) + tail);
            }
        }
    }
    return lines;
}

// A line of this length whose work grows with its square takes far more of the processor's time than the
// bound, and one whose work is in proportion far less, whatever the build and the machine.
constexpr std::size_t kMeasuredLength = 20000;
constexpr double kSecondsPerCharacter = 1e-6;

bool WorkIsInProportion(const wchar_t* pattern, const std::wstring& input) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(pattern, false), PE_NONE);
    CMatchContext context;
    const CExactText exact(input);
    const std::clock_t begin = std::clock();
    matcher.Match(exact.Get(), &context);
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    return seconds < kSecondsPerCharacter * static_cast<double>(input.size());
}

}  // namespace

TEST(PatternWork, GrowsInProportionToTheLineForThePatternsOfTheItemFiles) {
    for (const wchar_t* pattern : {kParameterPattern, kPlaceholderPattern}) {
        for (const std::wstring& line : HardLines(kMeasuredLength)) {
            ASSERT_TRUE(WorkIsInProportion(pattern, line))
                << pattern << " on " << line.substr(0, 40) << "...";
        }
    }
}

TEST(PatternWork, StaysInProportionForLinesOfAMillionCharacters) {
    for (const wchar_t* pattern : {kParameterPattern, kPlaceholderPattern}) {
        for (const wchar_t* head : {L"", L"$1 = \"", L"$"}) {
            for (const wchar_t* fill : {L"\"", L" ", L"<", L"1", L"$", L"\"Q", L"<<1"}) {
                const std::wstring line = head + Fill(fill, kMillion);
                ASSERT_TRUE(WorkIsInProportion(pattern, line))
                    << pattern << " on " << line.substr(0, 40) << "...";
            }
        }
    }
}

TEST(PatternWork, OfRepeatedAbbreviationsStaysInProportion) {
    // A word is already a repetition; a repetition of words must not try every way to cut one into words.
    EXPECT_TRUE(WorkIsInProportion(L"^\\w+1", Fill(L"a", kMeasuredLength)));
    EXPECT_TRUE(WorkIsInProportion(L"^\\z*x", Fill(L"1", kMeasuredLength)));
}

TEST(PatternWork, IsMeasuredSoThatAPatternOfSquareCostShows) {
    // Each start position runs to the end and back.
    EXPECT_FALSE(WorkIsInProportion(L"a*b", Fill(L"a", kMeasuredLength)));
}

TEST(PatternWork, LargeLinesGiveTheRightGroups) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(kParameterPattern, false), PE_NONE);
    CMatchContext context;
    const std::wstring label = Fill(L"\"", kMillion);
    const std::wstring value = Fill(L"Q", kMillion);
    const std::wstring line = L"$1 = \"" + label + L"\"d" + value;
    ASSERT_TRUE(matcher.Match(line.c_str(), &context));
    EXPECT_EQ(context.GroupText(0), L"1");
    EXPECT_TRUE(context.GroupText(1) == label);
    EXPECT_EQ(context.GroupText(2), L"d");
    EXPECT_TRUE(context.GroupText(3) == value);

    ASSERT_EQ(matcher.Parse(kPlaceholderPattern, false), PE_NONE);
    const std::wstring number = Fill(L"7", kMillion);
    const std::wstring text = Fill(L"<", kMillion) + number + L">>" + Fill(L"<<>", kMillion);
    ASSERT_TRUE(matcher.Match(text.c_str(), &context));
    EXPECT_TRUE(context.GroupText(0) == number);
}

TEST(PatternDepth, OpenGroupsByTheMillionAreAnErrorAndNoCrash) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(Repeat(L"(", kMillion).c_str(), true), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(matcher.Parse(Repeat(L"{", kMillion).c_str(), true), PE_BRACE_EXPECTED);
    EXPECT_EQ(matcher.Parse(Repeat(L"a|(!", kMillion).c_str(), true), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(matcher.Parse(Repeat(L"[", kMillion).c_str(), true), PE_BRACKET_EXPECTED);
}

TEST(PatternDepth, NestedGroupsByTheHundredThousandMatch) {
    const std::size_t depth = 100000;
    CPatternMatcher matcher;
    CMatchContext context;
    const std::wstring plain = Repeat(L"(", depth) + L"a" + Repeat(L"b)", depth);
    ASSERT_EQ(matcher.Parse(plain.c_str(), true), PE_NONE);
    EXPECT_TRUE(matcher.Match((L"a" + Repeat(L"b", depth)).c_str(), &context));
    EXPECT_FALSE(matcher.Match((L"a" + Repeat(L"b", depth - 1)).c_str(), &context));

    const std::wstring captures = Repeat(L"{", depth) + L"a" + Repeat(L"}", depth);
    ASSERT_EQ(matcher.Parse(captures.c_str(), true), PE_NONE);
    ASSERT_TRUE(matcher.Match(L"a", &context));
    ASSERT_EQ(context.GroupCount(), depth);
    EXPECT_EQ(context.GroupText(depth - 1), L"a");

    const std::wstring optional = Repeat(L"(a", depth) + Repeat(L")?", depth);
    ASSERT_EQ(matcher.Parse(optional.c_str(), true), PE_NONE);
    ASSERT_TRUE(matcher.Match(Repeat(L"a", depth / 2).c_str(), &context));
    EXPECT_EQ(context.MatchEnd() - context.MatchStart(), static_cast<std::ptrdiff_t>(depth / 2));

    const std::wstring alternatives = Repeat(L"(", depth) + L"a" + Repeat(L")|b", depth);
    ASSERT_EQ(matcher.Parse(alternatives.c_str(), true), PE_NONE);
    EXPECT_TRUE(matcher.Match(L"b", &context));
}

TEST(PatternDepth, LookAheadsByTheMillionMatch) {
    CPatternMatcher matcher;
    CMatchContext context;
    ASSERT_EQ(matcher.Parse((L"^" + Repeat(L"!", kMillion) + L"a").c_str(), true), PE_NONE);
    EXPECT_TRUE(matcher.Match(L"a", &context)) << "an even number of them: a must follow";
    EXPECT_FALSE(matcher.Match(L"b", &context));
    ASSERT_EQ(matcher.Parse((L"^" + Repeat(L"!", kMillion + 1) + L"a").c_str(), true), PE_NONE);
    EXPECT_FALSE(matcher.Match(L"a", &context));
    EXPECT_TRUE(matcher.Match(L"b", &context));
}

TEST(PatternDepth, AlternativesByTheMillionMatch) {
    CPatternMatcher matcher;
    CMatchContext context;
    ASSERT_EQ(matcher.Parse((L"^" + Repeat(L"a|", kMillion) + L"b").c_str(), true), PE_NONE);
    EXPECT_TRUE(matcher.Match(L"b", &context));
    EXPECT_FALSE(matcher.Match(L"c", &context));
}

TEST(PatternDepth, ElementsByTheMillionMatch) {
    CPatternMatcher matcher;
    CMatchContext context;
    const std::wstring letters = Repeat(L"a", kMillion);
    ASSERT_EQ(matcher.Parse(letters.c_str(), false), PE_NONE);
    EXPECT_TRUE(matcher.Match(letters.c_str(), &context));
    ASSERT_EQ(matcher.Parse(Repeat(L"a*", kMillion).c_str(), false), PE_NONE);
    EXPECT_TRUE(matcher.Match(L"aaa", &context));
    ASSERT_EQ(matcher.Parse(Repeat(L"[a-c]", kMillion / 5).c_str(), false), PE_NONE);
    EXPECT_FALSE(matcher.Match(L"abc", &context));
    ASSERT_EQ(matcher.Parse(Repeat(L"\\d?", kMillion / 2).c_str(), false), PE_NONE);
    EXPECT_TRUE(matcher.Match(L"123", &context));
}

TEST(PatternDepth, RoundsOfARepeatedGroupByTheMillionMatch) {
    CPatternMatcher matcher;
    CMatchContext context;
    for (const wchar_t* pattern : {L"^({a}b)*$", L"^({a}|b)+$", L"^({a}b)*?$", L"^(a|b!c)+$"}) {
        ASSERT_EQ(matcher.Parse(pattern, true), PE_NONE);
        EXPECT_TRUE(matcher.Match(Repeat(L"ab", kMillion / 2).c_str(), &context)) << pattern;
        EXPECT_FALSE(matcher.Match((Repeat(L"ab", kMillion / 2) + L"c").c_str(), &context)) << pattern;
    }
}

TEST(PatternMemory, ThatRunsOutInParseIsErrorOneAndLeavesThePatternUsable) {
    const wchar_t* pattern = L"^({a[bc]*}|[^\u2020d]+!(x{y})\\0)+?{[0-9]*}=\\q*z$";
    std::size_t failures = 0;
    for (std::size_t allocations = 0;; ++allocations) {
        CPatternMatcher matcher;
        unsigned error = PE_NONE;
        bool failed = false;
        {
            const CFailingMemory memory(allocations);
            error = matcher.Parse(pattern, false);
            failed = memory.HasFailed();
        }
        ASSERT_EQ(error, failed ? PE_NO_MEMORY : PE_NONE);
        if (!failed) {
            break;
        }
        ++failures;
        CMatchContext context;
        EXPECT_EQ(matcher.LastError(), PE_NO_MEMORY);
        EXPECT_FALSE(matcher.Match(L"a", &context));
        EXPECT_EQ(matcher.Parse(L"a", false), PE_NONE);
        EXPECT_TRUE(matcher.Match(L"a", &context));
    }
    EXPECT_GT(failures, 10u);
}

TEST(PatternMemory, ThatRunsOutInMatchIsNoMatchAndLeavesTheContextUsable) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(L"^({.}b?)*$", true), PE_NONE);
    const std::wstring input = Repeat(L"ab", 5000);
    std::size_t failures = 0;
    for (std::size_t allocations = 0;; ++allocations) {
        CMatchContext context;
        const wchar_t* end = nullptr;
        bool matched = false;
        bool failed = false;
        {
            const CFailingMemory memory(allocations);
            matched = matcher.Match(input.c_str(), &context, &end);
            failed = memory.HasFailed();
        }
        ASSERT_EQ(matched, !failed);
        if (!failed) {
            break;
        }
        ++failures;
        EXPECT_EQ(end, nullptr);
        EXPECT_EQ(context.MatchStart(), nullptr);
        EXPECT_EQ(context.GroupCount(), 0u);
        EXPECT_TRUE(matcher.Match(input.c_str(), &context));
        EXPECT_EQ(context.GroupText(0), L"a");
    }
    EXPECT_GT(failures, 5u);
}
