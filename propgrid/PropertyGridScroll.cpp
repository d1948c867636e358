// Scrolling the property grid: its scroll bar and the mouse wheel. Positions are pixels from the top of the
// rows.
#include <algorithm>
#include <cstdlib>

#include "propgrid/PropertyGrid.h"

// False when the message is done with, true when the default handling is to follow.
bool CPropertyGrid::ScrollByBar(UINT code, UINT position, const CScrollBar* bar) {
    const bool isOwnBar = bar != nullptr && bar->GetSafeHwnd() == m_scrollBar.GetSafeHwnd();
    if (!m_scrollBarShown || !isOwnBar || code == SB_ENDSCROLL) {
        return true;
    }
    return TakeFocus() && Scroll(code, FindThumbPosition(position));
}

// A message holds no more than the lower half of a position; the bar knows the whole of it.
int CPropertyGrid::FindThumbPosition(UINT position) {
    SCROLLINFO info = {};
    m_scrollBar.GetScrollInfo(&info, SIF_TRACKPOS);
    return LOWORD(info.nTrackPos) == position ? info.nTrackPos : static_cast<int>(position);
}

// Does what a code of the scroll bar asks for; `position` is for the thumb. False when the thumb cannot go
// there, or is there.
bool CPropertyGrid::Scroll(UINT code, int position) {
    SCROLLINFO info = {};
    m_scrollBar.GetScrollInfo(&info, SIF_ALL);
    CRect client;
    GetClientRect(&client);
    const int first = info.nMin;
    const int last = info.nMax - static_cast<int>(info.nPage);
    const int current = info.nPos;
    int target = current;
    switch (code) {
        case SB_LINEUP:
            target = std::max(current - m_rowHeight, first);
            break;
        case SB_LINEDOWN:
            target = std::min(current + m_rowHeight, last);
            break;
        case SB_PAGEUP:
            target = std::max(current - client.Height(), first);
            break;
        case SB_PAGEDOWN:
            target = std::min(current + client.Height(), last);
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            if (position == current || (position < current && current == first) ||
                (position > current && current == last)) {
                return false;
            }
            target = position;
            break;
        case SB_TOP:
            target = first;
            break;
        case SB_BOTTOM:
            target = last;
            break;
        default:
            break;
    }
    m_scrollBar.SetScrollPos(target);
    Repaint();
    return true;
}

// Three rows for each notch. The wheel ends an open edit, which would otherwise stay where its row was.
void CPropertyGrid::ScrollByWheel(int delta) {
    const int lines = std::abs(delta) / WHEEL_DELTA * 3;
    if (lines == 0 || !m_scrollBarShown) {
        return;
    }
    if ((delta < 0 || IsEditing()) && !TakeFocus()) {
        return;
    }
    for (int line = 0; line < lines; ++line) {
        Scroll(delta > 0 ? SB_LINEUP : SB_LINEDOWN);
    }
}
