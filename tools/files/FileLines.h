// An item's files as lines of text, as the module reads and writes them in the C locale: every byte is the
// character of the same number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "itemdlg/TemplateRewrite.h"

namespace tavrin::tools {

// A line and its end: "\n", "\r\n", or nothing at the end of the file. Any other CR, NUL and 0x1A are
// characters of the line.
struct LineBytes {
    std::string_view text;
    std::string_view ending;
};

// Removes the first line from the bytes, which must not be empty.
LineBytes TakeLine(std::string_view& bytes);

// The character of a byte, and the text of several.
inline wchar_t CharacterOf(char byte) {
    return static_cast<wchar_t>(static_cast<unsigned char>(byte));
}
std::wstring CharactersOf(std::string_view bytes);

struct FileLine {
    std::wstring text;
    std::string ending;
};

// The lines of a file.
std::vector<FileLine> SplitLines(std::string_view bytes);

itemdlg::TextLines TextsOf(const std::vector<FileLine>& lines);

// The bytes of a text, whose characters must be at most 0xFF.
std::string BytesOf(std::wstring_view text);

}  // namespace tavrin::tools
