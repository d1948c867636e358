// Scaling for the screen's resolution.
#pragma once

#include <windows.h>

#include "handles/GdiScopes.h"

namespace devhost {

// Converts pixels at 96 dpi to pixels of this screen.
class CScale {
public:
    CScale() {
        const tavrin::handles::CClientDc screen(nullptr);
        m_dots = GetDeviceCaps(screen.Get(), LOGPIXELSY);
    }

    int operator()(int pixels) const { return MulDiv(pixels, m_dots, 96); }

private:
    int m_dots = 96;
};

}  // namespace devhost
