// Exchange between a dialog's controls and its members.
#include "afxwin.h"

HWND CDataExchange::PrepareCtrl(int id) {
    m_lastControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    m_lastIsEdit = false;
    if (m_lastControl == nullptr)
        AfxThrowNotSupportedException();
    return m_lastControl;
}

HWND CDataExchange::PrepareEditCtrl(int id) {
    PrepareCtrl(id);
    m_lastIsEdit = true;
    return m_lastControl;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_lastControl != nullptr) {
        ::SetFocus(m_lastControl);
        if (m_lastIsEdit)
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    if (m_hWnd == nullptr)
        return FALSE;
    CDataExchange exchange(this, saveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* error) {
        error->Delete();  // the user knows
    } catch (CException* error) {
        error->ReportError(MB_ICONEXCLAMATION);
        error->Delete();
    }
    return FALSE;
}

void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
    if (control.m_hWnd != nullptr || exchange->m_bSaveAndValidate)
        return;
    if (!control.SubclassWindow(exchange->PrepareCtrl(id)))
        AfxThrowNotSupportedException();
}
