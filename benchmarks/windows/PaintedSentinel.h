// Detects when a dialog has been painted completely: a full-screen window that owns the dialog. Windows sends
// WM_PAINT from the front window to the back, so the owner's, requested when the dialog shows, comes last.
#pragma once

#include <windows.h>

#include <functional>

namespace tavrin::benchmarks {

// One at a time.
class CPaintedSentinel {
public:
    CPaintedSentinel();
    ~CPaintedSentinel();
    CPaintedSentinel(const CPaintedSentinel&) = delete;
    CPaintedSentinel& operator=(const CPaintedSentinel&) = delete;

    HWND Window() const { return m_window; }

    // Calls `painted` once, when the next dialog has shown and been painted.
    void Expect(std::function<void()> painted) { m_painted = std::move(painted); }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK WatchMessages(int code, WPARAM wParam, LPARAM lParam);

    static CPaintedSentinel* s_active;
    HWND m_window;
    HHOOK m_hook;
    std::function<void()> m_painted;
    bool m_dialogShows = false;
};

}  // namespace tavrin::benchmarks
