// The window messages of the property grid: its notification to its owner, and those that its editors send
// to it. All are sent synchronously; their numbers are fixed.
//
// An editor sends its message to its owner window, to its parent when it has no owner: to the grid. The
// grid may destroy the editor's window and delete its object before the message returns.
#pragma once

#include <afxwin.h>

namespace tavrin::propgrid {

// Sent to the grid's owner window, its parent unless an owner was set, after the user changed a value:
// wParam is the item's id, lParam 0.
inline constexpr UINT WM_GRID_ITEM_CHANGED = WM_USER + 486;

// From CPropertyGridCombo: a choice was made. wParam is its index, signed, which may lie outside the list;
// lParam 0.
inline constexpr UINT WM_GRID_CHOICE_MADE = WM_USER + 487;

// From CPropertyGridInPlaceEdit: the edit ended. wParam points to its final text (wide, ended by a NUL),
// which is valid during the message alone; lParam 0.
inline constexpr UINT WM_GRID_EDIT_DONE = WM_USER + 488;

// From CPropertyGridMonthCalCtrl: a date was chosen, which is the calendar's current selection; wParam and
// lParam 0.
inline constexpr UINT WM_GRID_DATE_CHOSEN = WM_USER + 489;

}  // namespace tavrin::propgrid
