// Zoom, pan, fit and snap, seen through the points that clicks give.
#include <windows.h>

#include <commctrl.h>

#include "tests/windows/devhost/window/WindowFixture.h"
#include "tests/windows/support/HandleCount.h"

using namespace tests;
using namespace devhost;

namespace {

class View : public CWindowFixture {
protected:
    double UnitsPerPixel() { return PickAt(101, 100).x - PickAt(100, 100).x; }
};

TEST_F(View, BeginsWithOneUnitPerPixelAndTheOriginAtTheLowerLeft) {
    ExpectNear(PickAt(120, AreaHeight() - 1 - 45), 120, 45);
}

TEST_F(View, TheWheelZoomsAboutTheMouse) {
    const Point before = PickAt(300, 200);
    Wheel(300, 200, 2);
    ExpectNear(PickAt(300, 200), before.x, before.y);
    EXPECT_NEAR(UnitsPerPixel(), 1 / 1.44, 1e-9);
    Wheel(300, 200, -2);
    EXPECT_NEAR(UnitsPerPixel(), 1, 1e-9);
}

TEST_F(View, TheWheelZoomsWhatIsUnderTheMouseWhereverTheFocusIs) {
    POINT position = {300, 200};
    ClientToScreen(Area(), &position);
    PostMessageW(Part(IDC_PROMPT), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA),
                 MAKELPARAM(position.x, position.y));
    Handle();
    EXPECT_NEAR(UnitsPerPixel(), 1 / 1.2, 1e-9);
}

TEST_F(View, TheMiddleButtonDragsTheDrawing) {
    const Point grabbed = PickAt(200, 150);
    Pan(200, 150, 260, 120);
    ExpectNear(PickAt(260, 120), grabbed.x, grabbed.y);
    MoveMouse(300, 300);
    ExpectNear(PickAt(260, 120), grabbed.x, grabbed.y);
}

TEST_F(View, AMonitorOfAnotherResolutionChangesFontsAndSizes) {
    struct CSystemResolution {
        ~CSystemResolution() { CScale::SetResolution(CScale::GetSystemResolution()); }
    } restored;
    const auto heightOf = [&](EControl part) {
        RECT rectangle;
        GetWindowRect(Part(part), &rectangle);
        return rectangle.bottom - rectangle.top;
    };
    const auto fontOf = [&](EControl part) {
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Part(part), WM_GETFONT, 0, 0)), sizeof font, &font);
        return std::abs(font.lfHeight);
    };
    const LONG codeFont = fontOf(IDC_PROMPT);
    const LONG textFont = fontOf(IDC_STATUS);
    const LONG output = heightOf(IDC_OUTPUT);
    const LONG status = heightOf(IDC_STATUS);
    const int resolution = 2 * CScale::GetSystemResolution();
    RECT suggested = {10, 20, 1510, 1020};
    SendMessageW(m_window.Handle(), WM_DPICHANGED, MAKEWPARAM(resolution, resolution),
                 reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(fontOf(IDC_PROMPT), 2 * codeFont);
    EXPECT_EQ(fontOf(IDC_STATUS), 2 * textFont);
    EXPECT_NEAR(heightOf(IDC_OUTPUT), 2 * output, 2);
    EXPECT_GT(heightOf(IDC_STATUS), status * 3 / 2);
    RECT rectangle;
    GetWindowRect(m_window.Handle(), &rectangle);
    EXPECT_TRUE(EqualRect(&rectangle, &suggested));
}

TEST_F(View, FittingShowsTheWholeDrawing) {
    m_drawing.Add(LineEntity{{5000, 7000}, {9000, 8000}});
    RECT area;
    GetClientRect(Area(), &area);
    const std::function<void()> waysToFit[] = {
        [&] { m_window.FitDrawing(); },
        [&] { SendMessageW(m_window.Handle(), WM_COMMAND, IDM_FIT, 0); },
        [&] { SendMessageW(Area(), WM_MBUTTONDBLCLK, 0, 0); },
    };
    for (const auto& fit : waysToFit) {
        Pan(0, 0, 500, 500);
        fit();
        const Point left = PickAt(30, area.bottom / 2);
        EXPECT_NEAR(left.x, 5000, 10);
        EXPECT_NEAR(left.y, 7500, 10);
        EXPECT_NEAR(PickAt(area.right - 31, area.bottom / 2).x, 9000, 10);
    }
}

TEST_F(View, FittingAnEmptyDrawingGoesBackToTheBeginning) {
    Wheel(300, 200, 3);
    m_window.FitDrawing();
    ExpectNear(PickAt(0, AreaHeight() - 1), 0, 0);
    EXPECT_EQ(UnitsPerPixel(), 1);
}

TEST_F(View, APickJumpsToAnEndPointNearTheMouse) {
    const int bottom = AreaHeight() - 1;
    m_drawing.Add(LineEntity{{100.25, 100.5}, {300, 100}});
    EXPECT_EQ(PickAt(106, bottom - 104), (Point{100.25, 100.5}));
    ExpectNear(PickAt(115, bottom - 104), 115, 104);
    // The reach is in pixels, however the view is zoomed.
    Wheel(0, bottom, 6);
    EXPECT_EQ(PickAt(306, bottom - 301), (Point{100.25, 100.5}));
    EXPECT_GT(PickAt(312, bottom - 301).x, 101);
}

TEST_F(View, SnappingIsTurnedOffByItsKey) {
    const int bottom = AreaHeight() - 1;
    m_drawing.Add(LineEntity{{100.25, 100.5}, {300, 100}});
    PostKey(VK_F3);
    Handle();
    ExpectNear(PickAt(104, bottom - 104), 104, 104);
    PostKey(VK_F3);
    Handle();
    EXPECT_EQ(PickAt(104, bottom - 104), (Point{100.25, 100.5}));
}

TEST_F(View, TwoQuickClicksAreTwoPoints) {
    const LPARAM position = MAKELPARAM(50, 60);
    PostMessageW(Area(), WM_LBUTTONDBLCLK, MK_LBUTTON, position);
    EXPECT_TRUE(std::holds_alternative<Point>(m_window.Ask(L"p", std::nullopt, ASK_POINT)));
}

TEST_F(View, TheStatusLineShowsWhereTheMouseIs) {
    MoveMouse(120, AreaHeight() - 1 - 45);
    wchar_t text[100] = L"";
    SendMessageW(Part(IDC_STATUS), SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"120.0000, 45.0000");
    m_window.SetFormat(4, 1);
    SendMessageW(Part(IDC_STATUS), SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"10'-0\", 3'-9\"");
    // The point under a resting mouse changes with the view.
    m_window.SetFormat(2, 0);
    Pan(0, 0, 20, 0);
    MoveMouse(120, AreaHeight() - 1 - 45);
    SendMessageW(Part(IDC_STATUS), SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"100, 45");
}

TEST_F(View, TheStripBelowTheDrawingSharesTheHeight) {
    const int before = AreaHeight();
    const Point grabbed = PickAt(50, before - 20);
    POINT strip = {200, before + 3};
    MapWindowPoints(Area(), m_window.Handle(), &strip, 1);
    POINT onScreen = strip;
    ClientToScreen(m_window.Handle(), &onScreen);
    // Whether the mouse is on the strip is asked of the real one.
    SetCursorPos(onScreen.x, onScreen.y);
    SendMessageW(m_window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(strip.x, strip.y));
    SendMessageW(m_window.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(strip.x, strip.y - 100));
    SendMessageW(m_window.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(strip.x, strip.y - 100));
    EXPECT_NEAR(AreaHeight(), before - 100, 1);
    ExpectNear(PickAt(50, AreaHeight() - 20), grabbed.x, grabbed.y);
    SendMessageW(m_window.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(strip.x, strip.y));
    EXPECT_NEAR(AreaHeight(), before - 100, 1) << "the button is up";
}

TEST(ViewLife, OpeningDrawingAndClosingLeavesNoObjectsBehind) {
    CDrawing drawing;
    drawing.Add(CircleEntity{{200, 200}, 100});
    drawing.Add(TextEntity{{100, 100}, 20, 0.5, L"Door"});
    drawing.Add(PolylineEntity{{{0, 0}, {100, 50}, {200, 0}}, true});
    const auto useWindow = [&] {
        ForgetQuit();
        CMainWindow window(drawing);
        window.Show();
        const HWND area = GetDlgItem(window.Handle(), IDC_DRAWING);
        for (int step = 0; step < 5; ++step) {
            SendMessageW(area, WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(10, 10));
            SendMessageW(area, WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(20 + step, 10));
            SendMessageW(area, WM_MBUTTONUP, 0, 0);
            PostMessageW(area, WM_LBUTTONDOWN, 0, MAKELPARAM(200, 200));
            window.Ask(L"p", Point{0, 0}, ASK_POINT);
            window.SetItems({L"a", L"b"}, nullptr);
            UpdateWindow(area);
        }
        window.PollEscape();
    };
    useWindow();
    const int objects = GdiObjectCount();
    const int windows = WindowCount();
    for (int cycle = 0; cycle < 3; ++cycle) {
        useWindow();
    }
    EXPECT_EQ(GdiObjectCount(), objects);
    EXPECT_EQ(WindowCount(), windows);
}

TEST(ViewLife, ADrawingOutlivesItsWindow) {
    CDrawing drawing;
    { CMainWindow window(drawing); }
    EXPECT_TRUE(drawing.Add(CircleEntity{{0, 0}, 1}));
}

}  // namespace
