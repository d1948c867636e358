#include "propgrid/GridValues.h"

#include <utility>

#include "propgrid/PropertyGrid.h"
#include "propgrid/painter/FrameworkTypes.h"
#include "propgrid/painter/SystemText.h"

namespace tavrin::propgrid {

template <class T>
const T* CGridValues::FindValue(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr && !item->undefined ? std::get_if<T>(&item->value) : nullptr;
}

template <class T>
bool CGridValues::ReadValue(UINT id, T& value) const {
    const T* const stored = FindValue<T>(id);
    if (stored == nullptr) {
        return false;
    }
    value = *stored;
    return true;
}

bool CGridValues::GetItemValue(UINT item, int& value) const {
    return ReadValue(item, value);
}
bool CGridValues::GetItemValue(UINT item, double& value) const {
    return ReadValue(item, value);
}
bool CGridValues::GetItemValue(UINT item, std::wstring& value) const {
    return ReadValue(item, value);
}
bool CGridValues::GetItemValue(UINT item, bool& value) const {
    return ReadValue(item, value);
}
bool CGridValues::GetItemValue(UINT item, ICustomItem*& value) const {
    return ReadValue(item, value);
}

bool CGridValues::GetItemValue(UINT item, COleDateTime& value) const {
    const auto* const date = FindValue<DateValue>(item);
    if (date != nullptr) {
        value = ToOleDate(*date);
    }
    return date != nullptr;
}

bool CGridValues::GetItemValue(UINT item, COLORREF& value) const {
    const auto* const color = FindValue<Color>(item);
    if (color != nullptr) {
        value = *color;
    }
    return color != nullptr;
}

bool CGridValues::GetItemValue(UINT item, LOGFONTW& value) const {
    const auto* const font = FindValue<FontPointer>(item);
    if (font != nullptr) {
        value = ToLogFont(**font);
    }
    return font != nullptr;
}

template <class T>
bool CGridValues::WriteValue(UINT id, T value) {
    const auto find = [&] {
        GridItem* const item = m_model.FindItem(id);
        return item != nullptr && std::holds_alternative<T>(item->value) ? item : nullptr;
    };
    if (find() != nullptr) {
        LeaveEditorOf(id);
    }
    GridItem* const item = find();
    if (item == nullptr) {
        return false;
    }
    item->value = std::move(value);
    item->undefined = false;
    ValueChanged(id);
    Repaint();
    return true;
}

bool CGridValues::SetItemValue(UINT item, int value) {
    return WriteValue(item, value);
}
bool CGridValues::SetItemValue(UINT item, double value) {
    return WriteValue(item, value);
}
bool CGridValues::SetItemValue(UINT item, const std::wstring& value) {
    return WriteValue(item, value);
}
bool CGridValues::SetItemValue(UINT item, bool value) {
    return WriteValue(item, value);
}
bool CGridValues::SetItemValue(UINT item, const COleDateTime& value) {
    return WriteValue(item, ToDateValue(value));
}
bool CGridValues::SetItemValue(UINT item, COLORREF value) {
    return WriteValue(item, static_cast<Color>(value));
}
bool CGridValues::SetItemValue(UINT item, const LOGFONTW& value) {
    return WriteValue(item, ToFontPointer(value));
}

bool CGridValues::SetItemValue(UINT item, ICustomItem* value) {
    if (value == nullptr || !WriteValue(item, value)) {
        return false;
    }
    value->m_pGrid = static_cast<CPropertyGrid*>(this);
    return true;
}

std::wstring CGridValues::GetItemText(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    if (item == nullptr) {
        return {};
    }
    const CWindowDC screen(nullptr);
    return GetValueText(*item, m_model.settings.texts, CSystemText(screen.GetDeviceCaps(LOGPIXELSY)));
}

// By id: a custom item that accepts its value may remove rows.
void CGridValues::AcceptValues() {
    for (Id id = 0; id < m_model.GetItemCount(); ++id) {
        m_model.FindItem(id)->TakeSavedCopy();
    }
    Repaint();
}

bool CGridValues::IsItemModified(UINT id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr && item->IsModified();
}

}  // namespace tavrin::propgrid
