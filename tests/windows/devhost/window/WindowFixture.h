// The main window with a drawing, and simulated input. Positions in the drawing area are pixels from its
// upper left.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "devhost/window/Commands.h"
#include "devhost/window/MainWindow.h"

namespace tests {

using namespace devhost;

class CWindowFixture : public testing::Test {
protected:
    CWindowFixture();

    HWND Part(EControl part) const { return GetDlgItem(m_window.Handle(), part); }
    HWND Area() const { return Part(IDC_DRAWING); }
    int AreaHeight() const;
    static std::wstring TextOf(HWND window);
    std::wstring Output() const { return TextOf(Part(IDC_OUTPUT)); }

    // Handles the waiting messages like the window's own loop. True when Escape was pressed.
    bool Handle() { return m_window.PollEscape(); }

    // Posted messages, for the next message loop.
    void PostClick(int x, int y) const;
    void PostKey(WPARAM key, EControl part = IDC_PROMPT) const;
    void PostLine(const std::wstring& text) const;
    void PostCommand(int command) const {
        PostMessageW(m_window.Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    }

    // Sent messages.
    void MoveMouse(int x, int y) const { SendMessageW(Area(), WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    void Wheel(int x, int y, int notches) const;
    void Pan(int fromX, int fromY, int toX, int toY) const;

    // The point that a click gives.
    Point PickAt(int x, int y);

    CDrawing m_drawing;
    CMainWindow m_window;
};

// Removes the WM_QUIT of a closed window, which would end the next window's message loops.
void ForgetQuit();

void ExpectNear(Point point, double x, double y);

}  // namespace tests
