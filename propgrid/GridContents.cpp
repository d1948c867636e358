#include "propgrid/GridContents.h"

#include <algorithm>
#include <utility>

UINT CGridContents::AddSection(const std::wstring& name, bool collapsed, UINT before) {
    CGridSection& section = *m_sections.emplace_back(std::make_unique<CGridSection>());
    section.id = static_cast<UINT>(m_sections.size() - 1);
    section.name = name;
    section.collapsed = collapsed;
    // An unknown id deliberately means the end: the usual call passes NO_ID.
    auto place = m_sectionOrder.end();
    if (before < section.id) {
        place = std::find(m_sectionOrder.begin(), m_sectionOrder.end(), m_sections[before].get());
    }
    m_sectionOrder.insert(place, &section);
    m_sorted = false;
    return section.id;
}

UINT CGridContents::AddItem(UINT sectionId, EItemType kind, const std::wstring& name, CGridValue value,
                            bool editable, bool undefined) {
    CGridSection* section = FindSection(sectionId);
    if (section == nullptr) {
        return NO_ID;
    }
    CGridItem& item = *m_items.emplace_back(std::make_unique<CGridItem>());
    item.id = static_cast<UINT>(m_items.size() - 1);
    item.kind = kind;
    item.section = section;
    item.editable = editable;
    item.undefined = undefined;
    item.name = name;
    item.value = std::move(value);
    if (!m_names.AddLast(m_items)) {
        m_items.pop_back();
        return NO_ID;
    }
    item.row = static_cast<unsigned>(section->items.size());
    section->items.push_back(&item);
    m_sorted = false;
    if (!section->collapsed) {
        ++m_expandedItems;
    }
    // Last of all: a custom item that is asked to accept its value may do anything to the grid.
    const UINT id = item.id;
    item.TakeSavedCopy();
    return id;
}

void CGridContents::Clear() {
    m_names.Clear();
    std::vector<CGridItem*>().swap(m_sortedItems);
    m_sorted = false;
    m_items.clear();
    m_sectionOrder.clear();
    m_sections.clear();
    m_expandedItems = 0;
}

const CGridSection* CGridContents::FindSection(UINT id) const {
    return id < m_sections.size() ? m_sections[id].get() : nullptr;
}

CGridSection* CGridContents::FindSection(UINT id) {
    return const_cast<CGridSection*>(std::as_const(*this).FindSection(id));
}

const CGridItem* CGridContents::FindItem(UINT id) const {
    return id < m_items.size() ? m_items[id].get() : nullptr;
}

CGridItem* CGridContents::FindItem(UINT id) {
    return const_cast<CGridItem*>(std::as_const(*this).FindItem(id));
}

void CGridContents::SetCollapsed(CGridSection& section, bool collapsed) {
    if (section.collapsed == collapsed) {
        return;
    }
    section.collapsed = collapsed;
    if (collapsed) {
        m_expandedItems -= section.items.size();
    } else {
        m_expandedItems += section.items.size();
    }
}

const std::vector<CGridItem*>& CGridContents::Walk(const CGridSection& section) const {
    m_itemsWalked += section.items.size();
    return section.items;
}

std::vector<CGridItem*> CGridContents::WalkAll() const {
    std::vector<CGridItem*> all;
    all.reserve(m_items.size());
    for (const CGridSection* section : m_sectionOrder) {
        const std::vector<CGridItem*>& items = Walk(*section);
        all.insert(all.end(), items.begin(), items.end());
    }
    return all;
}

const std::vector<CGridItem*>& CGridContents::GetSorted() {
    if (m_sorted) {
        return m_sortedItems;
    }
    m_sortedItems = WalkAll();
    std::stable_sort(m_sortedItems.begin(), m_sortedItems.end(),
                     [](const CGridItem* a, const CGridItem* b) { return a->name < b->name; });
    for (unsigned row = 0; CGridItem* const item : m_sortedItems) {
        item->sortedRow = row++;
    }
    m_sorted = true;
    return m_sortedItems;
}

std::size_t CGridContents::GetRowCount(bool categorised) const {
    return categorised ? m_sections.size() + m_expandedItems : m_items.size();
}
