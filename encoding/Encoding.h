// Bytes of files as text, and back.
//
// Text is UTF-16 with one unit to a wchar_t, also where a wchar_t is wider, since the host and the module
// count units. EncodeUtf8 and TakeCodePoint take a wider wchar_t that holds a whole code point as well.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::encoding {

// Nothing when the bytes are not well-formed UTF-8.
std::optional<std::wstring> DecodeUtf8(std::string_view bytes);

// An unpaired surrogate becomes U+FFFD.
std::string EncodeUtf8(std::wstring_view text);

// Appends a code point as UTF-8. It must be valid.
void AppendUtf8(std::string& bytes, char32_t codePoint);

// Removes the first code point from a text that is not empty. U+FFFD for an unpaired surrogate.
char32_t TakeCodePoint(std::wstring_view& text);

// Code page 1252, one character for each byte. The five bytes without a meaning become the control characters
// of the same number, so that EncodeWindows1252 gives each byte back.
std::wstring DecodeWindows1252(std::string_view bytes);

// Nothing for a character that the code page does not have.
std::optional<char> EncodeWindows1252(char32_t character);

// For files of either encoding: UTF-8 when the bytes are well-formed, otherwise code page 1252.
std::wstring DecodeUtf8OrWindows1252(std::string_view bytes);

}  // namespace tavrin::encoding
