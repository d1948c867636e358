// Text of a script in its code page as UTF-16, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The code pages that a script's texts may be written in. Bytes below 0x80 mean the same in each.
inline constexpr unsigned kUtf8 = 65001;
inline constexpr unsigned kWesternEuropean = 1252;

// The text that bytes stand for, in UTF-16 units. Nothing when the bytes are no text of the code page: when
// they are no well-formed UTF-8, or one has no meaning, or a byte beyond ASCII stands in an unknown page.
std::optional<std::wstring> DecodeText(std::string_view bytes, unsigned codePage);

// The bytes of one character, given as a UTF-16 unit or as a whole character beyond 0xFFFF; nothing when the
// code page does not have it. Surrogates alone are no characters.
std::optional<std::string> EncodeCharacter(char32_t character, unsigned codePage);
