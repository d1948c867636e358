#include "propgrid/layout/PaintPass.h"

namespace tavrin::propgrid {

CPaintPass::CPaintPass(CGridLayout& layout)
    : m_layout(layout),
      m_model(layout.m_model),
      m_generation(m_model.GetGeneration()),
      m_displayMode(m_model.settings.displayMode),
      m_y(-layout.m_view.scrollPosition) {
    layout.ForgetRows();
    for (const GridSection* const section : m_model.GetSections()) {
        CGridLayout::SectionRecord& record = layout.MakeRecord(*section);
        record.glyph = {};
        record.header = {};
    }
    if (m_displayMode == DM_SORTED) {
        EnterSortedList();
    }
}

std::optional<PaintedRow> CPaintPass::Next() {
    while (m_generation == m_model.GetGeneration()) {
        if (m_inList) {
            if (const std::optional<PaintedRow> item = NextItem()) {
                return item;
            }
            LeaveList();
        }
        // A section that was added above the current one has moved it.
        const std::size_t position = m_section != nullptr ? m_section->position + std::size_t{1} : 0;
        if (m_displayMode == DM_SORTED || position >= m_model.GetSections().size()) {
            break;
        }
        if (const std::optional<PaintedRow> header = EnterSection(*m_model.GetSections()[position])) {
            return header;
        }
    }
    return std::nullopt;
}

// Records the header and begins the list of the items. Returns the header if it is visible.
std::optional<PaintedRow> CPaintPass::EnterSection(const GridSection& section) {
    const GridView& view = m_layout.m_view;
    RowList list = MakeList(m_y, section.items.size());
    const Rect row = {0, m_y, list.area.width, m_y + view.rowHeight};
    CGridLayout::SectionRecord& record = m_layout.MakeRecord(section);
    record.header = row;
    m_section = &section;
    if (m_displayMode != DM_CATEGORIZED) {
        BeginList(list);
        return std::nullopt;
    }
    m_y += view.rowHeight;
    // What is recorded of a collapsed section's items deliberately stays as an earlier paint left it.
    if (!section.collapsed) {
        list.top = m_y;
        BeginList(list);
    }
    if (!list.IsVisible(row)) {
        return std::nullopt;
    }
    record.glyph = {2, row.top + 4, 11, row.top + 13};
    record.header.left = 14;
    return PaintedRow{.section = &section, .item = nullptr, .row = row, .parts = {}};
}

void CPaintPass::EnterSortedList() {
    RowList list = MakeList(m_y, m_layout.GetSortedItems().size());
    list.sorted = true;
    for (const GridSection* const section : m_model.GetSections()) {
        m_layout.MakeRecord(*section).items = list;
    }
    BeginList(list);
}

RowList CPaintPass::MakeList(int top, std::size_t rows) const {
    return {.top = top,
            .rowHeight = m_layout.m_view.rowHeight,
            .area = m_layout.GetRowArea(),
            .gutter = m_model.settings.gutter,
            .rows = static_cast<std::uint32_t>(rows)};
}

void CPaintPass::BeginList(const RowList& list) {
    m_list = list;
    m_row = list.GetFirstVisible();
    m_inList = true;
    if (!list.sorted) {
        m_layout.MakeRecord(*m_section).items = list;
    }
}

// Rows may have been added while the list was drawn.
void CPaintPass::LeaveList() {
    m_inList = false;
    if (!m_list.sorted) {
        m_layout.MakeRecord(*m_section).items.rows = static_cast<std::uint32_t>(CountRows());
        m_y = m_list.top + static_cast<int>(CountRows()) * m_list.rowHeight;
    }
}

std::size_t CPaintPass::CountRows() const {
    return m_list.sorted ? m_layout.m_sorted.size() : m_section->items.size();
}

std::optional<PaintedRow> CPaintPass::NextItem() {
    const Rect row = m_list.GetRow(m_row);
    if (m_row >= CountRows() || !m_list.IsVisible(row)) {
        return std::nullopt;
    }
    const GridItem& item = m_list.sorted ? *m_layout.m_sorted[m_row] : *m_section->items[m_row];
    ++m_row;
    return PaintedRow{.section = nullptr, .item = &item, .row = row, .parts = PlaceItem(item, row)};
}

// Only the focused item has an edit button, if it has an editor; its rectangle is recorded.
ItemParts CPaintPass::PlaceItem(const GridItem& item, const Rect& row) {
    ItemParts parts;
    parts.name = {row.left, row.top, m_list.gutter, row.bottom};
    parts.value = {m_list.gutter, row.top, row.right, row.bottom};
    if (item.id != m_model.GetFocus().item || !item.editable) {
        return parts;
    }
    parts.editMode = item.GetEditMode();
    if (parts.editMode == EM_CUSTOM) {
        return parts;
    }
    parts.button = {row.right - m_list.rowHeight, row.top, row.right, row.bottom};
    // Deliberately so for an item without a drawn button (EM_INPLACE) too.
    parts.value.right = parts.button.left;
    m_layout.MakeRecord(*item.section).items.buttonItem = item.id;
    m_layout.m_editButton = parts.button;
    // Where a press anywhere on the value opens the text edit, the whole of it counts as the button.
    if (parts.editMode == EM_INPLACE || parts.editMode == EM_INPLACE_BUTTON) {
        m_layout.m_editButton.left = m_list.gutter;
    }
    return parts;
}

}  // namespace tavrin::propgrid
