#include "devhost/drawing/TypedPoint.h"

#include <gtest/gtest.h>

using namespace devhost;

namespace {

constexpr Point kMouse = {13, 24};

TEST(TypedPoint, CoordinatesAreReadInEveryFormat) {
    EXPECT_EQ(ParsePoint(L"120,45", std::nullopt, kMouse), (Point{120, 45}));
    EXPECT_EQ(ParsePoint(L" -1.5 , 3/4 ", std::nullopt, kMouse), (Point{-1.5, 0.75}));
    EXPECT_EQ(ParsePoint(L"1'-3\",2'", Point{7, 7}, kMouse), (Point{15, 24}));
}

TEST(TypedPoint, AnAtSignCountsFromTheBase) {
    EXPECT_EQ(ParsePoint(L"@30,-5", Point{10, 20}, kMouse), (Point{40, 15}));
    EXPECT_EQ(ParsePoint(L"  @ 30,-5", Point{10, 20}, kMouse), (Point{40, 15}));
    EXPECT_FALSE(ParsePoint(L"@30,-5", std::nullopt, kMouse));
    EXPECT_FALSE(ParsePoint(L"@30", Point{10, 20}, kMouse));
}

TEST(TypedPoint, ALengthGoesFromTheBaseTowardsTheMouse) {
    const auto point = ParsePoint(L"10", Point{10, 20}, kMouse);
    ASSERT_TRUE(point);
    EXPECT_NEAR(point->x, 16, 1e-12);
    EXPECT_NEAR(point->y, 28, 1e-12);
    EXPECT_FALSE(ParsePoint(L"10", std::nullopt, kMouse));
    EXPECT_FALSE(ParsePoint(L"10", kMouse, kMouse));
}

TEST(TypedPoint, WhatIsNoPointIsNone) {
    for (const wchar_t* text : {L"", L"@", L",", L"1,", L",1", L"1,2,3", L"here", L"1;2", L"@@1,2"}) {
        EXPECT_FALSE(ParsePoint(text, Point{10, 20}, kMouse)) << text;
    }
}

}  // namespace
