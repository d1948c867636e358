// What the drawing area shows, pixel by pixel.
#include <functional>

#include "tests/windows/devhost/window/WindowFixture.h"
#include "tests/windows/support/Pixels.h"

using namespace tests;
using namespace devhost;

namespace {

constexpr COLORREF kSheet = RGB(250, 250, 245);
constexpr COLORREF kInk = RGB(28, 36, 48);
constexpr COLORREF kSnapMark = RGB(214, 112, 0);

class Paint : public CWindowFixture {
protected:
    // The area once everything has been painted.
    CClientPixels Look() {
        Handle();
        UpdateWindow(Area());
        return CClientPixels(Area());
    }
    int Y(int y) const { return AreaHeight() - 1 - y; }
};

TEST_F(Paint, LinesAreOnePixelOfInkWhereTheirUnitsSay) {
    m_drawing.Add(LineEntity{{50, 110}, {250, 110}});
    const CClientPixels pixels = Look();
    for (const int x : {50, 51, 150, 249, 250}) {
        EXPECT_EQ(pixels.At(x, Y(110)), kInk) << x;
    }
    for (const int x : {49, 251}) {
        EXPECT_EQ(pixels.At(x, Y(110)), kSheet) << x;
    }
    EXPECT_EQ(pixels.At(150, Y(111)), kSheet);
    EXPECT_EQ(pixels.At(150, Y(109)), kSheet);
}

TEST_F(Paint, AFrameShowsTheFocusThatAKeyGave) {
    constexpr COLORREF frame = RGB(0, 60, 160);
    EXPECT_EQ(Look().At(5, 0), kSheet);
    PostKey(VK_F6);
    const CClientPixels focused = Look();
    EXPECT_EQ(focused.At(5, 0), frame);
    EXPECT_EQ(focused.At(focused.Width() - 1, focused.Height() - 1), frame);
    EXPECT_EQ(focused.At(10, 10), kSheet);
    PostKey(VK_F6, IDC_DRAWING);
    EXPECT_EQ(Look().At(5, 0), kSheet);
    m_window.SetBusy(true);
    EXPECT_EQ(Look().At(5, 0), kSheet) << "the focus that no key gave";
    m_window.SetBusy(false);
}

TEST_F(Paint, EveryKindOfEntityShows) {
    m_drawing.Add(PolylineEntity{{{30, 30}, {70, 30}, {70, 70}}, true});
    m_drawing.Add(CircleEntity{{150, 150}, 35});
    m_drawing.Add(ArcEntity{{250, 150}, 35, 0, 3.14159265358979});
    m_drawing.Add(TextEntity{{310, 110}, 30, 0, L"HHH"});
    const CClientPixels pixels = Look();
    EXPECT_EQ(pixels.At(45, Y(30)), kInk);
    EXPECT_EQ(pixels.At(50, Y(50)), kInk) << "the line that closes";
    EXPECT_EQ(pixels.At(150, Y(185)), kInk);
    EXPECT_EQ(pixels.At(150, Y(115)), kInk);
    EXPECT_EQ(pixels.At(250, Y(185)), kInk);
    EXPECT_NE(pixels.At(250, Y(115)), kInk) << "the half that the arc leaves out";
    EXPECT_GT(pixels.Count({310, Y(140), 400, Y(109)}, kInk), 100);
    EXPECT_EQ(pixels.Count({310, Y(108), 400, Y(80)}, kInk), 0) << "below the base line";
    EXPECT_EQ(pixels.Count({310, Y(160), 400, Y(143)}, kInk), 0) << "above a capital's height";
}

TEST_F(Paint, ATextTurnsCounterClockwise) {
    m_drawing.Add(TextEntity{{210, 110}, 20, 1.5707963267949, L"HHHH"});
    const CClientPixels pixels = Look();
    EXPECT_GT(pixels.Count({188, Y(180), 211, Y(110)}, kInk), 100);
    EXPECT_EQ(pixels.Count({213, Y(180), 300, Y(90)}, kInk), 0);
}

TEST_F(Paint, FollowsTheDrawing) {
    EXPECT_NE(Look().At(75, Y(75)), kInk);
    m_drawing.Add(LineEntity{{10, 10}, {100, 100}});
    EXPECT_EQ(Look().At(75, Y(75)), kInk);
    m_drawing.Clear();
    EXPECT_NE(Look().At(75, Y(75)), kInk);
}

TEST_F(Paint, ALineKeepsItsPositionHoweverFarItIsZoomed) {
    // Through the middle of a pixel that stays where it is.
    m_drawing.Add(LineEntity{{50, 60}, {250, 160}});
    Wheel(150, Y(110), 80);
    const CClientPixels pixels = Look();
    EXPECT_EQ(pixels.At(150, Y(110)), kInk);
    EXPECT_EQ(pixels.At(200, Y(135)), kInk);
    EXPECT_EQ(pixels.At(50, Y(60)), kInk);
}

TEST_F(Paint, PannedOutOfSightNothingIsLeft) {
    m_drawing.Add(CircleEntity{{150, 150}, 35});
    Pan(0, 0, 5000, 0);
    RECT area;
    GetClientRect(Area(), &area);
    EXPECT_EQ(Look().Count(area, kInk), 0);
}

TEST_F(Paint, TheSnapShowsAMarkWhilePicking) {
    m_drawing.Add(LineEntity{{110, 110}, {250, 110}});
    RECT area;
    GetClientRect(Area(), &area);
    MoveMouse(112, Y(112));
    EXPECT_EQ(Look().Count(area, kSnapMark), 0);
    int marked = 0;
    m_window.SetFormatHandler([&](int, int) { marked = Look().Count(area, kSnapMark); });
    PostCommand(IDM_UNITS + 2);
    PostKey(VK_ESCAPE);
    m_window.Ask(L"p", std::nullopt, ASK_POINT);
    EXPECT_GT(marked, 20);
    EXPECT_EQ(Look().Count(area, kSnapMark), 0);
}

TEST_F(Paint, ALineFollowsTheMouseFromABaseHoweverFarAway) {
    constexpr COLORREF rubber = RGB(120, 120, 120);
    MoveMouse(200, Y(150));
    int atMouse = 0;
    int beside = 0;
    m_window.SetFormatHandler([&](int, int) {
        const CClientPixels pixels = Look();
        atMouse = pixels.Count({100, Y(150), 180, Y(150) + 1}, rubber);
        beside = pixels.Count({220, Y(150), 300, Y(150) + 1}, rubber);
    });
    PostCommand(IDM_UNITS + 2);
    PostKey(VK_ESCAPE);
    m_window.Ask(L"p", Point{-1e9, 150}, ASK_POINT);
    EXPECT_GT(atMouse, 20);
    EXPECT_EQ(beside, 0);
    RECT area;
    GetClientRect(Area(), &area);
    EXPECT_EQ(Look().Count(area, rubber), 0);
}

TEST_F(Paint, CrossesKeepTheirPositionInTheDrawingUntilItIsCleared) {
    constexpr COLORREF cross = RGB(0, 60, 160);
    PickAt(150, Y(110));
    EXPECT_EQ(Look().At(155, Y(110)), cross);
    Wheel(150, Y(110), 3);
    EXPECT_EQ(Look().At(155, Y(110)), cross);
    Pan(0, 0, 40, 0);
    EXPECT_EQ(Look().At(195, Y(110)), cross);
    SendMessageW(m_window.Handle(), WM_COMMAND, IDM_CLEAR, 0);
    EXPECT_NE(Look().At(195, Y(110)), cross);
}

TEST_F(Paint, AVerySmallAndAVeryLargeWindowWork) {
    m_drawing.Add(CircleEntity{{150, 150}, 35});
    for (const int size : {0, 1, 40, 3000}) {
        MoveWindow(m_window.Handle(), 0, 0, size, size, TRUE);
        Look();
    }
    MoveWindow(m_window.Handle(), 0, 0, 900, 700, TRUE);
    EXPECT_EQ(Look().At(150, Y(185)), kInk);
}

constexpr COLORREF kPlaced = RGB(130, 140, 155);

std::function<void()> s_look;

// A lambda has no calling convention of its own, which matters in a 32-bit program.
void CALLBACK LookAndCancel(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    s_look();
    PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0);
}

// What is drawn while a point is asked for: `look` is called once, before the question is cancelled.
void DuringQuestion(CMainWindow& window, std::optional<Point> base, std::function<void()> look) {
    s_look = std::move(look);
    EXPECT_NE(SetTimer(nullptr, 0, 10, LookAndCancel), 0u);
    window.Ask(L"Where? ", base, ASK_POINT);
}

TEST_F(Paint, ThePlacementFollowsTheMouseWhileAPointIsAskedFor) {
    m_drawing.BeginPlacement();
    m_drawing.Add(LineEntity{{10, 10}, {60, 10}});
    m_drawing.EndPlacement();
    MoveMouse(200, Y(100));
    EXPECT_NE(Look().At(235, Y(110)), kPlaced) << "without a question";
    DuringQuestion(m_window, std::nullopt, [this] {
        MoveMouse(200, Y(100));
        UpdateWindow(Area());
        const CClientPixels pixels(Area());
        EXPECT_EQ(pixels.At(235, Y(110)), kPlaced);
        EXPECT_EQ(pixels.At(260, Y(110)), kPlaced);
        EXPECT_NE(pixels.At(262, Y(110)), kPlaced);
        MoveMouse(300, Y(100));
        UpdateWindow(Area());
        EXPECT_NE(CClientPixels(Area()).At(235, Y(110)), kPlaced);
        EXPECT_EQ(CClientPixels(Area()).At(335, Y(110)), kPlaced);
    });
    m_drawing.ClearPlacement();
    EXPECT_TRUE(m_drawing.Entities().empty());
}

TEST_F(Paint, LengthAndDirectionAreShownAtTheMouseFromTheFirstPointOn) {
    const COLORREF info = GetSysColor(COLOR_INFOBK);
    const RECT right = {210, Y(100) + 10, 300, Y(100) + 30};
    DuringQuestion(m_window, std::nullopt, [&] {
        MoveMouse(200, Y(100));
        UpdateWindow(Area());
        EXPECT_EQ(CClientPixels(Area()).Count(right, info), 0);
    });
    DuringQuestion(m_window, Point{100, 100}, [&] {
        MoveMouse(200, Y(100));
        UpdateWindow(Area());
        EXPECT_GT(CClientPixels(Area()).Count(right, info), 200);
        RECT client;
        GetClientRect(Area(), &client);
        MoveMouse(client.right - 10, client.bottom - 5);
        UpdateWindow(Area());
        EXPECT_GT(CClientPixels(Area()).Count(
                      {client.right - 150, client.bottom - 40, client.right - 20, client.bottom - 10}, info),
                  200)
            << "to the left and above where there is no room";
    });
}

}  // namespace
