#include "propgrid/accessible/AccessibleList.h"

#include <algorithm>

namespace tavrin::propgrid {

using namespace accessible;

int ListContents::GetSelectedChild() const {
    return std::min(std::max(selection, 0), GetLast()) + 1;
}

unsigned ListContents::GetState(int child, const WindowCondition& window) const {
    unsigned state = StateOf(window) | STATE_FOCUSABLE;
    const bool isSelected = child == GetSelectedChild();
    if (child != kSelf) {
        state |= STATE_SELECTABLE | (isSelected ? STATE_SELECTED : STATE_NORMAL);
    }
    return window.hasFocus && (child == kSelf || isSelected) ? state | STATE_FOCUSED : state;
}

std::wstring ListContents::GetName(int child) const {
    return child == kSelf ? name : strings[static_cast<std::size_t>(child) - 1];
}

Rect ListContents::GetRect(int child) const {
    const int top = kBorder + (child - 1) * rowHeight;
    return {kBorder, top, width - kBorder, top + rowHeight};
}

int ListContents::HitTest(Point point) const {
    const Rect rows = {kBorder, kBorder, width - kBorder, kBorder + (GetLast() + 1) * rowHeight};
    return rows.Contains(point) ? (point.y - kBorder) / rowHeight + 1 : kSelf;
}

}  // namespace tavrin::propgrid
