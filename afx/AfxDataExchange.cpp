// Exchange between a dialog's controls and its members.
#include "afx/afxcmn.h"

#include <utility>

namespace {

// Does something at the end of its scope.
template <class TWork>
class CAtEnd {
public:
    explicit CAtEnd(TWork work) : m_work(work) {}
    ~CAtEnd() { m_work(); }
    CAtEnd(const CAtEnd&) = delete;
    CAtEnd& operator=(const CAtEnd&) = delete;

private:
    TWork m_work;
};

}  // namespace

HWND CDataExchange::PrepareCtrl(int id) {
    m_lastControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    m_lastIsEdit = false;
    if (m_lastControl == nullptr) {
        AfxThrowNotSupportedException();
    }
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
        if (m_lastIsEdit) {
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

void CWnd::DoDataExchange(CDataExchange*) {}

HWND CWnd::s_hWndExchanging = nullptr;

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    CDataExchange exchange(this, saveAndValidate);
    const HWND outer = std::exchange(s_hWndExchanging, m_hWnd);
    const CAtEnd restore([outer] { s_hWndExchanging = outer; });
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
    if (control.m_hWnd != nullptr || exchange->m_bSaveAndValidate) {
        return;
    }
    if (!control.SubclassWindow(exchange->PrepareCtrl(id))) {
        AfxThrowNotSupportedException();
    }
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value) {
    const HWND control = exchange->PrepareEditCtrl(id);
    const CString shown = AfxTextOf(control);
    if (exchange->m_bSaveAndValidate) {
        value = shown;
    } else if (value != shown) {  // an equal text is left alone, and with it the caret and the selection
        ::SetWindowText(control, value);
    }
}

void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    } else {
        const bool isState = value >= BST_UNCHECKED && value <= BST_INDETERMINATE;
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(isState ? value : BST_UNCHECKED), 0);
    }
}

void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value) {
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = -1;
    }
    int index = 0;
    do {
        if ((::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0) {
            if (!exchange->m_bSaveAndValidate) {
                ::SendMessage(control, BM_SETCHECK, index == value, 0);
            } else if (::SendMessage(control, BM_GETCHECK, 0, 0) != 0) {
                value = index;
            }
            ++index;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control != nullptr && (::GetWindowLong(control, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_Scroll(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = ::GetScrollPos(control, SB_CTL);
    } else {
        ::SetScrollPos(control, SB_CTL, value, TRUE);
    }
}

void AFXAPI DDX_Slider(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(control, TBM_GETPOS, 0, 0));
    } else {
        ::SendMessage(control, TBM_SETPOS, TRUE, value);
    }
}
