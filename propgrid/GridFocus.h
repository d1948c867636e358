// The focused row of the grid, and where its rows were painted.
#pragma once

#include "propgrid/GridValues.h"

namespace tavrin::propgrid {

class CGridFocus : public CGridValues {
public:
    // The focused row: an item or a section, at most one of the two. Focusing one takes the focus from
    // the other; NO_ID takes it from both. False, and nothing changes, when there is no such row.
    bool SetFocusedItem(UINT item) { return SetFocusedRow({.item = item}); }
    bool SetFocusedSection(UINT section) { return SetFocusedRow({.section = section}); }
    UINT GetFocusedItem() const { return m_model.GetFocus().item; }
    UINT GetFocusedSection() const { return m_model.GetFocus().section; }

    // The rectangles that the last paint recorded. Those of a row that was not drawn are empty, but for
    // the item's name and the section's header, which then are the whole row; the items of a collapsed
    // section keep what an earlier paint gave them. False when no item, or section, has that id.
    bool GetItemRects(UINT id, CRect& name, CRect& value) const;
    bool GetSectionRects(UINT id, CRect& glyph, CRect& header) const;
    // Where a press counts as one on the focused item's edit button, as the last paint recorded it that drew
    // an editable focused item with an editor. Empty from a move of the focus to that paint.
    CRect GetEditButtonRect() const;
    int GetRowHeight() const { return m_layout.GetView().rowHeight; }

protected:
    CGridFocus() = default;
    ~CGridFocus() = default;

    // An item, a section or, empty, neither.
    bool SetFocusedRow(const RowId& row);
};

}  // namespace tavrin::propgrid
