// The month calendar of the property grid.
//
// The grid may delete the calendar while it handles the message about the date: sending it is the last
// thing that a function does with the object.
#include "propgrid/editors/PropertyGridMonthCalCtrl.h"

#include "propgrid/editors/GridMessages.h"
#include "propgrid/editors/PopUpEnd.h"

namespace tavrin::propgrid {

IMPLEMENT_DYNAMIC(CPropertyGridMonthCalCtrl, CMonthCalCtrl)

BEGIN_MESSAGE_MAP(CPropertyGridMonthCalCtrl::CYearEdit, CWnd)
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CPropertyGridMonthCalCtrl, CMonthCalCtrl)
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_NOTIFY_REFLECT(MCN_SELECT, &CPropertyGridMonthCalCtrl::OnSelect)
END_MESSAGE_MAP()

// CMonthCalCtrl::Create, which would register the window class, makes child windows alone.
BOOL CPropertyGridMonthCalCtrl::PreCreateWindow(CREATESTRUCT& create) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
    return CMonthCalCtrl::PreCreateWindow(create);
}

void CPropertyGridMonthCalCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
        case VK_ESCAPE:
            LeaveToOwner(*this);
            break;
        case VK_RETURN:
        case VK_EXECUTE:  // deliberately: some keyboards send it for Enter
            ReportDate();
            break;
        default:
            CMonthCalCtrl::OnKeyDown(key, repeat, flags);
    }
}

void CPropertyGridMonthCalCtrl::OnKillFocus(CWnd* newFocus) {
    CMonthCalCtrl::OnKillFocus(newFocus);
    LoseFocusTo(newFocus);
}

// The calendar's own edit of the year may take the focus, and must then be watched instead of the
// calendar. The calendar closes when any other window takes the focus.
void CPropertyGridMonthCalCtrl::LoseFocusTo(CWnd* window) {
    if (!IsOwnChild(window)) {
        DestroyWindow();
    } else if (m_yearEdit.GetSafeHwnd() == nullptr) {
        m_yearEdit.SubclassWindow(window->GetSafeHwnd());
    }
}

bool CPropertyGridMonthCalCtrl::IsOwnChild(const CWnd* window) const {
    return window != nullptr && window->GetParent() == this;
}

// Enter and Escape too, which a dialog would otherwise keep to itself.
UINT CPropertyGridMonthCalCtrl::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

void CPropertyGridMonthCalCtrl::OnSelect(NMHDR* /*notification*/, LRESULT* result) {
    *result = 0;
    ReportDate();
}

void CPropertyGridMonthCalCtrl::ReportDate() {
    if (CWnd* const grid = GetOwner()) {
        grid->SendMessage(WM_GRID_DATE_CHOSEN);
    }
}

void CPropertyGridMonthCalCtrl::CYearEdit::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == VK_ESCAPE) {
        LeaveToOwner(m_calendar);
    } else {
        CWnd::OnKeyDown(key, repeat, flags);
    }
}

// The calendar may take its edit away meanwhile.
void CPropertyGridMonthCalCtrl::CYearEdit::OnKillFocus(CWnd* newFocus) {
    CWnd::OnKillFocus(newFocus);
    if (m_calendar.GetSafeHwnd() != nullptr && newFocus != &m_calendar) {
        m_calendar.LoseFocusTo(newFocus);
    }
}

UINT CPropertyGridMonthCalCtrl::CYearEdit::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

// The calendar has subclassed its edit too, and may take its own procedure away in this message, ours with
// it: the edit's end would then pass this object by.
void CPropertyGridMonthCalCtrl::CYearEdit::OnDestroy() {
    ::SendMessage(UnsubclassWindow(), WM_DESTROY, 0, 0);
}

}  // namespace tavrin::propgrid
