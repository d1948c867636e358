#include "imagedlg/ChoiceLayout.h"

#include <gtest/gtest.h>

#include <string>

using namespace tavrin::imagedlg;

namespace {

// One character per cell, 1 to 6.
template <typename Character>
std::string PerCell(Character character) {
    std::string text;
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        text += character(cell);
    }
    return text;
}

std::string Contents(unsigned count) {
    return PerCell([&](int cell) {
        const int content = GetCellContent(count, cell);
        return content == kCellEmpty ? '.' : content == kCellLogo ? 'L' : static_cast<char>('0' + content);
    });
}

std::string Selectable(unsigned count) {
    return PerCell([&](int cell) { return IsChoiceCellSelectable(count, cell) ? 'y' : 'n'; });
}

std::string Framed(unsigned count) {
    return PerCell([&](int cell) { return HasChoiceFrame(count, cell) ? 'y' : 'n'; });
}

// The choice of each cell that can be selected, '-' for the others.
std::string Choices(unsigned count) {
    return PerCell([&](int cell) {
        return IsChoiceCellSelectable(count, cell) ? static_cast<char>('0' + GetChoiceOfCell(count, cell, 7))
                                                   : '-';
    });
}

TEST(ChoiceLayout, EachCountHasItsCells) {
    EXPECT_EQ(Contents(1), "0.....");
    EXPECT_EQ(Contents(2), "01....");
    EXPECT_EQ(Contents(3), "012...");
    EXPECT_EQ(Contents(4), "01.23.");
    EXPECT_EQ(Contents(5), "0123L4");
    EXPECT_EQ(Contents(6), "012345");
}

TEST(ChoiceLayout, ShowsNothingForACountThatItDoesNotKnow) {
    for (const unsigned count : {0U, 7U, 8U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        EXPECT_EQ(Contents(count), "......") << count;
    }
}

TEST(ChoiceLayout, TheNumberOfACellWithAChoiceCanBeTyped) {
    const auto typeable = [](unsigned count) {
        return PerCell([&](int cell) { return IsChoiceCellTypeable(count, cell) ? 'y' : 'n'; });
    };
    EXPECT_EQ(typeable(0), "nnnnnn");
    EXPECT_EQ(typeable(1), "ynnnnn");
    EXPECT_EQ(typeable(2), "yynnnn");
    EXPECT_EQ(typeable(3), "yyynnn");
    EXPECT_EQ(typeable(4), "yynyyn");
    EXPECT_EQ(typeable(5), "yyyyny");
    EXPECT_EQ(typeable(6), "yyyyyy");
    EXPECT_EQ(typeable(7), "nnnnnn");
    EXPECT_FALSE(IsChoiceCellTypeable(6, 0) || IsChoiceCellTypeable(6, 7));
}

TEST(ChoiceLayout, TheWholeTopRowCanBeSelectedWithUpToThreeChoices) {
    EXPECT_EQ(Selectable(1), "yyynnn");
    EXPECT_EQ(Selectable(2), "yyynnn");
    EXPECT_EQ(Selectable(3), "yyynnn");
}

TEST(ChoiceLayout, EmptyCellsAndTheLogoCannotBeSelectedWithFourAndFiveChoices) {
    EXPECT_EQ(Selectable(4), "yynyyn");
    EXPECT_EQ(Selectable(5), "yyyyny");
}

TEST(ChoiceLayout, EveryCellCanBeSelectedForEveryOtherCount) {
    for (const unsigned count : {0U, 6U, 7U, 8U}) {
        EXPECT_EQ(Selectable(count), "yyyyyy") << count;
    }
}

TEST(ChoiceLayout, EachCellStandsForItsChoice) {
    EXPECT_EQ(Choices(1), "012---");
    EXPECT_EQ(Choices(2), "012---");
    EXPECT_EQ(Choices(3), "012---");
    EXPECT_EQ(Choices(4), "01-23-");
    EXPECT_EQ(Choices(5), "0123-4");
    EXPECT_EQ(Choices(6), "012345");
}

TEST(ChoiceLayout, SelectingStepsBackForACountThatItDoesNotKnow) {
    for (const unsigned count : {0U, 7U, 8U}) {
        for (int cell = 1; cell <= kChoiceCells; ++cell) {
            EXPECT_EQ(GetChoiceOfCell(count, cell, 5), 4) << count << " " << cell;
            EXPECT_EQ(GetChoiceOfCell(count, cell, -1), -2) << count << " " << cell;
        }
    }
}

TEST(ChoiceLayout, CellsThatShowNoChoiceHaveNoFrameWithThreeToFiveChoices) {
    EXPECT_EQ(Framed(3), "yyynnn");
    EXPECT_EQ(Framed(4), "yynyyn");
    EXPECT_EQ(Framed(5), "yyyyny");
}

TEST(ChoiceLayout, EveryCellHasAFrameForEveryOtherCount) {
    for (const unsigned count : {0U, 1U, 2U, 6U, 7U, 8U}) {
        EXPECT_EQ(Framed(count), "yyyyyy") << count;
    }
}

TEST(ChoiceLayout, ACellThatDoesNotExistIsNothing) {
    for (unsigned count = 0; count <= 8; ++count) {
        for (const int cell : {-1, 0, 7, 1000}) {
            EXPECT_EQ(GetCellContent(count, cell), kCellEmpty) << count << " " << cell;
            EXPECT_FALSE(IsChoiceCellSelectable(count, cell)) << count << " " << cell;
            EXPECT_FALSE(HasChoiceFrame(count, cell)) << count << " " << cell;
        }
    }
}

TEST(ChoiceLayout, AFrameThreePixelsWideTouchesTheCellFromOutside) {
    EXPECT_EQ(GetFrameOutline({0, 0, 344, 237}), (PixelRect{-2, -2, 345, 238}));
    EXPECT_EQ(GetFrameOutline({-10, 5, 1, 7}), (PixelRect{-12, 3, 2, 8}));
}

// The dialog at 96 dots per inch over a host in the middle of the screen: 1071 by 560 pixels.
constexpr PixelRect window = {100, 50, 1171, 610};
constexpr PixelRect ok = {994, 579, 1069, 602};
constexpr PixelRect cancel = {1082, 579, 1157, 602};
constexpr PixelRect replace = {241, 579, 321, 602};

std::optional<ChoiceArrangement> Arrange(unsigned count) {
    return ArrangeChoiceWindow(count, window, ok, cancel, replace);
}

TEST(ChoiceWindow, KeepsOneColumnOfOneRowForOneChoice) {
    EXPECT_EQ(Arrange(1), (ChoiceArrangement{364, 308, {177, 251}, {265, 251}, PixelPoint{241, 251}}));
}

TEST(ChoiceWindow, KeepsTwoColumnsOfOneRowForTwoChoices) {
    EXPECT_EQ(Arrange(2), (ChoiceArrangement{717, 308, {530, 251}, {618, 251}, PixelPoint{241, 251}}));
}

TEST(ChoiceWindow, KeepsOneRowForThreeChoices) {
    EXPECT_EQ(Arrange(3), (ChoiceArrangement{1071, 308, {894, 251}, {982, 251}, PixelPoint{241, 251}}));
}

TEST(ChoiceWindow, KeepsTwoColumnsForFourChoicesAndLeavesReplaceWhereItIs) {
    EXPECT_EQ(Arrange(4), (ChoiceArrangement{714, 560, {537, 504}, {625, 504}, std::nullopt}));
}

TEST(ChoiceWindow, StaysAsItIsForEveryOtherCount) {
    for (const unsigned count : {0U, 5U, 6U, 7U, 8U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Arrange(count), std::nullopt) << count;
    }
}

// An odd size, left of and above the main monitor, each button at a height of its own: 1073 by 563.
constexpr PixelRect farWindow = {-1301, -77, -228, 486};
constexpr PixelRect farOk = {-400, 455, -325, 478};
constexpr PixelRect farCancel = {-311, 457, -236, 480};
constexpr PixelRect farReplace = {-1160, 456, -1080, 479};

std::optional<ChoiceArrangement> ArrangeFar(unsigned count) {
    return ArrangeChoiceWindow(count, farWindow, farOk, farCancel, farReplace);
}

TEST(ChoiceWindow, PlacesTheButtonsInsideAWindowAtNegativeCoordinates) {
    EXPECT_EQ(ArrangeFar(1), (ChoiceArrangement{364, 309, {183, 253}, {272, 255}, PixelPoint{-1160, 254}}));
    EXPECT_EQ(ArrangeFar(2), (ChoiceArrangement{718, 309, {537, 253}, {626, 255}, PixelPoint{-1160, 254}}));
    EXPECT_EQ(ArrangeFar(3), (ChoiceArrangement{1073, 309, {901, 253}, {990, 255}, PixelPoint{-1160, 254}}));
}

TEST(ChoiceWindow, PutsCancelAtTheHeightOfOkForFourChoices) {
    EXPECT_EQ(ArrangeFar(4), (ChoiceArrangement{714, 563, {544, 507}, {633, 507}, std::nullopt}));
}

TEST(ChoiceWindow, SurvivesAWindowOfOnePixel) {
    constexpr PixelRect dot = {0, 0, 1, 1};
    EXPECT_EQ(ArrangeChoiceWindow(1, dot, dot, dot, dot),
              (ChoiceArrangement{0, 28, {0, 2}, {0, 2}, PixelPoint{0, 2}}));
    EXPECT_EQ(ArrangeChoiceWindow(4, dot, dot, dot, dot),
              (ChoiceArrangement{0, 1, {0, -25}, {0, -25}, std::nullopt}));
}

// The shares are defined as products with 0.34 and 0.67, cut to whole pixels.
TEST(ChoiceWindow, CutsTheSharesToWholePixelsForEveryWidth) {
    for (int width = 0; width <= 10000; ++width) {
        const PixelRect wide = {0, 0, width, 100};
        const int third = static_cast<int>(width * 0.34);
        const int twoThirds = static_cast<int>(width * 0.67);
        const PixelRect button = {width, 80, width, 90};
        const auto one = ArrangeChoiceWindow(1, wide, button, button, button);
        const auto two = ArrangeChoiceWindow(2, wide, button, button, button);
        ASSERT_TRUE(one && two);
        ASSERT_EQ(one->width, third) << width;
        ASSERT_EQ(one->ok.x, width - twoThirds) << width;
        ASSERT_EQ(two->width, twoThirds) << width;
        ASSERT_EQ(two->cancel.x, width - third) << width;
    }
}

}  // namespace
