// Attaches an object to its window before the window's first message.
#pragma once

#include "afx/AfxWnd.h"

// While it lives, the next window that this thread creates is attached to the object given. Windows
// announces a window to a CBT hook before it sends it anything, which makes this work for windows of any
// class, dialogs among them.
class CAfxWindowHook {
public:
    explicit CAfxWindowHook(CWnd* window);
    ~CAfxWindowHook();
    CAfxWindowHook(const CAfxWindowHook&) = delete;
    CAfxWindowHook& operator=(const CAfxWindowHook&) = delete;

    // A window was created and attached, whatever has become of it since.
    bool HasAttached() const { return m_window == nullptr; }

private:
    static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam);
    bool Attach(HWND window);

    static CAfxWindowHook* s_current;
    CAfxWindowHook* m_outer;
    CWnd* m_window;  // null once it is attached
    HHOOK m_hook;
};
