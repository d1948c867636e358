// UI automation of the stand-in host's window: LISP typed at its prompt, the drawing moved and
// picked in, the units changed in the status line.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"

namespace {

struct Point {
    double x = NAN;
    double y = NAN;
};

constexpr Rgb ink{28, 36, 48};

class DevHostWindow : public testing::Test {
protected:
    void SetUp() override {
        host.Start({});
        window = Window::WithTitle("DevHost");
        ASSERT_TRUE(window.IsValid());
        screen = window.LookWhenStill();
        ASSERT_TRUE(window.Activate());
    }

    // Types a line at the prompt.
    static void Type(const std::string& line) {
        TypeText(line);
        PressKeys("Return");
    }

    // What the line gave, as it was printed.
    std::string Evaluate(const std::string& line) const {
        Type(line);
        return ResultAfter(line);
    }

    // The line after the last one that repeats what was typed.
    std::string ResultAfter(const std::string& line) const {
        std::string result;
        WaitUntil([&] {
            const std::string output = host.Output();
            const std::size_t at = output.rfind(line);
            const std::size_t start = at == std::string::npos ? at : output.find('\n', at);
            const std::size_t end =
                start == std::string::npos ? start : output.find_first_of("\r\n", start + 1);
            if (end == std::string::npos) {
                return false;
            }
            result = output.substr(start + 1, end - start - 1);
            return true;
        });
        return result;
    }

    // The point that a click gives, requested by LISP.
    Point Pick(int x, int y) {
        const std::string line = "(getpoint \"" + std::to_string(++picks) + "\")";
        Type(line);
        window.Click(x, y);
        std::istringstream result(ResultAfter(line));
        Point point;
        result.ignore(1) >> point.x >> point.y;
        return point;
    }

    // Opens a menu of the status line with a click so far from the right edge, and presses keys in it.
    void ChooseInMenu(int fromRight, const std::string& keys) const {
        const Window menu = Window::OpenedBy(
            [&] { window.Click(screen.Width() - fromRight, screen.Height() - 12); }, "devhost.exe");
        ASSERT_TRUE(menu.IsValid());
        PressKeys(keys);
        EXPECT_TRUE(WaitUntil([&] { return !menu.IsOpen(); }));
    }

    bool WaitForInk(int x, int y) const {
        return WaitUntil([&] { return window.Look().At(x, y) == ink; });
    }

    HostRun host;
    Window window;
    Screenshot screen{""};
    int picks = 0;
};

TEST_F(DevHostWindow, WhatLispDrawsCanBeZoomedPannedAndPicked) {
    // Initially one unit is one pixel, so one pick gives the origin.
    const Point first = Pick(300, 200);
    ASSERT_EQ(first.x, 300);
    const int bottom = 200 + static_cast<int>(first.y);
    EXPECT_EQ(Evaluate("(draw-line '(100.25 150) '(400.25 150))"), "T");
    EXPECT_TRUE(WaitForInk(250, bottom - 150));

    // Near the line's end the pick jumps there, far from it it stays.
    const Point end = Pick(105, bottom - 147);
    EXPECT_EQ(end.x, 100.25);
    EXPECT_EQ(end.y, 150);
    EXPECT_EQ(Pick(130, bottom - 147).x, 130);

    // Under the mouse the wheel changes nothing, beside it everything.
    window.Wheel(500, 300, 3);
    const Point under = Pick(500, 300);
    EXPECT_NEAR(under.x, 500, 1e-6);
    EXPECT_NEAR(under.y, bottom - 300, 1e-6);
    EXPECT_NEAR(Pick(600, 300).x, 500 + 100 / 1.728, 1e-6);

    window.DragMiddle(500, 300, 560, 330);
    const Point dragged = Pick(560, 330);
    EXPECT_NEAR(dragged.x, 500, 1e-6);
    EXPECT_NEAR(dragged.y, bottom - 300, 1e-6);

    // Fitted, the line's middle is the window's, and there is little space beside its ends.
    EXPECT_EQ(Evaluate("(draw-fit)"), "T");
    EXPECT_NEAR(Pick((screen.Width() - 1) / 2, 200).x, 250.25, 1);
    EXPECT_LT(Pick(29, 200).x, 100.25);
    EXPECT_GT(Pick(35, 200).x, 100.25);
    window.Press("alt+F4");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(DevHostWindow, UnitsAndPrecisionAreChosenInTheStatusLine) {
    EXPECT_EQ(Evaluate("(getvar \"LUNITS\")"), "2");
    ChooseInMenu(200, "Home Down Down Down Return");
    EXPECT_EQ(Evaluate("(list 1 (getvar \"LUNITS\"))"), "(1 4)");
    ChooseInMenu(80, "Home Down Return");
    EXPECT_EQ(Evaluate("(list 2 (getvar \"LUPREC\"))"), "(2 1)");
    window.Press("alt+F4");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(DevHostWindow, AboutTellsWhatItIs) {
    const Window menu = Window::OpenedBy([&] { window.Press("alt+h"); }, "devhost.exe");
    ASSERT_TRUE(menu.IsValid());
    PressKeys("a");
    const Window about = Window::WithTitle("About DevHost");
    ASSERT_TRUE(about.IsValid());
    EXPECT_TRUE(about.PressUntilClosed("Return"));
    window.Press("alt+F4");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(DevHostWindow, EscapeEndsAnEndlessLoop) {
    Type("(while T (setq a 1))");
    // Busy: what is typed goes nowhere.
    window.Press("Escape");
    EXPECT_TRUE(WaitUntil([&] { return host.Errors().find("cancelled") != std::string::npos; }))
        << host.Output() << host.Errors();
    EXPECT_EQ(Evaluate("(+ 1 2)"), "3");
    window.Press("alt+F4");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(DevHostWindow, CommandsAreUndoneRedoneAndTheDrawingSaved) {
    const Point first = Pick(300, 200);
    const int bottom = 200 + static_cast<int>(first.y);
    Type("(progn (draw-line '(100 150) '(400 150))");
    EXPECT_EQ(Evaluate("(draw-line '(100 250) '(400 250)))"), "T");
    EXPECT_TRUE(WaitForInk(250, bottom - 150));
    window.Press("ctrl+z");
    EXPECT_TRUE(WaitUntil([&] {
        const Screenshot now = window.Look();
        return now.At(250, bottom - 150) != ink && now.At(250, bottom - 250) != ink;
    }));
    window.Press("ctrl+y");
    EXPECT_TRUE(WaitForInk(250, bottom - 150));
    EXPECT_TRUE(WaitForInk(250, bottom - 250));
    window.Press("ctrl+s");
    const Window dialog = Window::WithTitle("Save drawing as SVG");
    ASSERT_TRUE(dialog.IsValid());
    ASSERT_TRUE(dialog.Activate());
    TypeText("saved");
    EXPECT_TRUE(dialog.PressUntilClosed("Return"));
    EXPECT_TRUE(WaitUntil([&] { return host.Output().find("saved.svg") != std::string::npos; }))
        << host.Output() << host.Errors();
    EXPECT_NE(host.Read("saved.svg").find("<line"), std::string::npos);
    window.Press("alt+F4");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

}  // namespace
