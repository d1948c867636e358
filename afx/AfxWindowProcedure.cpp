// Where Windows enters the framework: the window procedure and the hook on window creation.
#include "afx/AfxFence.h"
#include "afx/AfxWindowHook.h"
#include "afx/afxwin.h"

namespace {

MSG currentMessage = {};

// Keeps the message that is being handled known, through messages sent meanwhile.
class CCurrentMessage {
public:
    CCurrentMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) : m_previous(currentMessage) {
        currentMessage = {window, message, wParam, lParam, 0, {0, 0}};
    }
    ~CCurrentMessage() { currentMessage = m_previous; }
    CCurrentMessage(const CCurrentMessage&) = delete;
    CCurrentMessage& operator=(const CCurrentMessage&) = delete;

private:
    MSG m_previous;
};

// The result that Windows gets for a message whose handler threw an exception.
LRESULT GetResultOfFailure(HWND window, UINT message) {
    switch (message) {
        case WM_CREATE:
            return -1;
        case WM_PAINT:
            ::ValidateRect(window, nullptr);  // else Windows would send WM_PAINT again and again
            return 0;
        default:
            return message == WM_COMMAND;
    }
}

}  // namespace

// Allocates nothing: an allocation failure may be what is reported.
void AfxReportCaught(bool isCommand) {
    constexpr int size = 1024;
    TCHAR text[size];
    ::lstrcpyn(text, isCommand ? L"Command failed." : L"Internal application error.", size);
    const int length = ::lstrlen(text);
    TCHAR* const reason = text + length + 1;
    const int capacity = size - length - 1;
    reason[0] = L'\0';
    try {
        throw;
    } catch (CUserException* error) {
        error->Delete();
        return;
    } catch (CException* error) {
        error->GetErrorMessage(reason, static_cast<UINT>(capacity));
        error->Delete();
    } catch (const std::exception& error) {
        ::MultiByteToWideChar(CP_ACP, 0, error.what(), -1, reason, capacity);
        reason[capacity - 1] = L'\0';
    } catch (...) {
    }
    if (reason[0] != L'\0') {
        text[length] = L'\n';
    }
    AfxMessageBox(text, MB_ICONSTOP);
}

const MSG* CWnd::GetCurrentMessage() {
    return &currentMessage;
}

LRESULT CALLBACK CWnd::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* const object = FromHandlePermanent(window);
    if (object == nullptr) {
        return ::DefWindowProc(window, message, wParam, lParam);
    }
    const AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    const CCurrentMessage current(window, message, wParam, lParam);
    LRESULT result = 0;
    if (!AfxGuard([&] { result = object->WindowProc(message, wParam, lParam); }, message == WM_COMMAND)) {
        return GetResultOfFailure(window, message);
    }
    return result;
}

CAfxWindowHook* CAfxWindowHook::s_current = nullptr;

CAfxWindowHook::CAfxWindowHook(CWnd* window)
    : m_outer(s_current),
      m_window(window),
      m_hook(::SetWindowsHookEx(WH_CBT, Procedure, nullptr, ::GetCurrentThreadId())) {
    if (m_hook == nullptr) {
        AfxThrowResourceException();
    }
    s_current = this;
}

CAfxWindowHook::~CAfxWindowHook() {
    ::UnhookWindowsHookEx(m_hook);
    s_current = m_outer;
}

LRESULT CALLBACK CAfxWindowHook::Procedure(int code, WPARAM wParam, LPARAM lParam) {
    CAfxWindowHook* const hook = s_current;
    if (hook == nullptr) {
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    if (code == HCBT_CREATEWND && hook->m_window != nullptr) {
        const auto window = reinterpret_cast<HWND>(wParam);
        // Windows makes input-method windows of its own accord along with a thread's first window.
        const bool isInputMethod = (::GetClassLong(window, GCL_STYLE) & CS_IME) != 0;
        if (!isInputMethod && !hook->Attach(window)) {
            return 1;  // ends the creation
        }
    }
    return ::CallNextHookEx(hook->m_hook, code, wParam, lParam);
}

bool CAfxWindowHook::Attach(HWND window) {
    const AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    CWnd* const object = m_window;
    m_window = nullptr;
    const bool attached = AfxGuard([&] {
        object->Attach(window);
        object->PreSubclassWindow();
        object->TakeMessages();
    });
    if (!attached) {
        object->Detach();
        m_window = object;
    }
    return attached;
}
