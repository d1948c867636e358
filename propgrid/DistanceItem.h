// A length as a custom item of the property grid: shown and typed in the drawing's unit format, or
// measured by picking two points in the drawing.
#pragma once

#include "propgrid/PropertyGrid.h"

namespace tavrin::propgrid {

class CDistanceItem final : public ICustomItem {
public:
    // `value` is in drawing units; it is also what later values are compared with to mark a change.
    // `dialog` shows the grid and is hidden while the user picks points; not owned.
    CDistanceItem(HWND dialog, double value);

    // The length in drawing units.
    double GetDistance() const { return m_value; }

    // EM_INPLACE_BUTTON: typed in the cell, measured with the button.
    int GetEditMode() override;
    void DrawItem(CDC& dc, CRect rect, bool focused) override;
    // Deliberately nothing: the length it was made with stays the reference, so a distance that the user
    // changed stays highlighted for the life of the item.
    void AcceptValue() override;
    bool OnLButtonDown(CRect rect, CPoint point) override;
    void OnMouseMove(CRect rect, CPoint point) override;
    void OnLButtonUp(CRect rect, CPoint point) override;
    // The length as the host writes it in the drawing's units.
    std::wstring GetStringValue() override;
    // Reads a length as the host does, unless the user left the text of the edit untouched. Reports a text
    // that is none to the user and keeps the value. True when the length is another one.
    bool SetStringValue(std::wstring text) override;
    void ShowDropDown(CRect rect) override;
    // Lets the user pick two points. True when there are two, even if the length is the same as before.
    bool OnButtonClicked() override;

private:
    double m_value;
    double m_reference;
    HWND m_dialog;
};

}  // namespace tavrin::propgrid
