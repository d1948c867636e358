#include "devhost/drawing/Snap.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

TEST(Snap, FindsTheNearestEndWithinReach) {
    CDrawing drawing;
    drawing.Add(SLine{{0, 0}, {10, 0}});
    drawing.Add(SLine{{20, 0}, {30, 0}});
    EXPECT_EQ(NearestEnd(drawing, {12, 1}, 5), (SPoint{10, 0}));
    EXPECT_EQ(NearestEnd(drawing, {16, 1}, 5), (SPoint{20, 0}));
    EXPECT_EQ(NearestEnd(drawing, {5, 1}, 4), std::nullopt);
    EXPECT_EQ(NearestEnd(drawing, {10, 5}, 5), (SPoint{10, 0}));
    EXPECT_EQ(NearestEnd(drawing, {10, 5.01}, 5), std::nullopt);
}

TEST(Snap, TakesPolylinePointsAndArcEnds) {
    CDrawing drawing;
    drawing.Add(SPolyline{{{0, 0}, {50, 50}, {100, 0}}, true});
    drawing.Add(SArc{{200, 0}, 10, 0, std::numbers::pi});
    EXPECT_EQ(NearestEnd(drawing, {51, 49}, 3), (SPoint{50, 50}));
    const auto arcEnd = NearestEnd(drawing, {189, 1}, 3);
    ASSERT_TRUE(arcEnd);
    EXPECT_NEAR(arcEnd->x, 190, 1e-9);
    EXPECT_NEAR(arcEnd->y, 0, 1e-9);
}

TEST(Snap, LeavesCirclesAndTextsAlone) {
    CDrawing drawing;
    drawing.Add(SCircle{{0, 0}, 10});
    drawing.Add(SText{{0, 0}, 10, 0, L"x"});
    EXPECT_EQ(NearestEnd(drawing, {0, 0}, 20), std::nullopt);
}

}  // namespace
