// What both grids of the fuzz target are given, the one under test and the simple one: steps of a client and
// of a user, and values.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "propgrid/layout/Geometry.h"
#include "propgrid/model/ItemType.h"

namespace tests {

using namespace tavrin::propgrid;

// A value of every kind at once: one slot for each class of storage.
struct SlotValue {
    int number = 0;
    double real = 0;
    std::wstring text;
    bool flag = false;
    double days = 0;
    int status = 0;
    std::uint32_t color = 0;
    std::array<std::uint8_t, 92> font = {};
    unsigned custom = 0;  // which of the client's custom items
};

// The same value for the same seed; neighbouring seeds differ in some slots.
SlotValue MakeValue(unsigned seed);
std::wstring MakeText(unsigned seed);

// How the client's custom items behave.
struct CustomState {
    int mode = 0;
    bool takesPress = false;
    bool changes = false;  // what a text, or the button, leads to
    std::wstring text = L"custom";
    bool operator==(const CustomState&) const = default;
};
inline constexpr unsigned kCustomItems = 3;

enum EStep {
    // Of the client; any of them may also come while the client is called.
    ST_ADD_SECTION,
    ST_ADD_ITEM,
    ST_RESET,
    ST_REBUILD,
    ST_MODE,
    ST_GUTTER,
    ST_FOCUS_NON_EDITABLE,
    ST_COLLAPSE,
    ST_EDITABLE,
    ST_VALUE,
    ST_UNDEFINED,
    ST_CHOICES,
    ST_ACCEPT,
    ST_FOCUS_ITEM,
    ST_FOCUS_SECTION,
    ST_CUSTOM,
    // Of the user and of the system.
    ST_RESIZE,
    ST_PRESS,
    ST_RELEASE,
    ST_MOVE,
    ST_DOUBLE_CLICK,
    ST_LOSE_CAPTURE,
    ST_KEY,
    ST_CHARACTER,
    ST_WHEEL,
    ST_SCROLL,
    ST_TYPE,
    ST_END_TEXT,
    ST_CHOOSE,
    ST_DATE,
    ST_CLOSE_EDITOR,
    ST_PAINT,
};
inline constexpr int kClientSteps = ST_RESIZE;

struct Step {
    EStep kind = ST_PAINT;
    Id id = kNoId;   // of the section or item
    int number = 0;  // kind of the item, mode, key, code, ...
    int other = 0;   // a further number
    bool flag = false;
    bool flag2 = false;
    unsigned seed = 0;  // of a value, a text, a name
    Point point;
};

template <class TGrid>
void RunItemStep(TGrid& grid, const Step& step) {
    switch (step.kind) {
        case ST_EDITABLE:
            return grid.SetEditable(step.id, step.flag);
        case ST_VALUE:
            return grid.SetValue(step.id, MakeValue(step.seed));
        case ST_UNDEFINED:
            return grid.SetUndefined(step.id, step.flag);
        case ST_CHOICES:
            return grid.SetChoices(step.id, step.number);
        case ST_ACCEPT:
            return grid.AcceptValues();
        case ST_FOCUS_ITEM:
            return grid.FocusItem(step.id);
        case ST_FOCUS_SECTION:
            return grid.FocusSection(step.id);
        case ST_CUSTOM:
            return grid.ChangeCustom(static_cast<unsigned>(step.other),
                                     {step.number, step.flag, step.flag2, MakeText(step.seed)});
        default:
            return;
    }
}

// A client's call of either grid.
template <class TGrid>
void RunClientStep(TGrid& grid, const Step& step) {
    const auto kind = static_cast<EItemType>(step.number);
    switch (step.kind) {
        case ST_ADD_SECTION:
            return grid.AddSection(MakeText(step.seed), step.flag, step.id);
        case ST_ADD_ITEM:
            return grid.AddItem(step.id, kind, MakeText(step.seed), MakeValue(step.seed), step.flag,
                                step.flag2);
        case ST_RESET:
            return grid.Reset();
        case ST_REBUILD:
            grid.Reset();
            grid.AddSection(L"again", step.flag, kNoId);
            return grid.AddItem(0, kind, L"again", MakeValue(step.seed), true, step.flag2);
        case ST_MODE:
            return grid.SetDisplayMode(static_cast<std::uint32_t>(step.number));
        case ST_GUTTER:
            return grid.SetGutter(step.number);
        case ST_FOCUS_NON_EDITABLE:
            return grid.SetFocusNonEditable(step.flag);
        case ST_COLLAPSE:
            return grid.SetCollapsed(step.id, step.flag);
        default:
            return RunItemStep(grid, step);
    }
}

template <class TGrid>
void RunEditorStep(TGrid& grid, const Step& step) {
    switch (step.kind) {
        case ST_TYPE:
            return grid.TypeText(MakeText(step.seed));
        case ST_END_TEXT:
            return grid.EndText(step.flag);
        case ST_CHOOSE:
            return grid.Choose(step.number);
        case ST_DATE:
            return grid.ChooseDate(MakeValue(step.seed).days);
        case ST_CLOSE_EDITOR:
            return grid.CloseEditor();
        default:
            return;
    }
}

// What the user, or the system, does to either grid. The seed of a release or a double click answers a
// dialog.
template <class TGrid>
void RunUserStep(TGrid& grid, const Step& step) {
    switch (step.kind) {
        case ST_RESIZE:
            return grid.Resize({step.number, step.other});
        case ST_PRESS:
            return grid.Press(step.point);
        case ST_RELEASE:
            return grid.Release(step.point, step.seed);
        case ST_MOVE:
            return grid.Move(step.point);
        case ST_DOUBLE_CLICK:
            return grid.DoubleClick(step.seed);
        case ST_LOSE_CAPTURE:
            return grid.LoseCapture();
        case ST_KEY:
            return grid.PressKey(static_cast<unsigned>(step.number));
        case ST_CHARACTER:
            return grid.TypeCharacter(static_cast<wchar_t>(step.number));
        case ST_WHEEL:
            return grid.TurnWheel(step.number);
        case ST_SCROLL:
            return grid.Scroll(static_cast<unsigned>(step.number), step.other);
        case ST_PAINT:
            return grid.Paint();
        default:
            return RunEditorStep(grid, step);
    }
}

}  // namespace tests
