#include "tools/texts/CodePage.h"

#include <algorithm>

#include "encoding/Encoding.h"

namespace tavrin::tools {

namespace {

bool IsAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

// The control characters to which bytes without a meaning in code page 1252 are decoded.
bool IsMeaningless(wchar_t character) {
    return character >= 0x80 && character < 0xA0;
}

bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character < 0xE000;
}

}  // namespace

std::optional<std::wstring> DecodeText(std::string_view bytes, unsigned codePage) {
    if (codePage == kUtf8) {
        return encoding::DecodeUtf8(bytes);
    }
    if (codePage != kWesternEuropean && !std::all_of(bytes.begin(), bytes.end(), IsAscii)) {
        return std::nullopt;
    }
    std::wstring text = encoding::DecodeWindows1252(bytes);
    if (std::any_of(text.begin(), text.end(), IsMeaningless)) {
        return std::nullopt;
    }
    return text;
}

std::optional<std::string> EncodeCharacter(char32_t character, unsigned codePage) {
    if (character < 0x80) {
        return std::string(1, static_cast<char>(character));
    }
    if (codePage == kUtf8 && !IsSurrogate(character)) {
        std::string bytes;
        encoding::AppendUtf8(bytes, character);
        return bytes;
    }
    if (codePage != kWesternEuropean || IsMeaningless(static_cast<wchar_t>(character))) {
        return std::nullopt;
    }
    const std::optional<char> byte = encoding::EncodeWindows1252(character);
    return byte ? std::optional(std::string(1, *byte)) : std::nullopt;
}

}  // namespace tavrin::tools
