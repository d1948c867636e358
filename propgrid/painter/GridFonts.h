// The grid's two fonts.
#pragma once

#include <afxwin.h>

namespace tavrin::propgrid {

struct GridFonts {
    CFont normal;
    CFont bold;  // the same with the weight of bold letters

    // Makes both, unless they exist: from the font that the parent answers to WM_GETFONT, or Tahoma. They are
    // copies, which do not depend on how long the parent keeps its font. `parent` may be null.
    void Create(const CWnd* parent);

    // The height of a row in pixels: of the letters "Gg" and a margin.
    int MeasureRowHeight(CWnd& window) const;
};

}  // namespace tavrin::propgrid
