// A module of its own, for the tests of what two modules with the framework inside share and do not.
#include <afxwin.h>

namespace {

class CStateWnd : public CWnd {
public:
    HINSTANCE m_seen = nullptr;

protected:
    DECLARE_MESSAGE_MAP()
    LRESULT OnAsk(WPARAM, LPARAM) {
        m_seen = AfxGetResourceHandle();
        return 1;
    }
};

BEGIN_MESSAGE_MAP(CStateWnd, CWnd)
    ON_MESSAGE(WM_APP, OnAsk)
END_MESSAGE_MAP()

}  // namespace

#define EXPORTED extern "C" __declspec(dllexport)

EXPORTED HINSTANCE ResourcesOutside() {
    return AfxGetResourceHandle();
}

// Within the module's state; with fail it is left through an exception.
EXPORTED HINSTANCE ResourcesInside(bool fail) {
    HINSTANCE seen = nullptr;
    try {
        AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
        seen = AfxGetResourceHandle();
        if (fail) {
            AfxThrowUserException();
        }
    } catch (CException* error) {
        error->Delete();
    }
    return seen;
}

EXPORTED void ReadString(wchar_t* text, int size) {
    AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    CString string;
    string.LoadString(100);
    lstrcpynW(text, string, size);
}

EXPORTED void RegisterClassName(wchar_t* name, int size) {
    AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    lstrcpynW(name, AfxRegisterWndClass(CS_DBLCLKS), size);
}

// The resources that a window's message finds when it comes from outside the module's state.
EXPORTED HINSTANCE ResourcesInWindow() {
    CStateWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    ::SendMessage(window.m_hWnd, WM_APP, 0, 0);
    return window.m_seen;
}
