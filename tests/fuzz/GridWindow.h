// The window that both grids of the fuzz target have: what the system keeps for it, and a record of what was
// asked of the system and of the client.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/fuzz/GridStep.h"

namespace tests {

enum EWindowCall {
    WC_CAPTURE,
    WC_END_CAPTURE,
    WC_OPEN_TEXT,
    WC_OPEN_LIST,
    WC_OPEN_CALENDAR,
    WC_DIALOG,
    WC_CUSTOM_PRESS,
    WC_CUSTOM_MOVE,
    WC_CUSTOM_UP,
    WC_CUSTOM_TEXT,
    WC_CUSTOM_DROP_DOWN,
    WC_CUSTOM_BUTTON,
    WC_CUSTOM_ACCEPT,
    WC_NOTIFY,
    WC_DEFAULT,
};

// A call to the system, the owner or a custom item.
struct WindowCall {
    EWindowCall kind;
    Id item = kNoId;
    Rect rect = {};
    Point point = {};
    std::wstring text = {};
    bool operator==(const WindowCall&) const = default;
};

// The system's scroll bar, which clamps its position to its range.
struct ScrollBar {
    static constexpr int kWidth = 17;

    bool exists = false;
    bool shown = false;
    int end = 0;
    int page = 0;
    int position = 0;
    bool operator==(const ScrollBar&) const = default;

    void Show(int newEnd, int newPage, int newPosition) {
        exists = true;
        shown = true;
        end = newEnd;
        page = newPage;
        MoveTo(newPosition);
    }
    void MoveTo(int target) { position = std::max(std::min(target, end - std::max(page - 1, 0)), 0); }
};

enum EEditor { ED_NONE, ED_TEXT, ED_LIST, ED_CALENDAR };
enum EShownCursor { SC_ARROW, SC_SIZE };

// Of a row that was drawn.
struct DrawnRow {
    Id section = kNoId;
    Id item = kNoId;
    Rect row;
    Rect name;
    Rect value;
    Rect button;
    int editMode = EM_CUSTOM;  // that the button is drawn for
    bool operator==(const DrawnRow&) const = default;
};

struct GridWindow {
    Size client;
    ScrollBar bar;
    EEditor editor = ED_NONE;
    std::wstring openedText;  // of the text edit
    std::wstring text;
    bool typed = false;
    bool captured = false;
    EShownCursor cursor = SC_ARROW;
    std::array<CustomState, kCustomItems> customs;
    std::vector<WindowCall> calls;
    std::vector<DrawnRow> drawn;  // by the last paint
    bool operator==(const GridWindow&) const = default;
};

// What the client does the next time that it is called, once.
using Reaction = std::optional<Step>;

}  // namespace tests
