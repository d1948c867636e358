#include "devhost/drawing/Snap.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace devhost;

namespace {

TEST(Snap, FindsTheNearestEndWithinReach) {
    CDrawing drawing;
    drawing.Add(LineEntity{{0, 0}, {10, 0}});
    drawing.Add(LineEntity{{20, 0}, {30, 0}});
    EXPECT_EQ(NearestEnd(drawing, {12, 1}, 5), (Point{10, 0}));
    EXPECT_EQ(NearestEnd(drawing, {16, 1}, 5), (Point{20, 0}));
    EXPECT_EQ(NearestEnd(drawing, {5, 1}, 4), std::nullopt);
    EXPECT_EQ(NearestEnd(drawing, {10, 5}, 5), (Point{10, 0}));
    EXPECT_EQ(NearestEnd(drawing, {10, 5.01}, 5), std::nullopt);
}

TEST(Snap, TakesPolylinePointsAndArcEnds) {
    CDrawing drawing;
    drawing.Add(PolylineEntity{{{0, 0}, {50, 50}, {100, 0}}, true});
    drawing.Add(ArcEntity{{200, 0}, 10, 0, std::numbers::pi});
    EXPECT_EQ(NearestEnd(drawing, {51, 49}, 3), (Point{50, 50}));
    const auto arcEnd = NearestEnd(drawing, {189, 1}, 3);
    ASSERT_TRUE(arcEnd);
    EXPECT_NEAR(arcEnd->x, 190, 1e-9);
    EXPECT_NEAR(arcEnd->y, 0, 1e-9);
}

TEST(Snap, LeavesCirclesAndTextsAlone) {
    CDrawing drawing;
    drawing.Add(CircleEntity{{0, 0}, 10});
    drawing.Add(TextEntity{{0, 0}, 10, 0, L"x"});
    EXPECT_EQ(NearestEnd(drawing, {0, 0}, 20), std::nullopt);
}

}  // namespace
