// The main window with a drawing, and a user's hands as messages. Places in the drawing area are pixels from
// its upper left.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "devhost/window/Commands.h"
#include "devhost/window/MainWindow.h"

class CWindowFixture : public testing::Test {
protected:
    CWindowFixture();

    HWND Part(EControl part) const { return GetDlgItem(m_window.Handle(), part); }
    HWND Area() const { return Part(IDC_DRAWING); }
    int AreaHeight() const;
    static std::wstring TextOf(HWND window);
    std::wstring Output() const { return TextOf(Part(IDC_OUTPUT)); }

    // Handles what is waiting, as the window's own loop does; true when that was an Escape to stop for.
    bool Handle() { return m_window.PollEscape(); }

    // Messages that the next loop finds waiting.
    void PostClick(int x, int y) const;
    void PostKey(WPARAM key, EControl part = IDC_PROMPT) const;
    void PostLine(const std::wstring& text) const;
    void PostCommand(int command) const { PostMessageW(m_window.Handle(), WM_COMMAND, WPARAM(command), 0); }

    // Done at once.
    void MoveMouse(int x, int y) const { SendMessageW(Area(), WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    void Wheel(int x, int y, int notches) const;
    void Pan(int fromX, int fromY, int toX, int toY) const;

    // The point that a click gives.
    SPoint PickAt(int x, int y);

    CDrawing m_drawing;
    CMainWindow m_window;
};

// A window that closes asks the application to end, which the next window's loops would obey.
void ForgetQuit();

void ExpectNear(SPoint point, double x, double y);
