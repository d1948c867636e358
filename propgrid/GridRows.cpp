#include "propgrid/GridRows.h"

namespace tavrin::propgrid {

// The result of an open editor goes to the focused item. Looks for the item again afterwards: the owner's
// handler of the result may have removed it.
GridItem* CGridRows::LeaveEditorOf(Id item) {
    if (item == m_model.GetFocus().item) {
        LeaveEditor();
    }
    return m_model.FindItem(item);
}

bool CGridRows::SetItemEditable(UINT id, bool editable) {
    GridItem* item = m_model.FindItem(id);
    if (item != nullptr && item->editable != editable) {
        item = LeaveEditorOf(id);
    }
    if (item == nullptr) {
        return false;
    }
    item->SetEditable(editable);
    StateChanged(id);
    Repaint();
    return true;
}

bool CGridRows::IsItemEditable(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr && item->editable;
}

bool CGridRows::SetItemUndefined(UINT id, bool undefined) {
    GridItem* item = m_model.FindItem(id);
    if (item != nullptr && item->undefined != undefined) {
        item = LeaveEditorOf(id);
    }
    if (item == nullptr || item->kind == IT_CUSTOM) {
        return false;
    }
    ValueChanged(id);
    Change(item->undefined, undefined);
    return true;
}

bool CGridRows::IsItemUndefined(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr && item->undefined;
}

std::wstring CGridRows::GetItemName(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr ? item->name : std::wstring();
}

bool CGridRows::GetItemKind(UINT id, EItemType& kind) const {
    const GridItem* const item = m_model.FindItem(id);
    if (item == nullptr) {
        return false;
    }
    kind = item->kind;
    return true;
}

bool CGridRows::SetSectionCollapsed(UINT id, bool collapsed) {
    if (m_model.FindSection(id) != nullptr) {
        LeaveEditor();
    }
    GridSection* const section = m_model.FindSection(id);
    if (section == nullptr) {
        return false;
    }
    m_model.SetCollapsed(*section, collapsed);
    Relayout();
    return true;
}

bool CGridRows::IsSectionCollapsed(UINT id) const {
    const GridSection* const section = m_model.FindSection(id);
    return section != nullptr && section->collapsed;
}

std::wstring CGridRows::GetSectionName(UINT id) const {
    const GridSection* const section = m_model.FindSection(id);
    return section != nullptr ? section->name : std::wstring();
}

std::size_t CGridRows::GetSectionItemCount(UINT id) const {
    const GridSection* const section = m_model.FindSection(id);
    return section != nullptr ? section->items.size() : 0;
}

}  // namespace tavrin::propgrid
