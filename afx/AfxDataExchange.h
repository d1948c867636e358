// Exchange between a dialog's controls and its members (DDX).
#pragma once

#include "afx/AfxDialog.h"

// One exchange, in one direction.
class CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    // The control with this id. Throws CNotSupportedException* when there is none.
    HWND PrepareCtrl(int id);
    // As above, for a control whose text the user types: Fail also selects its text.
    HWND PrepareEditCtrl(int id);
    // Ends the exchange: sets the focus to the last control (when saving) and throws a CUserException*. The
    // caller has already told the user the reason.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate;  // TRUE: from the controls into the members
    CWnd* m_pDlgWnd;

private:
    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

// Binds a member to the control; the member then receives the control's messages.
void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// Values of controls.
void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value);
void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value);  // 0, 1, or 2: indeterminate
// The radio button chosen in the group that begins with the control, counted from 0; -1 for none.
void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value);
void AFXAPI DDX_Scroll(CDataExchange* exchange, int id, int& value);
void AFXAPI DDX_Slider(CDataExchange* exchange, int id, int& value);
