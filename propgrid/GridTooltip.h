// The tooltip of a property grid: a name or a value that is longer than its cell is shown in full over the
// cell once the mouse has moved there and rested for the system's hover time with no button held and nothing
// typed.
//
// It watches the messages of the grid's window. Owns its pop-up window, which exists from the first tooltip
// to the end of the grid's window.
#pragma once

#include <afxwin.h>

#include "propgrid/painter/CellText.h"

namespace tavrin::propgrid {

class CGridTooltip {
public:
    // All of them outlive this object.
    CGridTooltip(CWnd& grid, const CGridModel& model, const CGridLayout& layout, const GridFonts& fonts)
        : m_grid(grid), m_layout(layout), m_texts(model, fonts) {}
    CGridTooltip(const CGridTooltip&) = delete;
    CGridTooltip& operator=(const CGridTooltip&) = delete;

    // To be called with each message before the grid handles it; `editing` is whether an editor is open.
    void Watch(UINT message, LPARAM lParam, bool editing);

    // What the cell changed to is not what the tooltip says.
    void Hide();

private:
    void Follow(CPoint mouse);
    void EndWait();
    void ShowAt(CPoint mouse);
    CellText FindText(Point point) const;
    bool Create();
    void Place(const CellText& text);

    CWnd& m_grid;
    const CGridLayout& m_layout;
    CCellTexts m_texts;
    CWnd m_window;
    std::wstring m_shown;       // the control keeps no copy that the grid could rely on
    CRect m_cell;               // that the shown text is of; empty while nothing is shown
    CPoint m_mouse = {-1, -1};  // where it was last seen, in client coordinates
};

}  // namespace tavrin::propgrid
