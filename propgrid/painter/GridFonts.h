// The grid's two fonts.
#pragma once

#include <afxwin.h>

namespace tavrin::propgrid {

struct GridFonts {
    CFont normal;
    CFont bold;             // the same with the weight of bold letters
    HFONT given = nullptr;  // by Replace; not owned

    // Makes both, unless they exist: from the font that the parent answers to WM_GETFONT, or Tahoma. They are
    // copies, which do not depend on how long the parent keeps its font. `parent` may be null.
    void Create(const CWnd* parent);

    // Makes both anew from a font that WM_SETFONT hands over, of which they are copies; null stands for the
    // system's.
    void Replace(HFONT font);

    // The height of a row in pixels: of the letters "Gg" and a margin.
    int MeasureRowHeight(CWnd& window) const;

private:
    void CreateBold(LOGFONT description);
};

}  // namespace tavrin::propgrid
