#include "propgrid/model/TypedNumber.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

using namespace tavrin::propgrid;

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
    EXPECT_EQ(ReadTypedReal(L"+.5."), 0.5);
    EXPECT_EQ(ReadTypedReal(L"5."), 5);
    EXPECT_EQ(ReadTypedReal(L"1e"), 1);
    EXPECT_EQ(ReadTypedReal(L"1e+"), 1);
    EXPECT_EQ(ReadTypedReal(L"1E2e3"), 100);
    EXPECT_EQ(ReadTypedReal(L"1.2.3"), 1.2);
    EXPECT_EQ(ReadTypedReal(L"1,5"), 1);
    EXPECT_EQ(ReadTypedReal(L"1 000"), 1);
    for (const wchar_t* const none :
         {L"", L" ", L"-", L".", L"-.e5", L"e5", L"x1", L"inf", L"-nan", L"+ 5"}) {
        EXPECT_EQ(ReadTypedReal(none), 0) << none;
    }
    EXPECT_EQ(ReadTypedReal(L"0x10"), 0);
}

TEST(TypedNumber, RealNumbersBeyondTheLimitsAreInfiniteOrNothing) {
    EXPECT_TRUE(std::isinf(ReadTypedReal(L"1e999")));
    EXPECT_TRUE(std::isinf(ReadTypedReal(std::wstring(100000, L'9'))));
    EXPECT_EQ(ReadTypedReal(L"1e-999"), 0);
}

TEST(TypedNumber, MinusZeroIsOne) {
    EXPECT_TRUE(std::signbit(ReadTypedReal(L"-0")));
}

}  // namespace
