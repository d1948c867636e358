// The rows that the focus moves along: in the categorised display each section's header, then its items
// unless it is collapsed; in the flat ones the items in section order, deliberately in the sorted one too.
// Rows that cannot have the focus are passed over. The cost does not depend on the number of rows.
#pragma once

#include "propgrid/model/GridModel.h"

namespace tavrin::propgrid {

// The row after the focused one; after the last row, and when the focus is on none of the rows, the first. No
// row when there is none that can have the focus.
RowId FindNextRow(const CGridModel& model);

// The row before the focused one; before the first row the last. When the focus is on none of the rows there
// is deliberately none before it.
RowId FindPreviousRow(const CGridModel& model);

}  // namespace tavrin::propgrid
