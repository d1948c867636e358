// The LISP functions that draw.
#include "devhost/drawlisp/DrawFunctions.h"

#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;
using namespace devhost;

namespace {

class DrawFunctions : public CLispTest {
protected:
    DrawFunctions() { DefineDrawFunctions(m_evaluator, m_drawing); }

    template <typename TEntity>
    const TEntity& Only() const {
        EXPECT_EQ(m_drawing.Entities().size(), 1u);
        return std::get<TEntity>(m_drawing.Entities().front());
    }

    CDrawing m_drawing;
};

TEST_F(DrawFunctions, ALineJoinsTwoPoints) {
    ExpectValues({{L"(draw-line '(1 2) '(3.5 4 5))", L"T"}});
    EXPECT_EQ(Only<LineEntity>().from, (Point{1, 2}));
    EXPECT_EQ(Only<LineEntity>().to, (Point{3.5, 4}));
}

TEST_F(DrawFunctions, APolylineIsOpenUnlessItIsToBeClosed) {
    ExpectValues({{L"(draw-polyline '((0 0) (1 0) (1 1)))", L"T"}});
    EXPECT_EQ(Only<PolylineEntity>().points.size(), 3u);
    EXPECT_FALSE(Only<PolylineEntity>().closed);
    ExpectValues({{L"(draw-clear)", L"T"}, {L"(draw-polyline '((0 0) (1 0)) T)", L"T"}});
    EXPECT_TRUE(Only<PolylineEntity>().closed);
}

TEST_F(DrawFunctions, CirclesAndArcsHaveACentreAndARadius) {
    ExpectValues({{L"(draw-circle '(1 2) 3)", L"T"}});
    EXPECT_EQ(Only<CircleEntity>().center, (Point{1, 2}));
    EXPECT_EQ(Only<CircleEntity>().radius, 3);
    ExpectValues({{L"(draw-clear)", L"T"}, {L"(draw-arc '(1 2) 3 0 1.5)", L"T"}});
    EXPECT_EQ(Only<ArcEntity>().start, 0);
    EXPECT_EQ(Only<ArcEntity>().end, 1.5);
}

TEST_F(DrawFunctions, ATextHasAPositionAHeightAndAnAngle) {
    ExpectValues({{L"(draw-text '(1 2) 2.5 0.5 \"porta\")", L"T"}});
    EXPECT_EQ(Only<TextEntity>().position, (Point{1, 2}));
    EXPECT_EQ(Only<TextEntity>().height, 2.5);
    EXPECT_EQ(Only<TextEntity>().angle, 0.5);
    EXPECT_EQ(Only<TextEntity>().text, L"porta");
}

TEST_F(DrawFunctions, WhatCannotBeDrawnIsNamedAndNothingIsAdded) {
    ExpectErrors(
        {{L"(draw-line '(1 2))", L"DRAW-LINE takes 2 arguments, not 1"},
         {L"(draw-line '(1 2) 5)",
          L"DRAW-LINE needs a point, a list of two or three numbers, as argument 2, not 5"},
         {L"(draw-polyline '((0 0)))",
          L"DRAW-POLYLINE needs a list of two points at least as argument 1, not ((0 0))"},
         {L"(draw-polyline '((0 0) 5))", L"DRAW-POLYLINE: 5 is not a point, a list of two or three numbers"},
         {L"(draw-circle '(0 0) 0)", L"DRAW-CIRCLE needs a number above zero as argument 2, not 0"},
         {L"(draw-arc '(0 0) 1 0 \"x\")", L"DRAW-ARC needs a number as argument 4, not \"x\""},
         {L"(draw-text '(0 0) 1 0 5)", L"DRAW-TEXT needs a string as argument 4, not 5"},
         {L"(draw-line '(0 0) '(1e300 0))", L"DRAW-LINE: a number is beyond 1e12 and cannot be drawn"}});
    EXPECT_TRUE(m_drawing.Entities().empty());
}

TEST_F(DrawFunctions, ALoopDoesNotDrawWithoutEnd) {
    for (int i = 1; i < 1'000'000; ++i) {
        m_drawing.Add(LineEntity{{0, 0}, {1, 1}});
    }
    EXPECT_EQ(
        ErrorOf(L"(while T (draw-line '(0 0) '(1 1)))"),
        L"line 1: DRAW-LINE: the drawing holds 1000000 entities already: does a loop draw without end?");
    EXPECT_EQ(m_drawing.Entities().size(), 1'000'000u);
    ExpectValues({{L"(draw-clear)", L"T"}, {L"(draw-line '(0 0) '(1 1))", L"T"}});
}

}  // namespace
