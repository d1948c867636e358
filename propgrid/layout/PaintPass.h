// One paint's walk through the rows: gives those in sight from top to bottom and records where all of them
// stand.
//
//     CPaintPass pass(layout);
//     while (const std::optional<PaintedRow> row = pass.Next()) { ... }
//
// What is drawn in between may add rows: those below are painted too. It may also remove all rows: then the
// walk ends.
#pragma once

#include <optional>

#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

// The parts of an item's row.
struct ItemParts {
    Rect name;                 // from the left edge to the divider
    Rect value;                // from the divider to the right edge, or to the button
    Rect button;               // the square at the right end; empty without an editor
    int editMode = EM_CUSTOM;  // what the button is drawn as: of EEditMode, EM_CUSTOM without an editor
};

struct PaintedRow {
    const GridSection* section = nullptr;  // a header row
    const GridItem* item = nullptr;        // an item's row
    Rect row;
    ItemParts parts;  // of the item
};

class CPaintPass {
public:
    // Empties the rectangles of the sections.
    explicit CPaintPass(CGridLayout& layout);

    // The next row in sight; none after the last.
    std::optional<PaintedRow> Next();

private:
    std::optional<PaintedRow> NextItem();
    std::optional<PaintedRow> EnterSection(const GridSection& section);
    void EnterSortedList();
    void LeaveList();
    void BeginList(const RowList& list);
    RowList MakeList(int top, std::size_t rows) const;
    std::size_t CountRows() const;
    ItemParts PlaceItem(const GridItem& item, const Rect& row);

    CGridLayout& m_layout;
    const CGridModel& m_model;
    unsigned m_generation;
    std::uint32_t m_displayMode;             // at the start
    int m_y;                                 // of the next section
    std::size_t m_position = 0;              // of the next section
    const GridSection* m_section = nullptr;  // whose items are walked; null in the sorted list
    RowList m_list;
    bool m_inList = false;
    std::uint32_t m_row = 0;  // the next of the list
};

}  // namespace tavrin::propgrid
