// What a client can set of the grid as a whole, with the values that it starts with.
#pragma once

#include <cstdint>
#include <string>

#include "propgrid/model/ItemType.h"
#include "propgrid/model/Value.h"

namespace tavrin::propgrid {

// The texts of the grid that are not a row's own. The captions of the buttons stay empty until the grid's
// window exists, which then looks for them among the controls of its parent.
struct GridTexts {
    std::wstring trueText = L"True";
    std::wstring falseText = L"False";
    std::wstring ok;
    std::wstring cancel;
    std::wstring date = L"Date";
    std::wstring time = L"Time";
    std::wstring undefined;
    std::wstring emptyList;
};

// The window takes them from the system when it is constructed.
struct GridColors {
    Color text = 0;
    Color title = 0;
    Color back = 0;
    Color shade = 0;
    Color focus = 0;
    Color focusText = 0;
    Color editable = 0;
    Color nonEditable = 0;
};

struct GridSettings {
    std::uint32_t displayMode = DM_CATEGORIZED;
    bool shadeHeaders = true;
    bool drawLines = true;
    bool drawDivider = true;
    bool focusNonEditable = true;
    bool keyboardEditing = false;
    bool boldModified = false;
    bool boldEditable = false;
    int gutter = 0;  // x of the divider, in pixels
    GridTexts texts;
    GridColors colors;

    bool IsCategorized() const { return displayMode == DM_CATEGORIZED; }
};

}  // namespace tavrin::propgrid
