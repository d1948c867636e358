// An example of a custom item: a share that is drawn as a bar and set by dragging the mouse along it.
#pragma once

#include "propgrid/PropertyGrid.h"

namespace tavrin::gallery {

class CPercentItem final : public propgrid::ICustomItem {
public:
    // `percent` is from 0 to 100.
    explicit CPercentItem(int percent) : m_percent(percent) {}

    // The id that the grid gave the item, for notifying the grid of changes.
    void SetId(UINT id) { m_id = id; }
    void SetPercent(int percent) { m_percent = percent; }

    // EM_CUSTOM: there is no editor, the mouse is the item's own.
    int GetEditMode() override { return propgrid::EM_CUSTOM; }
    void DrawItem(CDC& dc, CRect rect, bool focused) override;
    // Changes are not shown, so there is nothing to compare with.
    void AcceptValue() override {}
    bool OnLButtonDown(CRect rect, CPoint point) override;
    void OnMouseMove(CRect rect, CPoint point) override;
    // Notifies the grid when the drag has changed the percentage.
    void OnLButtonUp(CRect rect, CPoint point) override;
    std::wstring GetStringValue() override { return std::to_wstring(m_percent) + L"%"; }
    // The grid calls the rest for other edit modes only.
    bool SetStringValue(std::wstring /*text*/) override { return false; }
    void ShowDropDown(CRect /*rect*/) override {}
    bool OnButtonClicked() override { return false; }

private:
    void Follow(CRect rect, CPoint point);

    int m_percent;
    int m_percentBefore = 0;  // the drag
    bool m_dragging = false;
    UINT m_id = 0;
};

}  // namespace tavrin::gallery
