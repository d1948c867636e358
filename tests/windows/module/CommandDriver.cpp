#include "tests/windows/module/CommandDriver.h"

#include "tests/windows/support/ModalDriver.h"

namespace {

CCommandDriver* activeDriver = nullptr;
constexpr int tickMilliseconds = 10;
constexpr int ticksToClose = 30;

BOOL CALLBACK FindDialog(HWND window, LPARAM found) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window) || !IsWindowEnabled(window)) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// A message box here has one button, of the system's own id, and no more than an icon beside its text.
bool IsMessageBox(HWND dialog) {
    const MessageBoxSeen seen = ReadMessageBox(dialog);
    return seen.buttons == 1 && !seen.text.empty();
}

}  // namespace

CCommandDriver::CCommandDriver(std::function<void(HWND)> confirm) : m_confirm(std::move(confirm)) {
    activeDriver = this;
    m_timer = SetTimer(nullptr, 0, tickMilliseconds, OnTimer);
}

CCommandDriver::~CCommandDriver() {
    KillTimer(nullptr, m_timer);
    activeDriver = nullptr;
}

void CALLBACK CCommandDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (activeDriver != nullptr) {
        activeDriver->Act();
    }
}

void CCommandDriver::Act() {
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&dialog));
    if (dialog == nullptr) {
        return;
    }
    if (dialog == m_current) {
        if (--m_patience == 0) {
            PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        }
        return;
    }
    m_current = dialog;
    m_patience = ticksToClose;
    Handle(dialog);
}

void CCommandDriver::Handle(HWND dialog) {
    if (IsMessageBox(dialog)) {
        messages.push_back(ReadMessageBox(dialog).text);
        PostMessageW(FindWindowExW(dialog, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
    } else if (confirmed++ > 0) {
        PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);  // confirming has failed
    } else if (m_confirm) {
        m_confirm(dialog);
    } else {
        PressButton(dialog, IDOK);
    }
}
