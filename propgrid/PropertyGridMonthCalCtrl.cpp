// The month calendar of the property grid.
//
// The grid may delete the calendar while it handles the message about the date: sending it is the last
// thing that a function does with the object.
#include "propgrid/PropertyGridMonthCalCtrl.h"

#include "propgrid/GridMessages.h"

IMPLEMENT_DYNAMIC(CPropertyGridMonthCalCtrl, CMonthCalCtrl)

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
            DestroyWindow();
            break;
        case VK_RETURN:
        case VK_EXECUTE:  // deliberately: some keyboards have it in Enter's place
            ReportDate();
            break;
        default:
            CMonthCalCtrl::OnKeyDown(key, repeat, flags);
    }
}

// The calendar's own edit of the year may take the focus; whatever else takes it closes the calendar.
void CPropertyGridMonthCalCtrl::OnKillFocus(CWnd* newFocus) {
    CMonthCalCtrl::OnKillFocus(newFocus);
    if (newFocus == nullptr || newFocus->GetParent() != this) {
        DestroyWindow();
    }
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
