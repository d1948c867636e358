// The texts of an item's row: what each says in full, where the painter draws it and in which font.
#pragma once

#include <string>

#include "propgrid/layout/PaintPass.h"
#include "propgrid/painter/GridFonts.h"

namespace tavrin::propgrid {

// Where an item's name begins, from the left edge of the row.
inline constexpr int kNameLeft = 18;

struct CellText {
    std::wstring text;
    Rect area;  // one line, vertically centred, from the left
    const CFont* font = nullptr;
};

class CCellTexts {
public:
    CCellTexts(const CGridModel& model, const GridFonts& fonts) : m_model(model), m_fonts(fonts) {}

    // `row` is the whole row, or the part of it that holds the name.
    CellText GetName(const GridItem& item, const Rect& row) const;

    // `value` is the item's value cell; `pixelsPerInch` the vertical resolution of what it is drawn on. A
    // path is not shortened. A custom item that is edited as text is taken to display the text that it is
    // edited with; any other has none.
    CellText GetValue(const GridItem& item, const Rect& value, int pixelsPerInch) const;

private:
    const CGridModel& m_model;
    const GridFonts& m_fonts;
};

// Whether a text is drawn in full.
bool FitsItsArea(const CellText& text, CDC& dc);

// From the left of a value cell: the swatch of a colour, and from there its text.
Rect GetSwatch(const Rect& value);

}  // namespace tavrin::propgrid
