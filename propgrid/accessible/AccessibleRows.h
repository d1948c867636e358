// What assistive technology is told of the rows of a property grid: one element per row that the display has,
// numbered from 1 in the order of display, scrolled out of sight or not. In the categorised display these are
// the section headers and the items of expanded sections, in the flat ones all items.
//
// Everything is computed from the model and the layout's view as they are now, not from the last paint. The
// cost of a query grows with the number of sections, not of rows; in the sorted display the first query after
// rows were added sorts all of them. Rectangles and points are in client
// coordinates of the grid.
#pragma once

#include <optional>
#include <string>

#include "accessible/Terms.h"
#include "propgrid/layout/GridLayout.h"
#include "propgrid/model/ValueText.h"

namespace tavrin::propgrid {

class CAccessibleRows {
public:
    CAccessibleRows(const CGridModel& model, CGridLayout& layout) : m_model(model), m_layout(layout) {}
    CAccessibleRows(const CAccessibleRows&) = delete;
    CAccessibleRows& operator=(const CAccessibleRows&) = delete;

    int GetCount() const { return static_cast<int>(m_model.GetRowCount()); }
    // FindRow: the row of a child, or no row if there is none. FindChild: the child of a row, or kSelf if the
    // row is not displayed.
    RowId FindRow(int child) const;
    int FindChild(const RowId& row) const;
    // Where the focus is; kSelf when it is on none of the rows.
    int GetFocusedChild() const { return FindChild(m_model.GetFocus()); }

    // The operations below take a child from 1 to the count, the first four also kSelf for the grid itself.
    accessible::ERole GetRole(int child) const;
    unsigned GetState(int child, const accessible::WindowCondition& window) const;
    // The text of an item's value as it is displayed; a custom item supplies its own. A header has none.
    std::optional<std::wstring> GetValue(int child, const ISystemText& system) const;
    // "Edit", "Expand", "Collapse"; empty when there is nothing to do with the row, or the grid.
    std::wstring GetDefaultAction(int child) const;

    std::wstring GetName(int child) const;
    // The key that performs the default action on the focused row; empty when none does.
    std::wstring GetShortcut(int child) const;
    // Reaches beyond the client area for a row that is scrolled out of it.
    Rect GetRect(int child) const;
    // The child at a point of the client area, kSelf if it is on no row.
    int HitTest(Point point) const;

private:
    bool CanEdit(const GridItem& item) const;
    unsigned GetRowState(int child) const;

    const CGridModel& m_model;
    CGridLayout& m_layout;
};

}  // namespace tavrin::propgrid
