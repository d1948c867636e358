#include "devhost/drawing/Grid.h"

#include <gtest/gtest.h>

using namespace devhost;

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

TEST(Grid, StepsAreTheWholeMultiplesInBetween) {
    EXPECT_EQ(GridSteps(-0.3, 0.45, 0.2), (std::vector<double>{-1, 0, 1, 2}));
    EXPECT_EQ(GridSteps(20, 60, 20), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(GridSteps(1, 19, 20), std::vector<double>());
}

TEST(Grid, WhereStepsCannotBeDistinguishedThereAreNone) {
    EXPECT_EQ(GridSteps(1e12, 1e12 + 1e-3, 2e-8), std::vector<double>());
    EXPECT_EQ(GridSteps(-1e12 - 1e-3, -1e12, 2e-8), std::vector<double>());
    EXPECT_EQ(GridSteps(1e12, 1e12 + 40, 20), (std::vector<double>{5e10, 5e10 + 1, 5e10 + 2}));
}

}  // namespace
