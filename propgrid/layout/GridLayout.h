// Where the rows of a property grid stand: how high they are together, what a paint recorded of them, and
// what lies under a point.
//
// A paint records the rectangles that hit tests go by, see CPaintPass. It records those of sections one by
// one, of items only where their list stood, so that rows out of sight cost it nothing.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "propgrid/layout/Geometry.h"
#include "propgrid/model/GridModel.h"

namespace tavrin::propgrid {

// What the window contributes.
struct GridView {
    Size client;
    int scrollBarWidth = 0;  // 0 while the bar is hidden
    int scrollPosition = 0;  // of the upper edge, from the top of the rows
    int rowHeight = 0;
};

// A list of rows, one under the other, as the last paint placed it.
struct RowList {
    int top = 0;  // of the first row
    int rowHeight = 0;
    Size area;  // what the rows are clipped to, from the upper left corner of the window
    int gutter = 0;
    std::uint32_t rows = 0;  // those after them were added since and never painted
    bool sorted = false;     // all items by name, not those of one section
    Id buttonItem = kNoId;   // the item with an edit button beside its value

    Rect GetRow(std::uint32_t row) const;
    // The row at the upper edge of the window, or after the last one.
    std::uint32_t GetFirstVisible() const;
    bool IsVisible(const Rect& row) const;
};

// Which part of a row lies under a point.
enum EHitPart { HP_NOTHING, HP_GLYPH, HP_HEADER, HP_NAME, HP_VALUE };

// What lies under a point. The edit button and the divider lie over rows.
struct Hit {
    bool onEditButton = false;  // the focused item's
    bool onDivider = false;     // less than three pixels from it
    EHitPart part = HP_NOTHING;
    Id section = kNoId;  // of HP_GLYPH and HP_HEADER
    Id item = kNoId;     // of HP_NAME and HP_VALUE: one that may have the focus
    bool operator==(const Hit&) const = default;
};

class CGridLayout {
public:
    static constexpr int kTextMargin = 4;  // from the left edge of the value to its text

    explicit CGridLayout(const CGridModel& model) : m_model(model) {}
    CGridLayout(const CGridLayout&) = delete;
    CGridLayout& operator=(const CGridLayout&) = delete;

    void SetView(const GridView& view) { m_view = view; }
    const GridView& GetView() const { return m_view; }
    // The client area without the scroll bar.
    Size GetRowArea() const { return {m_view.client.width - m_view.scrollBarWidth, m_view.client.height}; }

    int GetTotalHeight() const { return static_cast<int>(m_model.GetRowCount()) * m_view.rowHeight; }
    // Rows that fill the window exactly deliberately need the bar too.
    bool NeedsScrollBar() const { return GetTotalHeight() >= m_view.client.height; }

    // All items by name (code units; equal names in section order). Sorts only when there are new rows.
    const std::vector<const GridItem*>& GetSortedItems();
    // The position of an item among them.
    std::uint32_t GetSortedRow(const GridItem& item);

    // What the last paint recorded. Of a row that was not drawn the name or the header is the whole row and
    // the rest is empty; the items of a collapsed section keep what an earlier paint recorded; what was never
    // painted is empty.
    Rect GetNameRect(const GridItem& item) const;
    Rect GetValueRect(const GridItem& item) const;
    Rect GetGlyphRect(const GridSection& section) const;
    Rect GetHeaderRect(const GridSection& section) const;
    // The header or the name of the focused row; empty without one.
    Rect GetFocusedRow() const;
    // Where a press counts as one on the focused item's edit button: empty from any move of the focus to the
    // next paint.
    const Rect& GetEditButton() const { return m_editButton; }
    void ForgetEditButton() { m_editButton = {}; }

    // Both go by the recorded rectangles. The item whose row is at a point need not be one that may have the
    // focus; null when there is none.
    Hit HitTest(Point point) const;
    const GridItem* FindItemAt(Point point) const;
    bool IsOnDivider(Point point) const;

private:
    friend class CPaintPass;

    static constexpr unsigned kNeverSorted = 0xFFFFFFFF;

    struct SectionRecord {
        Rect glyph;
        Rect header;
        RowList items;
    };

    const SectionRecord* FindRecord(const GridSection& section) const;
    SectionRecord& MakeRecord(const GridSection& section);
    void ForgetRows();
    Rect FindPaintedRow(const GridItem& item) const;
    bool IsInSight(const GridItem& item) const;
    bool IsOnEditButton(Point point) const;
    bool HitSection(Point point, Hit& hit) const;
    const GridItem* FindItemOf(const GridSection& section, Point point) const;

    const CGridModel& m_model;
    GridView m_view;
    Rect m_editButton;
    std::vector<SectionRecord> m_records;  // by section id
    unsigned m_generation = 0;             // of the model, that the records are of
    std::vector<const GridItem*> m_sorted;
    std::vector<std::uint32_t> m_sortedRows;   // by item id
    unsigned m_sortedRevision = kNeverSorted;  // of the model
};

}  // namespace tavrin::propgrid
