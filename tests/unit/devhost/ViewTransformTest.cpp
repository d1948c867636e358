#include "devhost/drawing/ViewTransform.h"

#include <gtest/gtest.h>

using namespace devhost;

namespace {

void ExpectPoint(Point point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
}

class ViewTransform : public testing::Test {
protected:
    ViewTransform() { m_view.Resize(201, 101); }

    CViewTransform m_view;
};

TEST_F(ViewTransform, BeginsWithOneUnitPerPixelAndTheOriginAtTheLowerLeft) {
    ExpectPoint(m_view.ToPixel({0, 0}), 0, 100);
    ExpectPoint(m_view.ToPixel({12, 34}), 12, 66);
    ExpectPoint(m_view.ToDrawing({200, 0}), 200, 100);
    EXPECT_EQ(m_view.UnitsPerPixel(), 1);
}

TEST_F(ViewTransform, ResizingKeepsTheLowerLeftCorner) {
    m_view.PanBy(-5, 7);
    const Point corner = m_view.ToDrawing({0, 100});
    m_view.Resize(400, 300);
    ExpectPoint(m_view.ToDrawing({0, 299}), corner.x, corner.y);
}

TEST_F(ViewTransform, ZoomingKeepsThePointUnderTheMouse) {
    const Point under = m_view.ToDrawing({50, 20});
    m_view.ZoomAbout({50, 20}, 4);
    ExpectPoint(m_view.ToDrawing({50, 20}), under.x, under.y);
    EXPECT_EQ(m_view.UnitsPerPixel(), 0.25);
    ExpectPoint(m_view.ToDrawing({54, 20}), under.x + 1, under.y);
    m_view.ZoomAbout({130, 90}, 0.25);
    EXPECT_EQ(m_view.UnitsPerPixel(), 1);
}

TEST_F(ViewTransform, ZoomingEndsWherePixelsWouldNoLongerDiffer) {
    for (int i = 0; i < 1000; ++i) {
        m_view.ZoomAbout({10, 10}, 2);
    }
    EXPECT_GE(m_view.UnitsPerPixel(), 1e-9);
    for (int i = 0; i < 1000; ++i) {
        m_view.ZoomAbout({10, 10}, 0.5);
    }
    EXPECT_LE(m_view.UnitsPerPixel(), 1e9);
    EXPECT_GT(m_view.UnitsPerPixel(), 1e8);
}

TEST_F(ViewTransform, PanningMovesWhatIsShownWithTheMouse) {
    m_view.ZoomAbout({0, 100}, 2);
    const Point grabbed = m_view.ToDrawing({60, 40});
    m_view.PanBy(30, -10);
    ExpectPoint(m_view.ToPixel(grabbed), 90, 30);
}

TEST_F(ViewTransform, FittingShowsTheBoxInTheMiddleAsLargeAsItGoes) {
    m_view.Fit({{1000, 2000}, {1040, 2040}}, 10);
    // Eighty pixels of height hold forty units.
    EXPECT_NEAR(m_view.UnitsPerPixel(), 0.5, 1e-12);
    ExpectPoint(m_view.ToPixel({1020, 2020}), 100, 50);
    ExpectPoint(m_view.ToPixel({1000, 2000}), 60, 90);
    m_view.Fit({{0, 0}, {360, 10}}, 10);
    ExpectPoint(m_view.ToPixel({0, 5}), 10, 50);
    ExpectPoint(m_view.ToPixel({360, 5}), 190, 50);
}

TEST_F(ViewTransform, FittingALineOrAPointWorks) {
    m_view.Fit({{5, 5}, {5, 85}}, 10);
    EXPECT_NEAR(m_view.UnitsPerPixel(), 1, 1e-12);
    m_view.ZoomAbout({0, 0}, 3);
    m_view.Fit({{7, 8}, {7, 8}}, 10);
    ExpectPoint(m_view.ToPixel({7, 8}), 100, 50);
    EXPECT_NEAR(m_view.UnitsPerPixel(), 1.0 / 3, 1e-12);
}

TEST_F(ViewTransform, FittingIntoAWindowSmallerThanTheMarginsWorks) {
    m_view.Resize(0, 0);
    m_view.Fit({{0, 0}, {10, 10}}, 20);
    EXPECT_NEAR(m_view.UnitsPerPixel(), 10, 1e-12);
}

TEST_F(ViewTransform, ShowsWhatItsPixelsCover) {
    const Box shown = m_view.VisibleArea();
    ExpectPoint(shown.low, -0.5, -0.5);
    ExpectPoint(shown.high, 200.5, 100.5);
}

}  // namespace
