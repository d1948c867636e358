// The distance item in the grid: what the user types into its cell, and what is left untouched there.
#include "propgrid/DistanceItem.h"
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/FakeHost.h"

namespace {

// The fake host writes 2.00001234 in units 2 as "U2:2.0000" and reads back that or a plain number.
class GridDistance : public GridInputTest {
protected:
    static constexpr double kPicked = 2.00001234;

    GridDistance() {
        fakeHost = FakeHost{};
        id = grid.AddCustomItem(section, L"Width", &distance);
        fakeHost.distance = kPicked;
        EXPECT_TRUE(distance.OnButtonClicked());
        EXPECT_EQ(distance.GetStringValue(), L"U2:2.0000");
    }
    ~GridDistance() override {
        grid.DestroyWindow();
        fakeHost = FakeHost{};
    }
    void TypeIn(const std::wstring& typed) {
        ClickOn(ValueOf(id));
        TypeInEdit(typed);
        ExpectNoEditorLeft();
    }
    bool IsMarked() { return CGridPicture(grid).Has({0, 0, 300, 200}, modified); }

    CDistanceItem distance{nullptr, 2.0};
    UINT id = 0;
};

TEST_F(GridDistance, ALengthTypedExactlyAsItIsShownIsATypedLength) {
    ASSERT_TRUE(IsMarked());
    TypeIn(L"U2:2.0000\r");
    EXPECT_EQ(distance.GetDistance(), 2.0);
    EXPECT_FALSE(IsMarked()) << "the old value was typed back";
    EXPECT_EQ(parent.changedItems, Ids{id});
}

TEST_F(GridDistance, ALengthThatIsLeftUntouchedKeepsItsDigits) {
    for (const std::wstring typed : {L"\r", L"\t", L"\x1b", L"99\x1b", L"U2:2.0000\x1b"}) {
        TypeIn(typed);
        EXPECT_EQ(distance.GetDistance(), kPicked);
    }
    EXPECT_TRUE(IsMarked());
    EXPECT_TRUE(parent.changedItems.empty());
}

// There is nothing to report about a text that the user did not type.
TEST_F(GridDistance, ATextThatTheHostCannotReadIsNotReportedWhenItIsLeftUntouched) {
    fakeHost.failing = "sds_distof";
    TypeIn(L"\x1b");
    TypeIn(L"\r");
    EXPECT_EQ(distance.GetDistance(), kPicked);
}

}  // namespace
