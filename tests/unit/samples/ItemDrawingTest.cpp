// The sizes in the drawings of the sample items are those of their parameters.
#include <cmath>
#include <numbers>

#include "devhost/drawing/Outline.h"
#include "tests/unit/samples/ItemRoutine.h"

using namespace devhost;
using namespace tavrin::lisp;
using namespace tests;

namespace {

// A point as it is seen from a text: along its base line and up from there.
Point SeenFrom(const TextEntity& text, Point point) {
    const double x = point.x - text.position.x, y = point.y - text.position.y;
    const double cosine = std::cos(text.angle), sine = std::sin(text.angle);
    return {x * cosine + y * sine, y * cosine - x * sine};
}

// Whether a line of the entity crosses or touches the letters, whose width is an estimate.
bool Touches(const Entity& entity, const TextEntity& text) {
    constexpr double kLetterWidth = 0.8;  // of the height of a capital
    const Box letters = {{0, 0},
                         {kLetterWidth * text.height * static_cast<double>(text.text.size()), text.height}};
    const std::vector<Point> points = OutlineOf(entity, 1);
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (Clip({SeenFrom(text, points[i - 1]), SeenFrom(text, points[i])}, letters)) {
            return true;
        }
    }
    return false;
}

TEST_F(ItemRoutine, ADoorsLeafIsAsWideAndHighAsItsParameters) {
    typed = {{1, "812.5"}, {2, "2012"}, {9, "60"}};
    ASSERT_TRUE(Make("door", "single"));
    EXPECT_EQ(Boxes(812.5, 2012), 1);
    ASSERT_EQ(Arcs(812.5), 1);
    for (const Entity& entity : drawing.Entities()) {
        if (const auto* arc = std::get_if<ArcEntity>(&entity)) {
            EXPECT_NEAR(SweepOf(*arc), std::numbers::pi / 3, 1e-9);
        }
    }
    EXPECT_TRUE(HasText(L"812.50"));
}

TEST_F(ItemRoutine, NoLineOfADrawingTouchesAText) {
    for (const SampleItem& item : SampleItems()) {
        for (const std::string& variant : item.variants) {
            ASSERT_TRUE(Make(item.name, variant));
            for (const Entity& entity : drawing.Entities()) {
                for (const Entity& other : drawing.Entities()) {
                    const auto* text = std::get_if<TextEntity>(&other);
                    EXPECT_FALSE(text != nullptr && Touches(entity, *text))
                        << item.name << ' ' << variant << ": "
                        << std::string(text->text.begin(), text->text.end());
                }
            }
        }
    }
}

TEST_F(ItemRoutine, ADoorHasAsManyLeavesAsItsVariantAsksFor) {
    for (const auto& [variant, leaves] :
         {std::pair("single", 1), {"double", 2}, {"sliding", 1}, {"glazed", 1}, {"bifold", 4}}) {
        ASSERT_TRUE(Make("door", variant));
        EXPECT_EQ(shown[7], std::to_string(leaves)) << variant;
        EXPECT_EQ(Boxes(900, 2100), leaves) << variant;
    }
}

TEST_F(ItemRoutine, AnArchedDoorEndsInAHalfCircle) {
    ASSERT_TRUE(Make("door", "arched"));
    EXPECT_EQ(Arcs(450), 1);        // the leaf
    EXPECT_EQ(Arcs(450 - 110), 1);  // its glass, a stile further in
    EXPECT_EQ(Arcs(900), 1);        // the opening
}

TEST_F(ItemRoutine, AGlazedDoorHasGlassInsteadOfThePanel) {
    typed = {{10, "0"}};
    ASSERT_TRUE(Make("door", "single"));
    // Between the stiles, from the bottom rail to the top rail: the panel.
    EXPECT_EQ(Boxes(900 - 2 * 110, 2100 - 110 - 180), 1);
    const std::size_t panel = drawing.Entities().size();
    ASSERT_TRUE(Make("door", "glazed"));
    EXPECT_EQ(Boxes(900 - 2 * 110, 2100 - 110 - 180), 1);
    EXPECT_GT(drawing.Entities().size(), panel) << "its panes are lines of their own";
}

TEST_F(ItemRoutine, AWindowsSashesShareTheWidthInsideItsFrame) {
    typed = {{1, "1610"}, {2, "1310"}, {8, "3"}};
    ASSERT_TRUE(Make("window", "casement"));
    EXPECT_EQ(Boxes(1610, 1310), 1);
    EXPECT_EQ(Boxes(500, 1200), 3);
    EXPECT_EQ(Arcs(500), 3);
    ASSERT_TRUE(Make("window", "fixed"));
    EXPECT_EQ(Boxes((1610 - 4 * 55) / 3.0, 1200), 3) << "with mullions between the lights";
}

TEST_F(ItemRoutine, AnArchedWindowRisesAsFarAsItsParameter) {
    typed = {{1, "1200"}, {2, "1500"}, {20, "300"}};
    ASSERT_TRUE(Make("window", "arched"));
    EXPECT_EQ(Boxes(1200, 1200), 1);
    EXPECT_EQ(Arcs(750), 1);  // through both ends of 1200, 300 above them in the middle
    EXPECT_EQ(Arcs(750 - 55), 1);
}

TEST_F(ItemRoutine, AStaircaseHasAStepForEachRiserButTheLast) {
    typed = {{1, "3000"}, {2, "20"}, {3, "260"}};
    for (const std::string& variant : SampleItems().back().variants) {
        ASSERT_TRUE(Make("staircase", variant));
        // Treads in section: the going and the nosing wide.
        EXPECT_EQ(Boxes(260 + 25, 40), variant == "straight" ? 19 : 18) << variant;
        EXPECT_TRUE(HasText(L"20 x 150.00 / 260.00")) << variant;
    }
}

TEST_F(ItemRoutine, AStaircaseEndsAtTheUpperFloor) {
    ASSERT_TRUE(Make("staircase", "straight"));
    // The slab of the upper floor begins at the last riser, 16 goings from the first.
    bool found = false;
    double plan = 0;
    for (const Entity& entity : drawing.Entities()) {
        const auto* line = std::get_if<PolylineEntity>(&entity);
        if (line == nullptr || line->points.size() != 4) {
            continue;
        }
        if (std::abs(line->points[0].x - 16 * 280) < 1e-6 &&
            std::abs(line->points[1].x - 16 * 280 - 600) < 1e-6) {
            found = true;
            plan = line->points[2].y - 2890;
        }
    }
    EXPECT_TRUE(found);
    EXPECT_NEAR(plan, 1000 + 800, 1e-6) << "the section's floor stands above the plan";
}

}  // namespace
