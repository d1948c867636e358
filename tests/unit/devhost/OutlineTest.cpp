#include "devhost/drawing/Outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace devhost;

namespace {

constexpr Box kBox = {{0, 0}, {100, 50}};

void ExpectLine(const std::optional<LineEntity>& line, Point from, Point to) {
    ASSERT_TRUE(line);
    EXPECT_NEAR(line->from.x, from.x, 1e-9);
    EXPECT_NEAR(line->from.y, from.y, 1e-9);
    EXPECT_NEAR(line->to.x, to.x, 1e-9);
    EXPECT_NEAR(line->to.y, to.y, 1e-9);
}

TEST(Outline, OfLinesIsThePointsThemselves) {
    EXPECT_EQ(OutlineOf(LineEntity{{1, 2}, {3, 4}}, 1), (std::vector<Point>{{1, 2}, {3, 4}}));
    EXPECT_EQ(OutlineOf(PolylineEntity{{{0, 0}, {1, 0}, {1, 1}}, false}, 1).size(), 3u);
    EXPECT_EQ(OutlineOf(PolylineEntity{{{0, 0}, {1, 0}, {1, 1}}, true}, 1).back(), (Point{0, 0}));
    EXPECT_TRUE(OutlineOf(TextEntity{{0, 0}, 1, 0, L"x"}, 1).empty());
}

TEST(Outline, ChordsStayWithinTheToleranceOfTheirArc) {
    for (const double tolerance : {0.001, 0.1, 3.0}) {
        const auto points = OutlineOf(ArcEntity{{10, 20}, 100, 1, 4}, tolerance);
        EXPECT_NEAR(points.front().x, 10 + 100 * std::cos(1), 1e-9);
        EXPECT_NEAR(points.back().y, 20 + 100 * std::sin(4), 1e-9);
        for (std::size_t i = 1; i < points.size(); ++i) {
            const double x = (points[i - 1].x + points[i].x) / 2;
            const double y = (points[i - 1].y + points[i].y) / 2;
            EXPECT_GE(std::hypot(x - 10, y - 20), 100 - tolerance - 1e-9);
        }
    }
}

TEST(Outline, ACircleEndsExactlyWhereItBegins) {
    const auto points = OutlineOf(CircleEntity{{0, 0}, 100}, 0.25);
    EXPECT_EQ(points.front(), points.back());
    EXPECT_GT(points.size(), 20u);
}

TEST(Outline, FarTooLargeAndFarTooSmallCurvesStillHaveOne) {
    EXPECT_LE(OutlineOf(CircleEntity{{0, 0}, 1e12}, 1e-9).size(), 5001u);
    EXPECT_GE(OutlineOf(CircleEntity{{0, 0}, 1e-9}, 100).size(), 3u);
}

TEST(Clip, KeepsWhatIsInside) {
    ExpectLine(Clip({{10, 10}, {90, 40}}, kBox), {10, 10}, {90, 40});
}

TEST(Clip, CutsWhatSticksOut) {
    ExpectLine(Clip({{-100, 25}, {300, 25}}, kBox), {0, 25}, {100, 25});
    ExpectLine(Clip({{50, 80}, {50, -20}}, kBox), {50, 50}, {50, 0});
    ExpectLine(Clip({{-25, 0}, {75, 100}}, kBox), {0, 25}, {25, 50});
}

TEST(Clip, DropsWhatPassesBy) {
    EXPECT_FALSE(Clip({{-10, -10}, {-1, 60}}, kBox));
    EXPECT_FALSE(Clip({{0, 51}, {100, 51}}, kBox));
    EXPECT_FALSE(Clip({{-31, 20}, {29, 80}}, kBox));
    EXPECT_FALSE(Clip({{200, 200}, {200, 200}}, kBox));
}

TEST(Clip, KeepsTheSlopeOfFarLines) {
    ExpectLine(Clip({{-1e12, -1e12}, {1e12, 1e12}}, kBox), {0, 0}, {50, 50});
}

}  // namespace
