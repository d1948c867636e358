// Connects a window to its object.
#pragma once

#include <windows.h>

namespace devhost {

// A window procedure for a class with members OnMessage(UINT, WPARAM, LPARAM) -> LRESULT and m_window. The
// object's address is the creation parameter. Exceptions end here, since they must not pass through the
// system's code.
template <typename TWindow>
LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        auto* object = static_cast<TWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        object->m_window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
    }
    auto* object = reinterpret_cast<TWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (object == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        object->m_window = nullptr;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    try {
        return object->OnMessage(message, wParam, lParam);
    } catch (...) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace devhost
