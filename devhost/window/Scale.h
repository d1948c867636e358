// Scaling for the screen's resolution.
#pragma once

#include <windows.h>

#include "handles/GdiScopes.h"

namespace devhost {

// Converts pixels at 96 dpi to pixels of the monitor that shows DevHost. At the start that is the system's
// resolution.
class CScale {
public:
    int operator()(int pixels) const { return MulDiv(pixels, Resolution(), 96); }

    // In dots per inch; for every scale.
    static int GetResolution() { return Resolution(); }
    static void SetResolution(int dotsPerInch) { Resolution() = dotsPerInch; }

    static int GetSystemResolution() {
        const tavrin::handles::CClientDc screen(nullptr);
        return GetDeviceCaps(screen.Get(), LOGPIXELSY);
    }

private:
    static int& Resolution() {
        static int resolution = GetSystemResolution();
        return resolution;
    }
};

}  // namespace devhost
