// Draws what a property grid should show, written apart from the grid's own painter so that the two can be
// compared: plain rather than fast.
//
// Where there is more than one sensible picture the choice is the one that users have seen so far:
// - The text of an empty list has the text colour, the three dots of a button the system's one for buttons.
// - Items of one name are sorted by mode 1 as their sections stand. An unknown display mode is a flat list.
// - A custom item with an unknown edit mode leaves space for a button that is not drawn.
// - An undefined colour keeps its swatch; the undefined text stands beside it.
// - A path is shortened in the font that it is drawn with, and not at all when its last name is too long for
//   the system's PathCompactPath.
// - A text without space is not drawn. With a divider left of the names the band of the focused name extends
// to
//   its right.
// - A partial repaint looks like a whole one, also where a line stands on the edge of the painted area.
#pragma once

#include <map>

#include "tests/windows/propgrid/GridModel.h"
#include "tests/windows/propgrid/PixelPicture.h"

namespace tests {

class CSecondPainter {
public:
    // Both must outlive the painter; the picture has the size of the grid's client area.
    CSecondPainter(const GridModel& model, CPixelPicture& picture);

    // Draws the whole client area. What a paint of a part of it shows must be the same, whatever rows it
    // leaves out.
    void Paint();

    // Where the paint put things: the answers that the grid should give after it painted the whole client
    // area.
    struct ItemRects {
        CRect name;
        CRect value;
    };
    struct SectionRects {
        CRect glyph;
        CRect header;
    };
    const std::map<UINT, ItemRects>& GetItemRects() const { return m_itemRects; }
    // In display mode 0 alone.
    const std::map<UINT, SectionRects>& GetSectionRects() const { return m_sectionRects; }
    // Empty when no edit button was drawn.
    CRect GetEditButton() const { return m_editButton; }

private:
    void PaintEmptyList();
    void PaintSections();
    void PaintSorted();
    void PaintHeader(const ModelSection& section, int y);
    void PaintGlyph(const ModelSection& section, int y);
    void PaintItem(const ModelItem& item, int y);
    void PaintFrame(int y);
    void PaintButton(int editMode, const CRect& button);
    void PaintName(const ModelItem& item, int y);
    void PaintCustom(const ModelItem& item, CRect value);
    void PaintDistance(const ModelItem& item, CRect value);
    void PaintValue(const ModelItem& item, const CRect& value);
    void PaintSwatch(COLORREF color, const CRect& swatch);
    std::wstring ShortenPath(const std::wstring& path, int width, CFont& font);
    bool IsBold(const ModelItem& item) const;

    void Fill(const CRect& rect, COLORREF color);
    void Text(const std::wstring& text, CRect rect, CFont& font, COLORREF color, UINT flags);
    CRect RowAt(int y) const { return {0, y, m_model.GetRowWidth(), y + m_model.rowHeight}; }
    bool IsFocused(const ModelItem& item) const { return item.id == m_model.focusedItem; }
    bool IsPainted(int y) const { return !(RowAt(y) & CRect({}, m_model.client)).IsRectEmpty(); }

    const GridModel& m_model;
    CDC& m_dc;
    CFont m_normal;
    CFont m_bold;
    std::map<UINT, ItemRects> m_itemRects;
    std::map<UINT, SectionRects> m_sectionRects;
    CRect m_editButton;
};

}  // namespace tests
