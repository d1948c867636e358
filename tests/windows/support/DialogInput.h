// A person's mouse and keyboard for a window of the test's own thread.
#pragma once

#include <windows.h>

// Clicks with the real mouse on the middle of a control, or on a point of a window's client area. The
// messages arrive as the thread handles its queue.
void Click(HWND control);
void Click(HWND window, POINT point);
void DoubleClick(HWND control);

// Posts the key to the window that has the focus; the dialog's message loop gets it.
void PressKey(HWND dialog, WPARAM key);

// Posts the character alike, as the translation of a key does.
void TypeCharacter(HWND dialog, wchar_t character);

// As the close box does.
void PressCloseBox(HWND dialog);
