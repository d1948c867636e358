// What becomes of an editor's result. Each stores the value, which is also defined then, and returns what
// follows; no actions for an item of another kind, which takes no such result.
#pragma once

#include <string>

#include "propgrid/controller/Action.h"
#include "propgrid/model/GridModel.h"

namespace tavrin::propgrid {

// The in-place edit ended with a text, which the user `typed` or left as it was.
Actions TakeEditText(CGridModel& model, Id item, const std::wstring& text, bool typed);

// The list closed with a choice.
Actions TakeListChoice(CGridModel& model, Id item, int index);

// A date of the calendar was chosen.
Actions TakeCalendarDate(CGridModel& model, Id item, const DateValue& date);

// A dialog was confirmed. Nothing when the item is another one than it was opened for: it is gone, or of
// another kind.
Actions TakeDialogValue(CGridModel& model, Id item, EItemType kind, Value value);

}  // namespace tavrin::propgrid
