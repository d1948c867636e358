// Module state, the application object, message boxes.
#include "afx/afxwin.h"

#include "afx/AfxHandleMap.h"

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

// The linker puts this at the start of the module (DLL or program) that the code becomes part of.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

AFX_MODULE_STATE* currentState = nullptr;
CWinApp* application = nullptr;

AFX_MODULE_STATE* GetProgramState() {
    static AFX_MODULE_STATE state = {::GetModuleHandle(nullptr), ::GetModuleHandle(nullptr)};
    AFX_MODULE_STATE* const own = AfxGetStaticModuleState();
    return own->m_hCurrentInstanceHandle == state.m_hCurrentInstanceHandle ? own : &state;
}

HWND GetMessageBoxOwner() {
    const HWND owner = AfxFindMainPopUp();
    return owner != nullptr ? owner : ::GetActiveWindow();
}

}  // namespace

HWND AfxFindMainPopUp() {
    if (application == nullptr) {
        return nullptr;
    }
    const CWnd* const main = application->m_pMainWnd;
    const HWND window = main != nullptr ? main->m_hWnd : ::GetActiveWindow();
    return window != nullptr ? ::GetLastActivePopup(window) : nullptr;
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    const auto instance = reinterpret_cast<HINSTANCE>(&__ImageBase);
    static AFX_MODULE_STATE state = {instance, instance};
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    return currentState != nullptr ? currentState : GetProgramState();
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state)
    : m_previous(currentState), m_temporaries(CAfxTemporaries::Count()) {
    currentState = state;
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    CAfxTemporaries::FreeDownTo(m_temporaries);
    currentState = m_previous;
}

std::vector<CAfxTemporaries::Temporary>& CAfxTemporaries::Stack() {
    static std::vector<Temporary> stack;
    return stack;
}

void CAfxTemporaries::MakeRoom() {
    auto& stack = Stack();
    if (stack.size() == stack.capacity()) {
        stack.reserve(2 * stack.size() + 4);
    }
}

void CAfxTemporaries::Push(void* handle, FFree free) {
    Stack().push_back({handle, free});
}

size_t CAfxTemporaries::Count() {
    return Stack().size();
}

void CAfxTemporaries::FreeDownTo(size_t count) {
    auto& stack = Stack();
    while (stack.size() > count) {
        const Temporary top = stack.back();
        stack.pop_back();
        top.free(top.handle);
    }
    // What the module allocates comes from its host: at rest it holds nothing of it.
    if (stack.empty()) {
        std::vector<Temporary>().swap(stack);
    }
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE instance) {
    AfxGetModuleState()->m_hCurrentResourceHandle = instance;
}

CWinApp::CWinApp(LPCTSTR appName) : m_pszAppName(appName) {
    ASSERT(application == nullptr);
    application = this;
}

CWinApp::~CWinApp() {
    application = nullptr;
}

LPCTSTR AFXAPI AfxGetAppName() {
    if (application != nullptr && application->m_pszAppName != nullptr) {
        return application->m_pszAppName;
    }
    static TCHAR name[MAX_PATH] = L"";
    if (name[0] == L'\0') {
        TCHAR path[MAX_PATH];
        const DWORD length =
            ::GetModuleFileName(AfxGetStaticModuleState()->m_hCurrentInstanceHandle, path, MAX_PATH);
        std::wstring file(path, length);
        file.erase(0, file.rfind(L'\\') + 1);
        if (const size_t dot = file.rfind(L'.'); dot != 0 && dot != std::wstring::npos) {
            file.resize(dot);
        }
        ::lstrcpyn(name, file.c_str(), MAX_PATH);
    }
    return name;
}

CWnd* AFXAPI AfxGetMainWnd() {
    if (application == nullptr) {
        return nullptr;
    }
    return application->m_pMainWnd != nullptr ? application->m_pMainWnd : CWnd::GetActiveWindow();
}

int AFXAPI AfxMessageBox(LPCTSTR text, UINT type, UINT) {
    if ((type & MB_ICONMASK) == 0) {
        type |= MB_ICONEXCLAMATION;
    }
    return ::MessageBox(GetMessageBoxOwner(), text, AfxGetAppName(), type);
}

int AFXAPI AfxMessageBox(UINT textId, UINT type, UINT helpId) {
    CString text;
    text.LoadString(textId);
    return AfxMessageBox(text, type, helpId);
}
