// The sections and items of a property grid: their ids, their names, their order and the number of rows
// that they make. Owns every record; needs no window.
//
// Adding a row and finding a record by its id cost the same however many rows there are: ids are the
// positions of the records, an index holds the names, and the numbers of rows are kept up to date.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "propgrid/GridItem.h"
#include "propgrid/ItemNames.h"

class CGridContents {
public:
    // The id that no section and no item has.
    static constexpr UINT NO_ID = 0xFFFFFFFF;

    CGridContents() = default;
    CGridContents(const CGridContents&) = delete;
    CGridContents& operator=(const CGridContents&) = delete;

    // Inserts a section before the one whose id is `before`; appends it when there is none. Returns its
    // id: 0 for the first, then one more each time.
    UINT AddSection(const std::wstring& name, bool collapsed, UINT before);

    // Appends an item to the section whose id is `section` and takes its saved copy. Returns its id: 0
    // for the first in the grid, then one more each time. Returns NO_ID, and changes nothing, when there
    // is no such section or when it has an item of exactly that name.
    UINT AddItem(UINT section, EItemType kind, const std::wstring& name, CGridValue value, bool editable,
                 bool undefined);

    // Removes everything; ids start at 0 again.
    void Clear();

    // The record with this id, or null. Its address stays as it is until Clear.
    CGridSection* FindSection(UINT id);
    const CGridSection* FindSection(UINT id) const;
    CGridItem* FindItem(UINT id);
    const CGridItem* FindItem(UINT id) const;

    void SetCollapsed(CGridSection& section, bool collapsed);

    // In display order.
    const std::vector<CGridSection*>& GetSections() const { return m_sectionOrder; }

    // The items of a section in the order of adding, and those of all sections in section order. All are
    // counted by GetItemsWalked.
    const std::vector<CGridItem*>& Walk(const CGridSection& section) const;
    std::vector<CGridItem*> WalkAll() const;

    // All items sorted by name (code units; equal names of different sections stay in section order), with
    // their sorted rows. Walks them only when there are new ones.
    const std::vector<CGridItem*>& GetSorted();

    // One item of a section's list, or of the sorted one; counted by GetItemsWalked.
    CGridItem& Visit(const std::vector<CGridItem*>& items, std::size_t row) const {
        ++m_itemsWalked;
        return *items[row];
    }

    std::size_t GetItemCount() const { return m_items.size(); }

    // The number of rows: with the sections' header rows and without the items of collapsed sections
    // (`categorised`), or of all items alone.
    std::size_t GetRowCount(bool categorised) const;

    // Counters of the two things that a row must not cost more of the more rows there are: comparisons
    // of names, and items that some operation went through one by one.
    std::size_t GetNameComparisons() const { return m_names.GetComparisons(); }
    std::size_t GetItemsWalked() const { return m_itemsWalked; }

private:
    std::vector<std::unique_ptr<CGridSection>> m_sections;  // by id
    std::vector<CGridSection*> m_sectionOrder;
    std::vector<std::unique_ptr<CGridItem>> m_items;  // by id
    CItemNames m_names;
    mutable std::size_t m_itemsWalked = 0;
    // Sorted when they are asked for: names do not change, but for rows and sections that are added.
    std::vector<CGridItem*> m_sortedItems;
    bool m_sorted = false;
    std::size_t m_expandedItems = 0;  // in sections that are not collapsed
};
