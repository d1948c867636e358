#include "propgrid/GridFocus.h"

#include "propgrid/controller/Focus.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

bool CGridFocus::SetFocusedRow(const RowId& row) {
    const auto exists = [&] {
        return row == RowId() || m_model.FindItem(row.item) != nullptr ||
               m_model.FindSection(row.section) != nullptr;
    };
    if (!exists()) {
        return false;
    }
    if (row == m_model.GetFocus()) {
        return true;
    }
    LeaveEditor();
    if (!exists()) {
        return false;
    }
    MoveFocus(m_model, m_layout, row);
    Repaint();
    return true;
}

bool CGridFocus::GetItemRects(UINT id, CRect& name, CRect& value) const {
    const GridItem* const item = m_model.FindItem(id);
    if (item == nullptr) {
        return false;
    }
    name = ToCRect(m_layout.GetNameRect(*item));
    value = ToCRect(m_layout.GetValueRect(*item));
    return true;
}

bool CGridFocus::GetSectionRects(UINT id, CRect& glyph, CRect& header) const {
    const GridSection* const section = m_model.FindSection(id);
    if (section == nullptr) {
        return false;
    }
    glyph = ToCRect(m_layout.GetGlyphRect(*section));
    header = ToCRect(m_layout.GetHeaderRect(*section));
    return true;
}

CRect CGridFocus::GetEditButtonRect() const {
    return ToCRect(m_layout.GetEditButton());
}

}  // namespace tavrin::propgrid
