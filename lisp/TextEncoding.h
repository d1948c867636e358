// Bytes of files to text and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// UTF-8 when the bytes are valid as such, otherwise Windows-1252.
std::wstring DecodeSource(std::string_view bytes);

// Windows-1252, one character for each byte; the five bytes that it leaves open become the control characters
// of the same number, so that every byte comes back from ToWindows1252.
std::wstring FromWindows1252(std::string_view bytes);
// Nothing for a character that has no byte.
std::optional<char> ToWindows1252(wchar_t character);
