// How a value that the user changed is marked: by a yellow background behind its text.
#pragma once

#include <afxwin.h>

namespace tavrin::propgrid {

// Deliberately not one of the colours that a client can set.
inline constexpr COLORREF kModifiedColor = RGB(255, 255, 80);

// The text that is drawn next gets the background. While the system's high contrast is on, and only then, a
// text colour that cannot be read on it is replaced by black.
void MarkModified(CDC& dc);

}  // namespace tavrin::propgrid
