// Text of a script in its code page as UTF-16, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::tools {

// The supported code pages. Bytes below 0x80 are ASCII in every code page.
inline constexpr unsigned kUtf8 = 65001;
inline constexpr unsigned kWesternEuropean = 1252;

// The text of bytes, in UTF-16 units. Nothing for ill-formed UTF-8, for bytes without a meaning in code page
// 1252, and for bytes beyond ASCII in an unknown code page.
std::optional<std::wstring> DecodeText(std::string_view bytes, unsigned codePage);

// The bytes of one character; nothing when the code page does not have it, or for a surrogate.
std::optional<std::string> EncodeCharacter(char32_t character, unsigned codePage);

}  // namespace tavrin::tools
