#include "propgrid/controller/ScrollRule.h"

#include <gtest/gtest.h>

namespace {

using namespace tavrin::propgrid;

constexpr int kRow = 20;
constexpr int kPage = 200;
constexpr int kEnd = 800;
constexpr int kLast = kEnd - kPage;

std::optional<int> From(int position, unsigned code, int thumb = 0) {
    return FindScrollTarget({.first = 0, .end = kEnd, .page = kPage, .position = position}, code, thumb, kRow,
                            kPage);
}

std::optional<int> Wheel(int position, int delta) {
    return FindWheelTarget({.first = 0, .end = kEnd, .page = kPage, .position = position}, delta, kRow);
}

TEST(ScrollRule, ALineIsARow) {
    EXPECT_EQ(From(100, SC_LINE_DOWN), 120);
    EXPECT_EQ(From(100, SC_LINE_UP), 80);
}

TEST(ScrollRule, APageIsTheWindow) {
    EXPECT_EQ(From(100, SC_PAGE_DOWN), 300);
    EXPECT_EQ(From(300, SC_PAGE_UP), 100);
}

TEST(ScrollRule, LinesAndPagesStopAtBothEnds) {
    EXPECT_EQ(From(3, SC_LINE_UP), 0);
    EXPECT_EQ(From(3, SC_PAGE_UP), 0);
    EXPECT_EQ(From(kLast - 3, SC_LINE_DOWN), kLast);
    EXPECT_EQ(From(kLast - 3, SC_PAGE_DOWN), kLast);
}

TEST(ScrollRule, TopAndBottomGoToTheEnds) {
    EXPECT_EQ(From(100, SC_TOP), 0);
    EXPECT_EQ(From(100, SC_BOTTOM), kLast);
}

TEST(ScrollRule, TheThumbGoesWhereItIsPut) {
    EXPECT_EQ(From(100, SC_THUMB_TRACK, 77), 77);
    EXPECT_EQ(From(100, SC_THUMB_POSITION, 78), 78);
}

TEST(ScrollRule, TheThumbIsIgnoredWhereItIsAndBeyondTheEndItIsAt) {
    for (const unsigned code : {SC_THUMB_TRACK, SC_THUMB_POSITION}) {
        EXPECT_EQ(From(100, code, 100), std::nullopt);
        EXPECT_EQ(From(0, code, -1), std::nullopt);
        EXPECT_EQ(From(kLast, code, kLast + 1), std::nullopt);
        EXPECT_EQ(From(1, code, -1), -1) << "the bar itself stops it there";
    }
}

TEST(ScrollRule, AnUnknownCodeStaysWhereItIs) {
    EXPECT_EQ(From(100, 99), 100);
}

TEST(ScrollRule, ANotchOfTheWheelIsThreeRows) {
    EXPECT_EQ(Wheel(0, -120), 60);
    EXPECT_EQ(Wheel(0, -250), 120);
    EXPECT_EQ(Wheel(120, 120), 60);
}

TEST(ScrollRule, LessThanANotchDoesNothing) {
    EXPECT_EQ(Wheel(100, -119), std::nullopt);
    EXPECT_EQ(Wheel(100, 119), std::nullopt);
    EXPECT_EQ(Wheel(100, 0), std::nullopt);
}

TEST(ScrollRule, TheWheelStopsAtBothEnds) {
    EXPECT_EQ(Wheel(100, 32760), 0);
    EXPECT_EQ(Wheel(100, -32768), kLast);
}

int Reveal(int position, int top, int page = kPage) {
    return FindRevealTarget({.first = 0, .end = kEnd, .page = page, .position = position}, top, kRow);
}

TEST(ScrollRule, ARowInSightIsRevealedWhereItIs) {
    EXPECT_EQ(Reveal(100, 100), 100);
    EXPECT_EQ(Reveal(100, 280), 100);
}

TEST(ScrollRule, ARowOutOfSightIsRevealedAtTheNearestEdge) {
    EXPECT_EQ(Reveal(100, 99), 99);
    EXPECT_EQ(Reveal(100, 281), 101);
    EXPECT_EQ(Reveal(300, 0), 0);
    EXPECT_EQ(Reveal(0, kEnd - kRow), kLast);
}

TEST(ScrollRule, APageLowerThanARowShowsItsTop) {
    EXPECT_EQ(Reveal(0, 300, 5), 300);
    EXPECT_EQ(Reveal(400, 300, 5), 300);
}

}  // namespace
