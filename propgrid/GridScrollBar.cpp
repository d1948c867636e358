#include "propgrid/GridScrollBar.h"

#include <algorithm>

namespace tavrin::propgrid {

void CGridScrollBar::ShowFor(CWnd& grid, int rowsHeight) {
    constexpr UINT kId = 1000;
    if (!IsCreated() && !Create(WS_CHILD | SBS_VERT, FindArea(grid), &grid, kId)) {
        return;
    }
    CRect client;
    grid.GetClientRect(&client);
    const int position = GetPosition();
    EnableWindow(TRUE);
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMin = 0;
    info.nMax = rowsHeight;
    info.nPage = static_cast<UINT>(client.Height());
    info.nPos = std::min(position, rowsHeight);
    // Drawn when its turn to paint comes.
    SetScrollInfo(&info, FALSE);
    Invalidate(FALSE);
    ShowWindow(SW_SHOW);
    m_shown = true;
}

void CGridScrollBar::Hide() {
    if (IsCreated()) {
        EnableWindow(FALSE);
        ShowWindow(SW_HIDE);
    }
    m_shown = false;
}

CRect CGridScrollBar::FindArea(const CWnd& grid) {
    CRect area;
    grid.GetClientRect(&area);
    area.left = area.right - GetSystemWidth();
    return area;
}

ScrollState CGridScrollBar::GetState() {
    if (!IsCreated()) {
        return {};
    }
    SCROLLINFO info = {};
    GetScrollInfo(&info, SIF_ALL);
    return {
        .first = info.nMin, .end = info.nMax, .page = static_cast<int>(info.nPage), .position = info.nPos};
}

int CGridScrollBar::FindThumb(UINT position) {
    SCROLLINFO info = {};
    GetScrollInfo(&info, SIF_TRACKPOS);
    return LOWORD(info.nTrackPos) == position ? info.nTrackPos : static_cast<int>(position);
}

}  // namespace tavrin::propgrid
