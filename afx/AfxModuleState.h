// Whose resources are used, and when: the state of the module that the framework is linked into.
#pragma once

#include "afx/AfxMessageMap.h"

class CWnd;

struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
};

// The state of the module (DLL or program) that this code is linked into.
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
// The current state: the program's, until an AFX_MAINTAIN_STATE2 replaces it. The window procedures of the
// framework do so automatically.
AFX_MODULE_STATE* AFXAPI AfxGetModuleState();

// Makes a module state the current one until the end of the scope, which restores the previous one.
// The outermost code of every entry into the module needs one. Temporary objects (CWnd::FromHandle and
// the like) that are made in the scope are deleted with it.
struct AFX_MAINTAIN_STATE2 {
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_previous;
    size_t m_temporaries;
};

// Of the current state.
HINSTANCE AFXAPI AfxGetInstanceHandle();
HINSTANCE AFXAPI AfxGetResourceHandle();
void AFXAPI AfxSetResourceHandle(HINSTANCE instance);

// The module's application object, at most one.
class CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)
    explicit CWinApp(LPCTSTR appName = nullptr);
    ~CWinApp() override;

    LPCTSTR m_pszAppName;
    CWnd* m_pMainWnd = nullptr;  // not owned
};

// The application object's name, else the module's file name without folder and extension.
LPCTSTR AFXAPI AfxGetAppName();
// The application object's main window, or the active window when it names none; null without such an object.
CWnd* AFXAPI AfxGetMainWnd();

// The last active pop-up of what AfxGetMainWnd gives; null for null. Takes no memory, as the report of a want
// of it must not.
HWND AfxFindMainPopUp();

// Without an icon among the flags the exclamation mark is shown. The box is owned by the last active
// pop-up of the main window, else by the active window.
int AFXAPI AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
int AFXAPI AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));

// The name of a window class with these attributes, registered for this module when it is new and
// unregistered with it. Throws CResourceException* when it cannot be registered.
LPCTSTR AFXAPI AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                                   HICON icon = nullptr);
