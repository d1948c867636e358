// Where the rows scroll to. Positions are pixels from the top of the rows.
#pragma once

#include <optional>

namespace tavrin::propgrid {

// What the scroll bar holds.
struct ScrollState {
    int first = 0;
    int end = 0;  // the height of the rows
    int page = 0;
    int position = 0;

    int GetLast() const { return end - page; }
};

// The codes of the scroll bar's messages, with the system's numbers.
enum EScrollCode : unsigned {
    SC_LINE_UP = 0,
    SC_LINE_DOWN = 1,
    SC_PAGE_UP = 2,
    SC_PAGE_DOWN = 3,
    SC_THUMB_POSITION = 4,
    SC_THUMB_TRACK = 5,
    SC_TOP = 6,
    SC_BOTTOM = 7,
    SC_END_SCROLL = 8,
};

// The position that a code leads to; `thumb` is for the two codes of the thumb. Nothing when the thumb is
// there, or would leave an end outwards. An unknown code leads to where it is.
std::optional<int> FindScrollTarget(const ScrollState& scroll, unsigned code, int thumb, int rowHeight,
                                    int clientHeight);

// The position nearest to the present one that shows a row in full, or its top where the page is lower than
// it. `top` is the row's, from the top of the rows.
int FindRevealTarget(const ScrollState& scroll, int top, int rowHeight);

// The position that a turn of the wheel leads to: three rows for each notch, up when `delta` is positive.
// Nothing for less than a notch.
std::optional<int> FindWheelTarget(const ScrollState& scroll, int delta, int rowHeight);

}  // namespace tavrin::propgrid
