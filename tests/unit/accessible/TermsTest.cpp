// The rules that all accessible windows share.
#include "accessible/Terms.h"

#include <gtest/gtest.h>

namespace {

using namespace tavrin::accessible;

TEST(Navigation, GoesFromTheWindowToItsFirstAndLastChild) {
    EXPECT_EQ(FindNeighbor(DIRECTION_FIRST_CHILD, kSelf, 3), 1);
    EXPECT_EQ(FindNeighbor(DIRECTION_LAST_CHILD, kSelf, 3), 3);
    for (const EDirection direction : {DIRECTION_UP, DIRECTION_DOWN, DIRECTION_LEFT, DIRECTION_RIGHT,
                                       DIRECTION_NEXT, DIRECTION_PREVIOUS}) {
        EXPECT_EQ(FindNeighbor(direction, kSelf, 3), kSelf) << direction;
    }
}

TEST(Navigation, FindsNothingInAnEmptyWindow) {
    EXPECT_EQ(FindNeighbor(DIRECTION_FIRST_CHILD, kSelf, 0), kSelf);
    EXPECT_EQ(FindNeighbor(DIRECTION_LAST_CHILD, kSelf, 0), kSelf);
}

TEST(Navigation, GoesFromChildToChildAndEndsAtBothEnds) {
    for (const EDirection direction : {DIRECTION_DOWN, DIRECTION_NEXT}) {
        EXPECT_EQ(FindNeighbor(direction, 1, 3), 2) << direction;
        EXPECT_EQ(FindNeighbor(direction, 3, 3), kSelf) << direction;
    }
    for (const EDirection direction : {DIRECTION_UP, DIRECTION_PREVIOUS}) {
        EXPECT_EQ(FindNeighbor(direction, 3, 3), 2) << direction;
        EXPECT_EQ(FindNeighbor(direction, 1, 3), kSelf) << direction;
    }
}

TEST(Navigation, FindsNothingBesideOrBelowAChild) {
    for (const EDirection direction :
         {DIRECTION_LEFT, DIRECTION_RIGHT, DIRECTION_FIRST_CHILD, DIRECTION_LAST_CHILD}) {
        EXPECT_EQ(FindNeighbor(direction, 2, 3), kSelf) << direction;
    }
}

TEST(WindowState, SaysWhetherTheWindowIsHiddenOrDisabled) {
    EXPECT_EQ(StateOf({}), STATE_NORMAL);
    EXPECT_EQ(StateOf({.visible = false}), STATE_INVISIBLE);
    EXPECT_EQ(StateOf({.enabled = false}), STATE_UNAVAILABLE);
}

}  // namespace
