// Iterates over the rows during one paint: returns the visible ones from top to bottom and records the
// positions of all. Coordinates are pixels of the client area.
//
//     CPaintPass pass(layout);
//     while (const std::optional<PaintedRow> row = pass.Next()) { ... }
//
// Drawing a row may add rows: those below it are painted in this pass, except in the sorted display, which
// shows them at the next paint. It may also remove all rows: the pass then ends.
#pragma once

#include <optional>

#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

// The parts of an item's row.
struct ItemParts {
    Rect name;                 // from the left edge to the divider
    Rect value;                // from the divider to the right edge, or to the button
    Rect button;               // the square at the right end; empty without an editor
    int editMode = EM_CUSTOM;  // EEditMode: how the button is drawn; EM_CUSTOM: no button
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

    // The next visible row; none after the last.
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
    const GridSection* m_section = nullptr;  // the current one; null before the first, and when sorted
    RowList m_list;
    bool m_inList = false;
    std::uint32_t m_row = 0;  // the next of the list
};

}  // namespace tavrin::propgrid
