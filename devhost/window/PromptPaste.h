// Pasting into the prompt.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace devhost {

// Returns the lines of a text joined into one.
using JoinLines = std::function<std::wstring(std::wstring_view)>;

// Makes the edit control join the lines of a pasted text with `join`; without this it would paste only the
// first line. While `join` is empty, it pastes as usual. `join` must outlive the control.
void JoinPastedLines(HWND edit, const JoinLines& join);

}  // namespace devhost
