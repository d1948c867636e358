#include "propgrid/model/GridModel.h"

#include <functional>
#include <string_view>
#include <utility>

namespace tavrin::propgrid {

// Spreads the few bits of the section's id over the whole number, so that the same name in many sections
// gives many.
std::size_t CGridModel::NameHash::operator()(const GridItem* item) const {
    constexpr std::size_t kSpread = 0x9E3779B1;
    return std::hash<std::wstring_view>{}(item->name) ^ (item->section->id + std::size_t{1}) * kSpread;
}

bool CGridModel::NameEqual::operator()(const GridItem* a, const GridItem* b) const {
    return a->section == b->section && a->name == b->name;
}

Id CGridModel::AddSection(const std::wstring& name, bool collapsed, Id before) {
    const GridSection* const next = FindSection(before);
    const std::size_t position = next != nullptr ? next->position : m_order.size();
    GridSection& section = m_sections.emplace_back();
    section.id = static_cast<Id>(m_sections.size() - 1);
    section.name = name;
    section.collapsed = collapsed;
    m_order.insert(m_order.begin() + static_cast<std::ptrdiff_t>(position), &section);
    for (std::size_t moved = position; moved < m_order.size(); ++moved) {
        m_order[moved]->position = static_cast<std::uint32_t>(moved);
    }
    ++m_revision;
    return section.id;
}

Id CGridModel::AddItem(Id sectionId, EItemType kind, const std::wstring& name, Value value, bool editable,
                       bool undefined, std::vector<std::wstring> options) {
    GridSection* const section = FindSection(sectionId);
    if (section == nullptr) {
        return kNoId;
    }
    GridItem& item = m_items.emplace_back();
    item.section = section;
    item.name = name;
    if (!m_names.insert(&item).second) {
        m_items.pop_back();
        return kNoId;
    }
    item.id = static_cast<Id>(m_items.size() - 1);
    item.kind = kind;
    item.value = std::move(value);
    item.undefined = undefined;
    item.options = std::move(options);
    item.row = static_cast<std::uint32_t>(section->items.size());
    section->items.push_back(&item);
    item.editable = editable;
    if (editable) {
        section->editableRows.push_back(item.row);
    }
    m_expandedItems += section->collapsed ? 0 : 1;
    ++m_revision;
    // Last of all: a custom item that is asked to accept its value may do anything to the grid.
    const Id id = item.id;
    item.TakeSavedCopy();
    return id;
}

void CGridModel::Clear() {
    m_names.clear();
    m_items.clear();
    m_order.clear();
    m_sections.clear();
    m_expandedItems = 0;
    ++m_generation;
    ++m_revision;
}

const GridSection* CGridModel::FindSection(Id id) const {
    return id < m_sections.size() ? &m_sections[id] : nullptr;
}

GridSection* CGridModel::FindSection(Id id) {
    return const_cast<GridSection*>(std::as_const(*this).FindSection(id));
}

const GridItem* CGridModel::FindItem(Id id) const {
    return id < m_items.size() ? &m_items[id] : nullptr;
}

GridItem* CGridModel::FindItem(Id id) {
    return const_cast<GridItem*>(std::as_const(*this).FindItem(id));
}

void CGridModel::SetCollapsed(GridSection& section, bool collapsed) {
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

std::size_t CGridModel::GetRowCount() const {
    return settings.IsCategorized() ? m_sections.size() + m_expandedItems : m_items.size();
}

}  // namespace tavrin::propgrid
