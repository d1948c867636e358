#include <atltypes.h>
#include <gtest/gtest.h>

namespace {

TEST(CRect, GrowsShrinksAndMoves) {
    CRect rect(10, 20, 30, 50);
    EXPECT_EQ(rect.Width(), 20);
    EXPECT_EQ(rect.Height(), 30);
    rect.DeflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(11, 22, 29, 48));
    rect.InflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(11, 22, 27, 46));
    rect = CRect(10, 20, 30, 50);
    rect.OffsetRect(-10, -20);
    EXPECT_TRUE(rect == CRect(0, 0, 20, 30));
    rect.MoveToXY(5, 6);
    EXPECT_TRUE(rect == CRect(5, 6, 25, 36));
}

TEST(CRect, HoldsItsLeftAndTopEdgesButNotTheOthers) {
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
}

TEST(CRect, IntersectsToAnEmptyRectangleWhenNothingIsShared) {
    CRect common;
    EXPECT_TRUE(common.IntersectRect(CRect(0, 0, 10, 10), CRect(5, 5, 20, 20)));
    EXPECT_TRUE(common == CRect(5, 5, 10, 10));
    EXPECT_FALSE(common.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));
    EXPECT_TRUE(common.IsRectEmpty());
    common = CRect(1, 2, 3, 4);
    common.SetRectEmpty();
    EXPECT_TRUE(common == CRect());
}

TEST(CPoint, ReadsNegativeCoordinatesFromAMessage) {
    const CPoint point(static_cast<LPARAM>(MAKELONG(-3, -4)));
    EXPECT_EQ(point.x, -3);
    EXPECT_EQ(point.y, -4);
}

}  // namespace
