#include "propgrid/accessible/AccessibleRows.h"

#include "propgrid/model/ICustomItem.h"

namespace tavrin::propgrid {

using namespace accessible;

namespace {

// The number of rows that a section has in the display.
int CountRows(const CGridModel& model, const GridSection& section) {
    const int header = model.settings.IsCategorized() ? 1 : 0;
    return header + (model.ShowsItemsOf(section) ? static_cast<int>(section.items.size()) : 0);
}

// The number of rows above a section's own.
int CountRowsAbove(const CGridModel& model, const GridSection& section) {
    int rows = 0;
    for (std::size_t position = 0; position < section.position; ++position) {
        rows += CountRows(model, *model.GetSections()[position]);
    }
    return rows;
}

}  // namespace

RowId CAccessibleRows::FindRow(int child) const {
    if (child < 1 || child > GetCount()) {
        return {};
    }
    int row = child - 1;
    if (m_model.settings.displayMode == DM_SORTED) {
        return {.item = m_layout.GetSortedItems()[static_cast<std::size_t>(row)]->id};
    }
    for (const GridSection* const section : m_model.GetSections()) {
        const int rows = CountRows(m_model, *section);
        if (row >= rows) {
            row -= rows;
            continue;
        }
        if (m_model.settings.IsCategorized() && row-- == 0) {
            return {.section = section->id};
        }
        return {.item = section->items[static_cast<std::size_t>(row)]->id};
    }
    return {};
}

int CAccessibleRows::FindChild(const RowId& row) const {
    const bool hasHeaders = m_model.settings.IsCategorized();
    if (const GridSection* const section = m_model.FindSection(row.section)) {
        return hasHeaders ? CountRowsAbove(m_model, *section) + 1 : kSelf;
    }
    const GridItem* const item = m_model.FindItem(row.item);
    if (item == nullptr || !m_model.ShowsItemsOf(*item->section)) {
        return kSelf;
    }
    if (m_model.settings.displayMode == DM_SORTED) {
        return static_cast<int>(m_layout.GetSortedRow(*item)) + 1;
    }
    return CountRowsAbove(m_model, *item->section) + (hasHeaders ? 1 : 0) + static_cast<int>(item->row) + 1;
}

ERole CAccessibleRows::GetRole(int child) const {
    if (m_model.settings.IsCategorized()) {
        return child == kSelf ? ROLE_OUTLINE : ROLE_OUTLINE_ITEM;
    }
    return child == kSelf ? ROLE_LIST : ROLE_LIST_ITEM;
}

unsigned CAccessibleRows::GetState(int child, const WindowCondition& window) const {
    const bool isFocused = child == kSelf || child == GetFocusedChild();
    unsigned state = StateOf(window) | (child == kSelf ? STATE_FOCUSABLE : GetRowState(child));
    if (isFocused && window.hasFocus) {
        state |= STATE_FOCUSED;
    }
    return window.enabled ? state : state & ~unsigned{STATE_FOCUSABLE | STATE_SELECTABLE};
}

unsigned CAccessibleRows::GetRowState(int child) const {
    constexpr unsigned kCanFocus = STATE_FOCUSABLE | STATE_SELECTABLE;
    const Size area = m_layout.GetRowArea();
    const bool inSight = !Intersect(GetRect(child), {0, 0, area.width, area.height}).IsEmpty();
    unsigned state = inSight ? STATE_NORMAL : STATE_OFF_SCREEN;
    state |= child == GetFocusedChild() ? STATE_SELECTED : STATE_NORMAL;
    const RowId row = FindRow(child);
    if (const GridSection* const section = m_model.FindSection(row.section)) {
        return state | kCanFocus | (section->collapsed ? STATE_COLLAPSED : STATE_EXPANDED);
    }
    const GridItem& item = *m_model.FindItem(row.item);
    state |= m_model.CanFocus(item) ? kCanFocus : STATE_NORMAL;
    return state | (item.editable ? STATE_NORMAL : STATE_READ_ONLY);
}

std::wstring CAccessibleRows::GetName(int child) const {
    const RowId row = FindRow(child);
    if (const GridSection* const section = m_model.FindSection(row.section)) {
        return section->name;
    }
    const GridItem* const item = m_model.FindItem(row.item);
    return item != nullptr ? item->name : std::wstring();
}

std::optional<std::wstring> CAccessibleRows::GetValue(int child, const ISystemText& system) const {
    const GridItem* const item = m_model.FindItem(FindRow(child).item);
    if (item == nullptr) {
        return std::nullopt;
    }
    ICustomItem* const custom = item->GetCustomItem();
    return custom != nullptr ? custom->GetStringValue() : GetValueText(*item, m_model.settings.texts, system);
}

std::wstring CAccessibleRows::GetDefaultAction(int child) const {
    const RowId row = FindRow(child);
    if (const GridSection* const section = m_model.FindSection(row.section)) {
        return section->collapsed ? L"Expand" : L"Collapse";
    }
    const GridItem* const item = m_model.FindItem(row.item);
    return item != nullptr && CanEdit(*item) ? L"Edit" : L"";
}

std::wstring CAccessibleRows::GetShortcut(int child) const {
    const RowId row = FindRow(child);
    if (const GridSection* const section = m_model.FindSection(row.section)) {
        return section->collapsed ? L"+" : L"-";
    }
    const GridItem* const item = m_model.FindItem(row.item);
    return m_model.settings.keyboardEditing && item != nullptr && CanEdit(*item) ? L"F2" : L"";
}

// A custom item may have no editor: the mouse is its own then.
bool CAccessibleRows::CanEdit(const GridItem& item) const {
    return item.editable && m_model.CanFocus(item) && item.GetEditMode() != EM_CUSTOM;
}

Rect CAccessibleRows::GetRect(int child) const {
    const GridView& view = m_layout.GetView();
    const int top = (child - 1) * view.rowHeight - view.scrollPosition;
    return {0, top, m_layout.GetRowArea().width, top + view.rowHeight};
}

int CAccessibleRows::HitTest(Point point) const {
    const GridView& view = m_layout.GetView();
    const Size area = m_layout.GetRowArea();
    if (view.rowHeight <= 0 || !Rect{0, 0, area.width, area.height}.Contains(point)) {
        return kSelf;
    }
    const int child = (point.y + view.scrollPosition) / view.rowHeight + 1;
    return child <= GetCount() ? child : kSelf;
}

}  // namespace tavrin::propgrid
