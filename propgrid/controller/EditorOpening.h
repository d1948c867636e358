// Opening the focused item's editor without the mouse, and where the editors stand.
//
// The window ends an open editor and paints what is still to be painted before it asks for one: positions go
// by the recorded rectangles. An item that is out of sight is scrolled into view first.
#pragma once

#include <optional>

#include "propgrid/controller/Action.h"
#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

// The in-place edit of an item whose edit mode is EM_INPLACE or EM_INPLACE_BUTTON. `cell` reaches from the
// divider to the row's right edge.
action::OpenTextEdit PlaceTextEdit(const GridItem& item, const Rect& cell, int rowHeight);

// The scroll that brings the focused row into view in full; none when it is so already, was never painted, or
// nothing scrolls.
std::optional<action::ScrollTo> RevealFocusedRow(const CGridLayout& layout);

class CEditorOpening {
public:
    CEditorOpening(CGridModel& model, const CGridLayout& layout) : m_model(model), m_layout(layout) {}

    // Opens what edits the item: the in-place edit with its text, the list, the calendar, the dialog. Nothing
    // for a row that is not an editable item in display, or whose custom item wants the mouse alone.
    Actions Open() const;

    // Presses the button at the end of the row: runs the dialog of an EM_MODAL or EM_INPLACE_BUTTON item.
    // Nothing for the others.
    Actions PressButton() const;

    // Whether the item has an in-place edit; opens it with a character that replaces the text.
    bool TakesText() const;
    Actions OpenWith(wchar_t character) const;

    // Whether the item is a Boolean with a value; inverts it.
    bool IsBoolean() const;
    Actions InvertBoolean();

private:
    const GridItem* FindEditableItem() const;

    CGridModel& m_model;
    const CGridLayout& m_layout;
};

}  // namespace tavrin::propgrid
