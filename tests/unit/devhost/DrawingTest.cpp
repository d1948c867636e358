#include "devhost/drawing/Drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

using namespace devhost;

namespace {

constexpr double kPi = std::numbers::pi;

// Beside rounding: within a millionth.
void ExpectBox(const CDrawing& drawing, Point low, Point high) {
    const auto box = drawing.Extents();
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->low.x, low.x, 1e-6);
    EXPECT_NEAR(box->low.y, low.y, 1e-6);
    EXPECT_NEAR(box->high.x, high.x, 1e-6);
    EXPECT_NEAR(box->high.y, high.y, 1e-6);
}

TEST(Drawing, KeepsEntitiesInTheirOrder) {
    CDrawing drawing;
    EXPECT_TRUE(drawing.Add(CircleEntity{{1, 2}, 3}));
    EXPECT_TRUE(drawing.Add(LineEntity{{0, 0}, {4, 5}}));
    ASSERT_EQ(drawing.Entities().size(), 2u);
    EXPECT_EQ(std::get<CircleEntity>(drawing.Entities()[0]).radius, 3);
    EXPECT_EQ(std::get<LineEntity>(drawing.Entities()[1]).to, (Point{4, 5}));
}

TEST(Drawing, AnEmptyOneHasNoExtents) {
    CDrawing drawing;
    EXPECT_FALSE(drawing.Extents());
    drawing.Add(CircleEntity{{1, 2}, 3});
    drawing.Clear();
    EXPECT_TRUE(drawing.Entities().empty());
    EXPECT_FALSE(drawing.Extents());
}

TEST(Drawing, ExtentsHoldEveryEntity) {
    CDrawing drawing;
    drawing.Add(LineEntity{{5, 5}, {6, 7}});
    ExpectBox(drawing, {5, 5}, {6, 7});
    drawing.Add(PolylineEntity{{{0, 6}, {8, 6}, {7, 4}}, true});
    ExpectBox(drawing, {0, 4}, {8, 7});
    drawing.Add(CircleEntity{{0, 0}, 2});
    ExpectBox(drawing, {-2, -2}, {8, 7});
}

TEST(Drawing, AnArcReachesNoFartherThanItTurns) {
    CDrawing first;
    first.Add(ArcEntity{{0, 0}, 10, 0, kPi / 2});
    ExpectBox(first, {0, 0}, {10, 10});

    CDrawing overTheTop;
    overTheTop.Add(ArcEntity{{0, 0}, 10, kPi / 4, 3 * kPi / 4});
    ExpectBox(overTheTop, {-10 / std::sqrt(2), 10 / std::sqrt(2)}, {10 / std::sqrt(2), 10});

    CDrawing throughZero;
    throughZero.Add(ArcEntity{{0, 0}, 10, 3 * kPi / 2, kPi / 2});
    ExpectBox(throughZero, {0, -10}, {10, 10});

    CDrawing whole;
    whole.Add(ArcEntity{{1, 1}, 10, 0.3, 0.3});
    ExpectBox(whole, {-9, -9}, {11, 11});
}

TEST(Drawing, AnArcTurnsCounterClockwiseFromItsStart) {
    EXPECT_NEAR(SweepOf({{}, 1, 0, kPi / 2}), kPi / 2, 1e-12);
    EXPECT_NEAR(SweepOf({{}, 1, kPi / 2, 0}), 3 * kPi / 2, 1e-12);
    EXPECT_NEAR(SweepOf({{}, 1, -kPi / 2, 5 * kPi}), 3 * kPi / 2, 1e-9);
    EXPECT_EQ(SweepOf({{}, 1, 1, 1}), 2 * kPi);
}

TEST(Drawing, ATextReachesAlongItsBaseLine) {
    CDrawing drawing;
    drawing.Add(TextEntity{{100, 100}, 10, kPi / 2, L"Door"});
    const auto box = drawing.Extents();
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->high.x, 100, 1e-6);
    EXPECT_NEAR(box->low.x, 90, 1e-6);
    EXPECT_NEAR(box->low.y, 100, 1e-6);
    EXPECT_GT(box->high.y, 120);
    EXPECT_LT(box->high.y, 150);
}

TEST(Drawing, TakesNothingThatCannotBeShown) {
    const double infinite = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    CDrawing drawing;
    EXPECT_FALSE(drawing.Add(LineEntity{{0, none}, {1, 1}}));
    EXPECT_FALSE(drawing.Add(LineEntity{{0, 0}, {infinite, 1}}));
    EXPECT_FALSE(drawing.Add(LineEntity{{0, 0}, {0, -1.1e12}}));
    EXPECT_FALSE(drawing.Add(PolylineEntity{{{1, 1}}, true}));
    EXPECT_FALSE(drawing.Add(PolylineEntity{{{1, 1}, {none, 1}}, false}));
    EXPECT_FALSE(drawing.Add(CircleEntity{{0, 0}, 0}));
    EXPECT_FALSE(drawing.Add(CircleEntity{{0, 0}, none}));
    EXPECT_FALSE(drawing.Add(ArcEntity{{0, 0}, -1, 0, 1}));
    EXPECT_FALSE(drawing.Add(ArcEntity{{0, 0}, 1, 0, infinite}));
    EXPECT_FALSE(drawing.Add(TextEntity{{0, 0}, 0, 0, L"x"}));
    EXPECT_FALSE(drawing.Add(TextEntity{{0, 0}, 1, none, L"x"}));
    EXPECT_TRUE(drawing.Entities().empty());
}

TEST(Drawing, NotifiesItsListenerOfEachChange) {
    CDrawing drawing;
    int changes = 0;
    drawing.SetListener([&] { ++changes; });
    drawing.Add(CircleEntity{{0, 0}, 1});
    drawing.Add(CircleEntity{{0, 0}, -1});
    EXPECT_EQ(changes, 1);
    drawing.Clear();
    EXPECT_EQ(changes, 2);
    drawing.SetListener(nullptr);
    drawing.Clear();
    EXPECT_EQ(changes, 2);
}

}  // namespace
