// Draws the rows of a property grid into a device context. Everything is drawn into an off-screen picture
// that is then copied at once, so that nothing flickers. Painting reads the model and the layout and changes
// nothing but the rectangles that the layout records for hit tests. Its time goes by the rows in sight, not
// by those there are.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>

#include "handles/GdiScopes.h"
#include "propgrid/layout/PaintPass.h"
#include "propgrid/painter/CellText.h"
#include "propgrid/painter/GridFonts.h"

namespace tavrin::propgrid {

// What the look depends on beside model and layout.
struct PaintState {
    bool buttonPressed = false;  // the look of the edit button
    bool enabled = true;         // else every value has the colour of those that are not editable
};

class CGridPainter {
public:
    CGridPainter(const CGridModel& model, CGridLayout& layout, const GridFonts& fonts)
        : m_model(model), m_layout(layout), m_fonts(fonts), m_texts(model, fonts) {}
    CGridPainter(const CGridPainter&) = delete;
    CGridPainter& operator=(const CGridPainter&) = delete;

    // Paints the whole client area of the layout's view, however little of it is invalid: every visible row
    // gets its rectangles recorded. True when a custom item drew, which may have done anything.
    bool PaintWindow(CDC& target, const PaintState& state);

    // The same for a device context that is not the window's.
    void PaintCopy(CDC& target, const PaintState& state);

    // The off-screen picture is kept for the next paint of the window: to make one costs more than to draw
    // it.
    void ReleaseCanvas() { m_canvas.reset(); }

private:
    struct PaintTools;

    bool Paint(CDC& target, const handles::CMemoryCanvas& canvas, const PaintState& state);
    void PaintRows(PaintTools& tools);
    void PaintBelowRows(PaintTools& tools) const;
    void PaintEmptyList(PaintTools& tools);
    void PaintHeader(PaintTools& tools, const Rect& row, const GridSection& section);
    void PaintGlyph(PaintTools& tools, int top, bool collapsed) const;
    void PaintFrame(PaintTools& tools, const Rect& row, int shadedWidth);
    void PaintItem(PaintTools& tools, const PaintedRow& row);
    void PaintEditButton(PaintTools& tools, const ItemParts& parts);
    void PaintName(PaintTools& tools, const Rect& row, const GridItem& item);
    void PaintValue(PaintTools& tools, const Rect& value, const GridItem& item);
    void PaintCustomValue(PaintTools& tools, const Rect& value, const GridItem& item);
    void PaintText(PaintTools& tools, const GridItem& item, const Rect& value);
    void PaintSwatch(PaintTools& tools, const Rect& value, Color color) const;

    const CGridModel& m_model;
    CGridLayout& m_layout;
    const GridFonts& m_fonts;
    CCellTexts m_texts;
    std::unique_ptr<handles::CMemoryCanvas> m_canvas;
};

}  // namespace tavrin::propgrid
