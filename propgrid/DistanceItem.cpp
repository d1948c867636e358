#include "propgrid/DistanceItem.h"

#include "propgrid/PropertyGrid.h"
#include "propgrid/painter/ModifiedMark.h"
#include "sds/sds.h"

namespace tavrin::propgrid {

namespace {

// The drawing's linear unit format. Whether it could be read is deliberately not asked: the host's
// conversions then run with 0 and decide.
int LinearUnits() {
    sds_resbuf units = {};
    sds_getvar(L"LUNITS", &units);
    return units.value.integer;
}

// Asks for two points; false when the user cancelled either or the host failed.
bool PickDistance(double& distance) {
    double first[3] = {};
    return sds_getpoint(nullptr, L"\nSelect first point: ", first) == RTNORM &&
           sds_getdist(first, L"\nSelect second point: ", &distance) == RTNORM;
}

// While it lives the dialog is out of the way and the host takes input, although a modal dialog runs.
class CDrawingAccess {
public:
    explicit CDrawingAccess(HWND dialog) : m_dialog(dialog) {
        const HWND main = sds_getmainhwnd();
        ::EnableWindow(main, TRUE);
        ::SetActiveWindow(main);
        ::ShowWindow(m_dialog, SW_HIDE);
    }
    // The host's main window is deliberately left enabled.
    ~CDrawingAccess() {
        ::ShowWindow(m_dialog, SW_SHOW);
        ::SetActiveWindow(m_dialog);
    }
    CDrawingAccess(const CDrawingAccess&) = delete;
    CDrawingAccess& operator=(const CDrawingAccess&) = delete;

private:
    HWND m_dialog;
};

}  // namespace

CDistanceItem::CDistanceItem(HWND dialog, double value)
    : m_value(value), m_reference(value), m_dialog(dialog) {}

int CDistanceItem::GetEditMode() {
    return EM_INPLACE_BUTTON;
}

void CDistanceItem::DrawItem(CDC& dc, CRect rect, bool /*focused*/) {
    if (m_value != m_reference) {
        MarkModified(dc);
    }
    const std::wstring text = GetStringValue();
    rect.left += CPropertyGrid::GetTextMargin();
    dc.DrawText(text.c_str(), static_cast<int>(text.size()), &rect,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void CDistanceItem::AcceptValue() {}

bool CDistanceItem::OnLButtonDown(CRect /*rect*/, CPoint /*point*/) {
    return false;
}

void CDistanceItem::OnMouseMove(CRect /*rect*/, CPoint /*point*/) {}

void CDistanceItem::OnLButtonUp(CRect /*rect*/, CPoint /*point*/) {}

std::wstring CDistanceItem::GetStringValue() {
    wchar_t text[256] = {};
    // -1: the precision is the drawing's own.
    sds_rtos(m_value, LinearUnits(), -1, text);
    text[255] = L'\0';
    return text;
}

bool CDistanceItem::SetStringValue(std::wstring text) {
    // A length that was left as it stood, by Escape too, keeps the digits that its text does not have.
    if (m_pGrid != nullptr && m_pGrid->IsEditUntouched()) {
        return false;
    }
    double distance = m_value;
    if (sds_distof(text.c_str(), LinearUnits(), &distance) != RTNORM) {
        ::MessageBox(nullptr, L"The value you have input is invalid, please specify another one.",
                     L"Invalid value", MB_OK);
        return false;
    }
    // A zero of the other sign is the same length: it is not stored.
    if (distance == m_value) {
        return false;
    }
    m_value = distance;
    return true;
}

void CDistanceItem::ShowDropDown(CRect /*rect*/) {}

bool CDistanceItem::OnButtonClicked() {
    const CDrawingAccess access(m_dialog);
    double distance = 0.0;
    if (!PickDistance(distance)) {
        return false;
    }
    m_value = distance;
    return true;
}

}  // namespace tavrin::propgrid
