// Where the controls of a dialog assembled at run time go, and how large the dialog becomes by them.
//
// All coordinates are dialog units; a rectangle's right and bottom are exclusive.
#pragma once

#include <cstdint>

namespace tavrin::dyndlg {

struct DialogRect {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const DialogRect&) const = default;
};

// The dialog itself, with the field sizes of a dialog template: what does not fit in 16 bits is cut off.
struct DialogExtent {
    std::int16_t x = 0, y = 0, cx = 0, cy = 0;
    bool operator==(const DialogExtent&) const = default;
};

struct StandardButtonRects {
    DialogRect ok, cancel;
};

class CDialogLayout {
public:
    // Adds a control. One with a rectangle of its own keeps it; one without (null) gets the next row,
    // from x 10 to `defaultRight`. Both use up a row of 12. The result is the control's rectangle.
    DialogRect Place(const DialogRect* rect, std::int32_t defaultRight);

    // Leaves a gap of 6 and returns the rectangles of OK and Cancel, side by side below it. The buttons
    // themselves are placed like any control, by their rectangles.
    StandardButtonRects StartStandardButtons();

    // Reaches 5 beyond the rightmost and the lowest control; starts at 0, 0 or at a control that is left of
    // or above that.
    const DialogExtent& Extent() const { return m_extent; }

private:
    void Include(const DialogRect& rect);

    std::int32_t m_nextRow = 10;
    DialogExtent m_extent;
};

}  // namespace tavrin::dyndlg
