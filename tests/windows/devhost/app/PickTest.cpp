// Points and distances that the user shows in the drawing. The mouse and the keys are messages posted to the
// drawing area, whose pixels are drawing units with the origin at the lower left.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <memory>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

// Identifiers of the main window's parts.
constexpr int kDrawing = 100;
constexpr int kStatus = 103;

class Pick : public testing::Test {
protected:
    // Evaluates the call and waits until the status line shows `prompt`.
    void Start(const std::wstring& call, const std::wstring& prompt) {
        m_host = std::make_unique<CHostProcess>(std::vector<std::wstring>{L"--eval", call});
        m_drawing = m_host->Control(L"DevHostDrawing", kDrawing);
        m_status = m_host->Control(L"msctls_statusbar32", kStatus);
        ASSERT_TRUE(WaitForPrompt(prompt));
    }

    // The status line shows its first part as the window's text.
    bool WaitForPrompt(const std::wstring& prompt) const {
        return WaitUntil([&] { return TextOf(m_status) == prompt; });
    }

    // Clicks at a point, in drawing units.
    void Click(int x, int y) const {
        RECT client;
        GetClientRect(m_drawing, &client);
        const LPARAM position = MAKELPARAM(x, client.bottom - 1 - y);
        PostMessageW(m_drawing, WM_MOUSEMOVE, 0, position);
        PostMessageW(m_drawing, WM_LBUTTONDOWN, MK_LBUTTON, position);
        PostMessageW(m_drawing, WM_LBUTTONUP, 0, position);
    }

    void Press(WPARAM key) const { PostMessageW(m_drawing, WM_KEYDOWN, key, 0); }

    // The result of the call, after DevHost has exited with status 0.
    std::string Result() const {
        const Outcome outcome = m_host->Wait();
        EXPECT_EQ(outcome.status, 0u);
        EXPECT_EQ(outcome.errors, "");
        return outcome.output.substr(0, outcome.output.find('\n'));
    }

    COLORREF PixelAt(int x, int y) const {
        RECT client;
        GetClientRect(m_drawing, &client);
        POINT position = {x, client.bottom - 1 - y};
        ClientToScreen(m_drawing, &position);
        const HDC screen = GetDC(nullptr);
        const COLORREF pixel = GetPixel(screen, position.x, position.y);
        ReleaseDC(nullptr, screen);
        return pixel;
    }

    std::unique_ptr<CHostProcess> m_host;
    HWND m_drawing = nullptr;
    HWND m_status = nullptr;
};

TEST_F(Pick, TheNextClickGivesThePoint) {
    Start(L"(pick-point \"\\nWhere? \")", L"Where? ");
    Click(120, 45);
    EXPECT_EQ(Result(), "(5100 120.0 45.0 0.0)");
}

TEST_F(Pick, TheOriginIsTheLowerLeftPixel) {
    Start(L"(pick-point \"p\")", L"p");
    Click(0, 0);
    EXPECT_EQ(Result(), "(5100 0.0 0.0 0.0)");
}

TEST_F(Pick, ADistanceFromABaseTakesOneClick) {
    Start(L"(pick-distance \"\\nSelect second point: \" 10.0 20.0)", L"Select second point: ");
    Click(13, 24);
    EXPECT_EQ(Result(), "(5100 5.0)");
}

TEST_F(Pick, ADistanceWithoutABaseTakesTwo) {
    Start(L"(pick-distance \"First: \")", L"First: ");
    Click(10, 20);
    ASSERT_TRUE(WaitForPrompt(L"Second point: "));
    Click(13, 24);
    EXPECT_EQ(Result(), "(5100 5.0)");
}

TEST_F(Pick, EscapeCancelsWithAStatusOfItsOwn) {
    Start(L"(pick-point \"p\")", L"p");
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    EXPECT_EQ(Result(), "(-5002 -1.0 -1.0 -1.0)");
}

TEST_F(Pick, EscapeCancelsTheSecondPointOfADistanceToo) {
    Start(L"(pick-distance \"First: \")", L"First: ");
    Click(10, 20);
    ASSERT_TRUE(WaitForPrompt(L"Second point: "));
    Press(VK_ESCAPE);
    EXPECT_EQ(Result(), "(-5002 -1.0)");
}

TEST_F(Pick, ClosingTheWindowCancelsThePickAndNotTheHost) {
    Start(L"(pick-point \"p\") (pick-point \"q\")", L"p");
    SendMessageW(m_host->MainWindow(), WM_CLOSE, 0, 0);
    ASSERT_TRUE(WaitForPrompt(L"q"));
    PostMessageW(m_host->MainWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(Result(), "(-5002 -1.0 -1.0 -1.0)");
}

TEST_F(Pick, TheEndOfTheApplicationCancelsThePickAndEveryLaterOne) {
    Start(L"(pick-point \"p\") (pick-point \"q\")", L"p");
    PostThreadMessageW(m_host->ThreadId(), WM_QUIT, 0, 0);
    const Outcome outcome = m_host->Wait();
    EXPECT_EQ(outcome.output, "(-5002 -1.0 -1.0 -1.0)\n(-5002 -1.0 -1.0 -1.0)\n; heap: 0 blocks held\n");
}

TEST_F(Pick, ASecondPickWithinTheFirstIsRefused) {
    EXPECT_EQ(Evaluate(L"(pick-twice-at-once)"), "(-5001 -5002)\n");
}

TEST_F(Pick, WithTheMainWindowDisabledThePickFailsAtOnce) {
    EXPECT_EQ(Evaluate(L"(pick-while-disabled)"), "(-5001 -1.0 -1.0 -1.0)\n");
}

TEST_F(Pick, ADialogMayHideItselfForThePick) {
    Start(L"(pick-behind-dialog)", L"Behind the dialog: ");
    EXPECT_EQ(GetForegroundWindow(), m_host->MainWindow());
    Click(7, 8);
    EXPECT_EQ(Result(), "(5100 7.0 8.0 0.0)");
}

TEST_F(Pick, PickedPointsStayAsCrossesAndALineFollowsTheMouse) {
    Start(L"(pick-distance \"First: \") (pick-point \"Stay\")", L"First: ");
    const COLORREF sheet = RGB(250, 250, 245);
    ASSERT_TRUE(WaitUntil([&] { return PixelAt(300, 150) == sheet; }));
    Click(200, 150);
    ASSERT_TRUE(WaitForPrompt(L"Second point: "));
    const COLORREF cross = RGB(0, 60, 160);
    EXPECT_TRUE(WaitUntil([&] { return PixelAt(200, 150) == cross; }));

    const auto lineAlong = [&](int y) {
        int pixels = 0;
        for (int x = 220; x < 380; ++x) {
            pixels += PixelAt(x, y) != sheet;
        }
        return pixels;
    };
    EXPECT_EQ(lineAlong(150), 0);
    RECT client;
    GetClientRect(m_drawing, &client);
    PostMessageW(m_drawing, WM_MOUSEMOVE, 0, MAKELPARAM(400, client.bottom - 1 - 150));
    EXPECT_TRUE(WaitUntil([&] { return lineAlong(150) > 50; }));

    Click(400, 100);
    ASSERT_TRUE(WaitForPrompt(L"Stay"));
    EXPECT_TRUE(WaitUntil([&] { return PixelAt(400, 100) == cross && lineAlong(150) == 0; }));
    for (const auto& [x, y] : {std::pair(195, 150), {205, 150}, {200, 145}, {200, 155}, {400, 105}}) {
        EXPECT_EQ(PixelAt(x, y), cross) << x << ", " << y;
    }
    for (const auto& [x, y] : {std::pair(194, 150), {206, 150}, {200, 144}, {200, 156}, {201, 151}}) {
        EXPECT_EQ(PixelAt(x, y), sheet) << x << ", " << y;
    }
    Press(VK_ESCAPE);
    EXPECT_EQ(Result(), "(5100 206.15528128088303)");
}

TEST_F(Pick, TheStatusLineShowsTheMouseInTheDrawingsUnits) {
    CHostProcess host({L"--lunits", L"4", L"--luprec", L"1", L"--eval", L"(pick-point \"p\")"});
    m_drawing = host.Control(L"DevHostDrawing", kDrawing);
    m_status = host.Control(L"msctls_statusbar32", kStatus);
    ASSERT_TRUE(WaitForPrompt(L"p"));
    RECT client;
    GetClientRect(m_drawing, &client);
    // The parts' texts cannot be fetched from another process, but their lengths can. The real mouse may
    // move over the window as it opens, hence more than one try.
    EXPECT_TRUE(WaitUntil([&] {
        SendMessageW(m_drawing, WM_MOUSEMOVE, 0, MAKELPARAM(15, client.bottom - 1 - 24));
        const auto length = LOWORD(SendMessageW(m_status, SB_GETTEXTLENGTHW, 1, 0));
        return length == std::wstring(L"1'-3\", 2'-0\"").size();
    }));
    Press(VK_ESCAPE);
    host.Wait();
}

}  // namespace
