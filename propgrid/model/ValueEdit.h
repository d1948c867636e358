// What becomes of an item's value when the user has edited it. None of these is for custom items.
#pragma once

#include <string>

#include "propgrid/model/GridItem.h"

namespace tavrin::propgrid {

// Whether the in-place edit takes the item's text; a custom item's too.
bool IsEditedAsText(const GridItem& item);

// The text that the in-place edit ended with; `typed` when the user touched it. False when nothing changes: a
// number keeps its value when the text is empty. A text that was left as it stood stands for the value
// itself, of which it need not have all digits or lines.
bool TakeText(GridItem& item, const std::wstring& text, bool typed);

// The index that was chosen from the list. It is deliberately stored as it comes, whether there is such a
// choice or not; a Boolean is true for 0. False for another kind.
bool TakeChoice(GridItem& item, int index);

// The date that was chosen from the calendar, of which a Date keeps the day. False for another kind.
bool TakeDate(GridItem& item, const DateValue& date);

// A double click: inverts a Boolean, gives a Combo its next choice, whether the item is editable or not.
// False for another kind, for an undefined item and for a Combo without choices.
bool AdvanceValue(GridItem& item);

}  // namespace tavrin::propgrid
