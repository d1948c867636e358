#include "propgrid/DistanceItem.h"

#include <cmath>
#include <string>

#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"

namespace {

// The fake host writes 2 in units 2 as "U2:2.0000" and reads back that or a plain number.
class DistanceItem : public GridPaintTest {
protected:
    DistanceItem() {
        fakeHost = FakeHost{};
        fakeHost.mainWindow = hostWindow.m_hWnd;
        grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
        id = grid.AddCustomItem(grid.AddSection(L""), L"Width", &item);
    }
    ~DistanceItem() override { fakeHost = FakeHost{}; }

    bool Highlighted() { return CGridPicture(grid).Has({0, 0, 300, 200}, modified); }

    CGridParent hostWindow;
    CDistanceItem item{parent.m_hWnd, 2.0};
    UINT id = 0;
};

TEST_F(DistanceItem, IsEditedInPlaceWithAButton) {
    EXPECT_EQ(item.GetEditMode(), EM_INPLACE_BUTTON);
}

TEST_F(DistanceItem, ShowsItsLengthInTheDrawingsUnits) {
    EXPECT_EQ(item.GetStringValue(), L"U2:2.0000");
    fakeHost.linearUnits = 4;
    fakeHost.precision = 1;
    EXPECT_EQ(item.GetStringValue(), L"U4:2.0");
}

TEST_F(DistanceItem, DrawsItsTextAtTheGridsMargin) {
    grid.SetDrawDivider(false);
    const CGridPicture picture(grid);
    EXPECT_TRUE(picture.Has({154, 0, 300, RowHeight()}, editable));
    EXPECT_TRUE(picture.Is({150, 0, 154, RowHeight()}, back));
}

TEST_F(DistanceItem, EndsATextThatIsTooLongInAnEllipsis) {
    const std::wstring length(10, L'H');
    fakeHost.distanceText = [&](double, int, int) { return length; };
    grid.SetDrawDivider(false);
    grid.SetDrawLines(false);
    const int fits = 154 + ExtentOf(length, parent.font).cx;
    const auto endsInAnEllipsis = [&](int width) {
        grid.MoveWindow(0, 0, width, 200);
        return CGridPicture(grid).EndsInAnEllipsis({154, 0, width, RowHeight()}, editable);
    };
    EXPECT_FALSE(endsInAnEllipsis(fits));
    EXPECT_TRUE(endsInAnEllipsis(fits - 1));
    EXPECT_TRUE(endsInAnEllipsis(200));
}

TEST_F(DistanceItem, TakesATypedLength) {
    EXPECT_TRUE(item.SetStringValue(L"2.5"));
    EXPECT_EQ(item.GetDistance(), 2.5);
}

TEST_F(DistanceItem, ReportsNoChangeForAnotherSpellingOfTheSameLength) {
    EXPECT_FALSE(item.SetStringValue(L"2.000"));
    EXPECT_FALSE(item.SetStringValue(item.GetStringValue()));
    EXPECT_EQ(item.GetDistance(), 2.0);
}

TEST_F(DistanceItem, TakesTheVeryTextThatItShowsAsALengthToo) {
    EXPECT_TRUE(item.SetStringValue(L"2.00001234"));
    EXPECT_EQ(item.GetStringValue(), L"U2:2.0000");
    EXPECT_TRUE(item.SetStringValue(L"U2:2.0000"));
    EXPECT_EQ(item.GetDistance(), 2.0);
}

TEST_F(DistanceItem, NeedsNoGridToTakeALength) {
    CDistanceItem alone(nullptr, 2.0);
    EXPECT_TRUE(alone.SetStringValue(L"3"));
    EXPECT_EQ(alone.GetDistance(), 3.0);
}

TEST_F(DistanceItem, KeepsAZeroWhoseSignAloneIsTypedAnew) {
    CDistanceItem zero(nullptr, 0.0);
    EXPECT_FALSE(zero.SetStringValue(L"-0"));
    EXPECT_FALSE(std::signbit(zero.GetDistance()));
}

TEST_F(DistanceItem, IsDrawnWhenItWasAddedAsAnItemOfItsKind) {
    CDistanceItem other(nullptr, 5.0);
    const UINT added = grid.AddItem(0, IT_CUSTOM, L"Height", static_cast<ICustomItem*>(&other));
    ASSERT_NE(added, CPropertyGrid::NO_ID);
    EXPECT_EQ(other.m_pGrid, &grid);
    EXPECT_TRUE(CGridPicture(grid).Has(ValueOfRow(1), editable));
}

TEST_F(DistanceItem, ReadsATypedLengthInTheDrawingsUnits) {
    fakeHost.linearUnits = 4;
    EXPECT_TRUE(item.SetStringValue(L"U4:3"));
    EXPECT_EQ(item.GetDistance(), 3.0);
}

TEST_F(DistanceItem, ReportsATextThatIsNoLengthOnceAndKeepsItsValue) {
    CModalDriver driver;
    driver.ThenPressOk();
    EXPECT_FALSE(item.SetStringValue(L"wide"));
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].caption, L"Invalid value");
    EXPECT_EQ(driver.messages[0].text, L"The value you have input is invalid, please specify another one.");
    EXPECT_EQ(driver.messages[0].buttons, 1);
    EXPECT_EQ(driver.messages[0].owner, nullptr);
    EXPECT_EQ(item.GetDistance(), 2.0);
    EXPECT_FALSE(Highlighted());
}

TEST_F(DistanceItem, IsHighlightedWhileItDiffersFromTheLengthItWasMadeWith) {
    EXPECT_FALSE(Highlighted());
    item.SetStringValue(L"2.5");
    EXPECT_TRUE(Highlighted());
    item.SetStringValue(L"2");
    EXPECT_FALSE(Highlighted());
}

TEST_F(DistanceItem, StaysHighlightedWhenTheGridAcceptsItsValues) {
    item.SetStringValue(L"2.5");
    grid.AcceptValues();
    EXPECT_TRUE(Highlighted());
}

TEST_F(DistanceItem, LeavesTheUnitsToTheConversionsWhenTheHostGivesNone) {
    fakeHost.failing = "sds_getvar";
    EXPECT_EQ(item.GetStringValue(), L"U0:2.0000");
    EXPECT_TRUE(item.SetStringValue(L"U0:3"));
    EXPECT_EQ(item.GetDistance(), 3.0);
}

TEST_F(DistanceItem, ShowsNothingWhereTheHostCannotWriteALength) {
    fakeHost.failing = "sds_rtos";
    EXPECT_EQ(item.GetStringValue(), L"");
    EXPECT_EQ(item.GetDistance(), 2.0);
}

TEST_F(DistanceItem, TakesTheDistanceBetweenTwoPickedPoints) {
    fakeHost.distance = 7.25;
    EXPECT_TRUE(item.OnButtonClicked());
    EXPECT_EQ(item.GetDistance(), 7.25);
    EXPECT_EQ(fakeHost.prompts,
              (std::vector<std::wstring>{L"\nSelect first point: ", L"\nSelect second point: "}));
    EXPECT_EQ(fakeHost.bases, (std::vector<std::string>{"none", "1 2 3"}));
}

TEST_F(DistanceItem, ReportsAPickOfTheSameDistanceAsAChange) {
    fakeHost.distance = 2.0;
    EXPECT_TRUE(item.OnButtonClicked());
    EXPECT_EQ(item.GetDistance(), 2.0);
    EXPECT_FALSE(Highlighted());
}

TEST_F(DistanceItem, GivesTheHostTheFloorWhileTheUserPicks) {
    CGridParent inFrontOfTheHost;
    parent.SetActiveWindow();
    hostWindow.EnableWindow(FALSE);
    bool hidden = false;
    bool enabled = false;
    fakeHost.duringPick = [&] {
        hidden = !parent.IsWindowVisible();
        enabled = hostWindow.IsWindowEnabled();
        EXPECT_EQ(::GetActiveWindow(), hostWindow.m_hWnd);
    };
    item.OnButtonClicked();
    EXPECT_TRUE(hidden);
    EXPECT_TRUE(enabled);
    EXPECT_TRUE(parent.IsWindowVisible());
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
    EXPECT_TRUE(hostWindow.IsWindowEnabled()) << "left enabled";
}

TEST_F(DistanceItem, ActivatesADialogThatIsShownAlready) {
    fakeHost.duringPick = [&] {
        parent.ShowWindow(SW_SHOWNA);
        hostWindow.SetActiveWindow();
    };
    item.OnButtonClicked();
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
}

TEST_F(DistanceItem, KeepsItsValueWhenTheFirstPointIsCancelled) {
    fakeHost.pointStatus = -5002;
    fakeHost.distance = 9.0;
    EXPECT_FALSE(item.OnButtonClicked());
    EXPECT_EQ(item.GetDistance(), 2.0);
    EXPECT_EQ(fakeHost.prompts.size(), 1U);
    EXPECT_TRUE(parent.IsWindowVisible());
}

TEST_F(DistanceItem, KeepsItsValueWhenTheSecondPointIsCancelled) {
    fakeHost.distanceStatus = -5002;
    EXPECT_FALSE(item.OnButtonClicked());
    EXPECT_EQ(item.GetDistance(), 2.0);
    EXPECT_TRUE(parent.IsWindowVisible());
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
}

TEST_F(DistanceItem, LeavesTheMouseAndTheDropDownToOthers) {
    EXPECT_FALSE(item.OnLButtonDown(CRect(0, 0, 10, 10), CPoint(1, 1)));
    item.OnMouseMove(CRect(0, 0, 10, 10), CPoint(1, 1));
    item.OnLButtonUp(CRect(0, 0, 10, 10), CPoint(1, 1));
    item.ShowDropDown(CRect(0, 0, 10, 10));
    EXPECT_EQ(item.GetDistance(), 2.0);
    EXPECT_TRUE(fakeHost.prompts.empty());
}

}  // namespace
