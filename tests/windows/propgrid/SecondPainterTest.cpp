// Random grids, compared pixel by pixel with what a second painter draws for them. The seed is printed;
// TAVRIN_SEED repeats a grid, TAVRIN_GRIDS makes them more.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>

#include "tests/windows/propgrid/RandomGrids.h"
#include "tests/windows/propgrid/SecondPainter.h"

namespace tests {
namespace {

constexpr unsigned kFirstSeed = 20261;
constexpr int kGrids = 450;
constexpr int kReportedGrids = 5;

int NumberOf(const char* variable, int standard) {
    const char* const given = std::getenv(variable);
    return given != nullptr ? std::atoi(given) : standard;
}

// Beside the test program.
std::wstring PictureFile(unsigned seed, const wchar_t* what) {
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = program;
    return path.substr(0, path.rfind(L'\\') + 1) + L"pixels-" + std::to_wstring(seed) + L"-" + what + L".bmp";
}

int CountFailures() {
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// Counts what the random grids show, to be sure that they show everything.
class CTally {
public:
    void Add(const std::string& feature, bool seen = true) { m_counts[feature] += seen ? 1 : 0; }
    void AddGrid(const GridModel& model);
    void ExpectEverything();

private:
    void AddItem(const GridModel& model, const ModelItem& item);

    std::map<std::string, int> m_counts;
};

void CTally::AddGrid(const GridModel& model) {
    Add("mode " + std::to_string(std::min(model.mode, 3U)));
    Add("divider outside the window", model.gutter < 0 || model.gutter > model.client.cx);
    Add("narrow window", model.client.cx < 30);
    Add("flat window", model.client.cy < 30);
    Add("text of an empty list", model.sections.empty() && !model.emptyListText.empty());
    Add("window as high as the contents", model.client.cy == model.GetContentHeight());
    Add("scrolled", model.GetScrollPosition() > 0);
    Add("scrolled to the end", model.barShown && model.barPosition == model.GetLastPosition());
    for (const ModelSection& section : model.sections) {
        Add("focused section", section.id == model.focusedSection && model.mode == 0);
        Add("collapsed section", section.collapsed && model.mode == 0);
        for (const ModelItem& item : section.items) {
            AddItem(model, item);
        }
    }
}

void CTally::AddItem(const GridModel& model, const ModelItem& item) {
    const std::string kind = "kind " + std::to_string(item.kind);
    Add(kind);
    Add("modified " + kind, item.IsModified());
    Add("not editable", !item.editable);
    Add("undefined", item.undefined);
    Add("undefined later", item.undefined && !item.savedUndefined);
    Add("changed distance", item.distance != nullptr && item.value.number != item.distanceReference);
    if (item.id == model.focusedItem) {
        Add("focused edit mode " + std::to_string(item.GetEditMode()), item.editable);
        Add("focused and not editable", !item.editable);
    }
}

void CTally::ExpectEverything() {
    for (int mode = 0; mode <= 3; ++mode) {
        Add("mode " + std::to_string(mode), false);
    }
    for (int kind = IT_CUSTOM; kind <= IT_FONT; ++kind) {
        Add("kind " + std::to_string(kind), false);
    }
    for (int mode = -1; mode <= EM_INPLACE_BUTTON + 1; ++mode) {
        Add("focused edit mode " + std::to_string(mode), false);
    }
    m_counts.erase("modified kind 0");  // a custom item marks its changes itself
    for (const auto& [feature, count] : m_counts) {
        EXPECT_GE(count, 3) << feature;
    }
}

// Shows one random grid after the other, each compared when it is whole, after a part of it was painted anew,
// and while its edit button is held.
class GridPixels : public testing::Test {
protected:
    void Compare(unsigned seed);
    // The client area but for the scroll bar, which paints itself.
    CRect RowsOf(const GridModel& model) const { return {0, 0, model.GetRowWidth(), model.client.cy}; }

    CMirrorParent parent;
    CTally tally;

private:
    void CompareWhole(CMirroredGrid& grid);
    void ComparePart(CMirroredGrid& grid, const CRect& area, COLORREF damage);
    void ComparePressed(CMirroredGrid& grid, CRandom& random);
    void CheckPicture(CMirroredGrid& grid, const CPixelPicture& expected, const char* when);
    void CheckRects(CMirroredGrid& grid, const CSecondPainter& painter);
    void CheckBar(CMirroredGrid& grid);

    unsigned m_seed = 0;
};

void GridPixels::Compare(unsigned seed) {
    SCOPED_TRACE("TAVRIN_SEED=" + std::to_string(seed));
    const int before = CountFailures();
    m_seed = seed;
    CRandom random(seed);
    ChooseFont(random, parent);
    CMirroredGrid grid(parent, ChooseSize(random));
    FillAtRandom(random, grid);
    tally.AddGrid(grid.GetModel());
    CompareWhole(grid);
    if (random.Chance(50)) {
        ComparePart(grid, random.Area(grid.GetModel().client), random.Color());
    }
    ComparePressed(grid, random);
    if (CountFailures() > before) {
        ADD_FAILURE() << "The grid:\n" << grid.GetLog();
    }
}

void GridPixels::CompareWhole(CMirroredGrid& grid) {
    const GridModel& model = grid.GetModel();
    grid.GetGrid().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CheckBar(grid);
    CPixelPicture expected(model.client);
    CSecondPainter painter(model, expected);
    painter.Paint();
    CheckPicture(grid, expected, "the whole grid");
    CheckRects(grid, painter);
}

void GridPixels::ComparePart(CMirroredGrid& grid, const CRect& area, COLORREF damage) {
    const GridModel& model = grid.GetModel();
    CPixelPicture expected(model.client);
    CSecondPainter(model, expected).Paint();
    {
        CClientDC dc(&grid.GetGrid());
        dc.FillSolidRect(area, damage);
    }
    grid.GetGrid().InvalidateRect(area, FALSE);
    grid.GetGrid().UpdateWindow();
    CheckPicture(grid, expected, "a part of the grid");
}

void GridPixels::ComparePressed(CMirroredGrid& grid, CRandom& random) {
    const GridModel& model = grid.GetModel();
    const CRect whole({}, model.client);
    CPixelPicture expected(model.client);
    grid.GetGrid().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CSecondPainter released(model, expected);
    released.Paint();
    const CRect button = released.GetEditButton() & whole;
    if (button.IsRectEmpty()) {
        return;
    }
    tally.Add("edit button held");
    grid.Press(
        {random.Between(button.left, button.right - 1), random.Between(button.top, button.bottom - 1)});
    grid.GetGrid().UpdateWindow();
    CSecondPainter(model, expected).Paint();
    CheckPicture(grid, expected, "the edit button held");
    grid.Release();
}

void GridPixels::CheckPicture(CMirroredGrid& grid, const CPixelPicture& expected, const char* when) {
    CPixelPicture shown(grid.GetModel().client);
    shown.CopyFrom(grid.GetGrid());
    const CRect rows = RowsOf(grid.GetModel());
    const std::optional<CPoint> difference = shown.FindDifference(expected, rows);
    if (!difference) {
        return;
    }
    shown.WriteBitmapFile(PictureFile(m_seed, L"grid"));
    expected.WriteBitmapFile(PictureFile(m_seed, L"expected"));
    ADD_FAILURE() << when << ": " << shown.CountDifferences(expected, rows)
                  << " pixels differ, the first one at (" << difference->x << ", " << difference->y
                  << "): the grid has 0x" << std::hex << shown.At(*difference) << ", expected is 0x"
                  << expected.At(*difference) << ". Pictures of both are beside the test program.";
}

void GridPixels::CheckRects(CMirroredGrid& grid, const CSecondPainter& painter) {
    for (const auto& [id, expected] : painter.GetItemRects()) {
        CRect name;
        CRect value;
        EXPECT_TRUE(grid.GetGrid().GetItemRects(id, name, value));
        EXPECT_TRUE(name == expected.name && value == expected.value) << "item " << id;
    }
    for (const auto& [id, expected] : painter.GetSectionRects()) {
        CRect glyph;
        CRect header;
        EXPECT_TRUE(grid.GetGrid().GetSectionRects(id, glyph, header));
        EXPECT_TRUE(glyph == expected.glyph && header == expected.header) << "section " << id;
    }
    if (!painter.GetEditButton().IsRectEmpty()) {
        EXPECT_TRUE(grid.GetGrid().GetEditButtonRect() == painter.GetEditButton());
    }
}

void GridPixels::CheckBar(CMirroredGrid& grid) {
    const GridModel& model = grid.GetModel();
    CWnd* const bar = grid.GetGrid().GetDlgItem(1000);
    const bool shown = bar != nullptr && bar->IsWindowVisible() != FALSE;
    ASSERT_EQ(shown, model.barShown);
    if (!shown) {
        return;
    }
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(bar->m_hWnd, SB_CTL, &info);
    CRect rect;
    bar->GetWindowRect(&rect);
    grid.GetGrid().ScreenToClient(rect);
    EXPECT_TRUE(rect == CRect(model.GetRowWidth(), 0, model.client.cx, model.client.cy));
    EXPECT_EQ(info.nPos, model.barPosition);
    EXPECT_EQ(info.nMax, model.GetContentHeight());
    EXPECT_EQ(info.nPage, static_cast<UINT>(model.client.cy));
}

TEST_F(GridPixels, RandomGridsLookAsASecondPainterDrawsThem) {
    const int grids = NumberOf("TAVRIN_GRIDS", kGrids);
    const auto first = static_cast<unsigned>(NumberOf("TAVRIN_SEED", kFirstSeed));
    std::cout << "TAVRIN_SEED=" << first << " TAVRIN_GRIDS=" << grids << std::endl;
    int failed = 0;
    for (int grid = 0; grid < grids && failed < kReportedGrids; ++grid) {
        const int before = CountFailures();
        Compare(first + static_cast<unsigned>(grid));
        failed += CountFailures() > before ? 1 : 0;
    }
    if (grids >= kGrids && failed == 0) {
        tally.ExpectEverything();
    }
}

TEST_F(GridPixels, ADividerThatIsOnePixelOffIsSeen) {
    parent.SetAnsweredFont(nullptr);
    CMirroredGrid grid(parent, {200, 100});
    grid.AddItem(grid.AddSection(L"section", false, kNoId), {});
    grid.GetGrid().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CPixelPicture shown(grid.GetModel().client);
    shown.CopyFrom(grid.GetGrid());
    GridModel model = grid.GetModel();
    CPixelPicture expected(model.client);
    CSecondPainter(model, expected).Paint();
    EXPECT_FALSE(shown.FindDifference(expected, RowsOf(model)));
    ++model.gutter;
    CSecondPainter(model, expected).Paint();
    EXPECT_TRUE(shown.FindDifference(expected, RowsOf(model)));
}

TEST_F(GridPixels, ASeedMakesTheSameGridAgain) {
    std::vector<std::string> logs;
    for (const unsigned seed : {kFirstSeed, kFirstSeed, kFirstSeed + 1}) {
        CRandom random(seed);
        ChooseFont(random, parent);
        CMirroredGrid grid(parent, ChooseSize(random));
        FillAtRandom(random, grid);
        logs.push_back(grid.GetLog());
    }
    EXPECT_EQ(logs[0], logs[1]);
    EXPECT_NE(logs[0], logs[2]);
}

TEST(PixelPicture, TheOnePixelThatDiffersIsFound) {
    CPixelPicture picture({7, 5});
    CPixelPicture other({7, 5});
    const CRect whole(0, 0, 7, 5);
    EXPECT_FALSE(picture.FindDifference(other, whole));
    ::SetPixel(other.GetDC(), 6, 4, RGB(0, 0, 1));
    ASSERT_TRUE(picture.FindDifference(other, whole));
    EXPECT_TRUE(*picture.FindDifference(other, whole) == CPoint(6, 4));
    EXPECT_EQ(picture.CountDifferences(other, whole), 1);
    EXPECT_FALSE(picture.FindDifference(other, CRect(0, 0, 6, 5)));
    EXPECT_EQ(other.At({6, 4}), 1U);
}

}  // namespace
}  // namespace tests
