// How a drop-down list or a calendar ends without a result.
#pragma once

#include <afxwin.h>

namespace tavrin::propgrid {

// Gives the focus to the pop-up's owner, the parent when there is none, and destroys the pop-up's window,
// which may be gone already by having lost the focus. Without this the system would choose where the focus
// goes.
inline void LeaveToOwner(CWnd& popUp) {
    const HWND window = popUp.m_hWnd;
    if (CWnd* const owner = popUp.GetOwner()) {
        owner->SetFocus();
    }
    if (::IsWindow(window)) {
        ::DestroyWindow(window);
    }
}

}  // namespace tavrin::propgrid
