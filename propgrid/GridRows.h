// The sections and items of the grid: how many there are, and what a client can set of each, their values
// aside.
//
// The setters are false when no item, or section, has that id; the getters then give false, an empty text or
// 0.
#pragma once

#include <string>

#include "propgrid/GridFilling.h"

namespace tavrin::propgrid {

class CGridRows : public CGridFilling {
public:
    bool SetItemEditable(UINT id, bool editable);
    bool IsItemEditable(UINT id) const;
    // Custom items cannot be undefined (false).
    bool SetItemUndefined(UINT id, bool undefined);
    bool IsItemUndefined(UINT id) const;
    std::wstring GetItemName(UINT id) const;
    // The kind of an item; false, and `kind` untouched, when no item has that id.
    bool GetItemKind(UINT id, EItemType& kind) const;

    bool SetSectionCollapsed(UINT id, bool collapsed);
    bool IsSectionCollapsed(UINT id) const;
    std::wstring GetSectionName(UINT id) const;

    std::size_t GetSectionCount() const { return m_model.GetSections().size(); }
    std::size_t GetItemCount() const { return m_model.GetItemCount(); }
    std::size_t GetSectionItemCount(UINT id) const;

protected:
    CGridRows() = default;
    ~CGridRows() = default;

    GridItem* LeaveEditorOf(Id item);
};

}  // namespace tavrin::propgrid
