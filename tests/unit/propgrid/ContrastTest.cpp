#include "propgrid/model/Contrast.h"

#include <gtest/gtest.h>

namespace {

using namespace tavrin::propgrid;

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kYellow = 0x50FFFF;

TEST(Contrast, GoesFromOneToTwentyOne) {
    EXPECT_DOUBLE_EQ(GetContrast(kWhite, kWhite), 1.0);
    EXPECT_DOUBLE_EQ(GetContrast(kBlack, kWhite), 21.0);
}

TEST(Contrast, IsTheSameBothWays) {
    EXPECT_DOUBLE_EQ(GetContrast(kYellow, 0x123456), GetContrast(0x123456, kYellow));
}

// Published examples: #767676 is the lightest grey that is readable on white, #777777 is not.
TEST(Contrast, TellsReadableGreysFromOthers) {
    EXPECT_NEAR(GetContrast(0x767676, kWhite), 4.54, 0.005);
    EXPECT_NEAR(GetContrast(0x777777, kWhite), 4.48, 0.005);
}

TEST(Contrast, WeighsTheChannels) {
    EXPECT_NEAR(GetContrast(0x0000FF, kWhite), 4.00, 0.005) << "red";
    EXPECT_NEAR(GetContrast(0x00FF00, kWhite), 1.37, 0.005) << "green";
    EXPECT_NEAR(GetContrast(0xFF0000, kWhite), 8.59, 0.005) << "blue";
}

}  // namespace
