// The layout of the property grid: how high its rows are together, and the scroll bar that follows.
#include <algorithm>

#include "PropertyGrid.h"

// Runs after every change of the rows, so it must not go through them: the row count is kept ready.
void CPropertyGrid::Relayout() {
    if (GetSafeHwnd() == nullptr)
        return;
    const int position = GetScrollPosition();
    const std::size_t rows = m_contents.GetRowCount(m_displayMode == DM_CATEGORIZED);
    const int totalHeight = static_cast<int>(rows) * m_rowHeight;
    CRect client;
    GetClientRect(&client);
    // Rows that fill the window exactly deliberately show the bar too.
    if (totalHeight >= client.Height())
        ShowScrolling(client, totalHeight, position);
    else
        HideScrolling();
    Invalidate(TRUE);
}

void CPropertyGrid::ShowScrolling(const CRect& client, int totalHeight, int position) {
    if (!HasScrollBar() && !m_scrollBar.Create(WS_CHILD | SBS_VERT, GetScrollBarRect(), this, SCROLL_BAR_ID))
        return;
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
    if (!HasScrollBar())
        return;
    m_scrollBar.MoveWindow(GetScrollBarRect(), TRUE);
    Relayout();
}

CRect CPropertyGrid::GetScrollBarRect() const {
    CRect rect;
    GetClientRect(&rect);
    rect.left = rect.right - ::GetSystemMetrics(SM_CXVSCROLL);
    return rect;
}

int CPropertyGrid::GetScrollPosition() const {
    return HasScrollBar() && m_scrollBar.IsWindowEnabled() ? m_scrollBar.GetScrollPos() : 0;
}
