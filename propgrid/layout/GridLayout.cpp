#include "propgrid/layout/GridLayout.h"

#include <algorithm>
#include <cstdlib>

namespace tavrin::propgrid {

namespace {

// How far from the divider the mouse still holds it, in pixels.
constexpr int kDividerReach = 3;

}  // namespace

Rect RowList::GetRow(std::uint32_t row) const {
    const int y = top + static_cast<int>(row) * rowHeight;
    return {0, y, area.width, y + rowHeight};
}

std::uint32_t RowList::GetFirstVisible() const {
    return top < 0 ? static_cast<std::uint32_t>(-top / std::max(rowHeight, 1)) : 0;
}

bool RowList::IsVisible(const Rect& row) const {
    return area.width > 0 && row.top < area.height && row.bottom > 0 && row.top < row.bottom;
}

const std::vector<const GridItem*>& CGridLayout::GetSortedItems() {
    if (m_sortedRevision == m_model.GetRevision()) {
        return m_sorted;
    }
    m_sorted.clear();
    m_sorted.reserve(m_model.GetItemCount());
    for (const GridSection* const section : m_model.GetSections()) {
        m_sorted.insert(m_sorted.end(), section->items.begin(), section->items.end());
    }
    std::stable_sort(m_sorted.begin(), m_sorted.end(),
                     [](const GridItem* a, const GridItem* b) { return a->name < b->name; });
    m_sortedRows.resize(m_sorted.size());
    for (std::uint32_t row = 0; const GridItem* const item : m_sorted) {
        m_sortedRows[item->id] = row++;
    }
    m_sortedRevision = m_model.GetRevision();
    return m_sorted;
}

std::uint32_t CGridLayout::GetSortedRow(const GridItem& item) {
    GetSortedItems();
    return m_sortedRows[item.id];
}

const CGridLayout::SectionRecord* CGridLayout::FindRecord(const GridSection& section) const {
    const bool exists = m_generation == m_model.GetGeneration() && section.id < m_records.size();
    return exists ? &m_records[section.id] : nullptr;
}

CGridLayout::SectionRecord& CGridLayout::MakeRecord(const GridSection& section) {
    if (section.id >= m_records.size()) {
        m_records.resize(section.id + std::size_t{1});
    }
    return m_records[section.id];
}

// The records of rows that were removed would else be those of the new rows with their ids.
void CGridLayout::ForgetRows() {
    if (m_generation == m_model.GetGeneration()) {
        return;
    }
    m_records = {};
    m_sorted = {};
    m_sortedRows = {};
    m_sortedRevision = kNeverSorted;
    m_generation = m_model.GetGeneration();
}

Rect CGridLayout::FindPaintedRow(const GridItem& item) const {
    const SectionRecord* const record = FindRecord(*item.section);
    if (record == nullptr) {
        return {};
    }
    const RowList& list = record->items;
    const bool isInList = !list.sorted || item.id < m_sortedRows.size();
    const std::uint32_t row = !isInList ? list.rows : list.sorted ? m_sortedRows[item.id] : item.row;
    return row < list.rows ? list.GetRow(row) : Rect();
}

bool CGridLayout::IsInSight(const GridItem& item) const {
    const SectionRecord* const record = FindRecord(*item.section);
    return record != nullptr && record->items.IsVisible(FindPaintedRow(item));
}

Rect CGridLayout::GetNameRect(const GridItem& item) const {
    Rect rect = FindPaintedRow(item);
    if (IsInSight(item)) {
        rect.right = FindRecord(*item.section)->items.gutter;
    }
    return rect;
}

Rect CGridLayout::GetValueRect(const GridItem& item) const {
    if (!IsInSight(item)) {
        return {};
    }
    Rect rect = FindPaintedRow(item);
    const RowList& list = FindRecord(*item.section)->items;
    rect.left = list.gutter;
    rect.right -= list.buttonItem == item.id ? list.rowHeight : 0;
    return rect;
}

Rect CGridLayout::GetGlyphRect(const GridSection& section) const {
    const SectionRecord* const record = FindRecord(section);
    return record != nullptr ? record->glyph : Rect();
}

Rect CGridLayout::GetHeaderRect(const GridSection& section) const {
    const SectionRecord* const record = FindRecord(section);
    return record != nullptr ? record->header : Rect();
}

Rect CGridLayout::GetFocusedRow() const {
    const RowId& focus = m_model.GetFocus();
    if (const GridSection* const section = m_model.FindSection(focus.section)) {
        return GetHeaderRect(*section);
    }
    const GridItem* const item = m_model.FindItem(focus.item);
    return item != nullptr ? GetNameRect(*item) : Rect();
}

Hit CGridLayout::HitTest(Point point) const {
    Hit hit;
    hit.onEditButton = IsOnEditButton(point);
    hit.onDivider = IsOnDivider(point);
    if (m_model.settings.IsCategorized() && HitSection(point, hit)) {
        return hit;
    }
    for (const GridSection* const section : m_model.GetSections()) {
        const GridItem* const item = FindItemOf(*section, point);
        if (item != nullptr && m_model.CanFocus(*item)) {
            hit.part = GetValueRect(*item).Contains(point) ? HP_VALUE : HP_NAME;
            hit.item = item->id;
            break;
        }
    }
    return hit;
}

const GridItem* CGridLayout::FindItemAt(Point point) const {
    for (const GridSection* const section : m_model.GetSections()) {
        if (const GridItem* const item = FindItemOf(*section, point)) {
            return item;
        }
    }
    return nullptr;
}

bool CGridLayout::IsOnDivider(Point point) const {
    return std::abs(point.x - m_model.settings.gutter) < kDividerReach;
}

// The button's rectangle may outlive its row: one that was scrolled away, or whose section collapsed, has no
// button.
bool CGridLayout::IsOnEditButton(Point point) const {
    const GridItem* const item = m_model.FindItem(m_model.GetFocus().item);
    return item != nullptr && item->editable && m_model.ShowsItemsOf(*item->section) && IsInSight(*item) &&
           m_editButton.Contains(point);
}

bool CGridLayout::HitSection(Point point, Hit& hit) const {
    for (const GridSection* const section : m_model.GetSections()) {
        const bool onGlyph = GetGlyphRect(*section).Contains(point);
        if (onGlyph || GetHeaderRect(*section).Contains(point)) {
            hit.part = onGlyph ? HP_GLYPH : HP_HEADER;
            hit.section = section->id;
            return true;
        }
    }
    return false;
}

// The section's item whose row the last paint placed at a point. The rectangles of a collapsed section's
// items are those of an earlier paint.
const GridItem* CGridLayout::FindItemOf(const GridSection& section, Point point) const {
    const SectionRecord* const record = FindRecord(section);
    if (record == nullptr || !m_model.ShowsItemsOf(section)) {
        return nullptr;
    }
    const RowList& list = record->items;
    if (list.rowHeight <= 0 || point.y < list.top) {
        return nullptr;
    }
    const auto row = static_cast<std::uint32_t>((point.y - list.top) / list.rowHeight);
    if (row >= list.rows) {
        return nullptr;
    }
    const GridItem* const item = list.sorted ? m_sorted[row] : section.items[row];
    const bool isHit = item->section == &section &&
                       (GetValueRect(*item).Contains(point) || GetNameRect(*item).Contains(point));
    return isHit ? item : nullptr;
}

}  // namespace tavrin::propgrid
