// Pasting into the prompt.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

// Makes one line of several.
using CJoinLines = std::function<std::wstring(std::wstring_view)>;

// From here on the edit control takes a text of several lines as `join` makes them one; by itself it would
// keep the first line alone. `join`, which may be empty for a while, must live as long as the control.
void JoinPastedLines(HWND edit, const CJoinLines& join);
