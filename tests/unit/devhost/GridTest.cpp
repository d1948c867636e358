#include "Grid.h"

#include <gtest/gtest.h>

namespace {

TEST(Grid, SpacingIsOneTwoOrFiveOfADecade) {
    EXPECT_DOUBLE_EQ(GridSpacing(1, 20), 20);
    EXPECT_DOUBLE_EQ(GridSpacing(1, 21), 50);
    EXPECT_DOUBLE_EQ(GridSpacing(1, 51), 100);
    EXPECT_DOUBLE_EQ(GridSpacing(1, 1), 1);
    EXPECT_DOUBLE_EQ(GridSpacing(0.01, 20), 0.2);
    EXPECT_DOUBLE_EQ(GridSpacing(1e6, 20), 2e7);
}

TEST(Grid, DotsAreNeverCloserThanAskedAndNeverThriceAsFar) {
    for (double unitsPerPixel = 1e-9; unitsPerPixel < 1e9; unitsPerPixel *= 1.37) {
        const double pixels = GridSpacing(unitsPerPixel, 20) / unitsPerPixel;
        EXPECT_GE(pixels, 20 * (1 - 1e-8));
        EXPECT_LE(pixels, 50 * (1 + 1e-8));
    }
}

}  // namespace
