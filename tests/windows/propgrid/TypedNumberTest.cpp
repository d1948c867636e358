// Numbers as they are typed.
#include "propgrid/TypedNumber.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>

namespace {

TEST(TypedNumber, WholeNumbersStopAtTheLimits) {
    EXPECT_EQ(ReadTypedInteger(L"2147483647"), INT_MAX);
    EXPECT_EQ(ReadTypedInteger(L"2147483648"), INT_MAX);
    EXPECT_EQ(ReadTypedInteger(L"99999999999999999999 m"), INT_MAX);
    EXPECT_EQ(ReadTypedInteger(L"-2147483648"), INT_MIN);
    EXPECT_EQ(ReadTypedInteger(L"-2147483649"), INT_MIN);
    EXPECT_EQ(ReadTypedInteger(std::wstring(100000, L'9')), INT_MAX);
}

TEST(TypedNumber, WholeNumbersAreDecimal) {
    EXPECT_EQ(ReadTypedInteger(L"\t +12abc"), 12);
    EXPECT_EQ(ReadTypedInteger(L"0x1F"), 0);
    EXPECT_EQ(ReadTypedInteger(L"012"), 12);
    EXPECT_EQ(ReadTypedInteger(L"1.9"), 1);
    EXPECT_EQ(ReadTypedInteger(L"- 5"), 0);
    EXPECT_EQ(ReadTypedInteger(L""), 0);
}

TEST(TypedNumber, RealNumbersEndWhereTheTextIsNoNumberAnyMore) {
    EXPECT_EQ(ReadTypedReal(L" -2.5e-3x"), -0.0025);
    EXPECT_EQ(ReadTypedReal(L"1e"), 1);
    EXPECT_EQ(ReadTypedReal(L"1.2.3"), 1.2);
    EXPECT_EQ(ReadTypedReal(L"1,5"), 1);
    EXPECT_EQ(ReadTypedReal(L"inf"), 0);
    EXPECT_EQ(ReadTypedReal(L"nan"), 0);
    EXPECT_EQ(ReadTypedReal(L"0x10"), 0);
    EXPECT_EQ(ReadTypedReal(L""), 0);
    EXPECT_TRUE(std::isinf(ReadTypedReal(L"1e999")));
    EXPECT_TRUE(std::isinf(ReadTypedReal(std::wstring(100000, L'9'))));
}

TEST(TypedNumber, TheDecimalPointIsAPointInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "German"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(ReadTypedReal(L"12.5"), 12.5);
    EXPECT_EQ(ReadTypedReal(L"12,5"), 12.5);
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
