// The vertical scroll bar of a property grid: a child at the right edge of the client area, as high as that.
// Positions are pixels from the top of the rows.
#pragma once

#include <afxwin.h>

#include "propgrid/controller/ScrollRule.h"

namespace tavrin::propgrid {

class CGridScrollBar : public CScrollBar {
public:
    // Appears for rows of a height that is given, or disappears. The bar is created when it is first needed.
    void ShowFor(CWnd& grid, int rowsHeight);
    void Hide();

    // Follows the size of the grid.
    void Place(CWnd& grid) { MoveWindow(FindArea(grid), TRUE); }

    bool IsCreated() const { return GetSafeHwnd() != nullptr; }
    bool IsShown() const { return m_shown; }
    // The width that it takes from the rows.
    int GetWidth() const { return m_shown ? GetSystemWidth() : 0; }
    // A bar that is disabled counts as scrolled to the top.
    int GetPosition() const { return IsCreated() && IsWindowEnabled() ? GetScrollPos() : 0; }

    ScrollState GetState();
    // The position of the thumb, of which a message holds the lower half.
    int FindThumb(UINT position);

    // The window is a new one, or none: the bar of the last is gone with it.
    void Forget() { m_shown = false; }

private:
    static int GetSystemWidth() { return ::GetSystemMetrics(SM_CXVSCROLL); }
    static CRect FindArea(const CWnd& grid);

    bool m_shown = false;
};

}  // namespace tavrin::propgrid
