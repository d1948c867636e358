// The pattern language, construct by construct, and what a match reports.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "pattern/LetterCase.h"
#include "pattern/PatternMatcher.h"
#include "tests/unit/pattern/ExactText.h"

using namespace tavrin::pattern;

namespace {

using Groups = std::vector<std::optional<std::wstring>>;
const std::optional<std::wstring> kNoMatch;
const Groups kNoGroups;

unsigned Error(const std::wstring& pattern, bool caseSensitive = true) {
    CPatternMatcher matcher;
    return matcher.Parse(CExactText(pattern).Get(), caseSensitive);
}

// The text of the whole match.
std::optional<std::wstring> Find(const std::wstring& pattern, const std::wstring& input,
                                 bool caseSensitive = true) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(CExactText(pattern).Get(), caseSensitive), PE_NONE) << pattern;
    CMatchContext context;
    const CExactText exact(input);
    if (!matcher.Match(exact.Get(), &context)) {
        return kNoMatch;
    }
    return std::wstring(context.MatchStart(), context.MatchEnd());
}

std::optional<std::wstring> FindAnyCase(const std::wstring& pattern, const std::wstring& input) {
    return Find(pattern, input, false);
}

bool Matches(const std::wstring& pattern, const std::wstring& input) {
    return Find(pattern, input).has_value();
}

// The texts of the groups; nothing for a group that took no part. No groups at all when nothing matches.
Groups Captures(const std::wstring& pattern, const std::wstring& input, bool caseSensitive = true) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(pattern.c_str(), caseSensitive), PE_NONE) << pattern;
    CMatchContext context;
    Groups groups;
    const CExactText exact(input);
    if (matcher.Match(exact.Get(), &context)) {
        for (std::size_t index = 0; index < context.GroupCount(); ++index) {
            const CMatchContext::Pair& pair = context.Group(index);
            EXPECT_EQ(pair.start == nullptr, pair.end == nullptr);
            groups.push_back(pair.start == nullptr
                                 ? std::nullopt
                                 : std::optional<std::wstring>(std::in_place, pair.start, pair.end));
        }
    }
    return groups;
}

}  // namespace

TEST(Pattern, OfLettersMatchesThemAnywhere) {
    EXPECT_EQ(Find(L"bc", L"abcd"), L"bc");
    EXPECT_EQ(Find(L"bd", L"abcd"), kNoMatch);
}

TEST(Pattern, ThatIsEmptyMatchesAtTheStartOfAnyInput) {
    EXPECT_EQ(Find(L"", L""), L"");
    EXPECT_EQ(Find(L"", L"abc"), L"");
}

TEST(Pattern, DotMatchesAnyCharacterButNotTheEnd) {
    EXPECT_EQ(Find(L"a.c", L"a\nc"), L"a\nc");
    EXPECT_EQ(Find(L"a.", L"a"), kNoMatch);
    EXPECT_EQ(Find(L".", L""), kNoMatch);
}

TEST(PatternSet, MatchesOneOfItsMembers) {
    EXPECT_EQ(Find(L"[abx]+", L"zbaz"), L"ba");
    EXPECT_EQ(Find(L"[0-9a-f]+", L"x12ceg"), L"12ce");
}

TEST(PatternSet, NegatedMatchesAllOthersButNotTheEnd) {
    EXPECT_EQ(Find(L"[^ab]+", L"abcdab"), L"cd");
    EXPECT_EQ(Find(L"a[^b]", L"a"), kNoMatch);
    EXPECT_EQ(Find(L"[^a]", L""), kNoMatch);
}

TEST(PatternSet, TakesSpecialCharactersAsTheyStand) {
    EXPECT_EQ(Find(L"[.*+?{}()|!$]+", L"a.*+?{}()|!$a"), L".*+?{}()|!$");
    EXPECT_EQ(Find(L"[a^]+", L"b^ab"), L"^a");
    EXPECT_EQ(Find(L"[[]", L"["), L"[");
}

TEST(PatternSet, TakesABackslashBeforeAMemberOrALowerBound) {
    EXPECT_EQ(Find(L"[\\]\\-\\\\]+", L"a]-\\a"), L"]-\\");
    EXPECT_EQ(Find(L"[\\t]", L"t\t"), L"\t");
    EXPECT_EQ(Find(L"[\\^a]+", L"b^ab"), L"^a");
    EXPECT_EQ(Find(L"[\\a-c]+", L"zabcd\\"), L"abc");
    EXPECT_EQ(Find(L"[\\t-\r]+", L"a\t\n\v\f\r "), L"\t\n\v\f\r");
}

TEST(PatternSet, TakesTheUpperBoundAsItStands) {
    EXPECT_EQ(Find(L"[Z-\\]+", L"YZ[\\]"), L"Z[\\");
    EXPECT_EQ(Find(L"[+--]+", L"*+,-."), L"+,-");
    EXPECT_EQ(Find(L"[*-^]+", L")*AZ^_"), L"*AZ^");
}

TEST(PatternSet, TakesAMinusAsAMemberWhereNoRangeCanBe) {
    EXPECT_EQ(Find(L"[-a]+", L"b-ab"), L"-a");
    EXPECT_EQ(Find(L"[a-c-e]+", L"x-abced-"), L"-abce");
    EXPECT_EQ(Find(L"[^-a]+", L"-axy"), L"xy");
}

TEST(PatternSet, HoldsCharactersBeyondLatin1) {
    EXPECT_EQ(Find(L"[\u0100-\u0110]+", L"\u00ff\u0100\u0105\u0110\u0111"), L"\u0100\u0105\u0110");
    EXPECT_EQ(Find(L"[\u00f0-\u0110]+", L"a\u00ff\u0100\u0111"), L"\u00ff\u0100");
    EXPECT_EQ(Find(L"[^\u0100-\u0110]+", L"\u0105a\u2020\u0106"), L"a\u2020");
    EXPECT_EQ(Find(L"[a\u2020]+", L"b\u2020a\u2021"), L"\u2020a");
    EXPECT_EQ(Find(L"[x\u0150-\u0160]+", L"\u0120\u014f\u0150\u0160\u0161"), L"\u0150\u0160");
}

TEST(PatternGroup, CapturesInTheOrderOfOpeningBraces) {
    EXPECT_EQ(Captures(L"{a{b}{c}}{d}", L"abcd"), (Groups{L"abc", L"b", L"c", L"d"}));
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(L"{a{b}{c}}(x){d}", true), PE_NONE);
    EXPECT_EQ(matcher.GroupCount(), 4u);
}

TEST(PatternGroup, InParenthesesCapturesNothing) {
    EXPECT_EQ(Captures(L"(a){b}", L"ab"), (Groups{L"b"}));
    EXPECT_EQ(Find(L"(ab)+", L"xababa"), L"abab");
}

TEST(PatternGroup, ThatTookNoPartIsNullAndOneThatMatchedNothingIsEmpty) {
    EXPECT_EQ(Captures(L"({a}|{b}){c*}", L"b"), (Groups{std::nullopt, L"b", L""}));
    EXPECT_EQ(Captures(L"{a}?b", L"b"), (Groups{std::nullopt}));
    EXPECT_EQ(Captures(L"{a?}b", L"b"), (Groups{L""}));
    EXPECT_EQ(Captures(L"{}", L"b"), (Groups{L""}));
}

TEST(PatternGroup, ReportsItsLastCaptureWhenItIsRepeated) {
    EXPECT_EQ(Captures(L"({.}b)+", L"abcbxb"), (Groups{L"x"}));
    EXPECT_EQ(Captures(L"({a}|b)+", L"ab"), (Groups{L"a"}));
    EXPECT_EQ(Captures(L"{[ab]}+", L"abc"), (Groups{L"b"}));
}

TEST(PatternGroup, GetsItsCaptureBackWhenTheSearchBacksOutOfIt) {
    // The second round captures the b, fails at the missing c and is given up.
    EXPECT_EQ(Captures(L"({[ab]}c)+", L"acb"), (Groups{L"a"}));
    EXPECT_EQ(Captures(L"({[ab]}c)+$", L"acbc"), (Groups{L"b"}));
    // The left side captures before it fails.
    EXPECT_EQ(Captures(L"({a}b)|({a}c)", L"ac"), (Groups{std::nullopt, L"a"}));
    // So does a start position that fails.
    EXPECT_EQ(Captures(L"({a}x)|({b}c)", L"aabc"), (Groups{std::nullopt, L"b"}));
    EXPECT_EQ(Captures(L"{a}?{b}", L"aab"), (Groups{L"a", L"b"}));
}

TEST(PatternReference, MatchesWhatItsGroupCaptured) {
    EXPECT_EQ(Find(L"{a}\\0", L"aa"), L"aa");
    EXPECT_EQ(Find(L"{a}\\0", L"ab"), kNoMatch);
    EXPECT_EQ(Find(L"^{.*}-\\0$", L"abc-abc"), L"abc-abc");
    EXPECT_EQ(Find(L"^{.*}-\\0$", L"abc-abd"), kNoMatch);
    EXPECT_EQ(Find(L"{a}{b}\\1\\0", L"abba"), L"abba");
}

TEST(PatternReference, ToAGroupThatCapturedNothingMatchesNothing) {
    EXPECT_EQ(Find(L"{a}?b\\0c", L"bc"), L"bc");
    EXPECT_EQ(Find(L"{a*}b\\0c", L"bc"), L"bc");
    EXPECT_EQ(Find(L"({a}|b)\\0c", L"bc"), L"bc");
}

TEST(PatternReference, InsideItsOwnGroupMatchesWhatTheGroupCapturedInTheRoundBefore) {
    EXPECT_EQ(Captures(L"{a\\0b}", L"ab"), (Groups{L"ab"}));
    EXPECT_EQ(Captures(L"{a\\0b}", L"aaab"), (Groups{L"ab"})) << "no round before, at any start position";
    EXPECT_EQ(Captures(L"{a\\0}*", L"aaa"), (Groups{L"aa"}));
    EXPECT_EQ(Find(L"{a\\0}*", L"aaaaaaa"), L"aaaaaa") << "one, two and three letters; four are missing";
    EXPECT_EQ(Captures(L"({a\\0}|b)+", L"abaa"), (Groups{L"aa"}));
}

TEST(PatternReference, InsideItsOwnGroupSeesTheRoundBeforeAgainWhenTheSearchBacktracks) {
    // The third round takes "aaa", fails at the missing c and is given up; so is the second.
    EXPECT_EQ(Captures(L"({a\\0}c?)+$", L"aaaaaac"), (Groups{L"aaa"}));
    EXPECT_EQ(Captures(L"({a\\0}c)+", L"acaacab"), (Groups{L"aa"}));
    EXPECT_EQ(Captures(L"^{a\\0}*aab$", L"aaaab"), kNoGroups);
    EXPECT_EQ(Captures(L"^{a\\0}*aab$", L"aaaaab"), (Groups{L"aa"}));
}

TEST(PatternReference, FollowsTheCaseRuleOfThePattern) {
    EXPECT_EQ(Find(L"{a}\\0", L"aA"), kNoMatch);
    EXPECT_EQ(FindAnyCase(L"{a}\\0", L"aA"), L"aA");
    EXPECT_EQ(FindAnyCase(L"{.}\\0", L"\u00c4\u00e4"), L"\u00c4\u00e4");
}

TEST(PatternReference, ReadsItsNumberGreedily) {
    EXPECT_EQ(Error(L"{a}\\01"), PE_BAD_REFERENCE);
    EXPECT_EQ(Error(L"{a}\\00"), PE_NONE);
    EXPECT_EQ(Find(L"{a}(\\0)1", L"aa1"), L"aa1");
    EXPECT_EQ(Error(L"{a}\\18446744073709551616"), PE_BAD_REFERENCE);
    EXPECT_EQ(Error(L"{a}\\4294967296"), PE_BAD_REFERENCE);
}

TEST(PatternAbbreviation, StandsForItsExpansion) {
    EXPECT_EQ(Find(L"\\a+", L"-aZ9-"), L"aZ9");
    EXPECT_EQ(Find(L"\\b+", L"a \t\n"), L" \t");
    EXPECT_EQ(Find(L"\\c+", L"9aZ9"), L"aZ");
    EXPECT_EQ(Find(L"\\d+", L"a019a"), L"019");
    EXPECT_EQ(Find(L"\\h+", L"xfF09aAg"), L"fF09aA");
    EXPECT_EQ(Find(L"\\w", L"9aZb9"), L"aZb");
    EXPECT_EQ(Find(L"\\z", L"a019a"), L"019");
}

TEST(PatternAbbreviation, ForALineBreakTakesAnyOfThree) {
    EXPECT_EQ(Find(L"a\\nb", L"a\rb"), L"a\rb");
    EXPECT_EQ(Find(L"a\\nb", L"a\r\nb"), L"a\r\nb");
    EXPECT_EQ(Find(L"a\\nb", L"a\nb"), L"a\nb");
    EXPECT_EQ(Find(L"a\\n", L"a\r\n"), L"a\r");
}

TEST(PatternAbbreviation, ForQuotedTextTakesDoubleQuotesOnly) {
    EXPECT_EQ(Find(L"\\q", L"a \"text\" b"), L"\"text\"");
    EXPECT_EQ(Find(L"\\q", L"a \"\" b"), L"\"\"");
    EXPECT_EQ(Find(L"\\q", L"a 'text' b"), kNoMatch);
}

TEST(PatternAbbreviation, TakesAQuantifierAsAWhole) {
    EXPECT_EQ(Find(L"^\\q*$", L"\"a\"\"b\""), L"\"a\"\"b\"");
    EXPECT_EQ(Find(L"^\\d?a", L"7a"), L"7a");
    EXPECT_EQ(Find(L"^\\w*1", L"1"), L"1");
    EXPECT_EQ(Find(L"^\\w??1", L"abc1"), L"abc1");
    EXPECT_EQ(Find(L"\\z*?x", L"12x"), L"12x");
    EXPECT_EQ(Find(L"(\\w\\z)+", L"a1bc22-"), L"a1bc22");
}

TEST(PatternAbbreviation, IsMeantByACapitalInACaseInsensitivePattern) {
    EXPECT_EQ(FindAnyCase(L"\\D", L"x7"), L"7");
    EXPECT_EQ(Find(L"\\D", L"7D"), L"D");
    EXPECT_EQ(FindAnyCase(L"\\H+", L"xaFg"), L"aF");
}

TEST(PatternAbbreviation, GivesBackWhatItTook) {
    EXPECT_EQ(Find(L"^\\wb$", L"aab"), L"aab");
    EXPECT_EQ(Find(L"^\\w+b$", L"aab"), L"aab");
    EXPECT_EQ(Find(L"^\\z+\\d$", L"123"), L"123");
}

TEST(PatternEscape, MakesAnyOtherCharacterALiteral) {
    EXPECT_EQ(Find(L"\\$\\.\\\\\\{\\|\\*\\!", L"$.\\{|*!"), L"$.\\{|*!");
    EXPECT_EQ(Find(L"a\\$", L"a$"), L"a$");
    EXPECT_EQ(Find(L"\\t", L"\tt"), L"t");
    EXPECT_EQ(Find(L"\\^a", L"b^a"), L"^a");
}

TEST(PatternEscape, IsItselfAtTheEndOfThePattern) {
    EXPECT_EQ(Find(L"a\\", L"a\\"), L"a\\");
}

TEST(PatternLookAhead, SucceedsWhereItsAtomDoesNotMatch) {
    EXPECT_EQ(Find(L"a!b.", L"abac"), L"ac");
    EXPECT_EQ(Find(L"a!(bc).", L"abcabd"), L"ab");
    EXPECT_EQ(Find(L"a!b", L"a"), L"a");
    EXPECT_EQ(Find(L"!.", L""), L"");
    EXPECT_EQ(Find(L"!a!b.", L"abc"), L"c");
}

TEST(PatternLookAhead, OfALookAheadIsAPositiveOne) {
    EXPECT_EQ(Find(L"!!ba?b", L"ab"), L"b");
    EXPECT_EQ(Find(L"!!a.", L"ba"), L"a");
    EXPECT_EQ(Find(L"!!!a.", L"ab"), L"b");
}

TEST(PatternLookAhead, TakesAQuantifierAsAWhole) {
    EXPECT_EQ(Error(L"!a*"), PE_EMPTY_REPETITION);
    EXPECT_EQ(Error(L"!a+"), PE_EMPTY_REPETITION);
    EXPECT_EQ(Find(L"!a?a", L"a"), L"a");
    EXPECT_EQ(Find(L"!a??a", L"a"), L"a");
}

TEST(PatternLookAhead, LeavesNoCaptureBehind) {
    EXPECT_EQ(Captures(L"!{a}.", L"b"), (Groups{std::nullopt}));
    EXPECT_EQ(Captures(L"!!{a}.", L"a"), (Groups{std::nullopt}));
    EXPECT_EQ(Captures(L"(!({a}b).)+", L"aac"), (Groups{std::nullopt}));
}

TEST(PatternLookAhead, MayReferToWhatIsCapturedInside) {
    EXPECT_EQ(Find(L"!({.}\\0)..", L"aab"), L"ab");
    EXPECT_EQ(Find(L"{.}!\\0.", L"aab"), L"ab");
}

TEST(PatternLookAhead, AtTheEndLooksForTheEnd) {
    EXPECT_EQ(Find(L"a!$", L"ba"), kNoMatch);
    EXPECT_EQ(Find(L"a!$", L"ab"), L"a");
}

TEST(PatternQuantifier, IsGreedyUnlessItIsLazy) {
    EXPECT_EQ(Find(L"a*", L"aaa"), L"aaa");
    EXPECT_EQ(Find(L"a*?", L"aaa"), L"");
    EXPECT_EQ(Find(L"a+", L"aaa"), L"aaa");
    EXPECT_EQ(Find(L"a+?", L"aaa"), L"a");
    EXPECT_EQ(Find(L"a?", L"aaa"), L"a");
    EXPECT_EQ(Find(L"a??", L"aaa"), L"");
    EXPECT_EQ(Captures(L"{.*}a{.*}", L"xaya"), (Groups{L"xay", L""}));
    EXPECT_EQ(Captures(L"{.*?}a{.*}", L"xaya"), (Groups{L"x", L"ya"}));
    EXPECT_EQ(Captures(L"{(ab)*}{.*}", L"ababa"), (Groups{L"abab", L"a"}));
    EXPECT_EQ(Captures(L"{(ab)*?}{.*}", L"abab"), (Groups{L"", L"abab"}));
    EXPECT_EQ(Captures(L"{(ab)+?}{.*}", L"abab"), (Groups{L"ab", L"ab"}));
    EXPECT_EQ(Captures(L"{(ab)??}{.*}", L"abab"), (Groups{L"", L"abab"}));
    EXPECT_EQ(Captures(L"{(ab)?}{.*}", L"abab"), (Groups{L"ab", L"ab"}));
}

TEST(PatternQuantifier, AppliesToTheElementBeforeItAlone) {
    EXPECT_EQ(Find(L"ab*", L"abbab"), L"abb");
    EXPECT_EQ(Find(L"^ab*$", L"abab"), kNoMatch);
}

TEST(PatternQuantifier, IsALiteralWhereAnElementBegins) {
    EXPECT_EQ(Find(L"^a**$", L"aa*"), L"aa*");
    EXPECT_EQ(Find(L"*", L"a*"), L"*");
    EXPECT_EQ(Find(L"+*a", L"++a"), L"++a");
    EXPECT_EQ(Find(L"^a+++$", L"aa++"), L"aa++");
    EXPECT_EQ(Find(L"^a????$", L"a?"), L"a?");
    EXPECT_EQ(Find(L"(?b)", L"?b"), L"?b");
    EXPECT_EQ(Find(L"!*.", L"*a"), L"a");
}

TEST(PatternQuantifier, GivesBackUntilTheRestMatches) {
    EXPECT_EQ(Find(L"^a*aa$", L"aaaa"), L"aaaa");
    EXPECT_EQ(Find(L"^[ab]*b.$", L"abba"), L"abba");
    EXPECT_EQ(Find(L"^a*ab?$", L"aa"), L"aa");
    EXPECT_EQ(Find(L"^(ab)*abc$", L"ababc"), L"ababc");
}

TEST(PatternQuantifier, BacktracksThroughALongRunToTheMatchingPosition) {
    const std::wstring filler(200, L'x');
    for (std::size_t before : {0u, 1u, 30u, 31u, 32u, 33u, 64u, 100u}) {
        const std::wstring head(before, L'y');
        for (const wchar_t* mark : {L"b", L"B"}) {
            const std::wstring input = head + mark + filler;
            EXPECT_EQ(Captures(L"^{.*}b", input, false), (Groups{head}));
            EXPECT_EQ(Captures(L"^{[a-z]*}b", input, false), (Groups{head}));
            EXPECT_EQ(Captures(L"^{.*?}b{.*}$", input, false), (Groups{head, filler}));
        }
        EXPECT_EQ(Find(L"^.*b", head + filler), kNoMatch);
        EXPECT_EQ(Captures(L"^{.*}bc", head + L"bc" + filler + L"b"), (Groups{head}));
        EXPECT_EQ(Captures(L"^{.*}bcd", head + L"bcd" + filler + L"bcbbc"), (Groups{head}));
    }
}

TEST(PatternQuantifier, GivesBackCharactersBeyondLatin1) {
    const std::wstring input = L"\u2020\u2021\u2020\u2022";
    EXPECT_EQ(Find(L"^[\u2020-\u2021]*\u2020", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^[\u2020\u2021]*\u2020", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^[^a]*\u2020", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^[^\u2022]*\u2020", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^.*[\u2020-\u2021]", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^.*[^\u2022]", input), L"\u2020\u2021\u2020");
    EXPECT_EQ(Find(L"^\u2020*\u2020", L"\u2020\u2020"), L"\u2020\u2020");
    EXPECT_EQ(Find(L"^.*a\u2020", L"a\u2020a\u2021"), L"a\u2020");
    EXPECT_EQ(Find(L"^.*a\u2020b", L"a\u2020ba\u2020c"), L"a\u2020b");
}

TEST(PatternAlternation, StandsBetweenTwoElements) {
    EXPECT_EQ(Find(L"^ab|cd$", L"abd"), L"abd");
    EXPECT_EQ(Find(L"^ab|cd$", L"acd"), L"acd");
    EXPECT_FALSE(Matches(L"ab|cd", L"ab"));
    EXPECT_FALSE(Matches(L"ab|cd", L"cd"));
    EXPECT_EQ(Find(L"^(ab)|(cd)$", L"cd"), L"cd");
}

TEST(PatternAlternation, TakesQuantifiedElements) {
    EXPECT_EQ(Find(L"^a+|b*c$", L"aac"), L"aac");
    EXPECT_EQ(Find(L"^a+|b*c$", L"bbc"), L"bbc");
    EXPECT_EQ(Find(L"^a+|b*c$", L"c"), L"c");
}

TEST(PatternAlternation, TriesTheLeftSideFirst) {
    EXPECT_EQ(Find(L"a|(ab)", L"ab"), L"a");
    EXPECT_EQ(Find(L"(ab)|a", L"ab"), L"ab");
    EXPECT_EQ(Find(L"a|(ab)$", L"ab"), L"ab");
    EXPECT_EQ(Captures(L"{a}|{a}", L"a"), (Groups{L"a", std::nullopt}));
}

TEST(PatternAlternation, ChainsAsFarAsTheBarsReach) {
    for (const wchar_t* input : {L"xae", L"xbe", L"xce", L"xde"}) {
        EXPECT_EQ(Find(L"^xa|b|c|de$", input), input);
    }
    EXPECT_EQ(Find(L"^xa|b|c|de$", L"xe"), kNoMatch);
}

TEST(PatternAlternation, BarWhereAnElementBeginsIsALiteral) {
    EXPECT_EQ(Find(L"|a", L"a|a"), L"|a");
    EXPECT_EQ(Find(L"^a||b$", L"|b"), L"|b");
    EXPECT_EQ(Find(L"^a||b$", L"ab"), L"ab");
}

TEST(PatternAlternation, WithoutARightSideTakesTheEmptyText) {
    EXPECT_EQ(Find(L"^xa|", L"xb"), L"x");
    EXPECT_EQ(Find(L"^x(a|)b", L"xb"), L"xb");
    EXPECT_EQ(Error(L"(a|)*"), PE_EMPTY_REPETITION);
}

TEST(PatternLookAhead, WithoutAnAtomNeverSucceeds) {
    EXPECT_FALSE(Matches(L"a!", L"aaa"));
    EXPECT_FALSE(Matches(L"(a!)b", L"ab"));
}

TEST(PatternAnchor, HoldsAtTheStartOfTheInput) {
    EXPECT_EQ(Find(L"^a", L"ab"), L"a");
    EXPECT_EQ(Find(L"^b", L"ab"), kNoMatch);
    EXPECT_EQ(Find(L"^", L"ab"), L"");
    EXPECT_EQ(Find(L"^$", L""), L"");
    EXPECT_EQ(Find(L"^$", L"a"), kNoMatch);
}

TEST(PatternAnchor, IsALiteralAnywhereElse) {
    EXPECT_EQ(Find(L"a^b", L"a^b"), L"a^b");
    EXPECT_EQ(Find(L"(^a)", L"b^a"), L"^a");
    EXPECT_EQ(Find(L"^^a", L"^a"), L"^a");
    EXPECT_EQ(Find(L"^*a", L"*a"), L"*a");
}

TEST(PatternEnd, HoldsAtTheEndOfTheInput) {
    EXPECT_EQ(Find(L"b$", L"bab"), L"b");
    EXPECT_EQ(Find(L"a$", L"ab"), kNoMatch);
    EXPECT_EQ(Find(L"$", L""), L"");
    EXPECT_EQ(Find(L"a|$", L""), L"");
}

TEST(PatternEnd, IsALiteralAnywhereElse) {
    EXPECT_EQ(Find(L"a$b", L"a$b"), L"a$b");
    EXPECT_EQ(Find(L"(a$)", L"a$"), L"a$");
    EXPECT_EQ(Find(L"a$)", L"a$"), L"a$");
    EXPECT_EQ(Find(L"$*a", L"$$a"), L"$$a");
    EXPECT_EQ(Find(L"a$$", L"aa$"), L"a$");
}

TEST(Pattern, ClosingCharacterWithoutPartnerEndsThePatternQuietly) {
    for (const wchar_t* pattern : {L"abc)def", L"abc}def", L"abc]def"}) {
        EXPECT_EQ(Find(pattern, L"xabcx"), L"abc") << pattern;
        EXPECT_EQ(Find(pattern, L"abdef"), kNoMatch) << pattern;
    }
    EXPECT_EQ(Find(L")(", L"x"), L"");
    EXPECT_EQ(Find(L"a|)b", L"x"), L"");
}

TEST(Pattern, ClosingCharacterOfAnotherKindLeavesTheGroupOpen) {
    EXPECT_EQ(Error(L"{a)b}"), PE_BRACE_EXPECTED);
    EXPECT_EQ(Error(L"(a}b)"), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(Error(L"(a]b)"), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(Error(L"({a)}"), PE_BRACE_EXPECTED);
}

TEST(Match, StartsNoLaterThanAtTheLastCharacter) {
    EXPECT_FALSE(Matches(L"x*$", L"ab"));
    EXPECT_TRUE(Matches(L"x*$", L""));
    EXPECT_TRUE(Matches(L"x*$", L"abx"));
    EXPECT_FALSE(Matches(L"$", L"a"));
}

TEST(Match, TakesTheFirstPathThatSucceedsNotTheLongest) {
    EXPECT_EQ(Find(L"a|(ab)c?", L"abc"), L"a");
    EXPECT_EQ(Find(L"(a|b)*?b", L"aabb"), L"aab");
}

TEST(Match, WithoutRegardToCaseLowersPatternAndInput) {
    EXPECT_EQ(FindAnyCase(L"AbC", L"xaBc"), L"aBc");
    EXPECT_EQ(FindAnyCase(L"[A-C]+", L"xaBcd"), L"aBc");
    EXPECT_EQ(FindAnyCase(L"[^a]+", L"aAbA"), L"b");
    EXPECT_EQ(FindAnyCase(L"[\\T]", L"t\t"), L"\t");
    EXPECT_EQ(Error(L"[Z-a]", true), PE_NONE);
    EXPECT_EQ(Error(L"[Z-a]", false), PE_REVERSED_RANGE);
    EXPECT_EQ(FindAnyCase(L"[A-z]", L"\\"), kNoMatch);
    EXPECT_EQ(Find(L"[A-z]", L"\\"), L"\\");
}

TEST(Match, KnowsTheCaseOfLatin1InAnyLocale) {
    EXPECT_EQ(FindAnyCase(L"\u00c0\u00d6\u00d8\u00de", L"\u00e0\u00f6\u00f8\u00fe"),
              L"\u00e0\u00f6\u00f8\u00fe");
    EXPECT_EQ(FindAnyCase(L"\u00e0", L"\u00c0"), L"\u00c0");
    // The signs of multiplication and division are no letters, nor has the sharp s or the y with diaeresis
    // a capital among these characters.
    EXPECT_EQ(FindAnyCase(L"\u00d7", L"\u00f7"), kNoMatch);
    EXPECT_EQ(FindAnyCase(L"\u00f7", L"\u00d7"), kNoMatch);
    EXPECT_EQ(FindAnyCase(L"\u00df", L"\u00ff"), kNoMatch);
    EXPECT_EQ(FindAnyCase(L"\u00ff", L"\u0178"), kNoMatch);
    EXPECT_EQ(FindAnyCase(L"\u0105", L"\u0104"), kNoMatch);
}

TEST(LetterCase, PairsExactlyTheLettersOfLatin1) {
    int pairs = 0;
    for (int code = 0; code < 0x300; ++code) {
        const auto character = static_cast<wchar_t>(code);
        const wchar_t lower = LowerForm(character);
        EXPECT_EQ(LowerForm(lower), lower);
        if (lower != character) {
            ++pairs;
            EXPECT_EQ(CapitalForm(lower), character);
        }
    }
    EXPECT_EQ(pairs, 26 + 30);
    EXPECT_EQ(CapitalForm(L'\0'), L'\0');
    EXPECT_EQ(CapitalForm(L'1'), L'1');
}

TEST(Match, PointsIntoTheCallersInput) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(L"{B}C", false), PE_NONE);
    CMatchContext context;
    const wchar_t* end = nullptr;
    const wchar_t input[] = L"aBcd";
    ASSERT_TRUE(matcher.Match(input, &context, &end));
    EXPECT_EQ(context.MatchStart(), input + 1);
    EXPECT_EQ(context.MatchEnd(), input + 3);
    EXPECT_EQ(end, input + 3);
    EXPECT_EQ(context.Group(0).start, input + 1);
    EXPECT_EQ(context.Group(0).end, input + 2);
    EXPECT_EQ(context.GroupText(0), L"B");
}

TEST(Match, ReturnsWhereItStoppedWhenItFails) {
    CPatternMatcher matcher;
    CMatchContext context;
    const wchar_t input[] = L"abc";
    const wchar_t* end = nullptr;
    ASSERT_EQ(matcher.Parse(L"x", true), PE_NONE);
    EXPECT_FALSE(matcher.Match(input, &context, &end));
    EXPECT_EQ(end, input + 2);
    ASSERT_EQ(matcher.Parse(L"^x", true), PE_NONE);
    EXPECT_FALSE(matcher.Match(input, &context, &end));
    EXPECT_EQ(end, input);
}

TEST(Match, LeavesNothingButNullsWhenItFails) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(L"^{a}{b*}({c}|d)x", true), PE_NONE);
    CMatchContext context;
    ASSERT_TRUE(matcher.Match(L"abcx", &context));
    EXPECT_FALSE(matcher.Match(L"abcd", &context));
    EXPECT_EQ(context.MatchStart(), nullptr);
    EXPECT_EQ(context.MatchEnd(), nullptr);
    ASSERT_EQ(context.GroupCount(), 3u);
    for (std::size_t group = 0; group < 3; ++group) {
        EXPECT_EQ(context.Group(group).start, nullptr);
        EXPECT_EQ(context.Group(group).end, nullptr);
        EXPECT_EQ(context.GroupText(group), L"");
    }
}

TEST(Match, GivesTheContextAsManyGroupsAsThePatternHas) {
    CMatchContext context;
    for (const auto& [pattern, groups] :
         std::vector<std::pair<std::wstring, std::size_t>>{{L"{a}{b}", 2}, {L"ab", 0}, {L"{a}{b}{}", 3}}) {
        CPatternMatcher matcher;
        ASSERT_EQ(matcher.Parse(pattern.c_str(), true), PE_NONE);
        EXPECT_TRUE(matcher.Match(L"ab", &context));
        EXPECT_EQ(context.GroupCount(), groups);
    }
}

TEST(Match, OfNullFails) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(L"{a}", true), PE_NONE);
    CMatchContext context;
    const wchar_t input[] = L"a";
    const wchar_t* end = input;
    EXPECT_FALSE(matcher.Match(static_cast<const wchar_t*>(nullptr), &context, &end));
    EXPECT_FALSE(matcher.Match(input, nullptr, &end));
    EXPECT_EQ(end, input);
}

TEST(Match, SeesTheInputUpToItsFirstNull) {
    CPatternMatcher matcher;
    ASSERT_EQ(matcher.Parse(L"^{.*}$", true), PE_NONE);
    CMatchContext context;
    ASSERT_TRUE(matcher.Match(L"ab\0cd", &context));
    EXPECT_EQ(context.GroupText(0), L"ab");
}

TEST(Parse, ReportsWhatIsNotClosed) {
    EXPECT_EQ(Error(L"{a"), PE_BRACE_EXPECTED);
    EXPECT_EQ(Error(L"{"), PE_BRACE_EXPECTED);
    EXPECT_EQ(Error(L"(a"), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(Error(L"({a"), PE_BRACE_EXPECTED);
    EXPECT_EQ(Error(L"{(a"), PE_PARENTHESIS_EXPECTED);
    for (const wchar_t* pattern :
         {L"[a", L"[", L"[^", L"[^a", L"[\\", L"[a\\", L"[a-", L"[a-]", L"[\\]", L"[a$"}) {
        EXPECT_EQ(Error(pattern), PE_BRACKET_EXPECTED) << pattern;
    }
}

TEST(Parse, ReportsEmptySetsAndReversedRanges) {
    EXPECT_EQ(Error(L"[]"), PE_EMPTY_SET);
    EXPECT_EQ(Error(L"[^]"), PE_EMPTY_SET);
    EXPECT_EQ(Error(L"[]a]"), PE_EMPTY_SET);
    EXPECT_EQ(Error(L"[^]a]"), PE_EMPTY_SET);
    EXPECT_EQ(Error(L"[b-a]"), PE_REVERSED_RANGE);
    EXPECT_EQ(Error(L"[b-a"), PE_REVERSED_RANGE);
    EXPECT_EQ(Error(L"[b-b]"), PE_NONE);
    EXPECT_EQ(Error(L"[a-\\]"), PE_REVERSED_RANGE);
}

TEST(Parse, ReportsReferencesToGroupsNotYetOpened) {
    EXPECT_EQ(Error(L"{a}\\1"), PE_BAD_REFERENCE);
    EXPECT_EQ(Error(L"\\0{a}"), PE_BAD_REFERENCE);
    EXPECT_EQ(Error(L"\\0"), PE_BAD_REFERENCE);
    EXPECT_EQ(Error(L"{a\\0}"), PE_NONE);
    EXPECT_EQ(Error(L"{a\\1}{b}"), PE_BAD_REFERENCE);
}

TEST(Parse, ReportsUnboundedRepetitionsOfWhatCanBeEmpty) {
    for (const wchar_t* element : {L"(a*)", L"(a?)", L"(a*?)", L"()", L"{}", L"{a??}", L"(a?b*)", L"(a|b?)",
                                   L"(a?|b)", L"(!a)", L"!a", L"({a}?)", L"((a*))", L"(a|)", L"{a}\\0"}) {
        for (const wchar_t* quantifier : {L"*", L"+", L"*?", L"+?"}) {
            EXPECT_EQ(Error(std::wstring(element) + quantifier), PE_EMPTY_REPETITION)
                << element << quantifier;
        }
        EXPECT_EQ(Error(std::wstring(element) + L"?"), PE_NONE) << element;
        EXPECT_EQ(Error(std::wstring(element) + L"??"), PE_NONE) << element;
    }
    for (const wchar_t* pattern : {L"(a*b)*", L"(ab?)+", L"(a|b)*", L"(a+)*", L"\\w*", L"\\q*?", L"(!ab)*"}) {
        EXPECT_EQ(Error(pattern), PE_NONE) << pattern;
    }
}

TEST(Parse, ReportsTheFirstErrorFromTheLeft) {
    EXPECT_EQ(Error(L"[b-a](a*)*"), PE_REVERSED_RANGE);
    EXPECT_EQ(Error(L"(a*)*[b-a]"), PE_EMPTY_REPETITION);
    EXPECT_EQ(Error(L"{\\5"), PE_BAD_REFERENCE);
}

TEST(Parse, OfNullIsAnError) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(nullptr, true), PE_NULL_PATTERN);
    EXPECT_EQ(matcher.LastError(), PE_NULL_PATTERN);
}

TEST(Parse, KeepsItsLastAnswer) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.LastError(), PE_NONE);
    EXPECT_EQ(matcher.Parse(L"[b-a]", true), PE_REVERSED_RANGE);
    EXPECT_EQ(matcher.LastError(), PE_REVERSED_RANGE);
    EXPECT_EQ(matcher.Parse(L"a", true), PE_NONE);
    EXPECT_EQ(matcher.LastError(), PE_NONE);
}

TEST(Parse, ReplacesThePreviousPattern) {
    CPatternMatcher matcher;
    CMatchContext context;
    ASSERT_EQ(matcher.Parse(L"{a}{b}", true), PE_NONE);
    ASSERT_EQ(matcher.Parse(L"{c}", true), PE_NONE);
    EXPECT_EQ(matcher.GroupCount(), 1u);
    EXPECT_FALSE(matcher.Match(L"ab", &context));
    EXPECT_TRUE(matcher.Match(L"c", &context));
}

TEST(Parse, ThatFailedLeavesNothingThatMatches) {
    CPatternMatcher matcher;
    CMatchContext context;
    EXPECT_FALSE(matcher.Match(L"", &context)) << "nothing was parsed yet";
    ASSERT_EQ(matcher.Parse(L"{a}", true), PE_NONE);
    ASSERT_EQ(matcher.Parse(L"{a}(", true), PE_PARENTHESIS_EXPECTED);
    EXPECT_EQ(matcher.GroupCount(), 0u);
    EXPECT_FALSE(matcher.Match(L"a", &context));
    EXPECT_EQ(context.GroupCount(), 0u);
}
