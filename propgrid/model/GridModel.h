// The contents of a property grid: its sections and items with their ids, names and order, the focused row,
// and the settings. Owns every record; needs no window.
//
// Adding a row and finding a record by its id cost the same however many rows there are: ids are the
// positions of the records, an index holds the names, and the numbers of rows are kept up to date.
#pragma once

#include <cstddef>
#include <deque>
#include <memory_resource>
#include <string>
#include <unordered_set>
#include <vector>

#include "propgrid/model/GridItem.h"
#include "propgrid/model/GridSettings.h"

namespace tavrin::propgrid {

// A header row or an item's row: the other id is kNoId. Both are for no row.
struct RowId {
    Id section = kNoId;
    Id item = kNoId;
    bool operator==(const RowId&) const = default;
};

class CGridModel {
public:
    CGridModel() = default;
    CGridModel(const CGridModel&) = delete;
    CGridModel& operator=(const CGridModel&) = delete;

    // Inserts a section before the one whose id is `before`; appends it when there is none. Returns its id: 0
    // for the first, then one more each time.
    Id AddSection(const std::wstring& name, bool collapsed, Id before);

    // Appends an item to the section whose id is `section` and takes its saved copy. The value is of the type
    // that the kind stores. Returns its id: 0 for the first in the grid, then one more each time. Returns
    // kNoId, and changes nothing, when there is no such section or when it has an item of exactly that name.
    Id AddItem(Id section, EItemType kind, const std::wstring& name, Value value, bool editable,
               bool undefined, std::vector<std::wstring> options = {});

    // Removes everything; ids start at 0 again. The focus deliberately stays with its ids: a new row that
    // gets the id of the focused one has the focus.
    void Clear();

    // The record with this id, or null. Its address stays as it is until Clear.
    GridSection* FindSection(Id id);
    const GridSection* FindSection(Id id) const;
    GridItem* FindItem(Id id);
    const GridItem* FindItem(Id id) const;

    // In display order.
    const std::vector<GridSection*>& GetSections() const { return m_order; }
    std::size_t GetItemCount() const { return m_items.size(); }

    void SetCollapsed(GridSection& section, bool collapsed);

    // Whether the item may have the focus, and whether the display shows the items of a section.
    bool CanFocus(const GridItem& item) const { return item.editable || settings.focusNonEditable; }
    bool ShowsItemsOf(const GridSection& section) const {
        return !section.collapsed || !settings.IsCategorized();
    }

    // The number of rows that the display has: in the categorised one with the sections' header rows and
    // without the items of collapsed sections, in the others that of all items.
    std::size_t GetRowCount() const;

    // At most one row has the focus. It may be one that does not exist.
    const RowId& GetFocus() const { return m_focus; }
    void SetFocus(const RowId& row) { m_focus = row; }

    // Changes with every Clear: records of another generation are gone, whatever their ids.
    unsigned GetGeneration() const { return m_generation; }
    // Changes with every change of which rows there are.
    unsigned GetRevision() const { return m_revision; }

    GridSettings settings;

private:
    // Items by section and name. The hash is kept in the table, since computing it reads the whole name. The
    // table's nodes have memory of their own: side by side they are found faster than among the records.
    struct NameHash {
        std::size_t operator()(const GridItem* item) const;
    };
    struct NameEqual {
        bool operator()(const GridItem* a, const GridItem* b) const;
    };

    std::deque<GridSection> m_sections;  // by id
    std::vector<GridSection*> m_order;
    std::deque<GridItem> m_items;  // by id
    std::pmr::unsynchronized_pool_resource m_namesMemory;
    std::pmr::unordered_set<const GridItem*, NameHash, NameEqual> m_names{&m_namesMemory};
    std::size_t m_expandedItems = 0;  // in sections that are not collapsed
    RowId m_focus;
    unsigned m_generation = 0;
    unsigned m_revision = 0;
};

}  // namespace tavrin::propgrid
