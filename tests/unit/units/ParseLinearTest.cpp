// Text to lengths: every spelling that is read, and that everything else is refused as a whole.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "units/LinearUnits.h"

using namespace tavrin::units;

namespace {

struct Case {
    const wchar_t* text;
    double value;
};

void ExpectLengths(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(ParseLinear(c.text), c.value) << testing::PrintToString(c.text);
    }
}

void ExpectRefused(std::initializer_list<const wchar_t*> texts) {
    for (const wchar_t* text : texts) {
        EXPECT_EQ(ParseLinear(text), std::nullopt) << testing::PrintToString(text);
    }
}

TEST(ParseLinear, NumbersAreReadAsTheNearestDouble) {
    ExpectLengths({{L"0", 0},
                   {L"15.5", 15.5},
                   {L"15.", 15},
                   {L".5", 0.5},
                   {L"0015.50", 15.5},
                   {L"0.1", 0.1},
                   {L"1e3", 1000},
                   {L"1.55E+01", 15.5},
                   {L".5e-1", 0.05},
                   {L"1e007", 1e7},
                   {L"9007199254740993", 9007199254740992.0},
                   {L"1.7976931348623157E+308", 1.7976931348623157e308},
                   {L"4.94065646E-324", 4.9406564584124654e-324}});
}

TEST(ParseLinear, ASignStandsInFrontOfTheWhole) {
    ExpectLengths({{L"-15.5", -15.5}, {L"+15.5", 15.5}, {L"-1'-3 1/2\"", -15.5}, {L"+3/4", 0.75}});
    ExpectRefused({L"--5", L"+-5", L"- 5", L"5-", L"-", L"+", L"1'--3", L"1'+3", L"2--3/4", L"3/-4"});
}

TEST(ParseLinear, AnInchMarkIsOptional) {
    ExpectLengths({{L"15.5\"", 15.5}, {L"3/4\"", 0.75}, {L"2-3/4\"", 2.75}, {L"1'3\"", 15}, {L"1'3", 15}});
    ExpectRefused({L"\"", L"5\"\"", L"5 \"", L"1'\"", L"1e3\"", L"5''"});
}

TEST(ParseLinear, FeetMayStandAlone) {
    ExpectLengths({{L"5'", 60}, {L"0'", 0}, {L"5.5'", 66}, {L"1.1'", 13.2}, {L".5'", 6}});
    ExpectRefused({L"'", L"1e1'", L"1/2'", L"3 1/2'", L"5'-", L"-'", L".'"});
}

TEST(ParseLinear, FeetAndInchesAreJoinedByAHyphenOrBlanksOrNothing) {
    ExpectLengths({{L"1'3.5", 15.5},
                   {L"1'-3.5\"", 15.5},
                   {L"1' 3.5\"", 15.5},
                   {L"1' \t 3.5\"", 15.5},
                   {L"1'-3 1/2\"", 15.5},
                   {L"1'-3-1/2\"", 15.5},
                   {L"1'3 1/2", 15.5},
                   {L"1'-1/2\"", 12.5},
                   {L"1'1/2", 12.5},
                   {L"1'-15\"", 27},
                   {L"0'-0 1/2\"", 0.5}});
    ExpectRefused({L"1.5'3", L"1' - 3", L"1'- 3", L"1'3'", L"1'3'4\"", L"1'3e1"});
}

TEST(ParseLinear, FeetAndInchesAreAddedBeforeTheyAreRounded) {
    ExpectLengths({{L"1'-3.1\"", 15.1},
                   {L"100'-0.3\"", 1200.3},
                   {L"8'4.000000000000000000001", 100},
                   {L"99999999999999999999999'", 1199999999999999999999988.0}});
}

TEST(ParseLinear, FractionsStandAloneOrBehindAWholeNumber) {
    ExpectLengths({{L"3/4", 0.75},
                   {L"2-3/4", 2.75},
                   {L"2 3/4", 2.75},
                   {L"2  3/4", 2.75},
                   {L"5/4", 1.25},
                   {L"0/7", 0},
                   {L"1/3", 1.0 / 3},
                   {L"10 2/3", 32.0 / 3},
                   {L"9999999999999998 0/1", 9999999999999998.0}});
    ExpectRefused({L"1/0", L"2-1/0", L"0/0", L"/4", L"3/", L"1/2/3", L"1 2", L"2-3", L"1.5 1/2", L"1.5/2",
                   L"1/2.5", L"1 1.5/2", L"1 -1/2", L"1 1/ 2", L"1 1 /2", L"1/2 1/2", L"1e1/2", L"2-3/4e1"});
}

TEST(ParseLinear, BlanksAroundTheWholeDoNotMatter) {
    ExpectLengths({{L"  15.5\t", 15.5}, {L"\t-3/4 ", -0.75}, {L" 5' ", 60}});
    ExpectRefused({L"\n5", L"5\r", L"5\u00A0", L"5\v"});
}

TEST(ParseLinear, EverythingElseIsRefusedAsAWhole) {
    ExpectRefused({L"",    L" ",   L".",   L"abc",   L"15.5x", L"15,5", L"1e",       L"1e+",        L"1e1.5",
                   L"e5",  L".e5", L"0x5", L"1.2.3", L"inf",   L"nan",  L"infinity", L"1d5",        L"1_000",
                   L"5mm", L"5″",  L"5′",  L"5 e3",  L"٣",     L"½",    L"1'-3½\"",  L"1'-3 1/2\"x"});
    EXPECT_EQ(ParseLinear(std::wstring_view(L"5\0", 2)), std::nullopt);
    EXPECT_EQ(ParseLinear(std::wstring_view(L"\0", 1)), std::nullopt);
}

TEST(ParseLinear, ANumberThatADoubleCannotHoldIsRefused) {
    ExpectRefused({L"1e309", L"-1e309", L"1e-400", L"1e99999999999999999999", L"1e-99999999999999999999"});
    const std::wstring huge(400, L'9');
    EXPECT_EQ(ParseLinear(huge), std::nullopt);
    EXPECT_EQ(ParseLinear(huge + L"'"), std::nullopt);
    EXPECT_EQ(ParseLinear(huge + L"/3"), std::nullopt);
    EXPECT_EQ(ParseLinear(L"3/" + huge), std::nullopt);
    EXPECT_EQ(ParseLinear(std::wstring(308, L'9') + L" 1/" + std::wstring(308, L'9')), std::nullopt);
}

TEST(ParseLinear, ThereIsNoNegativeZero) {
    for (const wchar_t* text : {L"-0", L"-0.0", L"-0e5", L"-0'-0\"", L"-0/3"}) {
        const auto value = ParseLinear(text);
        ASSERT_TRUE(value) << testing::PrintToString(text);
        EXPECT_EQ(*value, 0.0);
        EXPECT_FALSE(std::signbit(*value)) << testing::PrintToString(text);
    }
}

TEST(ParseLinear, AVeryLongTextIsReadInFull) {
    const std::wstring zeros(1'000'000, L'0');
    EXPECT_EQ(ParseLinear(zeros + L"5"), 5.0);
    EXPECT_EQ(ParseLinear(L"5." + zeros), 5.0);
    EXPECT_EQ(ParseLinear(zeros + L"5x"), std::nullopt);
}

}  // namespace
