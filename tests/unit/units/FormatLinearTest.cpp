// Lengths to text: the look of each format, rounding, signs, and lengths that a format cannot show.
#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

#include "units/LinearUnits.h"

using namespace tavrin::units;

namespace {

struct Case {
    double value;
    int units;
    int precision;
    const wchar_t* text;
};

void ExpectTexts(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        const auto text = FormatLinear(c.value, c.units, c.precision);
        ASSERT_TRUE(text) << c.value;
        EXPECT_EQ(*text, c.text) << c.value << " in units " << c.units << ", precision " << c.precision;
    }
}

TEST(FormatLinear, EachFormatHasItsLook) {
    ExpectTexts({
        {15.5, LU_SCIENTIFIC, 4, L"1.5500E+01"},
        {15.5, LU_DECIMAL, 4, L"15.5000"},
        {15.5, LU_ENGINEERING, 4, L"1'-3.5000\""},
        {15.5, LU_ARCHITECTURAL, 4, L"1'-3 1/2\""},
        {15.5, LU_FRACTIONAL, 4, L"15 1/2"},
    });
}

TEST(FormatLinear, PrecisionZeroLeavesOutPointAndFraction) {
    ExpectTexts({
        {16.0, LU_SCIENTIFIC, 0, L"2E+01"},
        {15.75, LU_DECIMAL, 0, L"16"},
        {15.75, LU_ENGINEERING, 0, L"1'-4\""},
        {15.75, LU_ARCHITECTURAL, 0, L"1'-4\""},
        {15.75, LU_FRACTIONAL, 0, L"16"},
    });
}

TEST(FormatLinear, NothingIsSuppressed) {
    ExpectTexts({
        {0.0, LU_SCIENTIFIC, 2, L"0.00E+00"},
        {0.0, LU_DECIMAL, 2, L"0.00"},
        {0.0, LU_ENGINEERING, 2, L"0'-0.00\""},
        {0.0, LU_ARCHITECTURAL, 2, L"0'-0\""},
        {0.0, LU_FRACTIONAL, 2, L"0"},
        {12.0, LU_ENGINEERING, 1, L"1'-0.0\""},
        {12.0, LU_ARCHITECTURAL, 4, L"1'-0\""},
        {0.5, LU_ARCHITECTURAL, 4, L"0'-0 1/2\""},
        {12.5, LU_ARCHITECTURAL, 4, L"1'-0 1/2\""},
        {0.5, LU_FRACTIONAL, 4, L"1/2"},
    });
}

TEST(FormatLinear, FractionsAreReduced) {
    ExpectTexts({
        {0.5, LU_FRACTIONAL, 8, L"1/2"},
        {0.25, LU_FRACTIONAL, 8, L"1/4"},
        {3.0 / 256, LU_FRACTIONAL, 8, L"3/256"},
        {6.0 / 256, LU_FRACTIONAL, 8, L"3/128"},
        {7.0, LU_FRACTIONAL, 8, L"7"},
        {7.875, LU_ARCHITECTURAL, 6, L"0'-7 7/8\""},
    });
}

TEST(FormatLinear, RoundingCarriesIntoTheNextInchAndFoot) {
    ExpectTexts({
        {11.99999, LU_ENGINEERING, 4, L"1'-0.0000\""},
        {11.99994, LU_ENGINEERING, 4, L"0'-11.9999\""},
        {11.97, LU_ARCHITECTURAL, 4, L"1'-0\""},
        {11.96, LU_ARCHITECTURAL, 4, L"0'-11 15/16\""},
        {2.99, LU_FRACTIONAL, 4, L"3"},
        {9.99996, LU_SCIENTIFIC, 4, L"1.0000E+01"},
        {0.99996, LU_DECIMAL, 4, L"1.0000"},
    });
}

TEST(FormatLinear, AValueHalfWayTakesTheEvenText) {
    ExpectTexts({
        {0.125, LU_DECIMAL, 2, L"0.12"},
        {0.375, LU_DECIMAL, 2, L"0.38"},
        {0.5, LU_ARCHITECTURAL, 0, L"0'-0\""},
        {1.5, LU_ARCHITECTURAL, 0, L"0'-2\""},
        {1.0 / 32, LU_FRACTIONAL, 4, L"0"},
        {3.0 / 32, LU_FRACTIONAL, 4, L"1/8"},
    });
}

TEST(FormatLinear, NegativeLengthsHaveTheSignInFrontOfTheWhole) {
    ExpectTexts({
        {-15.5, LU_SCIENTIFIC, 4, L"-1.5500E+01"},
        {-15.5, LU_DECIMAL, 4, L"-15.5000"},
        {-15.5, LU_ENGINEERING, 4, L"-1'-3.5000\""},
        {-15.5, LU_ARCHITECTURAL, 4, L"-1'-3 1/2\""},
        {-15.5, LU_FRACTIONAL, 4, L"-15 1/2"},
        {-0.5, LU_FRACTIONAL, 4, L"-1/2"},
        {-0.5, LU_ARCHITECTURAL, 4, L"-0'-0 1/2\""},
    });
}

TEST(FormatLinear, WhatRoundsToZeroHasNoSign) {
    ExpectTexts({
        {-0.00001, LU_DECIMAL, 4, L"0.0000"},
        {-0.00001, LU_ENGINEERING, 4, L"0'-0.0000\""},
        {-0.01, LU_ARCHITECTURAL, 4, L"0'-0\""},
        {-0.01, LU_FRACTIONAL, 4, L"0"},
        {-0.0, LU_SCIENTIFIC, 4, L"0.0000E+00"},
        {-0.0, LU_DECIMAL, 0, L"0"},
        {-1e-10, LU_SCIENTIFIC, 1, L"-1.0E-10"},
    });
}

TEST(FormatLinear, ExponentsHaveAtLeastTwoDigits) {
    ExpectTexts({
        {1e-7, LU_SCIENTIFIC, 2, L"1.00E-07"},
        {1.5e100, LU_SCIENTIFIC, 1, L"1.5E+100"},
    });
}

TEST(FormatLinear, UnknownUnitsAreDecimal) {
    for (const int units : {0, 6, -1, 32767, -32768}) {
        EXPECT_EQ(FormatLinear(15.5, units, 3), L"15.500") << units;
    }
}

TEST(FormatLinear, PrecisionIsClamped) {
    EXPECT_EQ(FormatLinear(1.0 / 3, LU_DECIMAL, 9), L"0.33333333");
    EXPECT_EQ(FormatLinear(1.0 / 3, LU_DECIMAL, INT_MAX), L"0.33333333");
    EXPECT_EQ(FormatLinear(1.0 / 3, LU_DECIMAL, -1), L"0");
    EXPECT_EQ(FormatLinear(1.0 / 512, LU_FRACTIONAL, 9), L"0");
    EXPECT_EQ(FormatLinear(1.5 / 256, LU_FRACTIONAL, 9), L"1/128");
}

TEST(FormatLinear, LengthsTooLargeForAFormatBecomeScientific) {
    const double below = std::nextafter(1e16, 0);
    ExpectTexts({
        {1e16, LU_ENGINEERING, 2, L"1.00E+16"},
        {1e16, LU_ARCHITECTURAL, 2, L"1.00E+16"},
        {-1e16, LU_FRACTIONAL, 2, L"-1.00E+16"},
        {1e16, LU_DECIMAL, 2, L"10000000000000000.00"},
        {1e100, LU_DECIMAL, 2, L"1.00E+100"},
        {below, LU_ENGINEERING, 2, L"833333333333333'-2.00\""},
        {below, LU_ARCHITECTURAL, 8, L"833333333333333'-2\""},
        {below, LU_FRACTIONAL, 8, L"9999999999999998"},
    });
}

TEST(FormatLinear, TheLargestDoubleIsCutRatherThanRoundedPastWhatCanBeRead) {
    ExpectTexts({
        {DBL_MAX, LU_SCIENTIFIC, 0, L"1E+308"},
        {DBL_MAX, LU_SCIENTIFIC, 2, L"1.79E+308"},
        {-DBL_MAX, LU_DECIMAL, 4, L"-1.7976E+308"},
        {1.2e308, LU_SCIENTIFIC, 0, L"1E+308"},
    });
}

TEST(FormatLinear, LengthsBelow1eMinus300AreZero) {
    ExpectTexts({
        {1e-300, LU_SCIENTIFIC, 1, L"1.0E-300"},
        {std::nextafter(1e-300, 0), LU_SCIENTIFIC, 1, L"0.0E+00"},
        {-DBL_MIN, LU_SCIENTIFIC, 1, L"0.0E+00"},
        {DBL_TRUE_MIN, LU_DECIMAL, 1, L"0.0"},
    });
}

TEST(FormatLinear, InfinitiesAndNaNHaveNoText) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (int units = 0; units <= 6; ++units) {
        EXPECT_FALSE(FormatLinear(infinity, units, 4));
        EXPECT_FALSE(FormatLinear(-infinity, units, 4));
        EXPECT_FALSE(FormatLinear(std::nan(""), units, 4));
    }
}

struct CommaPunctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(FormatLinear, ACommaLocaleChangesNothing) {
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaPunctuation));
    const std::string beforeInC = std::setlocale(LC_ALL, nullptr);
    // Installed or not: the runtime of Windows programs knows these anyway.
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        std::setlocale(LC_ALL, "de-DE");
    }
    EXPECT_EQ(FormatLinear(1234.5, LU_DECIMAL, 1), L"1234.5");
    EXPECT_EQ(FormatLinear(1234.5, LU_ENGINEERING, 1), L"102'-10.5\"");
    EXPECT_EQ(FormatLinear(12345678, LU_ARCHITECTURAL, 1), L"1028806'-6\"");
    EXPECT_EQ(ParseLinear(L"1234.5"), 1234.5);
    EXPECT_FALSE(ParseLinear(L"1234,5"));
    std::setlocale(LC_ALL, beforeInC.c_str());
    std::locale::global(before);
}

}  // namespace
