// What assistive technology is told of the drop-down list.
#include "propgrid/accessible/AccessibleList.h"

#include <gtest/gtest.h>

namespace {

using namespace tavrin::propgrid;
using namespace tavrin::accessible;

class AccessibleList : public testing::Test {
protected:
    ListContents list = {
        .name = L"Swing", .strings = {L"Left", L"Right"}, .selection = 1, .rowHeight = 20, .width = 100};
    static constexpr unsigned kCan = STATE_FOCUSABLE | STATE_SELECTABLE;
};

TEST_F(AccessibleList, IsNamedAfterItsRowAndHasTheStrings) {
    EXPECT_EQ(list.GetName(kSelf), L"Swing");
    EXPECT_EQ(list.GetName(1), L"Left");
    EXPECT_EQ(list.GetName(2), L"Right");
}

TEST_F(AccessibleList, HasTheSelectedStringFocused) {
    EXPECT_EQ(list.GetState(1, {.hasFocus = true}), kCan);
    EXPECT_EQ(list.GetState(2, {.hasFocus = true}), kCan | STATE_SELECTED | STATE_FOCUSED);
    EXPECT_EQ(list.GetState(2, {}), kCan | STATE_SELECTED);
    EXPECT_EQ(list.GetState(kSelf, {.hasFocus = true}), unsigned{STATE_FOCUSABLE | STATE_FOCUSED});
    EXPECT_EQ(list.GetState(1, {.visible = false}), kCan | STATE_INVISIBLE);
}

TEST_F(AccessibleList, SelectsTheNearestStringOfAnyIndex) {
    for (const auto& [index, child] : {std::pair{-1, 1}, {0, 1}, {1, 2}, {2, 2}, {99, 2}}) {
        list.selection = index;
        EXPECT_EQ(list.GetSelectedChild(), child) << index;
    }
    list.strings.clear();
    for (const int index : {-1, 0, 1}) {
        list.selection = index;
        EXPECT_EQ(list.GetSelectedChild(), kSelf) << index;
    }
}

TEST_F(AccessibleList, HasItsStringsOneBelowTheOtherInsideItsBorder) {
    EXPECT_EQ(list.GetRect(1), (Rect{1, 1, 99, 21}));
    EXPECT_EQ(list.GetRect(2), (Rect{1, 21, 99, 41}));
    EXPECT_EQ(list.HitTest({1, 1}), 1);
    EXPECT_EQ(list.HitTest({98, 40}), 2);
    for (const Point& outside : {Point{0, 10}, Point{10, 0}, Point{99, 10}, Point{10, 41}}) {
        EXPECT_EQ(list.HitTest(outside), kSelf) << outside.x << ' ' << outside.y;
    }
}

}  // namespace
