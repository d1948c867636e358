// ActiveX controls by the system's own control hosting, for a framework that has none.
#pragma once

#include <afxwin.h>

namespace tavrin::dyndlg {

// Creates the control that `progId` names (a CLSID in braces does too) inside `window`, which then shows it
// and releases it when it is destroyed. False when there is no such control or the system cannot host one.
// COM must be initialized on the calling thread.
bool CreateActiveXIn(HWND window, LPCTSTR progId);

}  // namespace tavrin::dyndlg
