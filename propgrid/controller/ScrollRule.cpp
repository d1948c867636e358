#include "propgrid/controller/ScrollRule.h"

#include <algorithm>
#include <cstdlib>

namespace tavrin::propgrid {

namespace {

std::optional<int> FindThumbTarget(const ScrollState& scroll, int thumb) {
    const int current = scroll.position;
    const bool leavesStart = thumb < current && current == scroll.first;
    const bool leavesEnd = thumb > current && current == scroll.GetLast();
    return thumb == current || leavesStart || leavesEnd ? std::nullopt : std::optional(thumb);
}

}  // namespace

std::optional<int> FindScrollTarget(const ScrollState& scroll, unsigned code, int thumb, int rowHeight,
                                    int clientHeight) {
    switch (code) {
        case SC_LINE_UP:
            return std::max(scroll.position - rowHeight, scroll.first);
        case SC_LINE_DOWN:
            return std::min(scroll.position + rowHeight, scroll.GetLast());
        case SC_PAGE_UP:
            return std::max(scroll.position - clientHeight, scroll.first);
        case SC_PAGE_DOWN:
            return std::min(scroll.position + clientHeight, scroll.GetLast());
        case SC_THUMB_POSITION:
        case SC_THUMB_TRACK:
            return FindThumbTarget(scroll, thumb);
        case SC_TOP:
            return scroll.first;
        case SC_BOTTOM:
            return scroll.GetLast();
        default:
            return scroll.position;
    }
}

int FindRevealTarget(const ScrollState& scroll, int top, int rowHeight) {
    const int lowest = top + rowHeight - scroll.page;
    return std::min(std::max(scroll.position, lowest), top);
}

std::optional<int> FindWheelTarget(const ScrollState& scroll, int delta, int rowHeight) {
    constexpr int kNotch = 120;
    constexpr int kRowsPerNotch = 3;
    const int distance = std::abs(delta) / kNotch * kRowsPerNotch * rowHeight;
    if (std::abs(delta) < kNotch) {
        return std::nullopt;
    }
    return delta > 0 ? std::max(scroll.position - distance, scroll.first)
                     : std::min(scroll.position + distance, scroll.GetLast());
}

}  // namespace tavrin::propgrid
