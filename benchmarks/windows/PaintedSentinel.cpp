#include "benchmarks/windows/PaintedSentinel.h"

#include <utility>

namespace tavrin::benchmarks {

CPaintedSentinel* CPaintedSentinel::s_active = nullptr;

CPaintedSentinel::CPaintedSentinel() {
    s_active = this;
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.lpszClassName = L"PaintedSentinel";
    windowClass.hInstance = GetModuleHandleW(nullptr);
    RegisterClassW(&windowClass);
    m_window = CreateWindowExW(0, windowClass.lpszClassName, L"bench", WS_POPUP | WS_VISIBLE, 0, 0,
                               GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr, nullptr,
                               windowClass.hInstance, nullptr);
    m_hook = SetWindowsHookExW(WH_CALLWNDPROC, WatchMessages, nullptr, GetCurrentThreadId());
}

CPaintedSentinel::~CPaintedSentinel() {
    UnhookWindowsHookEx(m_hook);
    DestroyWindow(m_window);
    s_active = nullptr;
}

LRESULT CALLBACK CPaintedSentinel::WatchMessages(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (sent.message == WM_WINDOWPOSCHANGED &&
        (reinterpret_cast<const WINDOWPOS*>(sent.lParam)->flags & SWP_SHOWWINDOW) != 0 &&
        GetWindow(sent.hwnd, GW_OWNER) == s_active->m_window) {
        s_active->m_dialogShows = true;
        InvalidateRect(s_active->m_window, nullptr, FALSE);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK CPaintedSentinel::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    ValidateRect(window, nullptr);
    if (std::exchange(s_active->m_dialogShows, false) && s_active->m_painted) {
        std::exchange(s_active->m_painted, nullptr)();
    }
    return 0;
}

}  // namespace tavrin::benchmarks
