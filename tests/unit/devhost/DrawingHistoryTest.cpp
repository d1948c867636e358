// Undo and redo of commands, and the placement.
#include <gtest/gtest.h>

#include <random>

#include "devhost/drawing/Drawing.h"
#include "devhost/drawing/SvgWriter.h"

using namespace devhost;

namespace {

class DrawingHistory : public testing::Test {
protected:
    void Add(double radius) { EXPECT_TRUE(drawing.Add(CircleEntity{{0, 0}, radius})); }
    std::vector<double> Radii() const {
        std::vector<double> radii;
        for (const Entity& entity : drawing.Entities()) {
            radii.push_back(std::get<CircleEntity>(entity).radius);
        }
        return radii;
    }
    using Numbers = std::vector<double>;

    CDrawing drawing;
};

TEST_F(DrawingHistory, UndoTakesAWholeCommandBack) {
    drawing.BeginCommand();
    Add(1);
    drawing.BeginCommand();
    Add(2);
    Add(3);
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers{1});
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers());
    EXPECT_FALSE(drawing.CanUndo());
    drawing.Undo();
    drawing.Redo();
    EXPECT_EQ(Radii(), Numbers{1});
    drawing.Redo();
    EXPECT_EQ(Radii(), (Numbers{1, 2, 3}));
    EXPECT_FALSE(drawing.CanRedo());
    drawing.Redo();
    EXPECT_EQ(Radii(), (Numbers{1, 2, 3}));
}

TEST_F(DrawingHistory, ACommandThatDrawsNothingIsNone) {
    Add(1);
    drawing.BeginCommand();
    drawing.BeginCommand();
    drawing.BeginCommand();
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers());
}

TEST_F(DrawingHistory, WhatIsDrawnAfterUndoEndsRedo) {
    Add(1);
    drawing.Undo();
    drawing.BeginCommand();
    Add(2);
    EXPECT_FALSE(drawing.CanRedo());
    drawing.Redo();
    EXPECT_EQ(Radii(), Numbers{2});
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers());
}

TEST_F(DrawingHistory, ClearIsUndoneWithWhatFollowsIt) {
    Add(1);
    drawing.BeginCommand();
    Add(2);
    drawing.Clear();
    Add(3);
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers{1});
    drawing.Redo();
    EXPECT_EQ(Radii(), Numbers{3});
}

TEST_F(DrawingHistory, ARevertedCommandIsGoneForGood) {
    Add(1);
    drawing.BeginCommand();
    Add(2);
    drawing.Clear();
    drawing.RevertCommand();
    EXPECT_EQ(Radii(), Numbers{1});
    EXPECT_FALSE(drawing.CanRedo());
    drawing.BeginCommand();
    drawing.RevertCommand();
    EXPECT_EQ(Radii(), Numbers{1}) << "an empty command";
}

// Against copies of the whole drawing.
TEST_F(DrawingHistory, AnyOrderOfCommandsIsUndoneAndRedone) {
    std::mt19937 random(20240511);
    std::vector<Numbers> states = {{}};
    std::size_t now = 0;
    for (int step = 0; step < 3000; ++step) {
        const auto choice = random() % 6;
        if (choice < 2) {
            drawing.Undo();
            now -= now > 0;
        } else if (choice == 2) {
            drawing.Redo();
            now += now + 1 < states.size();
        } else {
            drawing.BeginCommand();
            Add(step + 1);
            if (choice == 3) {
                drawing.Clear();
            }
            Add(step + 1.5);
            states.resize(now + 1);
            states.push_back(Radii());
            ++now;
        }
        ASSERT_EQ(Radii(), states[now]) << "step " << step;
    }
}

TEST_F(DrawingHistory, ThePlacementIsNotPartOfTheDrawing) {
    Add(1);
    drawing.BeginPlacement();
    Add(2);
    drawing.Clear();
    Add(3);
    drawing.EndPlacement();
    EXPECT_EQ(Radii(), Numbers{1});
    EXPECT_EQ(drawing.Placement().size(), 2u);
    drawing.Undo();
    EXPECT_EQ(Radii(), Numbers());
    drawing.BeginPlacement();
    drawing.EndPlacement();
    EXPECT_TRUE(drawing.Placement().empty()) << "each begins anew";
}

}  // namespace
