#include "propgrid/model/GridItem.h"

#include <algorithm>

#include "propgrid/model/ICustomItem.h"

namespace tavrin::propgrid {

void GridItem::SetEditable(bool newEditable) {
    if (editable == newEditable) {
        return;
    }
    editable = newEditable;
    std::vector<std::uint32_t>& rows = section->editableRows;
    const auto position = std::lower_bound(rows.begin(), rows.end(), row);
    if (editable) {
        rows.insert(position, row);
    } else {
        rows.erase(position);
    }
}

void GridItem::TakeSavedCopy() {
    savedUndefined = undefined;
    saved = value;
    if (ICustomItem* const custom = GetCustomItem()) {
        custom->AcceptValue();
    }
}

bool GridItem::IsModified() const {
    return kind != IT_CUSTOM && !IsSameValue(value, saved);
}

int GridItem::GetEditMode() const {
    switch (kind) {
        case IT_CUSTOM:
            return GetCustomItem()->GetEditMode();
        case IT_STRING:
        case IT_INTEGER:
        case IT_DOUBLE:
            return EM_INPLACE;
        case IT_COMBO:
        case IT_BOOLEAN:
        case IT_DATE:
            return EM_DROPDOWN;
        default:
            return EM_MODAL;
    }
}

ICustomItem* GridItem::GetCustomItem() const {
    return kind == IT_CUSTOM ? std::get<ICustomItem*>(value) : nullptr;
}

const std::wstring& GridItem::GetOption() const {
    static const std::wstring none;
    return options.empty() ? none : options.front();
}

}  // namespace tavrin::propgrid
