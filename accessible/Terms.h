// The terms in which a window describes its elements to assistive technology such as screen readers. The
// numbers are those of the system's accessibility interface (MSAA).
//
// Elements are known by child ids: 0 is the window's client area, 1 to n are its children, which have no
// objects of their own.
#pragma once

namespace tavrin::accessible {

inline constexpr int kSelf = 0;

enum ERole : int {
    ROLE_LIST = 0x21,
    ROLE_LIST_ITEM = 0x22,
    ROLE_OUTLINE = 0x23,
    ROLE_OUTLINE_ITEM = 0x24,
    ROLE_GRAPHIC = 0x28,
};

// Flags, or'ed together.
enum EState : unsigned {
    STATE_NORMAL = 0,
    STATE_UNAVAILABLE = 0x1,
    STATE_SELECTED = 0x2,
    STATE_FOCUSED = 0x4,
    STATE_READ_ONLY = 0x40,
    STATE_EXPANDED = 0x200,
    STATE_COLLAPSED = 0x400,
    STATE_INVISIBLE = 0x8000,
    STATE_OFF_SCREEN = 0x10000,
    STATE_FOCUSABLE = 0x100000,
    STATE_SELECTABLE = 0x200000,
};

enum EDirection : int {
    DIRECTION_UP = 1,
    DIRECTION_DOWN = 2,
    DIRECTION_LEFT = 3,
    DIRECTION_RIGHT = 4,
    DIRECTION_NEXT = 5,
    DIRECTION_PREVIOUS = 6,
    DIRECTION_FIRST_CHILD = 7,
    DIRECTION_LAST_CHILD = 8,
};

// What a window reports of its elements.
enum EEvent : unsigned {
    EVENT_REORDER = 0x8004,  // children were added or removed, or stand in another order
    EVENT_FOCUS = 0x8005,
    EVENT_SELECTION = 0x8006,
    EVENT_STATE_CHANGE = 0x800A,
    EVENT_VALUE_CHANGE = 0x800E,
};

// What the window is like, from which its elements take some of their states.
struct WindowCondition {
    bool visible = true;
    bool enabled = true;
    bool hasFocus = false;
};

// The states that the client area and each element have in a window of this condition.
constexpr unsigned StateOf(const WindowCondition& window) {
    return (window.visible ? STATE_NORMAL : STATE_INVISIBLE) |
           (window.enabled ? STATE_NORMAL : STATE_UNAVAILABLE);
}

// The child that lies in a direction of `start` when `count` children stand one below the other; kSelf when
// there is none. From the client area there are the first and the last child alone.
constexpr int FindNeighbor(EDirection direction, int start, int count) {
    if (start == kSelf) {
        const bool isFirst = direction == DIRECTION_FIRST_CHILD;
        return isFirst && count > 0 ? 1 : direction == DIRECTION_LAST_CHILD ? count : kSelf;
    }
    switch (direction) {
        case DIRECTION_UP:
        case DIRECTION_PREVIOUS:
            return start - 1;
        case DIRECTION_DOWN:
        case DIRECTION_NEXT:
            return start < count ? start + 1 : kSelf;
        default:
            return kSelf;
    }
}

}  // namespace tavrin::accessible
