// The messages of the item dialog about an item's files, which the preview tool repeats.
#pragma once

namespace tavrin::itemdlg {

inline constexpr wchar_t kFileNotFoundMessage[] = L"File not found!";
inline constexpr wchar_t kInvalidTypeMessage[] = L"Warning! Found invalid type code.";

}  // namespace tavrin::itemdlg
