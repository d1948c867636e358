// Numbers as the item files write them.
#include "itemdlg/NumberText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>
#include <string>

using namespace tavrin::itemdlg;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

// 1234.5 as "1.234,5".
class CDecimalComma : public std::numpunct<wchar_t> {
    wchar_t do_decimal_point() const override { return L','; }
    wchar_t do_thousands_sep() const override { return L'.'; }
    std::string do_grouping() const override { return "\3"; }
};

std::string PrintedWithG(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string Narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

}  // namespace

TEST(ReadLeadingNumber, ReturnsTheEndOfTheNumber) {
    const auto end = [](const wchar_t* text) { return ReadLeadingNumber(text).end; };
    EXPECT_EQ(end(L"900"), 3u);
    EXPECT_EQ(end(L" 900 mm"), 4u);
    EXPECT_EQ(end(L"-2.5e3x"), 6u);
    EXPECT_EQ(end(L"5."), 2u);
    EXPECT_EQ(end(L"1e+"), 1u);
    EXPECT_EQ(end(L"1ex"), 1u);
    EXPECT_EQ(end(L"0,9"), 1u);
    EXPECT_EQ(end(L"1e999 "), 5u);
    EXPECT_EQ(end(L"  wide"), 0u);
    EXPECT_EQ(end(L" -."), 0u);
    EXPECT_EQ(end(L""), 0u);
}

TEST(DecimalValue, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(DecimalValue(L"900"), 900.0);
    EXPECT_EQ(DecimalValue(L"0.08"), 0.08);
    EXPECT_EQ(DecimalValue(L"-2.5e3"), -2500.0);
    EXPECT_EQ(DecimalValue(L"+7E-2"), 0.07);
    EXPECT_EQ(DecimalValue(L"1e+2"), 100.0);
    EXPECT_EQ(DecimalValue(L".5"), 0.5);
    EXPECT_EQ(DecimalValue(L"5."), 5.0);
    EXPECT_EQ(DecimalValue(L"-.5"), -0.5);
    EXPECT_EQ(DecimalValue(L"007"), 7.0);
}

TEST(DecimalValue, IgnoresWhatFollowsTheNumber) {
    EXPECT_EQ(DecimalValue(L"7.5 mm"), 7.5);
    EXPECT_EQ(DecimalValue(L"1.2.3"), 1.2);
    EXPECT_EQ(DecimalValue(L"1,5"), 1.0);
    EXPECT_EQ(DecimalValue(L"12\"x"), 12.0);
    EXPECT_EQ(DecimalValue(L"3\u00e9"), 3.0);
    EXPECT_EQ(DecimalValue(std::wstring_view(L"12", 1)), 1.0);
}

TEST(DecimalValue, TakesAnExponentOnlyWithDigits) {
    EXPECT_EQ(DecimalValue(L"1e"), 1.0);
    EXPECT_EQ(DecimalValue(L"1e+"), 1.0);
    EXPECT_EQ(DecimalValue(L"1e-x"), 1.0);
    EXPECT_EQ(DecimalValue(L"1ee2"), 1.0);
    EXPECT_EQ(DecimalValue(L"1e2.5"), 100.0);
    EXPECT_EQ(DecimalValue(L".e2"), 0.0);
}

TEST(DecimalValue, SkipsWhiteSpaceInFront) {
    EXPECT_EQ(DecimalValue(L" 2"), 2.0);
    EXPECT_EQ(DecimalValue(L" \t\n\v\f\r-3"), -3.0);
    EXPECT_EQ(DecimalValue(L"- 3"), 0.0);
    EXPECT_EQ(DecimalValue(L"\u00a03"), 0.0) << "the no-break space is not among them";
}

TEST(DecimalValue, IsZeroWithoutANumber) {
    for (const wchar_t* text : {L"", L" ", L"wide", L"-", L"+", L".", L"-.", L"e5", L"+-1", L"--1", L"%1"}) {
        EXPECT_EQ(DecimalValue(text), 0.0) << text;
        EXPECT_FALSE(std::signbit(DecimalValue(text))) << text;
    }
}

TEST(DecimalValue, KnowsNoHexadecimalNumbersNorInfinities) {
    EXPECT_EQ(DecimalValue(L"0x1F"), 0.0);
    EXPECT_EQ(DecimalValue(L"inf"), 0.0);
    EXPECT_EQ(DecimalValue(L"-infinity"), 0.0);
    EXPECT_EQ(DecimalValue(L"nan"), 0.0);
}

TEST(DecimalValue, OfTooLargeANumberIsInfinite) {
    EXPECT_EQ(DecimalValue(L"1e309"), kInfinity);
    EXPECT_EQ(DecimalValue(L"-1e309"), -kInfinity);
    EXPECT_EQ(DecimalValue(L"1e99999999999999999999"), kInfinity);
    EXPECT_EQ(DecimalValue(L"0.001e312"), kInfinity);
    EXPECT_EQ(DecimalValue(std::wstring(400, L'9')), kInfinity);
    EXPECT_EQ(DecimalValue(L"1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(DecimalValue, OfTooSmallANumberIsZero) {
    EXPECT_EQ(DecimalValue(L"1e-400"), 0.0);
    EXPECT_EQ(DecimalValue(L"1e-99999999999999999999"), 0.0);
    EXPECT_EQ(DecimalValue(L"1000e-400"), 0.0);
    EXPECT_EQ(DecimalValue(L"0." + std::wstring(400, L'0') + L"1"), 0.0);
    EXPECT_TRUE(std::signbit(DecimalValue(L"-1e-400")));
    EXPECT_EQ(DecimalValue(L"4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(DecimalValue, OfZeroIsZeroWhateverTheExponent) {
    EXPECT_EQ(DecimalValue(L"0e99999999999999999999"), 0.0);
    EXPECT_EQ(DecimalValue(L"0.000e-9999"), 0.0);
    EXPECT_TRUE(std::signbit(DecimalValue(L"-0")));
}

TEST(DecimalValue, CountsEveryDigitOfALongNumber) {
    EXPECT_EQ(DecimalValue(L"0." + std::wstring(400, L'0') + L"1e401"), 1.0);
    EXPECT_EQ(DecimalValue(std::wstring(1000000, L'0') + L"12"), 12.0);
    EXPECT_EQ(DecimalValue(L"1." + std::wstring(1000000, L'0')), 1.0);
    EXPECT_EQ(DecimalValue(L"1" + std::wstring(1000000, L'0') + L"e-1000000"), 1.0);
}

TEST(DecimalValue, RoundsToTheNearestValue) {
    EXPECT_EQ(DecimalValue(L"9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(DecimalValue(L"9007199254740993.00000000000000000001"), 9007199254740994.0);
    EXPECT_EQ(DecimalValue(L"0.1"), 0.1);
}

TEST(FloorToInt, IsTheLargestWholeNumberNotAbove) {
    EXPECT_EQ(FloorToInt(2.9), 2);
    EXPECT_EQ(FloorToInt(-2.1), -3);
    EXPECT_EQ(FloorToInt(-3.0), -3);
    EXPECT_EQ(FloorToInt(-0.0), 0);
    EXPECT_EQ(FloorToInt(-1e-300), -1);
}

TEST(FloorToInt, StaysWithinTheRangeOfInt) {
    EXPECT_EQ(FloorToInt(2147483647.5), kHighest);
    EXPECT_EQ(FloorToInt(2147483648.0), kHighest);
    EXPECT_EQ(FloorToInt(1e300), kHighest);
    EXPECT_EQ(FloorToInt(kInfinity), kHighest);
    EXPECT_EQ(FloorToInt(-2147483648.0), kLowest);
    EXPECT_EQ(FloorToInt(-2147483648.5), kLowest);
    EXPECT_EQ(FloorToInt(-kInfinity), kLowest);
}

TEST(FloorToInt, OfWhatIsNotANumberIsZero) {
    EXPECT_EQ(FloorToInt(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(LeadingInt, ReadsTheWholeNumberThatATextBeginsWith) {
    EXPECT_EQ(LeadingInt(L"1503"), 1503);
    EXPECT_EQ(LeadingInt(L"00012"), 12);
    EXPECT_EQ(LeadingInt(L" \t-7x"), -7);
    EXPECT_EQ(LeadingInt(L"+7.9"), 7);
    EXPECT_EQ(LeadingInt(L"1e3"), 1);
    for (const wchar_t* text : {L"", L"x", L"-", L"- 1", L".5"}) {
        EXPECT_EQ(LeadingInt(text), 0) << text;
    }
}

TEST(LeadingInt, StaysWithinTheRangeOfInt) {
    EXPECT_EQ(LeadingInt(L"2147483647"), kHighest);
    EXPECT_EQ(LeadingInt(L"2147483648"), kHighest);
    EXPECT_EQ(LeadingInt(L"-2147483648"), kLowest);
    EXPECT_EQ(LeadingInt(L"-2147483649"), kLowest);
    EXPECT_EQ(LeadingInt(std::wstring(1000, L'9')), kHighest);
    EXPECT_EQ(LeadingInt(L"-" + std::wstring(1000, L'9')), kLowest);
    EXPECT_EQ(LeadingInt(L"4294967297"), kHighest) << "not 1, as if it were cut off";
}

TEST(GeneralText, HasSixSignificantDigits) {
    EXPECT_EQ(GeneralText(900.0), L"900");
    EXPECT_EQ(GeneralText(0.08), L"0.08");
    EXPECT_EQ(GeneralText(1234567.891), L"1.23457e+06");
    EXPECT_EQ(GeneralText(1234567.0), L"1.23457e+06");
    EXPECT_EQ(GeneralText(999999.0), L"999999");
    EXPECT_EQ(GeneralText(999999.5), L"1e+06");
    EXPECT_EQ(GeneralText(2.0 / 3.0), L"0.666667");
    EXPECT_EQ(GeneralText(-12.5), L"-12.5");
}

TEST(GeneralText, HasAnExponentOfAtLeastTwoDigits) {
    EXPECT_EQ(GeneralText(1e-7), L"1e-07");
    EXPECT_EQ(GeneralText(0.0001), L"0.0001");
    EXPECT_EQ(GeneralText(0.00001), L"1e-05");
    EXPECT_EQ(GeneralText(1e6), L"1e+06");
    EXPECT_EQ(GeneralText(1e100), L"1e+100");
    EXPECT_EQ(GeneralText(std::numeric_limits<double>::denorm_min()), L"4.94066e-324");
    EXPECT_EQ(GeneralText(-std::numeric_limits<double>::max()), L"-1.79769e+308");
}

TEST(GeneralText, KeepsTheSignOfZeroAndNamesWhatIsInfinite) {
    EXPECT_EQ(GeneralText(0.0), L"0");
    EXPECT_EQ(GeneralText(-0.0), L"-0");
    EXPECT_EQ(GeneralText(kInfinity), L"inf");
    EXPECT_EQ(GeneralText(-kInfinity), L"-inf");
    EXPECT_EQ(GeneralText(std::numeric_limits<double>::quiet_NaN()), L"nan");
    EXPECT_EQ(GeneralText(-std::numeric_limits<double>::quiet_NaN()), L"nan");
}

TEST(GeneralText, IsWhatPrintfWrites) {
    std::mt19937_64 random(5);
    for (int count = 0; count < 100000; ++count) {
        const double mantissa = static_cast<double>(random() % 2000000) / 1000.0 - 1000.0;
        const double value = mantissa * std::pow(10.0, static_cast<double>(random() % 60) - 30.0);
        ASSERT_EQ(Narrow(GeneralText(value)), PrintedWithG(value));
    }
}

TEST(IntText, WritesWholeNumbers) {
    EXPECT_EQ(IntText(0), L"0");
    EXPECT_EQ(IntText(-15), L"-15");
    EXPECT_EQ(IntText(kHighest), L"2147483647");
    EXPECT_EQ(IntText(kLowest), L"-2147483648");
}

TEST(NumberText, DoesNotDependOnTheLocale) {
    // The streams' locale can be given a decimal comma anywhere; the C library's only where one is installed.
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"it_IT.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "it_IT", "de_DE"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            break;
        }
    }
    const std::locale streams = std::locale::global(std::locale(std::locale::classic(), new CDecimalComma));
    const double read = DecimalValue(L"1.5");
    const std::wstring written = GeneralText(1234.5);
    const std::wstring whole = IntText(1234567);
    std::locale::global(streams);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(read, 1.5);
    EXPECT_EQ(written, L"1234.5");
    EXPECT_EQ(whole, L"1234567");
}
