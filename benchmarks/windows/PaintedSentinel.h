// Tells when a dialog has been painted whole: a window of the whole screen that owns the dialog. Paints come
// from the front to the back, so the owner's own, asked for when the dialog shows, comes last.
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
