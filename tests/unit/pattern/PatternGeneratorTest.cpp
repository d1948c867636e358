// The makers of patterns and inputs have tests of their own: a generator that leaves something out would
// leave it untested without a sign.
#include "tests/unit/pattern/PatternGenerator.h"

#include <gtest/gtest.h>

#include <set>

#include "pattern/PatternMatcher.h"

using namespace tavrin::pattern;

TEST(PatternGenerator, MakesEveryTextOverAnAlphabetExactlyOnce) {
    const std::vector<std::wstring> texts = AllTexts(L"xyz", 4);
    EXPECT_EQ(texts.size(), 1u + 3 + 9 + 27 + 81);
    EXPECT_EQ(std::set<std::wstring>(texts.begin(), texts.end()).size(), texts.size());
    EXPECT_EQ(texts.front(), L"");
    EXPECT_EQ(texts.back(), L"zzzz");
}

TEST(PatternGenerator, GivesTheSameTextsForTheSameSeed) {
    CPatternGenerator one(7);
    CPatternGenerator same(7);
    CPatternGenerator other(8);
    std::wstring fromOne;
    std::wstring fromSame;
    std::wstring fromOther;
    for (int count = 0; count < 20; ++count) {
        fromOne += one.Pattern() + one.Input(9) + one.Characters(9);
        fromSame += same.Pattern() + same.Input(9) + same.Characters(9);
        fromOther += other.Pattern() + other.Input(9) + other.Characters(9);
    }
    EXPECT_EQ(fromOne, fromSame);
    EXPECT_NE(fromOne, fromOther);
}

TEST(PatternGenerator, UsesEveryConstructOfTheLanguage) {
    CPatternGenerator generator(1);
    std::wstring all;
    for (int count = 0; count < 20000; ++count) {
        all += generator.Pattern() + L"\n";
    }
    for (const wchar_t* construct :
         {L"*?",  L"+?",  L"??",  L"a*",  L"a+",  L"a?",  L"a|",   L"|b",  L"[^",  L"a-c",
          L"\\t", L"\\]", L"!a",  L"!!",  L"!{",  L"!(",  L"{a",   L"}*",  L"}?",  L"(a",
          L")*",  L")+",  L"\\0", L"\\1", L"\\q", L"\\n", L"\\w+", L"\\D", L"$\n", L"\n^",
          L"{}",  L"()",  L"|{",  L"{{",  L"((",  L".",   L"\\0}", L"À",   L"à"}) {
        EXPECT_NE(all.find(construct), std::wstring::npos) << "never made: " << construct;
    }
}

TEST(PatternGenerator, MakesMostlyPatternsThatCompile) {
    CPatternGenerator generator(2);
    CPatternMatcher matcher;
    int compiled = 0;
    for (int count = 0; count < 1000; ++count) {
        compiled += matcher.Parse(generator.Pattern().c_str(), false) == PE_NONE ? 1 : 0;
    }
    EXPECT_GT(compiled, 700);
}
