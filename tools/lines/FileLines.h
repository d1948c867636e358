// An item's files as lines of text, as the module reads and writes them in the C locale, where every byte is
// the character of the same number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "itemdlg/TemplateRewrite.h"

// A line and its end, "\n", "\r\n", or nothing behind the last line. LF and CR LF end a line; any other CR, a
// NUL and a 0x1A are characters of their line.
struct SLineBytes {
    std::string_view text;
    std::string_view ending;
};

// Takes the next line off the bytes, of which there must be some.
SLineBytes TakeLine(std::string_view& bytes);

// The character that a byte is, and the text that bytes are.
inline wchar_t CharacterOf(char byte) {
    return static_cast<wchar_t>(static_cast<unsigned char>(byte));
}
std::wstring CharactersOf(std::string_view bytes);

struct SFileLine {
    std::wstring text;
    std::string ending;
};

// The lines of a file.
std::vector<SFileLine> SplitLines(std::string_view bytes);

tavrin::itemdlg::TextLines TextsOf(const std::vector<SFileLine>& lines);

// The bytes of a text of characters up to 0xFF.
std::string BytesOf(std::wstring_view text);

// The file that the module writes: CR LF behind every line.
std::string WrittenFile(const tavrin::itemdlg::TextLines& lines);
