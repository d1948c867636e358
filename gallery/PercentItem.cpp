// An example of a custom item: a bar that follows the mouse.
#include "gallery/PercentItem.h"

#include <algorithm>
#include <utility>

#include "propgrid/PropertyGrid.h"

namespace tavrin::gallery {

namespace {

constexpr COLORREF kBarColor = RGB(110, 170, 230);
constexpr int kBarMargin = 2;  // to the edges of the cell, in pixels

}  // namespace

void CPercentItem::DrawItem(CDC& dc, CRect rect, bool /*focused*/) {
    CRect bar = rect;
    bar.DeflateRect(kBarMargin, kBarMargin);
    bar.right = bar.left + bar.Width() * m_percent / 100;
    dc.FillSolidRect(bar, kBarColor);
    // Filling has set an opaque background; the text stands on the bar.
    dc.SetBkMode(TRANSPARENT);
    CRect text = rect;
    text.left += propgrid::CPropertyGrid::GetTextMargin();
    dc.DrawText(GetStringValue().c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// The grid asks for every press while the item has the focus, wherever it is.
bool CPercentItem::OnLButtonDown(CRect rect, CPoint point) {
    if (!rect.PtInRect(point)) {
        return false;
    }
    m_dragging = true;
    m_percentBefore = m_percent;
    Follow(rect, point);
    return true;
}

void CPercentItem::OnMouseMove(CRect rect, CPoint point) {
    Follow(rect, point);
}

void CPercentItem::OnLButtonUp(CRect /*rect*/, CPoint /*point*/) {
    if (std::exchange(m_dragging, false) && m_percent != m_percentBefore) {
        m_pGrid->NotifyChanged(m_id);
    }
}

void CPercentItem::Follow(CRect rect, CPoint point) {
    rect.DeflateRect(kBarMargin, 0);
    const int percent = MulDiv(point.x - rect.left, 100, std::max(rect.Width(), 1));
    m_percent = std::clamp(percent, 0, 100);
    m_pGrid->Invalidate(FALSE);
}

}  // namespace tavrin::gallery
