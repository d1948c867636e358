// The property grid's client interface: adding rows, reading and setting their values and properties.
#include <type_traits>
#include <utility>

#include "propgrid/PropertyGrid.h"

UINT CPropertyGrid::AddSection(const std::wstring& name, bool collapsed, UINT before) {
    const UINT id = m_contents.AddSection(name, collapsed, before);
    RelayoutForMoreRows();
    return id;
}

UINT CPropertyGrid::AddItem(UINT section, EItemType kind, const std::wstring& name, const void* value,
                            bool editable, bool undefined) {
    CGridValue read;
    if (!ReadGridValue(kind, value, read)) {
        return NO_ID;
    }
    const UINT id = m_contents.AddItem(section, kind, name, std::move(read), editable, undefined);
    if (id != NO_ID) {
        RelayoutForMoreRows();
    }
    return id;
}

UINT CPropertyGrid::AddItemWithOption(UINT section, EItemType kind, const std::wstring& name,
                                      const void* value, const std::wstring& option, bool editable,
                                      bool undefined) {
    const UINT id = AddItem(section, kind, name, value, editable, undefined);
    // The usual format is what a number without one has: a row costs less so.
    const bool isUsual = (kind == IT_INTEGER && option == L"%d") || (kind == IT_DOUBLE && option == L"%g");
    CGridItem* const item = m_contents.FindItem(id);
    if (item != nullptr && !isUsual) {
        item->options.assign(1, option);
    }
    return id;
}

UINT CPropertyGrid::AddStringItem(UINT section, const std::wstring& name, const std::wstring& value,
                                  bool editable, bool undefined) {
    return AddItem(section, IT_STRING, name, &value, editable, undefined);
}

UINT CPropertyGrid::AddTextItem(UINT section, const std::wstring& name, const std::wstring& value,
                                bool editable, bool undefined) {
    return AddItem(section, IT_TEXT, name, &value, editable, undefined);
}

UINT CPropertyGrid::AddIntegerItem(UINT section, const std::wstring& name, int value,
                                   const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_INTEGER, name, &value, format, editable, undefined);
}

UINT CPropertyGrid::AddDoubleItem(UINT section, const std::wstring& name, double value,
                                  const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DOUBLE, name, &value, format, editable, undefined);
}

UINT CPropertyGrid::AddComboItem(UINT section, const std::wstring& name,
                                 const std::vector<std::wstring>& choices, int value, bool editable,
                                 bool undefined) {
    const UINT id = AddItem(section, IT_COMBO, name, &value, editable, undefined);
    if (CGridItem* const item = m_contents.FindItem(id)) {
        item->options = choices;
    }
    return id;
}

UINT CPropertyGrid::AddBooleanItem(UINT section, const std::wstring& name, bool value, bool editable,
                                   bool undefined) {
    return AddItem(section, IT_BOOLEAN, name, &value, editable, undefined);
}

UINT CPropertyGrid::AddDateItem(UINT section, const std::wstring& name, const COleDateTime& value,
                                const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DATE, name, &value, format, editable, undefined);
}

UINT CPropertyGrid::AddDateTimeItem(UINT section, const std::wstring& name, const COleDateTime& value,
                                    const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DATETIME, name, &value, format, editable, undefined);
}

UINT CPropertyGrid::AddFileItem(UINT section, const std::wstring& name, const std::wstring& path,
                                const std::wstring& filter, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_FILE, name, &path, filter, editable, undefined);
}

UINT CPropertyGrid::AddFolderItem(UINT section, const std::wstring& name, const std::wstring& path,
                                  const std::wstring& title, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_FOLDER, name, &path, title, editable, undefined);
}

UINT CPropertyGrid::AddColorItem(UINT section, const std::wstring& name, COLORREF value, bool editable,
                                 bool undefined) {
    return AddItem(section, IT_COLOR, name, &value, editable, undefined);
}

UINT CPropertyGrid::AddFontItem(UINT section, const std::wstring& name, const LOGFONTW& value, bool editable,
                                bool undefined) {
    return AddItem(section, IT_FONT, name, &value, editable, undefined);
}

UINT CPropertyGrid::AddCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable) {
    if (item == nullptr) {
        return NO_ID;
    }
    // Known to the item before it is asked to accept its value, and forgotten again if there is no row.
    CPropertyGrid* const previous = std::exchange(item->m_pGrid, this);
    const UINT id = AddItem(section, IT_CUSTOM, name, item, editable, false);
    if (id == NO_ID) {
        item->m_pGrid = previous;
    }
    return id;
}

void CPropertyGrid::ResetContents() {
    // The focused ids deliberately stay.
    m_contents.Clear();
    Relayout();
}

template <class T>
bool CPropertyGrid::ReadValue(UINT id, T& value) const {
    const CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr || item->undefined) {
        return false;
    }
    const T* const stored = std::get_if<T>(&item->value);
    if (stored == nullptr) {
        return false;
    }
    value = *stored;
    return true;
}

bool CPropertyGrid::GetItemValue(UINT item, int& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, double& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, std::wstring& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, bool& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, COleDateTime& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, COLORREF& value) const {
    return ReadValue(item, value);
}
bool CPropertyGrid::GetItemValue(UINT item, ICustomItem*& value) const {
    return ReadValue(item, value);
}

bool CPropertyGrid::GetItemValue(UINT item, LOGFONTW& value) const {
    CGridFont font;
    if (!ReadValue(item, font)) {
        return false;
    }
    value = *font;
    return true;
}

template <class T>
bool CPropertyGrid::WriteValue(UINT id, T value) {
    CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr || !std::holds_alternative<T>(item->value)) {
        return false;
    }
    item->value = std::move(value);
    item->undefined = false;
    Repaint();
    return true;
}

bool CPropertyGrid::SetItemValue(UINT item, int value) {
    return WriteValue(item, value);
}
bool CPropertyGrid::SetItemValue(UINT item, double value) {
    return WriteValue(item, value);
}
bool CPropertyGrid::SetItemValue(UINT item, const std::wstring& value) {
    return WriteValue(item, value);
}
bool CPropertyGrid::SetItemValue(UINT item, bool value) {
    return WriteValue(item, value);
}
bool CPropertyGrid::SetItemValue(UINT item, const COleDateTime& value) {
    return WriteValue(item, value);
}
bool CPropertyGrid::SetItemValue(UINT item, COLORREF value) {
    return WriteValue(item, value);
}

bool CPropertyGrid::SetItemValue(UINT item, const LOGFONTW& value) {
    return WriteValue<CGridFont>(item, std::make_shared<const LOGFONTW>(value));
}

bool CPropertyGrid::SetItemValue(UINT item, ICustomItem* value) {
    if (value == nullptr || !WriteValue(item, value)) {
        return false;
    }
    value->m_pGrid = this;
    return true;
}

void CPropertyGrid::AcceptValues() {
    for (CGridItem* const item : m_contents.WalkAll()) {
        item->TakeSavedCopy();
    }
    Repaint();
}

bool CPropertyGrid::IsItemModified(UINT id) const {
    const CGridItem* const item = m_contents.FindItem(id);
    return item != nullptr && item->IsModified();
}

bool CPropertyGrid::SetItemEditable(UINT id, bool editable) {
    CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr) {
        return false;
    }
    Change(item->editable, editable);
    return true;
}

bool CPropertyGrid::IsItemEditable(UINT id) const {
    const CGridItem* const item = m_contents.FindItem(id);
    return item != nullptr && item->editable;
}

bool CPropertyGrid::SetItemUndefined(UINT id, bool undefined) {
    CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr || item->kind == IT_CUSTOM) {
        return false;
    }
    Change(item->undefined, undefined);
    return true;
}

bool CPropertyGrid::IsItemUndefined(UINT id) const {
    const CGridItem* const item = m_contents.FindItem(id);
    return item != nullptr && item->undefined;
}

std::wstring CPropertyGrid::GetItemName(UINT id) const {
    const CGridItem* const item = m_contents.FindItem(id);
    return item != nullptr ? item->name : std::wstring();
}

bool CPropertyGrid::GetItemKind(UINT id, EItemType& kind) const {
    const CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr) {
        return false;
    }
    kind = item->kind;
    return true;
}

std::wstring CPropertyGrid::GetItemText(UINT id) const {
    const CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr) {
        return {};
    }
    const CWindowDC screen(nullptr);
    return item->GetText(m_texts, screen.GetDeviceCaps(LOGPIXELSY));
}

bool CPropertyGrid::SetSectionCollapsed(UINT id, bool collapsed) {
    CGridSection* const section = m_contents.FindSection(id);
    if (section == nullptr) {
        return false;
    }
    m_contents.SetCollapsed(*section, collapsed);
    Relayout();
    return true;
}

bool CPropertyGrid::IsSectionCollapsed(UINT id) const {
    const CGridSection* const section = m_contents.FindSection(id);
    return section != nullptr && section->collapsed;
}

std::wstring CPropertyGrid::GetSectionName(UINT id) const {
    const CGridSection* const section = m_contents.FindSection(id);
    return section != nullptr ? section->name : std::wstring();
}

std::size_t CPropertyGrid::GetSectionItemCount(UINT id) const {
    const CGridSection* const section = m_contents.FindSection(id);
    return section != nullptr ? section->items.size() : 0;
}

bool CPropertyGrid::SetFocusedItem(UINT id) {
    if (id != NO_ID && m_contents.FindItem(id) == nullptr) {
        return false;
    }
    m_focusedSection = NO_ID;
    Change(m_focusedItem, id);
    return true;
}

bool CPropertyGrid::SetFocusedSection(UINT id) {
    if (id != NO_ID && m_contents.FindSection(id) == nullptr) {
        return false;
    }
    m_focusedItem = NO_ID;
    Change(m_focusedSection, id);
    return true;
}

bool CPropertyGrid::GetItemRects(UINT id, CRect& name, CRect& value) const {
    const CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr) {
        return false;
    }
    name = item->GetNameRect();
    value = item->GetValueRect();
    return true;
}

bool CPropertyGrid::GetSectionRects(UINT id, CRect& glyph, CRect& header) const {
    const CGridSection* const section = m_contents.FindSection(id);
    if (section == nullptr) {
        return false;
    }
    glyph = section->glyphRect;
    header = section->headerRect;
    return true;
}

void CPropertyGrid::SetDisplayMode(UINT mode) {
    m_displayMode = mode;
    Relayout();
}

void CPropertyGrid::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    m_texts.trueText = trueText;
    Change(m_texts.falseText, falseText);
}
