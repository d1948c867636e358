// Rows, standard buttons and the extent of the dialog, all in dialog units.
#include "dyndlg/DialogLayout.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

using namespace tavrin::dyndlg;

void PrintTo(const DialogRect& rect, std::ostream* out) {
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

void PrintTo(const DialogExtent& extent, std::ostream* out) {
    *out << extent.x << ", " << extent.y << ", " << extent.cx << ", " << extent.cy;
}

namespace {

DialogExtent ExtentOf(std::initializer_list<DialogRect> rects) {
    CDialogLayout layout;
    for (const DialogRect& rect : rects) {
        layout.Place(&rect, 0);
    }
    return layout.Extent();
}

TEST(DialogLayout, ControlsWithoutARectangleStandInRows) {
    CDialogLayout layout;
    EXPECT_EQ(layout.Place(nullptr, 270), (DialogRect{10, 10, 270, 22}));
    EXPECT_EQ(layout.Place(nullptr, 120), (DialogRect{10, 22, 120, 34}));
    EXPECT_EQ(layout.Place(nullptr, 270), (DialogRect{10, 34, 270, 46}));
    EXPECT_EQ(layout.Extent(), (DialogExtent{0, 0, 275, 51}));
}

TEST(DialogLayout, StandardButtonsStandSideBySideBelowTheRows) {
    CDialogLayout layout;
    for (int row = 0; row < 3; ++row) {
        layout.Place(nullptr, 270);
    }
    const StandardButtonRects buttons = layout.StartStandardButtons();
    EXPECT_EQ(buttons.ok, (DialogRect{10, 52, 60, 66}));
    EXPECT_EQ(buttons.cancel, (DialogRect{65, 52, 115, 66}));
    layout.Place(&buttons.ok, 120);
    layout.Place(&buttons.cancel, 120);
    EXPECT_EQ(layout.Extent(), (DialogExtent{0, 0, 275, 71}));
    EXPECT_EQ(layout.Place(nullptr, 120).top, 76);
}

TEST(DialogLayout, AControlWithARectangleUsesUpARowToo) {
    CDialogLayout layout;
    const DialogRect rect = {7, 7, 200, 100};
    EXPECT_EQ(layout.Place(&rect, 270), rect);
    EXPECT_EQ(layout.Place(nullptr, 120), (DialogRect{10, 22, 120, 34}));
}

TEST(DialogLayout, AnEmptyDialogHasNoExtent) {
    EXPECT_EQ(CDialogLayout().Extent(), (DialogExtent{0, 0, 0, 0}));
    EXPECT_EQ(CDialogLayout().Place(nullptr, 120).top, 10);
}

TEST(DialogLayout, TheExtentReachesFiveBeyondTheControls) {
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}}), (DialogExtent{0, 0, 205, 105}));
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}, {56, 106, 106, 120}, {110, 106, 160, 120}}),
              (DialogExtent{0, 0, 205, 125}));
}

TEST(DialogLayout, AControlInsideTheMarginDoesNotWidenTheExtent) {
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}, {7, 7, 205, 105}}), (DialogExtent{0, 0, 205, 105}));
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}, {7, 7, 206, 106}}), (DialogExtent{0, 0, 211, 111}));
}

TEST(DialogLayout, AControlLeftOfAndAboveTheOriginMovesTheStart) {
    EXPECT_EQ(ExtentOf({{-20, -30, 100, 50}}), (DialogExtent{-20, -30, 125, 85}));
}

TEST(DialogLayout, MovingTheStartAloneDoesNotWidenTheExtent) {
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}, {-20, -10, 0, 0}}), (DialogExtent{-20, -10, 205, 105}));
    // The first control now reaches beyond the end, which the next one that does so corrects.
    EXPECT_EQ(ExtentOf({{7, 7, 200, 100}, {-20, -10, 0, 0}, {0, 0, 200, 100}}),
              (DialogExtent{-20, -10, 225, 115}));
}

TEST(DialogLayout, TheExtentIsCutToSixteenBits) {
    EXPECT_EQ(ExtentOf({{0, 0, 32762, 32763}}), (DialogExtent{0, 0, 32767, -32768}));
    EXPECT_EQ(ExtentOf({{-32769, 0, 0, 65536}}).x, 32767);
    EXPECT_EQ(ExtentOf({{0, 0, 0, 65536}}).cy, 5);
}

TEST(DialogLayout, TheLargestNumbersDoNotOverflow) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(ExtentOf({{least, least, greatest, greatest}}), (DialogExtent{0, 0, 4, 4}));
    EXPECT_EQ(ExtentOf({{greatest, greatest, least, least}}), (DialogExtent{0, 0, 0, 0}));
}

}  // namespace
