// What the item dialog says in message boxes about an item's files. Whoever foretells the dialog says it too.
#pragma once

namespace tavrin::itemdlg {

inline constexpr wchar_t kFileNotFoundMessage[] = L"File not found!";
inline constexpr wchar_t kInvalidTypeMessage[] = L"Warning! Found invalid type code.";

}  // namespace tavrin::itemdlg
