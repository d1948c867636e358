// The names of an item's files: its base name with one of these endings, and nothing between.
#pragma once

namespace tavrin::itemdlg {

inline constexpr wchar_t kWorkingFileEnding[] = L"_TMP.TXT";
inline constexpr wchar_t kTemplateFileEnding[] = L".TXT";
inline constexpr wchar_t kPictureEnding[] = L".png";

// The line, counted from 0, that holds the item's title in both text files.
inline constexpr int kTitleLine = 1;

// The text in front of the title in the item dialog's header.
inline constexpr unsigned kHeaderPrefixText = 1363;

}  // namespace tavrin::itemdlg
