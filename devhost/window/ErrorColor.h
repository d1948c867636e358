// Errors in another colour than the rest of a text, which an edit control cannot do by itself.
#pragma once

#include <windows.h>

namespace devhost {

// Draws the lines of a multi-line edit control that begin with "; error: " in red, where no selection covers
// them. Lasts as long as the control, whose colours WM_CTLCOLORSTATIC gives.
void ColorErrors(HWND edit);

}  // namespace devhost
