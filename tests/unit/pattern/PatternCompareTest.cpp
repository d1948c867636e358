// The matcher against the simple reference: error codes, whole matches and every group. First all small
// patterns over small alphabets, then random larger ones.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pattern/PatternMatcher.h"
#include "tests/unit/pattern/ExactText.h"
#include "tests/unit/pattern/PatternGenerator.h"
#include "tests/unit/pattern/PatternReference.h"

using namespace tavrin::pattern;

namespace {

// A result in one line of text, which shows both what differs and in what.
std::wstring SpanText(bool present, std::ptrdiff_t begin, std::ptrdiff_t end) {
    return present ? L"[" + std::to_wstring(begin) + L"," + std::to_wstring(end) + L") " : L"none ";
}

std::wstring ResultText(const ReferenceResult& result) {
    std::wstring text = result.match ? L"match " : L"no match";
    if (result.match) {
        for (const auto& span : {result.match}) {
            text += SpanText(true, static_cast<std::ptrdiff_t>(span->begin),
                             static_cast<std::ptrdiff_t>(span->end));
        }
        for (const auto& span : result.groups) {
            text += span ? SpanText(true, static_cast<std::ptrdiff_t>(span->begin),
                                    static_cast<std::ptrdiff_t>(span->end))
                         : SpanText(false, 0, 0);
        }
    }
    return text;
}

std::wstring ResultText(bool matched, const CMatchContext& context, const wchar_t* input) {
    std::wstring text = matched ? L"match " : L"no match";
    if (matched) {
        text += SpanText(true, context.MatchStart() - input, context.MatchEnd() - input);
        for (std::size_t group = 0; group < context.GroupCount(); ++group) {
            const CMatchContext::Pair& pair = context.Group(group);
            text += pair.start != nullptr && pair.end != nullptr
                        ? SpanText(true, pair.start - input, pair.end - input)
                        : SpanText(pair.start != pair.end, -1, -1);
        }
    }
    return text;
}

struct Input {
    explicit Input(const std::wstring& characters) : text(characters), exact(characters) {}
    std::wstring text;
    CExactText exact;
};

std::vector<Input> Inputs(const std::vector<std::wstring>& texts) {
    return std::vector<Input>(texts.begin(), texts.end());
}

struct Tally {
    std::size_t compiled = 0;
    std::size_t matched = 0;
    std::size_t compared = 0;
    std::size_t skipped = 0;
    std::size_t differences = 0;

    bool Enough() const { return differences >= 10; }
};

void Compare(const std::wstring& pattern, bool caseSensitive, const std::vector<Input>& inputs,
             Tally& tally) {
    if (tally.Enough()) {
        return;
    }
    const CPatternReference reference(pattern, caseSensitive);
    CPatternMatcher matcher;
    const CExactText exactPattern(pattern);
    const unsigned error = matcher.Parse(exactPattern.Get(), caseSensitive);
    if (error != reference.Error()) {
        ++tally.differences;
        ADD_FAILURE() << "pattern " << pattern << ": error " << error << ", reference " << reference.Error();
        return;
    }
    if (error != PE_NONE) {
        return;
    }
    ++tally.compiled;
    EXPECT_EQ(matcher.GroupCount(), reference.GroupCount());
    CMatchContext context;
    for (const Input& input : inputs) {
        const ReferenceResult expected = reference.Match(input.text);
        if (expected.tooMuchWork) {
            ++tally.skipped;
            continue;
        }
        const wchar_t* end = nullptr;
        const bool matched = matcher.Match(input.exact.Get(), &context, &end);
        ++tally.compared;
        tally.matched += matched ? 1 : 0;
        const std::wstring got = ResultText(matched, context, input.exact.Get());
        if (got != ResultText(expected) || (matched && end != context.MatchEnd())) {
            ++tally.differences;
            ADD_FAILURE() << "pattern " << pattern << (caseSensitive ? "" : " (any case)") << " on \""
                          << input.text << "\": " << got << ", reference " << ResultText(expected);
            return;
        }
    }
}

void CompareAll(const std::wstring& alphabet, std::size_t longest, bool caseSensitive,
                const std::vector<Input>& inputs) {
    Tally tally;
    ForEachText(alphabet, longest,
                [&](const std::wstring& pattern) { Compare(pattern, caseSensitive, inputs, tally); });
    // Both outcomes must have occurred often, or the comparison has said nothing.
    EXPECT_GT(tally.compiled, 100u);
    EXPECT_GT(tally.matched, tally.compared / 100);
    EXPECT_GT(tally.compared - tally.matched, tally.compared / 100);
    EXPECT_EQ(tally.skipped, 0u);
}

}  // namespace

TEST(PatternCompare, EveryPatternOfUpToThreeCharactersAgreesWithTheReference) {
    std::vector<std::wstring> texts = AllTexts(L"ab", 4);
    for (const std::wstring& text : AllTexts(L"ab|*?+!$^0\\.-", 2)) {
        texts.push_back(text);
    }
    CompareAll(L"{}()|*?!\\0ab^$[]+-.", 3, true, Inputs(texts));
}

TEST(PatternCompare, EveryPatternOfFourCharactersAgreesWithTheReference) {
    CompareAll(L"{}()|*?!\\0ab^$[]", 4, true, Inputs(AllTexts(L"ab", 3)));
}

TEST(PatternCompare, EverySmallPatternOfQuantifiersAndAlternativesAgreesWithTheReference) {
    CompareAll(L"ab|*?+()", 5, true, Inputs(AllTexts(L"ab", 4)));
}

TEST(PatternCompare, EverySmallPatternOfGroupsAndReferencesAgreesWithTheReference) {
    CompareAll(L"{}ab\\0|?", 6, true, Inputs(AllTexts(L"ab", 3)));
}

TEST(PatternCompare, EverySmallPatternOfLookAheadsAgreesWithTheReference) {
    CompareAll(L"!{}a*\\0.", 6, true, Inputs(AllTexts(L"ab", 3)));
}

TEST(PatternCompare, EverySmallRepeatedGroupAgreesWithTheReference) {
    // The inside of a group that is repeated, with a reference after it.
    const std::vector<Input> inputs = Inputs(AllTexts(L"ab", 5));
    Tally tally;
    for (const wchar_t* ending : {L")*", L")+b", L")*?$", L")+\\0"}) {
        ForEachText(L"{}ab|?!", 5, [&](const std::wstring& inside) {
            if (inside.find(L'{') != std::wstring::npos) {
                Compare(L"(" + inside + ending, true, inputs, tally);
            }
        });
    }
    EXPECT_GT(tally.matched, 1000u);
}

TEST(PatternCompare, EverySmallRepeatedGroupThatRefersToItselfAgreesWithTheReference) {
    const std::vector<Input> inputs = Inputs(AllTexts(L"ab", 6));
    Tally tally;
    for (const wchar_t* ending : {L"}*", L"}+b", L"}*?$", L"}+\\0"}) {
        ForEachText(L"ab.|?\\0{}", 4, [&](const std::wstring& inside) {
            if (inside.find(L"\\0") != std::wstring::npos) {
                Compare(L"^{" + inside + ending, true, inputs, tally);
            }
        });
    }
    EXPECT_GT(tally.matched, 1000u);
}

TEST(PatternCompare, EverySmallSetAgreesWithTheReference) {
    CompareAll(L"[]^-\\atc", 5, true, Inputs(AllTexts(L"abt\t\\-]^", 2)));
}

TEST(PatternCompare, EverySmallPatternWithoutRegardToCaseAgreesWithTheReference) {
    CompareAll(L"aAÀ[^-]\\D", 5, false, Inputs(AllTexts(L"aAà0÷À×", 2)));
}

TEST(PatternCompare, EveryRunBeforeEveryContinuationAgreesWithTheReference) {
    // What may follow a run decides how much of it is given back; all kinds of runs before all kinds of
    // continuations.
    std::vector<std::wstring> tails = AllTexts(L"ab?|$!*(", 2);
    for (const wchar_t* tail :
         {L"b?$",     L"b|$",   L"(b|$",   L"{b}b",     L"!ab",    L"b*$",     L"ab?$",
          L"b|(ab)$", L"abab",  L"a[ab]$", L"b.$",      L"ba*b",   L"b|a$",    L"(b|b)$",
          L"b\\0",    L"!(b|$", L"b.?$",   L"b(..)??$", L"bb?.*$", L"b[^a]*$", L"bb|.?$"}) {
        tails.push_back(tail);
    }
    const std::vector<Input> inputs = Inputs(AllTexts(L"abA", 3));
    Tally tally;
    for (const wchar_t* run :
         {L".", L"a", L"[a]", L"[a-b]", L"[^a]", L"[ab]", L"\\c", L"{a}", L"(a)", L"\\w"}) {
        for (const wchar_t* quantifier : {L"*", L"+", L"?", L"*?", L"+?", L"??"}) {
            for (const wchar_t* around : {L"", L"{", L"("}) {
                const std::wstring opening = around;
                const std::wstring closing = opening == L"{" ? L"}" : opening == L"(" ? L")" : L"";
                const std::wstring head = opening + run + quantifier + closing;
                for (const std::wstring& tail : tails) {
                    Compare(head + tail, tail.size() % 2 == 0, inputs, tally);
                    Compare(L"(" + head + tail + L")+", false, inputs, tally);
                }
            }
        }
    }
    EXPECT_GT(tally.matched, 100000u);
    EXPECT_LT(tally.skipped, tally.compared / 1000);
}

class PatternRandom : public testing::TestWithParam<unsigned> {};

TEST_P(PatternRandom, PatternsAgreeWithTheReference) {
    const unsigned seed = GetParam();
    std::cout << "seed " << seed << "\n";
    CPatternGenerator generator(seed);
    Tally tally;
    for (int count = 0; count < 4000; ++count) {
        std::vector<std::wstring> texts;
        for (int input = 0; input < 12; ++input) {
            texts.push_back(generator.Input(input < 6 ? 4 : 12));
        }
        Compare(generator.Pattern(), count % 2 == 0, Inputs(texts), tally);
    }
    EXPECT_GT(tally.matched, tally.compared / 10);
    EXPECT_LT(tally.skipped, tally.compared / 50);
}

TEST_P(PatternRandom, CharactersAgreeWithTheReference) {
    const unsigned seed = GetParam();
    std::cout << "seed " << seed << "\n";
    CPatternGenerator generator(seed);
    Tally tally;
    for (int count = 0; count < 20000; ++count) {
        const std::vector<Input> inputs = Inputs({generator.Input(3), generator.Input(6)});
        Compare(generator.Characters(12), count % 2 == 0, inputs, tally);
    }
    EXPECT_GT(tally.compiled, 1000u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, PatternRandom, testing::Values(11u, 12u, 13u, 14u));
