// What the two patterns of the item files match and capture.
#include "itemdlg/TemplatePatterns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pattern/PatternMatcher.h"

using namespace tavrin::itemdlg;
using namespace tavrin::pattern;

namespace {

using Groups = std::vector<std::wstring>;
const Groups kNoMatch;

// The texts of the groups; no groups at all if the text does not match.
Groups Captures(const wchar_t* pattern, const wchar_t* text) {
    CPatternMatcher matcher;
    EXPECT_EQ(matcher.Parse(pattern, false), PE_NONE);
    CMatchContext context;
    Groups groups;
    if (matcher.Match(text, &context)) {
        for (std::size_t index = 0; index < context.GroupCount(); ++index) {
            groups.emplace_back(context.GroupText(index));
        }
    }
    return groups;
}

Groups Parameter(const wchar_t* line) {
    return Captures(kParameterPattern, line);
}

Groups Placeholder(const wchar_t* text) {
    return Captures(kPlaceholderPattern, text);
}

}  // namespace

TEST(ParameterPattern, GivesNumberLabelTypeAndValue) {
    EXPECT_EQ(Parameter(L"$12 = \"Width\"D450"), (Groups{L"12", L"Width", L"D", L"450"}));
    EXPECT_EQ(Parameter(L"$3 = \"<<1503>>\"I 2"), (Groups{L"3", L"<<1503>>", L"I", L" 2"}));
}

TEST(ParameterPattern, EndsTheLabelAtTheLastQuoteBeforeATypeLetter) {
    EXPECT_EQ(Parameter(L"$12 = \"A \"quoted\" label\"R7.5 mm"),
              (Groups{L"12", L"A \"quoted\" label", L"R", L"7.5 mm"}));
    EXPECT_EQ(Parameter(L"$1=\"a\"D\"b\"Ix\"c\""), (Groups{L"1", L"a\"D\"b", L"I", L"x\"c\""}));
}

TEST(ParameterPattern, TakesAnEmptyNumberAnEmptyLabelAndAnEmptyValue) {
    EXPECT_EQ(Parameter(L"$ = \"x\"I"), (Groups{L"", L"x", L"I", L""}));
    EXPECT_EQ(Parameter(L"$=\"\"R"), (Groups{L"", L"", L"R", L""}));
}

TEST(ParameterPattern, TakesASmallTypeLetterAndKeepsItSmall) {
    EXPECT_EQ(Parameter(L"$3 = \"x\"d2"), (Groups{L"3", L"x", L"d", L"2"}));
}

TEST(ParameterPattern, KeepsTheCaseOfWhatItCaptures) {
    EXPECT_EQ(Parameter(L"$3 = \"WidtH \u00c0\"rABC"), (Groups{L"3", L"WidtH \u00c0", L"r", L"ABC"}));
}

TEST(ParameterPattern, TakesAnyNumberOfBlanksAroundTheEqualsSignButNoTabs) {
    EXPECT_EQ(Parameter(L"$7=\"W\"R5"), (Groups{L"7", L"W", L"R", L"5"}));
    EXPECT_EQ(Parameter(L"$7    =   \"W\"R5"), (Groups{L"7", L"W", L"R", L"5"}));
    EXPECT_EQ(Parameter(L"$7\t=\"W\"R5"), kNoMatch);
    EXPECT_EQ(Parameter(L"$7=\t\"W\"R5"), kNoMatch);
}

TEST(ParameterPattern, RefusesOtherTypeLettersAndWhatStandsBeforeTheDollarSign) {
    EXPECT_EQ(Parameter(L"$3 = \"x\"Q2"), kNoMatch);
    EXPECT_EQ(Parameter(L" $3 = \"x\"I2"), kNoMatch);
    EXPECT_EQ(Parameter(L"$3 = \"x\" I2"), kNoMatch);
    EXPECT_EQ(Parameter(L"$3a = \"x\"I2"), kNoMatch);
    EXPECT_EQ(Parameter(L"$3 = x\"I2"), kNoMatch);
    EXPECT_EQ(Parameter(L""), kNoMatch);
}

TEST(PlaceholderPattern, GivesTheLastNumber) {
    EXPECT_EQ(Placeholder(L"<<4>>"), (Groups{L"4"}));
    EXPECT_EQ(Placeholder(L"Size <<4>> and <<17>>"), (Groups{L"17"}));
    EXPECT_EQ(Placeholder(L"<<4>> and <<17"), (Groups{L"4"}));
}

TEST(PlaceholderPattern, TakesNoDigitsAsAnEmptyNumber) {
    EXPECT_EQ(Placeholder(L"<<>>"), (Groups{L""}));
    EXPECT_EQ(Placeholder(L"<<<>>>"), (Groups{L""}));
}

TEST(PlaceholderPattern, RefusesWhatIsNotAllDigits) {
    for (const wchar_t* text : {L"<<4a>>", L"<<4 >>", L"<4>", L"<<4>", L"<4>>", L"<<-4>>", L""}) {
        EXPECT_EQ(Placeholder(text), kNoMatch) << text;
    }
}
