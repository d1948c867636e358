#include "propgrid/painter/ModifiedMark.h"

#include "propgrid/model/Contrast.h"

namespace tavrin::propgrid {

namespace {

bool IsHighContrastOn() {
    HIGHCONTRAST contrast = {};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfo(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

void MarkModified(CDC& dc) {
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(kModifiedColor);
    if (IsHighContrastOn() && GetContrast(dc.GetTextColor(), kModifiedColor) < kReadableContrast) {
        dc.SetTextColor(RGB(0, 0, 0));
    }
}

}  // namespace tavrin::propgrid
