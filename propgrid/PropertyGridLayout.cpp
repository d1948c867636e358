// The layout of the property grid: how high its rows are together, and the scroll bar that follows.
#include <algorithm>

#include "propgrid/PropertyGrid.h"

// Runs after every change of the rows, so it must not go through them: the row count is kept ready.
void CPropertyGrid::Relayout() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    m_rowsPending = false;
    const int position = GetScrollPosition();
    const int totalHeight = GetTotalHeight();
    CRect client;
    GetClientRect(&client);
    // Rows that fill the window exactly deliberately show the bar too.
    if (totalHeight >= client.Height()) {
        ShowScrolling(client, totalHeight, position);
    } else {
        HideScrolling();
    }
    Invalidate(TRUE);
    m_laidOut = true;
}

// As Relayout, for rows that are added one after another. While neither the grid nor its bar has heard
// anything since the last layout, nobody can see what one more row changes: that waits for the next message.
// The window waits to be painted since that layout, so there will be one.
void CPropertyGrid::RelayoutForMoreRows() {
    if (m_laidOut) {
        m_rowsPending = true;
    } else {
        Relayout();
    }
}

// Before the grid or its bar handles a message. From then on each change counts at once.
void CPropertyGrid::SettleLayout() {
    if (m_rowsPending) {
        Relayout();
    }
    m_laidOut = false;
}

int CPropertyGrid::GetTotalHeight() const {
    return static_cast<int>(m_contents.GetRowCount(IsCategorized())) * m_rowHeight;
}

void CPropertyGrid::ShowScrolling(const CRect& client, int totalHeight, int position) {
    if (!HasScrollBar() &&
        !m_scrollBar.Create(WS_CHILD | SBS_VERT, GetScrollBarRect(), this, SCROLL_BAR_ID)) {
        return;
    }
    m_scrollBar.EnableWindow(TRUE);
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMin = 0;
    info.nMax = totalHeight;
    info.nPage = static_cast<UINT>(client.Height());
    info.nPos = std::min(position, totalHeight);
    // Drawn when its turn to paint comes, once for however many rows are added in a row.
    m_scrollBar.SetScrollInfo(&info, FALSE);
    m_scrollBar.Invalidate(FALSE);
    m_scrollBar.ShowWindow(SW_SHOW);
    m_scrollBarShown = true;
}

// A disabled bar counts as scrolled to the top.
void CPropertyGrid::HideScrolling() {
    if (HasScrollBar()) {
        m_scrollBar.EnableWindow(FALSE);
        m_scrollBar.ShowWindow(SW_HIDE);
    }
    m_scrollBarShown = false;
}

// Follows the window's size. Without a bar a new size deliberately changes nothing: no bar appears
// before the rows next change, and the divider stays where it is.
void CPropertyGrid::PlaceScrollBar() {
    if (!HasScrollBar()) {
        return;
    }
    m_scrollBar.MoveWindow(GetScrollBarRect(), TRUE);
    Relayout();
}

CRect CPropertyGrid::GetScrollBarRect() const {
    CRect rect;
    GetClientRect(&rect);
    rect.left = rect.right - ::GetSystemMetrics(SM_CXVSCROLL);
    return rect;
}

LRESULT CPropertyGrid::CGridScrollBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    m_grid.SettleLayout();
    return CScrollBar::WindowProc(message, wParam, lParam);
}

int CPropertyGrid::GetScrollPosition() const {
    return HasScrollBar() && m_scrollBar.IsWindowEnabled() ? m_scrollBar.GetScrollPos() : 0;
}
