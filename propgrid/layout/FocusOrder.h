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

// The ends of the walk. No row when there is none that can have the focus.
RowId FindFirstRow(const CGridModel& model);
RowId FindLastRow(const CGridModel& model);

// The row `count` rows after or before the focused one; the last or the first when there are fewer. When the
// focus is on none of the rows the first one, and none before it.
RowId FindRowAhead(const CGridModel& model, int count);
RowId FindRowBack(const CGridModel& model, int count);

}  // namespace tavrin::propgrid
