// What keys and characters mean to the grid: moving the focus from row to row, collapsing and expanding
// sections.
//
// The window ends an open editor and paints what is still to be painted before it hands one of these on: the
// editor belongs to the row that had the focus, and revealing a row goes by the recorded rectangles.
#pragma once

#include "propgrid/controller/Action.h"
#include "propgrid/controller/ScrollRule.h"
#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

// The keys, with the system's numbers.
enum EKey : unsigned { KEY_LEFT = 37, KEY_UP = 38, KEY_RIGHT = 39, KEY_DOWN = 40 };

class CKeyController {
public:
    CKeyController(CGridModel& model, CGridLayout& layout) : m_model(model), m_layout(layout) {}

    // Whether a key is one of the grid's. The others have their default handling.
    static bool IsGridKey(unsigned key);
    // Whether a character collapses or expands something, or would if it were not so already.
    bool ChangesSections(wchar_t character) const;

    // Down and Up move the focus to the next or previous row; Right expands and Left collapses a focused
    // section, and else they do the same. `scroll` is what the scroll bar holds.
    Actions PressKey(unsigned key, const ScrollState& scroll);

    // "*" expands and "/" collapses all sections, "+" expands and "-" collapses the focused one.
    Actions TypeCharacter(wchar_t character);

private:
    Actions FocusRow(const RowId& row, const ScrollState& scroll);
    Actions CollapseAll(bool collapse);
    Actions CollapseFocused(bool collapse);
    GridSection* FindFocusedSection(bool collapsed);

    CGridModel& m_model;
    CGridLayout& m_layout;
};

}  // namespace tavrin::propgrid
