// Finds out whether a step of a press outlasted the press.
#pragma once

#include <afxwin.h>

#include <utility>

namespace tavrin::propgrid {

// A step of a press may run a message loop, such as a message box's, in which the release of the button goes
// to another window. Messages of the mouse may also come without a mouse: then the button is never down,
// which says nothing.
class CPressWatch {
public:
    explicit CPressWatch(HWND window)
        : m_window(window),
          m_wasDown(IsButtonDown()),
          m_marked(::PostMessage(window, kMark, 0, 0) != FALSE) {}
    ~CPressWatch() { RemoveMark(); }
    CPressWatch(const CPressWatch&) = delete;
    CPressWatch& operator=(const CPressWatch&) = delete;

    // Whether a message loop ran since: it has removed the mark.
    bool HasLoopRun() { return m_marked && !RemoveMark(); }
    // Whether the button was down, and is no longer.
    bool WasReleased() const { return m_wasDown && !IsButtonDown(); }

private:
    // Posted to the grid and taken back by it.
    static constexpr UINT kMark = WM_USER + 490;

    static bool IsButtonDown() { return ::GetKeyState(VK_LBUTTON) < 0; }
    bool RemoveMark() {
        MSG mark;
        return std::exchange(m_marked, false) &&
               ::PeekMessage(&mark, m_window, kMark, kMark, PM_REMOVE) != FALSE;
    }

    HWND m_window;
    bool m_wasDown;
    bool m_marked;
};

}  // namespace tavrin::propgrid
