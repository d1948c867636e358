// Reading what a window shows, pixel by pixel.
#pragma once

#include <windows.h>

#include <vector>

// A copy of a window's client area as it stands on the screen.
class CClientPixels {
public:
    explicit CClientPixels(HWND window);

    int Width() const { return m_width; }
    int Height() const { return m_height; }

    // The colour at a point in client coordinates; CLR_INVALID outside.
    COLORREF At(int x, int y) const;

    // How many pixels of `area` (client coordinates) have the colour.
    int Count(const RECT& area, COLORREF color) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<unsigned> m_rows;  // top down, 0x00RRGGBB
};

// Handles messages until none is waiting, paints included.
void PumpMessages();

// Handles messages until `condition` holds; false when it does not within five seconds.
template <typename Condition>
bool PumpUntil(Condition condition) {
    const ULONGLONG deadline = GetTickCount64() + 5000;
    for (;;) {
        PumpMessages();
        if (condition()) {
            return true;
        }
        if (GetTickCount64() > deadline) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}
