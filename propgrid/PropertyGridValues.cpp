// The property grid's client interface: adding rows, reading and setting their values and properties.
#include <type_traits>
#include <utility>

#include "propgrid/PropertyGrid.h"

UINT CPropertyGrid::AddSection(const std::wstring& name, bool collapsed, UINT before) {
    const UINT id = m_contents.AddSection(name, collapsed, before);
    LayOutNewRow();
    return id;
}

UINT CPropertyGrid::AddItem(UINT section, EItemType kind, const std::wstring& name, const void* value,
                            bool editable, bool undefined) {
    return AddItemWithOptions(section, kind, name, value, {}, editable, undefined);
}

UINT CPropertyGrid::AddItemWithOptions(UINT section, EItemType kind, const std::wstring& name,
                                       const void* value, std::vector<std::wstring> options, bool editable,
                                       bool undefined) {
    CGridValue read;
    if (!ReadGridValue(kind, value, read)) {
        return NO_ID;
    }
    const UINT id = kind == IT_CUSTOM
                        ? InsertCustomItem(section, name, std::get<ICustomItem*>(read), editable)
                        : m_contents.AddItem(section, kind, name, std::move(read), editable, undefined);
    CGridItem* const item = m_contents.FindItem(id);
    if (item != nullptr) {
        item->options = std::move(options);
        LayOutNewRow();
    }
    return id;
}

// The item knows the grid before it is asked to accept its value, and forgets it again if there is no row.
UINT CPropertyGrid::InsertCustomItem(UINT section, const std::wstring& name, ICustomItem* item,
                                     bool editable) {
    CPropertyGrid* const previous = std::exchange(item->m_pGrid, this);
    const UINT id = m_contents.AddItem(section, IT_CUSTOM, name, item, editable, false);
    if (id == NO_ID) {
        item->m_pGrid = previous;
    }
    return id;
}

// After a row was added with all that it has: the end of an editor may bring the client to look at it.
void CPropertyGrid::LayOutNewRow() {
    LeaveEditor();
    RelayoutForMoreRows();
}

UINT CPropertyGrid::AddItemWithOption(UINT section, EItemType kind, const std::wstring& name,
                                      const void* value, const std::wstring& option, bool editable,
                                      bool undefined) {
    // The usual format is what a number without one has: a row costs less so.
    const bool isUsual = (kind == IT_INTEGER && option == L"%d") || (kind == IT_DOUBLE && option == L"%g");
    std::vector<std::wstring> options;
    if (!isUsual) {
        options.push_back(option);
    }
    return AddItemWithOptions(section, kind, name, value, std::move(options), editable, undefined);
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
    return AddItemWithOptions(section, IT_COMBO, name, &value, choices, editable, undefined);
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
    return AddItem(section, IT_CUSTOM, name, item, editable);
}

void CPropertyGrid::ResetContents() {
    LeaveEditor();
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
    const auto find = [&] {
        CGridItem* const found = m_contents.FindItem(id);
        return found != nullptr && std::holds_alternative<T>(found->value) ? found : nullptr;
    };
    if (find() != nullptr) {
        LeaveEditorOf(id);
    }
    CGridItem* const item = find();
    if (item == nullptr) {
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

// The value of an open editor goes to the focused row. Looks for the row again afterwards: whoever hears of
// the value may have removed it.
CGridItem* CPropertyGrid::LeaveEditorOf(UINT id) {
    if (id == m_focusedItem) {
        LeaveEditor();
    }
    return m_contents.FindItem(id);
}

bool CPropertyGrid::SetItemEditable(UINT id, bool editable) {
    CGridItem* item = m_contents.FindItem(id);
    if (item != nullptr && item->editable != editable) {
        item = LeaveEditorOf(id);
    }
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
    CGridItem* item = m_contents.FindItem(id);
    if (item != nullptr && item->undefined != undefined) {
        item = LeaveEditorOf(id);
    }
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
    if (m_contents.FindSection(id) != nullptr) {
        LeaveEditor();
    }
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
    return SetFocusedRow({.item = id});
}

bool CPropertyGrid::SetFocusedSection(UINT id) {
    return SetFocusedRow({.section = id});
}

bool CPropertyGrid::SetFocusedRow(const CRow& row) {
    const auto exists = [&] {
        return row == CRow() || m_contents.FindItem(row.item) != nullptr ||
               m_contents.FindSection(row.section) != nullptr;
    };
    if (!exists()) {
        return false;
    }
    if (row == CRow{m_focusedSection, m_focusedItem}) {
        return true;
    }
    LeaveEditor();
    if (!exists()) {
        return false;
    }
    MoveFocus(row);
    Repaint();
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
    LeaveEditor();
    m_displayMode = mode;
    Relayout();
}

void CPropertyGrid::SetGutterWidth(int x) {
    if (x != m_gutter) {
        LeaveEditor();
    }
    Change(m_gutter, x);
}

void CPropertyGrid::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    m_texts.trueText = trueText;
    Change(m_texts.falseText, falseText);
}
