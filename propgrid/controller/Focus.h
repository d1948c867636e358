// Moving the focus.
#pragma once

#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

// Every move of the focus goes through here: the edit button belongs to the row that had it, until a paint
// records the new one.
inline void MoveFocus(CGridModel& model, CGridLayout& layout, const RowId& row) {
    model.SetFocus(row);
    layout.ForgetEditButton();
}

}  // namespace tavrin::propgrid
