// One control of a dialog that is assembled at run time: what it is, and its window while the dialog is open.
//
// CDynDialogEx makes and owns these; see there for how a control comes to be.
#pragma once

#include <afxwin.h>

#include "dyndlg/ControlTypes.h"
#include "dyndlg/DialogLayout.h"
#include "memory/MemoryFence.h"

namespace tavrin::dyndlg {

// What a control is made from. Coordinates are dialog units.
struct DynControl {
    CString className = {};  // the window class; for CT_ACTIVEX the control's ProgID
    UINT typeCode = CT_ACTIVEX;
    UINT id = 0;
    DWORD style = 0;
    DWORD exStyle = 0;
    DialogRect rect = {};
    CString caption = {};
    void* data = nullptr;     // the caller's variable, not owned; see EExchange for what it points to
    bool subclassed = false;  // Windows creates it from the dialog's template
};

class CDynDialogItemEx : public CWnd {
    DECLARE_DYNAMIC(CDynDialogItemEx)

public:
    explicit CDynDialogItemEx(const DynControl& control) : m_control(control) {}

    const DynControl& Control() const { return m_control; }

    // The object that has the control's window: the caller's own when the data is a control object, else this
    // one.
    CWnd& WindowObject();

    // Creates the window on `dialog` and gives it the font. FALSE when it cannot be created. For a control
    // that is neither ActiveX nor subclassed.
    BOOL CreateOn(CWnd& dialog, CFont& font);

    // Puts the control where it belongs on `dialog`, whose dialog units are known by now; an ActiveX control
    // is created only here. FALSE when that fails. For a control that is not subclassed.
    BOOL PlaceOn(CDialog& dialog);

    // Exchanges the value between the control and the caller's variable. Nothing without a variable, and
    // nothing without a window: a dialog opens without the controls that could not be created.
    void DoDataExchange(CDataExchange* pDX) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CWnd::WindowProc(message, wParam, lParam); });
    }
    DECLARE_MESSAGE_MAP()

private:
    EExchange Exchange() const;
    BOOL CreateActiveXOn(CWnd& dialog, const RECT& pixels);

    const DynControl m_control;
};

}  // namespace tavrin::dyndlg
