// Sizes for the screen's resolution.
#pragma once

#include <windows.h>

#include "devhost/window/GdiScope.h"

// Turns pixels of a screen with 96 dots per inch into those of this one.
class CScale {
public:
    CScale() {
        const CWindowDc screen(nullptr);
        m_dots = GetDeviceCaps(screen.Get(), LOGPIXELSY);
    }

    int operator()(int pixels) const { return MulDiv(pixels, m_dots, 96); }

private:
    int m_dots = 96;
};
