// An item's files as lines of text.
//
// The files are single-byte text. Each byte becomes one wide character by the runtime's current locale and
// goes back by the same rule (LocaleText.h), so bytes that the module does not understand survive: the marks
// of UTF-8 and UTF-16 are characters of the first line, a NUL, a 0x1A and a carriage return that no line feed
// follows are characters of their line. CR LF and LF end a line; every line is written with CR LF.
#pragma once

#include <string>
#include <vector>

namespace tavrin::itemdlg {

// Appends the lines of the file `path` to `lines`, without their line ends. False when the file cannot be
// opened or reading fails; `lines` then holds what was read before. A file of 2 GB or more is not read.
bool ReadTextFile(const std::wstring& path, std::vector<std::wstring>& lines);

// Creates the file anew (or empties it) and writes each line with a line end. False when the file cannot be
// opened, writing fails, or a line has a character that the locale cannot express; it then holds what was
// written before.
bool WriteTextFile(const std::wstring& path, const std::vector<std::wstring>& lines);

}  // namespace tavrin::itemdlg
