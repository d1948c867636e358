// The two patterns that lines are read with, case-insensitively. They have a file of their own because what
// measures and tries the matcher works on the same ones.
#pragma once

namespace tavrin::itemdlg {

// Groups: number, label, type letter, value.
inline constexpr wchar_t kParameterPattern[] = L"^\\${[0-9]*}[ ]*=[ ]*\"{.*}\"{[IDR]}{.*}$";

// Group: the number between the signs.
inline constexpr wchar_t kPlaceholderPattern[] = L"^.*<<{[0-9]*}>>.*";

}  // namespace tavrin::itemdlg
